#pragma once

#include <QtCore/QString>

class QWidget;

namespace example {

/// \file
/// Photographs windows in the same way each time.

/// Makes the pictures independent of the user's font, cursor and animations. Call it once, before
/// OmSkin::init() and before any widget is made.
void pinLook();

/// Shows \a window and makes \a activated, which may be another one, the active window. Returns
/// whether \a observed then is active, or inactive, as wanted by \a active.
bool activate(QWidget *activated, const QWidget *observed, bool active);

/// Lets windows do what they have put off.
void settle();

/// Saves what \a window looks like at the density of this process in the folder \a directory, as
/// NAME.png or NAME@2x.png. Returns the file that could not be written, or an empty text.
QString photograph(QWidget *window, const QString &directory, const QString &name);

} // namespace example
