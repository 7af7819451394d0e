#include "widgets/TextElision.h"

#include <QtGui/QFontMetrics>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kGrowth = 4;
// So many characters at a cut may look different from how they look in the whole text.
constexpr int kCutMargin = 32;

// Qt keeps direction marks from the part that it cuts away, and takes U+009C for a separator
// between variants of the text: both must be seen in the whole text.
bool needsWholeText(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        const ushort code = c.unicode();
        return code == 0x9c || (code >= 0x200e && code <= 0x200f)
               || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    });
}

int textLength(const QString &text)
{
    return static_cast<int>(text.size());
}

// The part of the text that can be left after elision: \a count characters at each end that stays.
// The whole text if it is not longer than that.
QString extract(const QString &text, Qt::TextElideMode mode, int count)
{
    const int needed = mode == Qt::ElideMiddle ? 2 * count : count;
    if (needed >= textLength(text))
        return text;
    switch (mode) {
    case Qt::ElideLeft:
        return text.right(count);
    case Qt::ElideMiddle:
        return text.left(count) + text.right(count);
    default:
        return text.left(count);
    }
}

// About twice as many characters as have room.
int firstExtract(const QFontMetrics &metrics, int width)
{
    return 2 * (std::max(width, 0) / std::max(metrics.averageCharWidth(), 1) + kCutMargin);
}

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width)
{
    if (mode == Qt::ElideNone)
        return metrics.elidedText(text, mode, width);
    for (int count = firstExtract(metrics, width); count < textLength(text); count *= kGrowth) {
        const QString part = extract(text, mode, count);
        if (textLength(part) == textLength(text) || needsWholeText(text))
            break;
        const QString elided = metrics.elidedText(part, mode, width);
        if (textLength(elided) < count - kCutMargin)
            return elided;
    }
    return metrics.elidedText(text, mode, width);
}

} // namespace ombrin
