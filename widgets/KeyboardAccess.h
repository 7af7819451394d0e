#pragma once

class QKeyEvent;
class QPainter;
class QWidget;

/// \file
/// Keys for widgets that are pictures or texts: they take no focus of themselves, but the host can
/// give them a focus policy.

namespace ombrin {

/// Whether \a event is a key by which the user clicks \a widget, which has the focus: Space, Return
/// or Enter, without modifiers.
bool isClickKey(const QWidget *widget, const QKeyEvent *event);

/// Draws the style's focus frame around the contents of \a widget if it has the focus.
void drawFocusFrame(QPainter *painter, const QWidget *widget);

} // namespace ombrin
