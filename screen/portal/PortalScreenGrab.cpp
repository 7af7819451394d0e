#include "screen/portal/PortalScreenGrab.h"

#include "screen/portal/PortalRequest.h"

namespace ombrin {

void PortalScreenGrab::grab(const std::function<void(const QImage &)> &done)
{
    (new PortalRequest(done))->start(); // deletes itself
}

} // namespace ombrin
