#pragma once

namespace ombrin {

class OmRatingLabel;

/// Makes rating labels known to assistive technology. Only the first call does something.
void installRatingLabelAccessibility();

/// Tells assistive technology, if there is any, the rating that \a label has come to show.
void announceRating(OmRatingLabel *label);

} // namespace ombrin
