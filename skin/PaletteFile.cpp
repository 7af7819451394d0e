#include "skin/PaletteFile.h"

#include <QtCore/QFile>

namespace ombrin {

namespace {

constexpr qint64 kMaxSize = 1024 * 1024;

// Whether no value begins with what makes it an object, or with an escape sequence, which could
// hide it. What might be a value, within quotes for example, counts as one.
bool isPlainText(const QByteArray &text)
{
    bool quoted = false;
    bool comment = false;
    bool begins = false;
    for (int i = 0; i < text.size(); ++i) {
        const char character = text.at(i);
        if (comment) {
            comment = character != '\n' && character != '\r';
            continue;
        }
        if (begins && (character == '@' || character == '\\'))
            return false;
        if (character == '\\')
            ++i;
        else if (character == '"')
            quoted = !quoted;
        comment = character == ';' && !quoted;
        const bool isSkipped = character == '"' || static_cast<uchar>(character) <= ' ';
        begins = character == '=' || character == ',' || (begins && isSkipped);
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
