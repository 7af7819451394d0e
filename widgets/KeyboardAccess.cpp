#include "widgets/KeyboardAccess.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace ombrin {

bool isClickKey(const QWidget *widget, const QKeyEvent *event)
{
    const int key = event->key();
    return widget->hasFocus() && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier
           && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter);
}

void drawFocusFrame(QPainter *painter, const QWidget *widget)
{
    if (!widget->hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    option.rect = widget->contentsRect();
    option.backgroundColor = widget->palette().color(QPalette::Window);
    widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, widget);
}

} // namespace ombrin
