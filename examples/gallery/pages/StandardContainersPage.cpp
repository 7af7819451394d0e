#include "GalleryPage.h"
#include "StandardControls.h"

#include <QtWidgets/QWidget>

namespace gallery {

namespace {

class StandardContainersPage : public QWidget
{
public:
    StandardContainersPage() { showInThreeStates(this, createContainersPanel); }
};

} // namespace

GALLERY_PAGE(StandardContainersPage, "standard-containers", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Qt's containers"),
             QT_TRANSLATE_NOOP("GalleryPage", "Qt's own windows, menus and containers under "
                                              "OmStyle2 and the application style sheet."));

} // namespace gallery
