#pragma once

namespace ombrin {

class OmImageButton;

/// Makes image buttons known to assistive technology. Only the first call does something.
void installImageButtonAccessibility();

/// Tells assistive technology, if there is any, that \a button was pressed or let go.
void announcePressedChange(OmImageButton *button);

/// Tells assistive technology, if there is any, that \a button was checked or unchecked.
void announceCheckedChange(OmImageButton *button);

} // namespace ombrin
