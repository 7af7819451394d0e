#pragma once

namespace ombrin {

/// Makes icon combo boxes known to assistive technology. Only the first call does something.
///
/// What Qt shows of a combo box is the text of the current item, and icons need not have one.
void installIconComboBoxAccessibility();

} // namespace ombrin
