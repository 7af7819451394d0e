// Applies the skin that lies beside this program and writes down what came of it.
//
//   omskin_probe REPORT STEP...
//
// OmSkin works once per process and looks beside the executable. So tst_omskin copies this program
// to a folder with a skin of its own, lets it perform the steps and reads the report: a JSON array
// with an object for each step.
//
//   init=true, init=false  OmSkin::init()
//   sheet=TEXT             installs a style sheet, as a host does
//   search=FOLDER          OmSkin::addSearchPath()
//   pictures               OmSkin::registerPictures()
//   remove                 deletes the skin from the disk
//   paint                  shows some widgets, reads every resource
//   nothing                only looks
//
// Steps before "application" are performed without an application; what they did shows later.

#include "support/Text.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmSkin.h>
#include <ombrin/OmStyle2.h>

#include <QtWidgets/QtWidgets>

namespace {

QJsonObject paletteEntries()
{
    QJsonObject entries;
    const QPalette palette = QApplication::palette();
    const auto groups = QMetaEnum::fromType<QPalette::ColorGroup>();
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (const auto group : {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QString key = QString::fromLatin1(groups.valueToKey(group)) + QLatin1Char('/')
                                + QString::fromLatin1(roles.valueToKey(role));
            const QBrush &brush = palette.brush(group, static_cast<QPalette::ColorRole>(role));
            const bool isColor = brush.color().isValid() && brush.style() == Qt::SolidPattern;
            entries.insert(key, isColor ? brush.color().name() : "invalid"_q);
        }
    }
    return entries;
}

QJsonArray skinPictures()
{
    QJsonArray pictures;
    const QStringList names = QDir(":/"_q).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (!QPixmap(":/"_q + name).isNull())
            pictures.append(name);
    }
    return pictures;
}

// The style that was there first is known again by its name.
QJsonArray styles()
{
    QJsonArray names;
    const auto found = qApp->findChildren<ombrin::OmStyle2 *>();
    for (ombrin::OmStyle2 *style : found) {
        if (!style->property("seen").isValid())
            style->setProperty("seen", names.size() + 1);
        names.append(style->property("seen").toInt());
    }
    return names;
}

QJsonObject findings(const QString &step)
{
    return {{"step"_q, step},
            {"useSkin"_q, ombrin::OmSkin::useSkin()},
            {"folder"_q, ombrin::OmSkin::folder()},
            {"styleSheet"_q, qApp->styleSheet()},
            {"styles"_q, styles()},
            {"palette"_q, paletteEntries()},
            {"pictures"_q, skinPictures()}};
}

void paintAndReadEverything()
{
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton("Button"_q));
    layout->addWidget(new QLineEdit("Text"_q));
    layout->addWidget(new QComboBox);
    layout->addWidget(new ombrin::OmImageButton);
    window.show();
    QApplication::processEvents();
    window.grab();

    QDirIterator files(":/"_q, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            file.readAll();
    }
}

void perform(const QString &step)
{
    const QString argument = step.section(QLatin1Char('='), 1);
    if (step.startsWith("init="_q))
        ombrin::OmSkin::init(argument == "true"_q);
    else if (step.startsWith("sheet="_q))
        qApp->setStyleSheet(argument);
    else if (step.startsWith("search="_q))
        ombrin::OmSkin::addSearchPath(argument);
    else if (step == "pictures"_q)
        ombrin::OmSkin::registerPictures();
    else if (step == "remove"_q)
        QDir(QCoreApplication::applicationDirPath() + "/skins"_q).removeRecursively();
    else if (step == "paint"_q)
        paintAndReadEverything();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3)
        return 2;
    QStringList steps;
    for (int i = 2; i < argc; ++i)
        steps.append(QString::fromLocal8Bit(argv[i]));
    while (steps.contains("application"_q)) {
        const QString step = steps.takeFirst();
        if (step == "application"_q)
            break;
        perform(step);
    }

    QApplication application(argc, argv);
    QJsonArray report;
    for (const QString &step : std::as_const(steps)) {
        perform(step);
        report.append(findings(step));
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    const QByteArray text = QJsonDocument(report).toJson();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? 0 : 1;
}
