#pragma once

#include "model/Contact.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

namespace messenger {

/// \file
/// The pictures that the windows show apart from those of the skin.

/// The picture of \a contact; null if it has none that can be shown.
QPixmap portraitOf(const Contact &contact);
/// Whether the picture of \a contact moves.
bool isMoving(const Contact &contact);

/// \a portrait with round corners in the logical size \a extent, or a placeholder where it is null.
QPixmap roundPortrait(const QPixmap &portrait, int extent);

/// The colour and the sign of a presence, and its name in the user's language.
QColor presenceColor(ombrin::Om::ContactStatus status);
QIcon presenceIcon(ombrin::Om::ContactStatus status);
QString presenceName(ombrin::Om::ContactStatus status);

/// The picture of the smiley \a text, 18 by 18.
QPixmap smileyPicture(const QString &text);

} // namespace messenger
