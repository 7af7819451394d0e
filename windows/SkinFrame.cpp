#include "windows/SkinFrame.h"

#include "platform/NativeHandle.h"
#include "windows/MoveResizeHandler.h"

#include <ombrin/OmQtCompat.h>
#include <ombrin/OmStatusBar.h>

#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QStatusTipEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMenuBar>

namespace ombrin {

using namespace frame_metrics;

namespace {

constexpr int kStatusTipDuration = 1000; // milliseconds

} // namespace

SkinFrame::SkinFrame(QWidget *window, const char *translationContext)
    : m_window(window)
    , m_titleBar(window, translationContext)
{}

SkinFrame::~SkinFrame() = default;

// Building

void SkinFrame::extendNativeStyle()
{
    // A frame inside another widget has no native window, and needs none.
    if (!m_window->isWindow())
        return;
#ifdef Q_OS_WIN
    m_window->winId();
#endif
    // Elsewhere the native window is made when the window is shown, and gets its style then. One
    // that is made before it has its place loses it under an X11 window manager: Qt would take it
    // for being at (0, 0), and menus would open there.
    restoreNativeStyle();
}

void SkinFrame::build()
{
    m_titleBar.createButtons();

    m_handler = new MoveResizeHandler(m_window);
    m_window->setContentsMargins(kBorder, kTitleHeight, kBorder, kBorder);
    m_window->setMinimumHeight(kMinimumHeight);
    m_window->setMinimumWidth(kMinimumWidth);
    m_window->setContextMenuPolicy(Qt::CustomContextMenu);
}

// Native window

void SkinFrame::restoreNativeStyle()
{
    const NativeWindow::Handle handle = NativeWindow::handleOf(m_window);
    if (handle == 0 || !m_window->isWindow())
        return;
    NativeWindow::addSystemBoxes(handle);
    if (m_fixed)
        NativeWindow::setMaximizeBox(handle, false);
    if (m_alwaysOnTop)
        NativeWindow::setStayOnTop(handle, true);
    followScreen();
}

void SkinFrame::followScreen()
{
    disconnect(m_screenChange);
    if (QWindow *native = m_window->windowHandle()) {
        m_screenChange = connect(native, &QWindow::screenChanged, this, [this] {
            m_titleBar.followDensity(m_active);
            m_window->update();
        });
    }
}

void SkinFrame::handleNativeEvent(const QByteArray &eventType, void *message) const
{
    if (eventType != "windows_generic_MSG")
        return;
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QSizeF workArea =
                QSizeF(screen->availableGeometry().size()) * screen->devicePixelRatio();
        NativeWindow::answerMaximumSize(message, qRound(workArea.width()),
                                        qRound(workArea.height()));
    }
}

void SkinFrame::applyAlwaysOnTop() const
{
    NativeWindow::setStayOnTop(NativeWindow::handleOf(m_window), m_alwaysOnTop);
}

void SkinFrame::setFixed(bool fixed)
{
    if (fixed == m_fixed)
        return;
    m_fixed = fixed;
    NativeWindow::setMaximizeBox(NativeWindow::handleOf(m_window), !fixed);
    if (m_handler)
        m_handler->setActive(MoveResizeHandler::Action::Resize, !fixed);
    restrainSizeGrip();
    m_titleBar.setMaximizingEnabled(!fixed);
}

// The grip in a status bar resizes past the handler. One that the host had hidden stays hidden.
void SkinFrame::restrainSizeGrip()
{
    if (!m_statusBar || (m_fixed ? !m_statusBar->isSizeGripEnabled() : !m_hidesSizeGrip))
        return;
    m_statusBar->setSizeGripEnabled(!m_fixed);
    m_hidesSizeGrip = m_fixed;
}

// Content

void SkinFrame::setWidget(QWidget *widget)
{
    if (!widget)
        return;
    widget->setParent(m_window);
    m_content = widget;
    if (!m_useLayout) {
        placeContent();
        return;
    }
    if (QLayout *layout = m_window->layout()) {
        layout->addWidget(widget);
        return;
    }
    auto *layout = new QVBoxLayout(m_window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(widget, 0, Qt::Alignment());
    if (m_menuBar)
        insertMenuBar();
    if (m_statusBar)
        layout->addWidget(m_statusBar);
}

QMenuBar *SkinFrame::menuBar()
{
    if (!m_useLayout)
        return nullptr;
    if (!m_menuBar) {
        m_menuBar = new QMenuBar(m_window);
        if (m_window->layout())
            insertMenuBar();
    }
    return m_menuBar;
}

void SkinFrame::insertMenuBar()
{
    QLayout *layout = m_window->layout();
    if (auto *box = qobject_cast<QBoxLayout *>(layout)) {
        // The one kind of layout that can put it first and keep the stretches of what it holds.
        box->insertWidget(0, m_menuBar);
        return;
    }
    QList<QLayoutItem *> items;
    while (QLayoutItem *item = layout->takeAt(0))
        items.append(item);
    layout->addWidget(m_menuBar);
    for (QLayoutItem *item : std::as_const(items))
        layout->addItem(item);
}

OmStatusBar *SkinFrame::statusBar()
{
    if (!m_useLayout)
        return nullptr;
    if (!m_statusBar) {
        m_statusBar = new OmStatusBar(m_window);
        restrainSizeGrip();
        if (QLayout *layout = m_window->layout())
            layout->addWidget(m_statusBar);
    }
    return m_statusBar;
}

void SkinFrame::placeContent()
{
    if (!m_useLayout && m_content)
        m_content->setGeometry(m_window->contentsRect());
}

// Events

void SkinFrame::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ActivationChange:
        m_active = m_window->isActiveWindow();
        setButtons();
        m_window->update();
        break;
    case QEvent::StatusTip:
        if (m_statusBar)
            m_statusBar->showMessage(static_cast<QStatusTipEvent *>(event)->tip(),
                                     kStatusTipDuration);
        break;
    case QEvent::WinIdChange:
    case QEvent::ParentChange:
    case QEvent::Show:
        // A native window made anew, or put under another parent, has lost what we gave it.
        restoreNativeStyle();
        break;
    case QEvent::WindowStateChange:
        // The window system may tell of the state after the resize, or maximise without one.
        QTimer::singleShot(kDeferral, this, [this] { m_titleBar.checkState(); });
        break;
    case QEvent::LanguageChange:
        m_titleBar.translate();
        break;
    default:
        break;
    }
}

void SkinFrame::handleDoubleClick(const QMouseEvent *event)
{
    const QPoint position = mousePosition(event);
    if (event->button() != Qt::LeftButton || !m_window->rect().contains(position)
        || position.y() > kLastTitleBandRow || m_fixed)
        return;
    if (m_window->isMaximized())
        m_window->showNormal();
    else
        m_window->showMaximized();
}

void SkinFrame::paint(QPaintEvent *event)
{
    QPainter painter(m_window);
    painter.setClipping(true);
    FramePainter::paintBorder(&painter, m_window->size(), m_active, event->region());
    if (!m_title.isEmpty())
        m_painter.paintTitle(&painter, m_window->size(), m_active, m_title,
                             frameTitleFont(m_window->font()));
}

void SkinFrame::setTitle(const QString &title)
{
    m_title = title;
    m_window->update();
}

void SkinFrame::computeAndSetMask()
{
    m_window->setMask(frameShape(m_window->size()));
}

void SkinFrame::setButtons()
{
    m_titleBar.setPictures(m_active);
}

} // namespace ombrin
