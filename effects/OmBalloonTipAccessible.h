#pragma once

namespace ombrin {

/// Makes balloon tips known to assistive technology. Only the first call does something.
void installBalloonTipAccessibility();

} // namespace ombrin
