#include "widgets/TextElision.h"

#include <QtGui/QFontMetrics>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kFirstExtract = 256;
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
QString extract(const QString &text, Qt::TextElideMode mode, int count)
{
    switch (mode) {
    case Qt::ElideLeft:
        return text.right(count);
    case Qt::ElideMiddle:
        return text.left(count) + text.right(count);
    default:
        return text.left(count);
    }
}

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width)
{
    if (mode == Qt::ElideNone)
        return text;
    if (textLength(text) > 2 * kFirstExtract && !needsWholeText(text)) {
        for (int count = kFirstExtract; count < textLength(text) / 2; count *= kGrowth) {
            const QString elided = metrics.elidedText(extract(text, mode, count), mode, width);
            if (textLength(elided) < count - kCutMargin)
                return elided;
        }
    }
    return metrics.elidedText(text, mode, width);
}

} // namespace ombrin
