#include "GalleryPage.h"
#include "StandardControls.h"

#include <QtWidgets/QWidget>

namespace gallery {

namespace {

class StandardViewsPage : public QWidget
{
public:
    StandardViewsPage() { showInThreeStates(this, createViewsPanel); }
};

} // namespace

GALLERY_PAGE(
        StandardViewsPage, "standard-views", PageGroup::SkinAndStyle,
        QT_TRANSLATE_NOOP("GalleryPage", "Qt's item views"),
        QT_TRANSLATE_NOOP("GalleryPage",
                          "Qt's own item views under OmStyle2 and the application style sheet."));

} // namespace gallery
