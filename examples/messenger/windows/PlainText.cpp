#include "windows/PlainText.h"

#include <ombrin/OmSafeHtml.h>

namespace messenger {

QString asRichText(const QString &text)
{
    if (text.isEmpty())
        return QString();
    return QStringLiteral("<qt>") + ombrin::OmSafeHtml::fromPlainText(text)
           + QStringLiteral("</qt>");
}

} // namespace messenger
