#include <ombrin/OmDesktop.h>

#include "platform/NativeHandle.h"

#include <QtGui/QBrush>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace ombrin {

namespace {

// The window the user sees the widget in: asking a child for its own would make it a native window.
NativeWindow::Handle nativeWindow(const QWidget *widget)
{
    return widget ? NativeWindow::handleOf(widget->window()) : 0;
}

} // namespace

void OmDesktop::flashWindow(QWidget *widget, bool)
{
    NativeWindow::flash(nativeWindow(widget));
}

void OmDesktop::setForeground(QWidget *widget)
{
    NativeWindow::bringToFront(nativeWindow(widget));
}

void OmDesktop::setCentered(QWidget *widget)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!widget || !screen)
        return;
    const QSize area = screen->availableGeometry().size();
    const QSize size = widget->size();
    widget->setGeometry((area.width() - size.width()) / 2, (area.height() - size.height()) / 2,
                        size.width(), size.height());
}

void OmDesktop::setBackgroundColor(QWidget *widget, const QColor &color)
{
    if (!widget)
        return;
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::All, QPalette::Window, QBrush(color, Qt::SolidPattern));
    widget->setAutoFillBackground(true);
    widget->setPalette(palette);
    widget->setBackgroundRole(QPalette::Window);
    widget->repaint();
}

void OmDesktop::setTextColor(QWidget *widget, const QColor &color)
{
    if (widget)
        widget->setStyleSheet(QStringLiteral("color : %1").arg(color.name()));
}

int OmDesktop::currentActiveDesktop()
{
    return 0;
}

int OmDesktop::currentDesktop(QWidget *)
{
    return 0;
}

void OmDesktop::setDesktop(QWidget *, int) {}

} // namespace ombrin
