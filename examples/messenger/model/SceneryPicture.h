#pragma once

#include <QtGui/QImage>

namespace messenger {

/// The view from the guide's window: hills in the evening.
QImage sceneryPicture();

} // namespace messenger
