#include "text/LinkToolTip.h"

#include <QtGui/QTextDocument>

namespace ombrin {

QString shownLink(const QString &text)
{
    QString shown;
    for (const QChar c : text) {
        if (shown.size() == kMaxShownLink)
            return shown + QChar(0x2026);
        if (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format)
            shown += c;
    }
    return shown;
}

QString plainToolTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
}

} // namespace ombrin
