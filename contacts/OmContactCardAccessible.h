#pragma once

class QWidget;

namespace ombrin {

class OmContactCard;

/// Makes contact cards and the columns they stand in known to assistive technology. Only the first
/// call does something.
void installContactCardAccessibility();

/// Tell assistive technology, if there is any, what has changed.
void announceContactName(OmContactCard *card);
void announceContactStatus(OmContactCard *card);
void announceContactSelection(OmContactCard *card);

} // namespace ombrin
