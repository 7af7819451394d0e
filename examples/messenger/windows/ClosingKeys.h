#pragma once

class QWidget;

namespace messenger {

/// Has Escape, and what else closes windows on this system, close \a window.
void addClosingKeys(QWidget *window);

} // namespace messenger
