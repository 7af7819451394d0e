#pragma once

#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPen>
#include <QtWidgets/QGraphicsSimpleTextItem>

namespace ombrin {

/// Sets text and font of \a item where they differ. The font goes first: a fresh item has no text
/// yet that would be laid out twice.
inline void adjustText(QGraphicsSimpleTextItem *item, const QString &text, const QFont &font)
{
    if (item->font() != font)
        item->setFont(font);
    if (item->text() != text)
        item->setText(text);
}

/// Sets pen and brush of \a item where they differ.
inline void adjustColors(QGraphicsSimpleTextItem *item, const QPen &pen, const QBrush &brush)
{
    if (item->pen() != pen)
        item->setPen(pen);
    if (item->brush() != brush)
        item->setBrush(brush);
}

} // namespace ombrin
