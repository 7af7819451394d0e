#include <ombrin/OmDialog2.h>

#include "windows/SkinFrame.h"

#include <QtCore/QTimer>

namespace ombrin {

OmDialog2::OmDialog2(QWidget *parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_frame(std::make_unique<SkinFrame>(this, "ombrin::OmDialog2"))
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_frame->extendNativeStyle();
    setWindowModality(Qt::WindowModal);
    m_frame->build();
    connect(this, &QWidget::customContextMenuRequested, this, &OmDialog2::slotHeaderContextMenu);
}

OmDialog2::~OmDialog2() = default;

void OmDialog2::setWidget(QWidget *widget)
{
    m_frame->setWidget(widget);
}

QWidget *OmDialog2::widget()
{
    return m_frame->widget();
}

void OmDialog2::setUseLayout(bool useLayout)
{
    m_frame->setUseLayout(useLayout);
}

bool OmDialog2::useLayout() const
{
    return m_frame->useLayout();
}

void OmDialog2::setFixed(bool fixed)
{
    m_frame->setFixed(fixed);
}

bool OmDialog2::fixed() const
{
    return m_frame->fixed();
}

QMenuBar *OmDialog2::menuBar()
{
    return m_frame->menuBar();
}

OmStatusBar *OmDialog2::statusBar()
{
    return m_frame->statusBar();
}

void OmDialog2::setWindowTitle(const QString &title)
{
    m_frame->setTitle(title);
    QDialog::setWindowTitle(title); // last: a slot of its signal may destroy the window
}

void OmDialog2::setWindowTitleOnly(const QString &title)
{
    m_frame->setTitle(title);
}

QString OmDialog2::windowTitleOnly()
{
    return m_frame->title();
}

// Events. Some come while the window is still under construction.

bool OmDialog2::event(QEvent *event)
{
    if (m_frame)
        m_frame->handleEvent(event);
    return QDialog::event(event);
}

void OmDialog2::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_frame->handleDoubleClick(event);
    QDialog::mouseDoubleClickEvent(event);
}

void OmDialog2::paintEvent(QPaintEvent *event)
{
    m_frame->paint(event);
}

void OmDialog2::resizeEvent(QResizeEvent *event)
{
    m_frame->titleBar().placeButtons();
    computeAndSetMask();
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotCheckState);
    QDialog::resizeEvent(event);
    m_frame->placeContent();
}

bool OmDialog2::nativeEvent(const QByteArray &eventType, void *message, NativeEventResult *result)
{
    if (m_frame)
        m_frame->handleNativeEvent(eventType, message);
    return QDialog::nativeEvent(eventType, message, result);
}

void OmDialog2::computeAndSetMask()
{
    m_frame->computeAndSetMask();
}

void OmDialog2::setButtons()
{
    m_frame->setButtons();
}

// Slots

void OmDialog2::slotCheckState()
{
    m_frame->titleBar().checkState();
}

void OmDialog2::slotHeaderContextMenu(const QPoint &pos)
{
    m_frame->titleBar().popupHeaderMenu(pos,
                                        {[this] { slotOp100Timer(); }, [this] { slotOp80Timer(); },
                                         [this] { slotOp60Timer(); }, [this] { slotOp50Timer(); },
                                         [this] { slotOp40Timer(); }, [this] { slotOp20Timer(); }});
}

void OmDialog2::slotOp100Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp100);
}

void OmDialog2::slotOp100()
{
    setWindowOpacity(1.0);
}

void OmDialog2::slotOp80Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp80);
}

void OmDialog2::slotOp80()
{
    setWindowOpacity(0.8);
}

void OmDialog2::slotOp60Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp60);
}

void OmDialog2::slotOp60()
{
    setWindowOpacity(0.6);
}

void OmDialog2::slotOp50Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp50);
}

void OmDialog2::slotOp50()
{
    setWindowOpacity(0.5);
}

void OmDialog2::slotOp40Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp40);
}

void OmDialog2::slotOp40()
{
    setWindowOpacity(0.4);
}

void OmDialog2::slotOp20Timer()
{
    QTimer::singleShot(SkinFrame::kDeferral, this, &OmDialog2::slotOp20);
}

void OmDialog2::slotOp20()
{
    setWindowOpacity(0.2);
}

} // namespace ombrin
