#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QImage>

class QIODevice;

namespace messenger {

/// \file
/// Pictures from elsewhere: dropped by the user, sent by peers. They can be anything.

/// The most bytes that a picture takes on its way to a peer.
constexpr int kLargestPicture = 2 << 20;

/// The bitmap picture in \a device or \a fileName; null for everything else, as for files that are
/// no ordinary ones, for more than 16 MiB and for more than 4,096 x 4,096 pixels.
QImage readPicture(QIODevice *device);
QImage readPicture(const QString &fileName);
QImage pictureFromData(const QByteArray &data);

/// \a picture as a file of at most \a largest bytes, made smaller until it fits; empty for none.
QByteArray pictureToData(const QImage &picture, int largest = kLargestPicture);

/// The middle of \a picture, cut to a square of at most \a extent pixels.
QImage portraitFrom(const QImage &picture, int extent);

/// Keeps \a data in \a folder under a name of its own, which is returned; empty if that fails.
QString keepPicture(const QString &folder, const QByteArray &data);

} // namespace messenger
