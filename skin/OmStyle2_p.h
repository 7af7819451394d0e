#pragma once

#include "skin/SkinPixmap.h"

#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class QStyleOption;

namespace ombrin {

/// Whether there is a \a widget and it is of the class \a className or of one derived from it.
inline bool isA(const QWidget *widget, const char *className)
{
    return widget && widget->inherits(className);
}

/// Has Qt repaint the widget that \a option describes when the mouse enters or leaves it.
///
/// Plastique asks for that when it polishes a widget, but not for line edits and scroll bars, to
/// which it does not show the mouse.
void followMouse(const QStyleOption &option);

/// Fills the outermost \a thickness pixels of \a rect.
///
/// On a screen of density 1 it gives the pixels that a pen of that thickness draws, on any other
/// screen it stays inside the rectangle on all four sides, where a pen would not. The painter's pen
/// and brush are not touched. Corners are painted once, so translucent colours come out even.
inline void fillFrame(QPainter *painter, const QRect &rect, int thickness, const QColor &color)
{
    const int t = thickness;
    if (rect.width() <= 2 * t || rect.height() <= 2 * t) {
        painter->fillRect(rect, color);
        return;
    }
    const int innerHeight = rect.height() - 2 * t;
    painter->fillRect(rect.left(), rect.top(), rect.width(), t, color);
    painter->fillRect(rect.left(), rect.bottom() + 1 - t, rect.width(), t, color);
    painter->fillRect(rect.left(), rect.top() + t, t, innerHeight, color);
    painter->fillRect(rect.right() + 1 - t, rect.top() + t, t, innerHeight, color);
}

/// The skin picture \a path for the density of what \a painter paints on.
inline QPixmap skinPixmapFor(const QString &path, const QPainter *painter)
{
    const QPaintDevice *device = painter->device();
    return skinPixmap(path, device ? device->devicePixelRatioF() : 1.0);
}

/// Draws one of the two line buttons of a scroll bar, unless it is disabled.
void drawScrollBarLine(QPainter *painter, const QStyleOption *option, bool towardEnd);

} // namespace ombrin
