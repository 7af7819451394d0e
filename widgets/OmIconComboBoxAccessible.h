#pragma once

namespace ombrin {

/// Makes icon combo boxes known to assistive technology. Called by their constructor.
///
/// What Qt shows of a combo box is the text of the current item, and icons need not have one.
void installIconComboBoxAccessibility();

} // namespace ombrin
