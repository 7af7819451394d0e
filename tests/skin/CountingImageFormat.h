#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSize>

/// A picture format of the tests' own that counts how often a picture is decoded.
namespace counting_image_format {

/// A file that claims to hold a picture of \a size.
QByteArray file(const QSize &size);

/// How many pictures were decoded since the program began.
int decodedCount();

} // namespace counting_image_format
