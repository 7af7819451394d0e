#include "GalleryPage.h"
#include "StandardControls.h"

#include <QtWidgets/QWidget>

namespace gallery {

namespace {

class StandardFieldsPage : public QWidget
{
public:
    StandardFieldsPage() { showInThreeStates(this, createFieldsPanel); }
};

} // namespace

GALLERY_PAGE(
        StandardFieldsPage, "standard-fields", PageGroup::SkinAndStyle,
        QT_TRANSLATE_NOOP("GalleryPage", "Qt's buttons and fields"),
        QT_TRANSLATE_NOOP("GalleryPage",
                          "Qt's own controls under OmStyle2 and the application style sheet."));

} // namespace gallery
