#include "windows/PlainText.h"

#include <ombrin/OmLabel.h>
#include <ombrin/OmSafeHtml.h>

namespace messenger {

QString asRichText(const QString &text)
{
    if (text.isEmpty())
        return QString();
    return QStringLiteral("<qt>") + ombrin::OmSafeHtml::fromPlainText(text)
           + QStringLiteral("</qt>");
}

ombrin::OmLabel *plainLabel(const QString &text)
{
    auto *label = new ombrin::OmLabel(true, nullptr);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

ombrin::OmLabel *plainBoldLabel(const QString &text)
{
    ombrin::OmLabel *label = plainLabel();
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setText(text);
    return label;
}

} // namespace messenger
