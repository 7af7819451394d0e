#pragma once

#include "support/Text.h"

#include <QtCore/QFile>

namespace ombrin::test {

/// Writes the file \a path, which must be possible.
inline void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s cannot be written.", qPrintable(path));
}

/// What the file \a path holds; nothing where it cannot be read.
inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ombrin::test
