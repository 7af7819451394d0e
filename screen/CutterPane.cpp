#include "screen/CutterPane.h"

#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QScreen>

namespace ombrin {

CutterPane::CutterPane(OmScreenShooter_FullscreenCutter *cutter, QScreen *screen)
    : QWidget(nullptr, cutter->windowFlags())
    , m_cutter(cutter)
{
    OmScreenShooter_FullscreenCutter::prepareWindow(this, screen);
    setGeometry(screen->geometry());
}

bool CutterPane::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        m_cutter->handleMouse(this, static_cast<QMouseEvent *>(event)); // may destroy this pane
        return true;
    case QEvent::Paint:
        m_cutter->paint(this, static_cast<QPaintEvent *>(event)->region());
        return true;
    default:
        return QWidget::event(event);
    }
}

} // namespace ombrin
