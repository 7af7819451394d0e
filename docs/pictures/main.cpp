// Takes the pictures of the documentation from the gallery, and writes what puts them there: for
// every class that the summary of a page names, the box in which that page shows it.
//
//   ombrin_docs_pictures FOLDER
//
// saves FOLDER/<Class>.png, FOLDER/page-<name>.png with whole pages, and FOLDER/pictures.dox.

#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "PageKit.h"
#include "common/WindowCamera.h"

#include <ombrin/OmSkin.h>

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTextStream>
#include <QtGui/QCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStackedWidget>

#include <cstdio>

namespace {

// Classes that no summary names, and the page that shows what they are for.
const QMap<QString, QStringList> &furtherClasses()
{
    static const QMap<QString, QStringList> classes = {
            {QStringLiteral("window"), {QStringLiteral("OmDesktop")}},
            {QStringLiteral("palette"), {QStringLiteral("OmSkin")}},
            {QStringLiteral("icon-combo-box"), {QStringLiteral("OmIconComboBoxDelegate")}},
            {QStringLiteral("chat-input"),
             {QStringLiteral("OmTextEditSyntax"), QStringLiteral("OmSpelling")}},
            {QStringLiteral("wizard"),
             {QStringLiteral("COmWizard_Base"), QStringLiteral("COmWizard_Mission_Base"),
              QStringLiteral("COmWizard_Page_Base"), QStringLiteral("COmWizard_Standard"),
              QStringLiteral("OmWizard_Standard2")}},
            {QStringLiteral("choice-lists"),
             {QStringLiteral("OmCheckBoxAssortmentItem"),
              QStringLiteral("OmCheckBoxAssortmentList"), QStringLiteral("OmSmoothDelegate")}},
            {QStringLiteral("zebra"),
             {QStringLiteral("OmScribbledZebraView"), QStringLiteral("OmScribbledZebraItemBase"),
              QStringLiteral("OmScribbledZebraItemText"),
              QStringLiteral("OmScribbledZebraItemLink"),
              QStringLiteral("OmScribbledZebraItemList"), QStringLiteral("OmScribbledZebraPole"),
              QStringLiteral("OmScribbledZebraPoleList"),
              QStringLiteral("OmGraphicsSimpleHyperlinkItem")}},
            {QStringLiteral("screen-shooter"),
             {QStringLiteral("OmScreenShooter_FullscreenCutter"),
              QStringLiteral("OmScreenShooter_Private")}},
    };
    return classes;
}

QStringList classesOf(const gallery::GalleryPage &page)
{
    static const QRegularExpression className(
            QStringLiteral("\\b(C?Om[A-Z][A-Za-z0-9_]+|vhutilities)\\b"));
    QStringList classes;
    auto match = className.globalMatch(page.summaryText().section(QLatin1Char(':'), 0, 0));
    while (match.hasNext())
        classes.append(match.next().captured(1));
    classes += furtherClasses().value(page.nameText());
    classes.removeDuplicates();
    return classes;
}

QString qualified(const QString &name)
{
    static const QRegularExpression global(
            QStringLiteral("^(COm|OmWizard_|OmScribbled|OmScreenShooter|OmGraphics)"));
    return name.contains(global) ? name : QStringLiteral("ombrin::") + name;
}

// The first visible widget of the class called name, which may be in the namespace.
QWidget *widgetOf(const QString &name, const QWidget *page)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString className = QString::fromLatin1(widget->metaObject()->className());
        if (className.section(QStringLiteral("::"), -1) == name && widget->isVisible())
            return widget;
    }
    return nullptr;
}

// The box of the page in which widget stands, else the page.
QWidget *frameOf(QWidget *widget, QWidget *page)
{
    for (; widget && widget != page; widget = widget->parentWidget()) {
        if (dynamic_cast<gallery::Card *>(widget))
            return widget;
    }
    return page;
}

bool save(QWidget *widget, const QString &fileName)
{
    return widget->grab().save(fileName);
}

class Photographer
{
public:
    explicit Photographer(const QDir &folder)
        : m_folder(folder)
    {}

    // Returns what went wrong, or an empty text.
    QString run()
    {
        QFile listing(m_folder.filePath(QStringLiteral("pictures.dox")));
        if (!m_folder.mkpath(QStringLiteral(".")) || !listing.open(QIODevice::WriteOnly))
            return QStringLiteral("Cannot write into %1").arg(m_folder.path());
        QTextStream text(&listing);

        gallery::GalleryWindow window;
        window.resize(960, 640);
        window.show();
        if (!example::activate(&window, &window, true))
            return QStringLiteral("The gallery's window does not become active");
        for (const gallery::GalleryPage *page : gallery::allPages()) {
            window.showPage(page->nameText());
            example::settle();
            if (!take(&window, *page, &text))
                return QStringLiteral("Cannot save the pictures of %1").arg(page->nameText());
        }
        return QString();
    }

private:
    bool take(QWidget *window, const gallery::GalleryPage &page, QTextStream *text)
    {
        QWidget *shown = window->findChild<QStackedWidget *>()->currentWidget();
        bool ok = save(window, picture(QStringLiteral("page-") + page.nameText()));
        const QStringList classes = classesOf(page);
        for (const QString &name : classes) {
            if (m_taken.contains(name))
                continue;
            m_taken.insert(name);
            QWidget *subject = name == QLatin1String("OmWindow")
                                       ? window
                                       : frameOf(widgetOf(name, shown), shown);
            ok = save(subject, picture(name)) && ok;
            *text << "/*! \\" << (name == QLatin1String("vhutilities") ? "namespace " : "class ")
                  << qualified(name) << "\n\\image html " << name << ".png \"" << page.titleText()
                  << ", a page of the gallery\" width=" << subject->width() << "px\n*/\n";
        }
        return ok;
    }

    QString picture(const QString &name) const
    {
        return m_folder.filePath(name + QStringLiteral(".png"));
    }

    QDir m_folder;
    QSet<QString> m_taken;
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    example::pinLook();
    ombrin::OmSkin::init(true);
    QCursor::setPos(0, 0);

    const QStringList arguments = QApplication::arguments();
    const QString error = arguments.size() == 2
                                  ? Photographer(QDir(arguments.at(1))).run()
                                  : QStringLiteral("usage: ombrin_docs_pictures FOLDER");
    if (error.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return 1;
}
