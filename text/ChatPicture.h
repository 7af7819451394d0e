#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtGui/QImage>

namespace ombrin {

/// Largest picture that is read.
constexpr qint64 kMaxChatPictureBytes = 16 * 1024 * 1024;

/// The ordinary file or resource that \a source, which may come from other people, names on this
/// machine; empty for anything else, which is then not to be touched: remote files, folders, pipes,
/// devices, what is empty or larger than kMaxChatPictureBytes.
OMBRIN_AUTOTEST_EXPORT QString chatPictureFile(const QUrl &source);

/// The picture that \a source names; null for a file that is none, one that is too large, and
/// everything for which chatPictureFile() is empty but "data:".
OMBRIN_AUTOTEST_EXPORT QImage readChatPicture(const QUrl &source);

/// Copies the picture to the user's own smileys, under the checksum of what it holds, unless it is
/// there already.
void addToSmileys(const QUrl &source);

/// How a text names a picture, as an address.
OMBRIN_AUTOTEST_EXPORT QUrl pictureUrl(const QString &name);

} // namespace ombrin
