#include "skin/PaletteFile.h"

#include <QtCore/QFile>

namespace ombrin {

namespace {

constexpr qint64 kMaxSize = 1024 * 1024;

bool isPlainText(const QByteArray &text)
{
    bool quoted = false;
    bool comment = false;
    for (const char character : text) {
        if (character == '\n' || character == '\r')
            comment = false;
        else if (comment)
            continue;
        else if (character == '@' || character == '\\')
            return false;
        else if (character == '"')
            quoted = !quoted;
        else if (character == ';')
            comment = !quoted;
    }
    return true;
}

} // namespace

bool isPlainPaletteFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() <= kMaxSize
           && isPlainText(file.read(kMaxSize));
}

} // namespace ombrin
