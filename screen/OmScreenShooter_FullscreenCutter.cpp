#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include "screen/CutSelection.h"
#include "screen/CutterPane.h"
#include "screen/DesktopPicture.h"
#include "skin/SkinPixmap.h"

#include <ombrin/OmQtCompat.h>
#include <ombrin/OmScreenShooter_Private.h>

#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include <algorithm>

using ombrin::CutSelection;
using ombrin::CutZone;

namespace {

constexpr int kPatience = 5000; // milliseconds until the user is told what to do

constexpr Qt::WindowFlags kWindowFlags = Qt::SplashScreen | Qt::X11BypassWindowManagerHint
                                         | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

bool screensDifferInDensity()
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&screens](const QScreen *screen) {
        return !qFuzzyCompare(screen->devicePixelRatio(), screens.first()->devicePixelRatio());
    });
}

QSize logicalSize(const QPixmap &pixmap)
{
    return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

} // namespace

OmScreenShooter_FullscreenCutter::OmScreenShooter_FullscreenCutter(OmScreenShooter_Private *owner)
    : QWidget(nullptr, kWindowFlags)
    , m_owner(owner)
    , m_snap(loadButton(QStringLiteral("snap")))
    , m_close(loadButton(QStringLiteral("close")))
    , m_hint(tr("Please select the area on the screen that you want as an image by pressing the "
                "left mouse button and dragging your mouse.",
                "hint if user doesn't select anything"))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName(m_hint);
    coverDesktop();
    m_selection = std::make_unique<CutSelection>(m_desktop.size(), logicalSize(m_snap.normal),
                                                 logicalSize(m_close.normal));
    setFocus(Qt::ShortcutFocusReason);
    // A dialog that blocks the application would block the cutter, too, and hide behind it.
    if (QApplication::activeModalWidget())
        setWindowModality(Qt::ApplicationModal);
    if (owner)
        connect(owner, &QObject::destroyed, this, &QWidget::close);
    // Of this window: QTimer::singleShot() would keep its timer when the window has long been
    // closed.
    auto *const patience = new QTimer(this);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, this,
            &OmScreenShooter_FullscreenCutter::slotOnUserIsAnIdiot);
    patience->start(kPatience);
}

OmScreenShooter_FullscreenCutter::~OmScreenShooter_FullscreenCutter()
{
    m_isShown = false;
    if (!m_shotTaken)
        Q_EMIT signalOnScreenshotFailed();
}

OmScreenShooter_FullscreenCutter::Button
OmScreenShooter_FullscreenCutter::loadButton(const QString &name)
{
    const auto load = [&name](const char *state) {
        return ombrin::skinPixmap(
                QStringLiteral(":/snapshot-%1%2-32.png").arg(name, QLatin1String(state)));
    };
    return {load(""), load("-hover"), load("-pressed"), false};
}

/// What this window and those of other screens have in common.
void OmScreenShooter_FullscreenCutter::prepareWindow(QWidget *window, QScreen *screen)
{
    window->setAttribute(Qt::WA_OpaquePaintEvent);
    window->setAttribute(Qt::WA_NoSystemBackground);
    window->setMouseTracking(true);
    window->setCursor(Qt::CrossCursor);
    if (screen) { // the native window must know its density from the start
        window->winId();
        window->windowHandle()->setScreen(screen);
    }
}

void OmScreenShooter_FullscreenCutter::coverDesktop()
{
    QScreen *primary = QGuiApplication::primaryScreen();
    if (!primary)
        return;
    m_desktop = primary->virtualGeometry();
    m_covered = m_desktop;
    const bool needsPanes = screensDifferInDensity();
    prepareWindow(this, needsPanes ? primary : nullptr);
    if (needsPanes) {
        m_covered = primary->geometry();
        const auto screens = QGuiApplication::screens();
        for (QScreen *screen : screens) {
            if (screen != primary)
                m_panes.push_back(std::make_unique<ombrin::CutterPane>(this, screen));
        }
    }
    setGeometry(m_covered);
    // The picture is one of the screens as they were.
    connect(primary, &QScreen::virtualGeometryChanged, this, &QWidget::close);
    connect(qApp, &QGuiApplication::screenRemoved, this, &QWidget::close);
}

const ombrin::DesktopPicture *OmScreenShooter_FullscreenCutter::picture() const
{
    return m_owner ? m_owner->m_screenshot.get() : nullptr;
}

// Coordinates. Selection and picture count from the corner of the desktop, windows from their own.

QPoint OmScreenShooter_FullscreenCutter::originOf(const QWidget *window) const
{
    return (window == this ? m_covered : window->geometry()).topLeft() - m_desktop.topLeft();
}

QPoint OmScreenShooter_FullscreenCutter::desktopPosition(const QWidget *window,
                                                         const QMouseEvent *event) const
{
    const QPoint position = ombrin::mousePosition(event);
    // A drag out of the window goes on in pixels of its own density, not of the screen it comes to.
    if (!m_panes.empty() && event->spontaneous() && !window->rect().contains(position))
        return QCursor::pos() - m_desktop.topLeft();
    return position + originOf(window);
}

void OmScreenShooter_FullscreenCutter::refresh(const QRegion &region)
{
    update(region.translated(-originOf(this)));
    for (const auto &pane : m_panes)
        pane->update(region.translated(-originOf(pane.get())));
}

void OmScreenShooter_FullscreenCutter::refreshAll()
{
    refresh(QRect(QPoint(), m_desktop.size()));
}

// Mouse

void OmScreenShooter_FullscreenCutter::handleMouse(QWidget *window, QMouseEvent *event)
{
    if (!m_isShown)
        return;
    const QPoint point = desktopPosition(window, event);
    const bool isLeft = event->button() == Qt::LeftButton;
    if (m_doubleClick != DoubleClick::None) {
        if (isLeft && event->type() == QEvent::MouseButtonRelease)
            endDoubleClick();
        return;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (isLeft)
            press(point);
        break;
    case QEvent::MouseButtonRelease:
        if (isLeft && m_selection->drag() != CutZone::None)
            release(point);
        break;
    case QEvent::MouseButtonDblClick:
        if (isLeft)
            doubleClick(point);
        break;
    default:
        moveTo(point);
        break;
    }
}

void OmScreenShooter_FullscreenCutter::press(const QPoint &point)
{
    m_selection->press(point);
    refreshAll();
}

void OmScreenShooter_FullscreenCutter::moveTo(const QPoint &point)
{
    hover(point);
    if (m_selection->drag() == CutZone::None) {
        const Qt::CursorShape shape = cursorShape(m_selection->zoneAt(point));
        if (cursor().shape() == shape)
            return;
        setCursor(shape);
        for (const auto &pane : m_panes)
            pane->setCursor(shape);
        return;
    }
    const CutSelection before = *m_selection;
    const bool hintWasShown = m_showHint;
    m_selection->moveTo(point);
    noteSelection();
    refresh(m_selection->changedSince(before));
    if (hintWasShown && !m_showHint)
        refresh(hintBox());
}

void OmScreenShooter_FullscreenCutter::hover(const QPoint &point)
{
    const auto follow = [this, &point](Button *button, CutZone zone, const QRect &place) {
        const CutZone drag = m_selection->drag();
        if (drag != CutZone::None && drag != zone)
            return;
        if (std::exchange(button->isHovered, place.contains(point)) != button->isHovered)
            refresh(place);
    };
    follow(&m_snap, CutZone::SnapButton, m_selection->snapButton());
    follow(&m_close, CutZone::CloseButton, m_selection->closeButton());
}

void OmScreenShooter_FullscreenCutter::release(const QPoint &point)
{
    const CutZone drag = m_selection->drag();
    const QRect button =
            drag == CutZone::SnapButton ? m_selection->snapButton() : m_selection->closeButton();
    if (drag != CutZone::SnapButton && drag != CutZone::CloseButton) {
        m_selection->moveTo(point);
        noteSelection();
    }
    m_selection->release();
    refreshAll();
    if (!button.contains(point))
        return;
    m_selection->restorePrevious();
    if (drag == CutZone::SnapButton)
        takePicture();
    else
        close();
}

void OmScreenShooter_FullscreenCutter::doubleClick(const QPoint &point)
{
    if (!m_selection->wasValid() || !m_selection->previousRect().contains(point)) {
        m_doubleClick = DoubleClick::Outside;
        return;
    }
    m_selection->restorePrevious();
    m_doubleClick = DoubleClick::Inside;
}

/// Only now that the button is up: Qt under X11 can keep a window that goes away with a button down
/// as the pressed one, and crash on it later.
void OmScreenShooter_FullscreenCutter::endDoubleClick()
{
    if (std::exchange(m_doubleClick, DoubleClick::None) == DoubleClick::Inside)
        takePicture();
    else
        close();
}

void OmScreenShooter_FullscreenCutter::noteSelection()
{
    if (!m_selection->isValid())
        return;
    m_userHasSelected = true;
    m_showHint = false;
}

void OmScreenShooter_FullscreenCutter::takePicture()
{
    const QPointer<OmScreenShooter_FullscreenCutter> self(this);
    if (m_selection->isValid() && picture()) {
        m_shotTaken = true;
        const QPixmap cut = picture()->copy(m_selection->rect());
        hide(); // whatever the receiver opens would be behind
        Q_EMIT signalOnScreenshotSucceeded(cut);
    }
    if (self)
        close();
}

void OmScreenShooter_FullscreenCutter::slotOnUserIsAnIdiot()
{
    if (m_userHasSelected)
        return;
    m_showHint = true;
    refreshAll();
}

// Events

void OmScreenShooter_FullscreenCutter::mousePressEvent(QMouseEvent *event)
{
    handleMouse(this, event);
}

void OmScreenShooter_FullscreenCutter::mouseReleaseEvent(QMouseEvent *event)
{
    handleMouse(this, event);
}

void OmScreenShooter_FullscreenCutter::mouseDoubleClickEvent(QMouseEvent *event)
{
    handleMouse(this, event);
}

void OmScreenShooter_FullscreenCutter::mouseMoveEvent(QMouseEvent *event)
{
    handleMouse(this, event);
}

void OmScreenShooter_FullscreenCutter::keyPressEvent(QKeyEvent *event)
{
    const QPointer<OmScreenShooter_FullscreenCutter> self(this);
    if (m_isShown && event->key() == Qt::Key_Escape)
        close();
    else if (m_isShown && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        takePicture();
    if (self)
        QWidget::keyPressEvent(event);
}

void OmScreenShooter_FullscreenCutter::keyReleaseEvent(QKeyEvent *event)
{
    if (m_isShown)
        QWidget::keyReleaseEvent(event);
}

void OmScreenShooter_FullscreenCutter::focusInEvent(QFocusEvent *event)
{
    if (m_isShown)
        QWidget::focusInEvent(event);
}

void OmScreenShooter_FullscreenCutter::focusOutEvent(QFocusEvent *)
{
    if (m_isShown)
        close();
}

void OmScreenShooter_FullscreenCutter::paintEvent(QPaintEvent *event)
{
    paint(this, event->region());
}

void OmScreenShooter_FullscreenCutter::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_isShown = true;
    for (const auto &pane : m_panes)
        pane->show();
    activateWindow(); // no window manager does that for such a window
}

void OmScreenShooter_FullscreenCutter::hideEvent(QHideEvent *event)
{
    m_isShown = false;
    for (const auto &pane : m_panes)
        pane->hide();
    QWidget::hideEvent(event);
}
