#pragma once

class QEvent;
class QWidget;

namespace ombrin {

/// Shows the tool tip of \a button in a balloon below it, if \a event asks for the tool tip.
///
/// True if the event is dealt with. No balloon is shown for a disabled button or while a balloon is
/// active. A button without a tool tip leaves the event to Qt, which asks the parent for its tip.
bool balloonToolTip(QWidget *button, const QEvent *event);

} // namespace ombrin
