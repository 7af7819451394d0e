#pragma once

#include "model/Contact.h"

#include <QtCore/QVector>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

class QMimeData;
class QWidget;

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

/// Lets the user choose the file of a picture; empty if nothing was chosen. \a parent may be
/// deleted meanwhile.
QString choosePictureFile(QWidget *parent, const QString &title);

/// Whether \a data, which was pasted or dropped, could be pictures rather than text.
bool holdsPictures(const QMimeData *data);
/// The pictures in \a data: null ones for files that are none.
QVector<QImage> picturesIn(const QMimeData *data);

} // namespace messenger
