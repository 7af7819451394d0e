#pragma once

#include <QtCore/QString>

#include <vector>

class QWidget;

/// \file
/// The pages of the gallery.
///
/// A page is one source file in pages/ and one line in the page list of CMakeLists.txt; the order
/// of that list is the order within a group. The file holds a plain QWidget, which is made when the
/// page is first shown, and one GALLERY_PAGE() that names it:
///
/// \code
/// #include "GalleryPage.h"
/// #include "PageKit.h"
///
/// namespace gallery {
/// namespace {
///
/// class StatusBarPage : public QWidget
/// {
///     Q_DECLARE_TR_FUNCTIONS(StatusBarPage)
///
/// public:
///     StatusBarPage();
/// };
///
/// } // namespace
///
/// GALLERY_PAGE(StatusBarPage, "status-bar", PageGroup::BasicWidgets,
///              QT_TRANSLATE_NOOP("GalleryPage", "Status bar"),
///              QT_TRANSLATE_NOOP("GalleryPage", "What the page shows, in one sentence."));
///
/// } // namespace gallery
/// \endcode
///
/// Title and summary are drawn above the page by the window; the page itself is built from the
/// cards and captions of PageKit.h. It should fit 766 x 512 pixels (more scrolls), and look the
/// same each time it is photographed: widgets in a state that only a mouse or a keyboard brings
/// about are pinned with the functions of PageKit.h.
///
/// A page is deleted with the gallery's window. Windows that it opens outlive it unless it makes
/// itself their parent.

namespace gallery {

/// Headings of the navigation, in its order. A heading without pages is not shown.
enum class PageGroup {
    Windows,
    BasicWidgets,
    SkinAndStyle,
    Dialogs,
    Contacts,
    RichText,
    ListsAndViews,
    EffectsAndPopups,
};

/// One entry of the gallery; title and summary are texts of the translation context "GalleryPage".
struct GalleryPage
{
    const char *name; ///< On the command line and in file names: lower case, words joined by '-'.
    PageGroup group;
    const char *title;
    const char *summary;
    QWidget *(*create)();

    QString nameText() const;
    QString titleText() const;
    QString summaryText() const;
};

/// All pages, group by group.
const std::vector<const GalleryPage *> &allPages();

/// The page called \a name, or null.
const GalleryPage *findPage(const QString &name);

/// The heading of a group.
QString groupTitle(PageGroup group);

} // namespace gallery

/// Enters \a Class, a QWidget that can be made without arguments, into the gallery.
#define GALLERY_PAGE(Class, Name, Group, Title, Summary)                                           \
    extern const GalleryPage Class##Entry;                                                         \
    const GalleryPage Class##Entry                                                                 \
    {                                                                                              \
        Name, Group, Title, Summary, []() -> QWidget * { return new Class; }                       \
    }
