#include <ombrin/OmTrayPopup.h>

namespace ombrin {

OmTrayPopup::OmTrayPopup(QWidget *parent, Qt::WindowFlags f)
    : QFrame(parent, f)
{}

OmTrayPopup::~OmTrayPopup() = default;

} // namespace ombrin
