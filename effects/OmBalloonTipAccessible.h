#pragma once

namespace ombrin {

/// Makes balloon tips known to assistive technology. Called by their constructor.
void installBalloonTipAccessibility();

} // namespace ombrin
