#include "GalleryPage.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace gallery {

// The list of pages comes from CMakeLists.txt as one GALLERY_LISTED(Class) per line.
#define GALLERY_LISTED(Class) extern const GalleryPage Class##Entry;
#include "GalleryPageList.inc"
#undef GALLERY_LISTED

namespace {

std::vector<const GalleryPage *> listedPages()
{
    std::vector<const GalleryPage *> pages = {
#define GALLERY_LISTED(Class) &Class##Entry,
#include "GalleryPageList.inc"
#undef GALLERY_LISTED
    };
    std::stable_sort(pages.begin(), pages.end(), [](const GalleryPage *a, const GalleryPage *b) {
        return a->group < b->group;
    });
    return pages;
}

QString pageText(const char *text)
{
    return QCoreApplication::translate("GalleryPage", text);
}

} // namespace

QString GalleryPage::nameText() const
{
    return QString::fromLatin1(name);
}

QString GalleryPage::titleText() const
{
    return pageText(title);
}

QString GalleryPage::summaryText() const
{
    return pageText(summary);
}

const std::vector<const GalleryPage *> &allPages()
{
    static const std::vector<const GalleryPage *> pages = listedPages();
    return pages;
}

const GalleryPage *findPage(const QString &name)
{
    const auto &pages = allPages();
    const auto found = std::find_if(pages.begin(), pages.end(), [&name](const GalleryPage *page) {
        return page->nameText() == name;
    });
    return found == pages.end() ? nullptr : *found;
}

QString groupTitle(PageGroup group)
{
    switch (group) {
    case PageGroup::Windows:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Windows"));
    case PageGroup::BasicWidgets:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Basic widgets"));
    case PageGroup::SkinAndStyle:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Skin and style"));
    case PageGroup::Dialogs:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Dialogs"));
    case PageGroup::Contacts:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Contacts"));
    case PageGroup::RichText:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Rich text"));
    case PageGroup::ListsAndViews:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Lists and views"));
    case PageGroup::EffectsAndPopups:
        return pageText(QT_TRANSLATE_NOOP("GalleryPage", "Effects and pop-ups"));
    }
    return QString();
}

} // namespace gallery
