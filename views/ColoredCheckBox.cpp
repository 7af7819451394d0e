#include "views/ColoredCheckBox.h"

#include <QtCore/QEvent>

namespace ombrin {

ColoredCheckBox::ColoredCheckBox(QWidget *parent)
    : QCheckBox(parent)
{}

void ColoredCheckBox::setTextColor(const QColor &color)
{
    m_color = color;
    applyColor();
}

void ColoredCheckBox::changeEvent(QEvent *event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::StyleChange && m_color.isValid())
        applyColor();
}

void ColoredCheckBox::applyColor()
{
    QPalette own = palette();
    if (own.color(QPalette::WindowText) == m_color)
        return;
    own.setBrush(QPalette::WindowText, QBrush(m_color));
    setPalette(own);
}

} // namespace ombrin
