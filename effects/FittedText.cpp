#include "effects/FittedText.h"

#include <QtCore/QStringList>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace ombrin {

namespace {

constexpr QChar kEllipsis(0x2026);

QStringList brokenParagraph(const QString &paragraph, const QFont &font, int width, int count)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);

    QStringList lines;
    layout.beginLayout();
    while (lines.size() < count) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

// The lines of \a text, at most \a count of them.
QStringList brokenText(const QString &text, const QFont &font, int width, int count)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        lines += brokenParagraph(paragraph, font, width, count - int(lines.size()));
        if (lines.size() >= count)
            break;
    }
    return lines;
}

QString joinedLines(QStringList lines)
{
    for (QString &line : lines) {
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
    }
    return lines.join(QLatin1Char('\n'));
}

// Takes away what is lower than \a height: lines in which another font fills in can be higher than
// the font's own. One line is kept. Returns whether all were.
bool keepLines(QStringList *lines, const QFontMetrics &metrics, int height)
{
    bool keptAll = true;
    const int spacing = std::max(metrics.lineSpacing(), 1);
    while (lines->size() > 1) {
        const int excess = metrics.size(0, joinedLines(*lines)).height() - height;
        if (excess <= 0)
            break;
        const int superfluous = (excess + spacing - 1) / spacing;
        *lines = lines->mid(0, std::max(int(lines->size()) - superfluous, 1));
        keptAll = false;
    }
    return keptAll;
}

} // namespace

QString fittedText(const QString &text, const QFont &font, const QSize &size)
{
    const QFontMetrics metrics(font);
    const int width = std::max(size.width(), 1);
    const int lineCount = std::max(size.height() / std::max(metrics.lineSpacing(), 1), 1);

    // Nothing beyond a character for each pixel can be seen, so the rest need not be measured.
    const qint64 visible = qint64(width) * lineCount;
    const bool isAbsurd = text.size() > visible;
    const QString beginning = isAbsurd ? text.left(int(visible)) : text;
    if (!isAbsurd) {
        const QSize needed = metrics.size(Qt::TextExpandTabs, text);
        if (needed.width() <= size.width() && needed.height() <= size.height())
            return text;
    }

    // One line more than there is room for tells that something is left over.
    QStringList lines = brokenText(beginning, font, width, lineCount + 1);
    const bool isTooLong = lines.size() > lineCount;
    lines = lines.mid(0, lineCount);
    const bool keptAll = keepLines(&lines, metrics, size.height());
    if (isAbsurd || isTooLong || !keptAll) {
        QString &last = lines.last();
        last = metrics.elidedText(last + kEllipsis, Qt::ElideRight, width);
        if (last.isEmpty())
            last = kEllipsis;
    }
    return joinedLines(lines);
}

} // namespace ombrin
