#pragma once

#include <initializer_list>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QWidget;

/// \file
/// What the message box and the input dialog are both made of.

namespace ombrin {

class OmDialog2;

/// The empty place, 48 x 48, of the picture at the left of \a dialog.
QLabel *createIconLabel(QWidget *dialog);
/// Puts the picture of the library's dialogs there.
void showDialogIcon(QLabel *iconLabel);

/// A button of 110 x 26 without a text.
QPushButton *createDialogButton(QWidget *dialog);
/// A row with \a buttons in its middle.
QHBoxLayout *createButtonRow(std::initializer_list<QPushButton *> buttons);

/// Lets \a dialog, which has a box layout from top to bottom, be no narrower than its title. A
/// title that would fill more than three quarters of the screen is shortened instead.
void makeRoomForTitle(OmDialog2 *dialog);

} // namespace ombrin
