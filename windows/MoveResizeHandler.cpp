#include "windows/MoveResizeHandler.h"

#include "platform/NativeWindow.h"
#include "windows/ResizeGeometry.h"

#include <ombrin/OmQtCompat.h>

#include <QtCore/QChildEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace ombrin {

namespace {

// A hand trembles in a click or a double click: a drag begins at so many pixels.
constexpr int kDragDistance = 2;

} // namespace

MoveResizeHandler::MoveResizeHandler(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    window->setMouseTracking(true);
    window->installEventFilter(this);
    watchChildren();
}

void MoveResizeHandler::setFrameWidth(int width)
{
    m_frameWidth = std::max(width, 0);
}

void MoveResizeHandler::setActive(Action action, bool active)
{
    (action == Action::Move ? m_moveActive : m_resizeActive) = active;
    if (!m_resizeActive)
        showCursor(Qt::Edges());
}

bool MoveResizeHandler::isActive(Action action) const
{
    return action == Action::Move ? m_moveActive : m_resizeActive;
}

void MoveResizeHandler::watchChildren()
{
    const QObjectList children = m_window->children();
    for (QObject *child : children) {
        if (child->isWidgetType())
            child->installEventFilter(this);
    }
}

bool MoveResizeHandler::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window) {
        windowEvent(event);
    } else if (event->type() == QEvent::Enter) {
        // A quick mouse jumps from the border into a child, and the window is not told.
        showCursor(Qt::Edges());
    }
    return false;
}

void MoveResizeHandler::windowEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        drag(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            m_state = State::Idle;
        break;
    case QEvent::Hide:
    case QEvent::WindowBlocked: // by a dialog, which gets the release
        m_state = State::Idle;
        break;
    case QEvent::Leave:
        if (m_state == State::Idle)
            showCursor(Qt::Edges());
        break;
    case QEvent::ChildAdded: {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType())
            child->installEventFilter(this);
        break;
    }
    case QEvent::ChildRemoved:
        static_cast<QChildEvent *>(event)->child()->removeEventFilter(this);
        break;
    default:
        break;
    }
}

bool MoveResizeHandler::isStill() const
{
    return m_window->isMaximized() || m_window->isFullScreen();
}

Qt::Edges MoveResizeHandler::edgesFor(const QPoint &position) const
{
    if (!m_resizeActive || isStill())
        return Qt::Edges();
    Qt::Edges edges = resize_geometry::edgesAt(position, m_window->size(), m_frameWidth);
    if (m_window->minimumWidth() == m_window->maximumWidth())
        edges &= ~(Qt::LeftEdge | Qt::RightEdge);
    if (m_window->minimumHeight() == m_window->maximumHeight())
        edges &= ~(Qt::TopEdge | Qt::BottomEdge);
    return edges;
}

void MoveResizeHandler::press(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || isStill())
        return;
    m_edges = edgesFor(mousePosition(event));
    if (!m_edges && !m_moveActive)
        return;
    m_pressPosition = globalMousePosition(event);
    m_startGeometry = m_window->geometry();
    m_state = State::Pressed;
}

void MoveResizeHandler::drag(const QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)) {
        m_state = State::Idle;
        showCursor(edgesFor(mousePosition(event)));
        return;
    }
    const QPoint delta = globalMousePosition(event) - m_pressPosition;
    if (m_state == State::Pressed && delta.manhattanLength() >= kDragDistance)
        startDrag(delta);
    else if (m_state == State::Moving || m_state == State::Resizing)
        follow(delta);
}

void MoveResizeHandler::startDrag(const QPoint &delta)
{
    m_state = m_edges ? State::Resizing : State::Moving;
    // The way so far is ours; the window system counts from where the pointer is when it takes
    // over.
    follow(delta);

    QWindow *native = m_window->isWindow() ? m_window->windowHandle() : nullptr;
    if (!native || !NativeWindow::isLeftButtonHeld())
        return;
    const bool taken = m_edges ? native->startSystemResize(m_edges) : native->startSystemMove();
    if (taken)
        m_state = State::Idle;
}

void MoveResizeHandler::follow(const QPoint &delta)
{
    if (m_state == State::Moving) {
        m_window->move(m_startGeometry.topLeft() + delta);
    } else {
        m_window->setGeometry(resize_geometry::resized(
                m_startGeometry, m_edges, delta, m_window->minimumSize(), m_window->maximumSize()));
    }
}

void MoveResizeHandler::showCursor(Qt::Edges edges)
{
    if (edges == m_shownEdges)
        return;
    if (!m_shownEdges && m_window->testAttribute(Qt::WA_SetCursor))
        m_hostCursor = m_window->cursor();
    m_shownEdges = edges;
    if (edges) {
        m_window->setCursor(resize_geometry::cursorAt(edges));
    } else if (m_hostCursor) {
        m_window->setCursor(*m_hostCursor);
        m_hostCursor.reset();
    } else {
        m_window->unsetCursor();
    }
}

} // namespace ombrin
