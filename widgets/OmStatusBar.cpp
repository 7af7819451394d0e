#include <ombrin/OmStatusBar.h>

#include "skin/LightGround.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

namespace ombrin {

namespace {

// From the middle of the bottom row to the middle of the top row, so that these two rows have
// exactly the colours of the outer stops.
QLinearGradient backgroundFor(const QRect &rect)
{
    QLinearGradient gradient(rect.left(), rect.bottom() + 0.5, rect.left(), rect.top() + 0.5);
    gradient.setColorAt(0.0, QColor(232, 232, 232));
    gradient.setColorAt(0.5, QColor(228, 228, 228));
    gradient.setColorAt(0.95, QColor(207, 207, 207));
    gradient.setColorAt(1.0, QColor(183, 183, 182));
    return gradient;
}

} // namespace

OmStatusBar::OmStatusBar(QWidget *parent)
    : QStatusBar(parent)
{
    // Its base class has polished itself already. Polished anew when it is shown, it would lose
    // what palette and font it is given until then, if there is a style sheet.
    ensurePolished();
    keepTextReadable(this);
}

OmStatusBar::~OmStatusBar() = default;

void OmStatusBar::paintEvent(QPaintEvent *e)
{
    {
        QPainter painter(this);
        painter.fillRect(rect(), backgroundFor(rect()));
    }
    QStatusBar::paintEvent(e);
}

} // namespace ombrin
