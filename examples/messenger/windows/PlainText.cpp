#include "windows/PlainText.h"

#include <ombrin/OmLabel.h>
#include <ombrin/OmSafeHtml.h>

#include <QtWidgets/QLabel>

namespace messenger {

QString asRichText(const QString &text)
{
    if (text.isEmpty())
        return QString();
    return QStringLiteral("<qt>") + ombrin::OmSafeHtml::fromPlainText(text)
           + QStringLiteral("</qt>");
}

void beginAtEdge(QLabel *label)
{
    const Qt::Alignment edge = label->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(edge | Qt::AlignAbsolute | Qt::AlignVCenter);
}

ombrin::OmLabel *plainLabel(const QString &text)
{
    auto *label = new ombrin::OmLabel(true, nullptr);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    beginAtEdge(label);
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
