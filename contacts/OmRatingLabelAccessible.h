#pragma once

namespace ombrin {

class OmRatingLabel;

/// Makes rating labels known to assistive technology. Called by their constructor.
void installRatingLabelAccessibility();

/// Tells assistive technology, if there is any, the rating that \a label has come to show.
void announceRating(OmRatingLabel *label);

} // namespace ombrin
