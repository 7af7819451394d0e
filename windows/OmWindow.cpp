#include <ombrin/OmWindow.h>

#include "windows/SkinFrame.h"

#include <QAction>
#include <QtCore/QTimer>

namespace ombrin {

OmWindow::OmWindow(QWidget *parent)
    : QWidget(parent)
    , m_frame(std::make_unique<SkinFrame>(this, "ombrin::OmWindow"))
{
    setWindowFlags(Qt::FramelessWindowHint);
    m_frame->extendNativeStyle();
    m_frame->build();
    connect(this, &QWidget::customContextMenuRequested, this, &OmWindow::slotHeaderContextMenu);
}

OmWindow::~OmWindow() = default;

void OmWindow::setWidget(QWidget *widget)
{
    m_frame->setWidget(widget);
}

QWidget *OmWindow::widget()
{
    return m_frame->widget();
}

void OmWindow::setUseLayout(bool useLayout)
{
    m_frame->setUseLayout(useLayout);
}

bool OmWindow::useLayout() const
{
    return m_frame->useLayout();
}

void OmWindow::setFixed(bool fixed)
{
    m_frame->setFixed(fixed);
}

bool OmWindow::fixed() const
{
    return m_frame->fixed();
}

QMenuBar *OmWindow::menuBar()
{
    return m_frame->menuBar();
}

OmStatusBar *OmWindow::statusBar()
{
    return m_frame->statusBar();
}

void OmWindow::setWindowTitle(const QString &title)
{
    m_frame->setTitle(title);
    QWidget::setWindowTitle(title); // last: a slot of its signal may destroy the window
}

void OmWindow::setWindowTitleOnly(const QString &title)
{
    m_frame->setTitle(title);
}

QString OmWindow::windowTitleOnly()
{
    return m_frame->title();
}

void OmWindow::setAlwaysOnTopAction(QAction *action)
{
    if (m_alwaysOnTopAction) {
        disconnect(m_alwaysOnTopAction, &QAction::triggered, this, &OmWindow::slotAlwaysOnTopTimer);
    }
    m_alwaysOnTopAction = action;
    if (!action)
        return;
    action->setCheckable(true);
    action->setChecked(m_frame->isAlwaysOnTop());
    connect(action, &QAction::triggered, this, &OmWindow::slotAlwaysOnTopTimer);
}

bool OmWindow::isAlwaysOnTop() const
{
    return m_frame->isAlwaysOnTop();
}

// Events. Some come while the window is still under construction.

bool OmWindow::event(QEvent *event)
{
    if (m_frame)
        m_frame->handleEvent(event);
    return QWidget::event(event);
}

void OmWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_frame->handleDoubleClick(event);
    QWidget::mouseDoubleClickEvent(event);
}

void OmWindow::paintEvent(QPaintEvent *event)
{
    m_frame->paint(event);
}

void OmWindow::resizeEvent(QResizeEvent *event)
{
    m_frame->titleBar().placeButtons();
    computeAndSetMask();
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotCheckState);
    QWidget::resizeEvent(event);
    m_frame->placeContent();
}

bool OmWindow::nativeEvent(const QByteArray &eventType, void *message, NativeEventResult *result)
{
    if (m_frame)
        m_frame->handleNativeEvent(eventType, message);
    return QWidget::nativeEvent(eventType, message, result);
}

void OmWindow::computeAndSetMask()
{
    m_frame->computeAndSetMask();
}

void OmWindow::setButtons()
{
    m_frame->setButtons();
}

// Slots

void OmWindow::slotCheckState()
{
    m_frame->titleBar().checkState();
}

void OmWindow::slotHeaderContextMenu(const QPoint &pos)
{
    m_frame->titleBar().popupHeaderMenu(pos,
                                        {[this] { slotOp100Timer(); }, [this] { slotOp80Timer(); },
                                         [this] { slotOp60Timer(); }, [this] { slotOp50Timer(); },
                                         [this] { slotOp40Timer(); }, [this] { slotOp20Timer(); }});
}

void OmWindow::slotAlwaysOnTopTimer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotAlwaysOnTop);
}

void OmWindow::slotAlwaysOnTop()
{
    const QPointer<OmWindow> guard(this); // a slot of the action's signals may destroy the window
    m_frame->setAlwaysOnTop(!m_frame->isAlwaysOnTop());
    if (m_alwaysOnTopAction)
        m_alwaysOnTopAction->setChecked(m_frame->isAlwaysOnTop());
    if (guard)
        m_frame->applyAlwaysOnTop();
}

void OmWindow::slotOp100Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp100);
}

void OmWindow::slotOp100()
{
    setWindowOpacity(1.0);
}

void OmWindow::slotOp80Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp80);
}

void OmWindow::slotOp80()
{
    setWindowOpacity(0.8);
}

void OmWindow::slotOp60Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp60);
}

void OmWindow::slotOp60()
{
    setWindowOpacity(0.6);
}

void OmWindow::slotOp50Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp50);
}

void OmWindow::slotOp50()
{
    setWindowOpacity(0.5);
}

void OmWindow::slotOp40Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp40);
}

void OmWindow::slotOp40()
{
    setWindowOpacity(0.4);
}

void OmWindow::slotOp20Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmWindow::slotOp20);
}

void OmWindow::slotOp20()
{
    setWindowOpacity(0.2);
}

} // namespace ombrin
