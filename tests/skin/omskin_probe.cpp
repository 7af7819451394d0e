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

#include <ombrin/OmImageButton.h>
#include <ombrin/OmSkin.h>
#include <ombrin/OmStyle2.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

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
            entries.insert(key, isColor ? brush.color().name() : QStringLiteral("invalid"));
        }
    }
    return entries;
}

QJsonArray skinPictures()
{
    QJsonArray pictures;
    const QStringList names = QDir(QStringLiteral(":/")).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (!QPixmap(QStringLiteral(":/") + name).isNull())
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
    return {{QStringLiteral("step"), step},
            {QStringLiteral("useSkin"), ombrin::OmSkin::useSkin()},
            {QStringLiteral("folder"), ombrin::OmSkin::folder()},
            {QStringLiteral("styleSheet"), qApp->styleSheet()},
            {QStringLiteral("styles"), styles()},
            {QStringLiteral("palette"), paletteEntries()},
            {QStringLiteral("pictures"), skinPictures()}};
}

void paintAndReadEverything()
{
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(QStringLiteral("Button")));
    layout->addWidget(new QLineEdit(QStringLiteral("Text")));
    layout->addWidget(new QComboBox);
    layout->addWidget(new ombrin::OmImageButton);
    window.show();
    QApplication::processEvents();
    window.grab();

    QDirIterator files(QStringLiteral(":/"), QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            file.readAll();
    }
}

void perform(const QString &step)
{
    const QString argument = step.section(QLatin1Char('='), 1);
    if (step.startsWith(QLatin1String("init=")))
        ombrin::OmSkin::init(argument == QLatin1String("true"));
    else if (step.startsWith(QLatin1String("sheet=")))
        qApp->setStyleSheet(argument);
    else if (step.startsWith(QLatin1String("search=")))
        ombrin::OmSkin::addSearchPath(argument);
    else if (step == QLatin1String("pictures"))
        ombrin::OmSkin::registerPictures();
    else if (step == QLatin1String("remove"))
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/skins")).removeRecursively();
    else if (step == QLatin1String("paint"))
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
    while (steps.contains(QStringLiteral("application"))) {
        const QString step = steps.takeFirst();
        if (step == QLatin1String("application"))
            break;
        perform(step);
    }

    QApplication application(argc, argv);
    QJsonArray report;
    for (const QString &step : qAsConst(steps)) {
        perform(step);
        report.append(findings(step));
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    const QByteArray text = QJsonDocument(report).toJson();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? 0 : 1;
}
