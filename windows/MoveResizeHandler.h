#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QCursor>

#include <optional>

class QMouseEvent;
class QWidget;

namespace ombrin {

/// Moves and resizes a frameless window under the mouse.
///
/// A drag with the left button moves the window, or resizes it when it starts near an edge or a
/// corner and the window's size can change there. The window system is asked to do it, so that
/// snapping and the like work; where it does not, the handler moves and resizes by itself. Nothing
/// happens while the window is maximised or full screen, and a press that is not followed by a
/// motion does nothing. The pointer shows where a drag would resize.
class OMBRIN_AUTOTEST_EXPORT MoveResizeHandler : public QObject
{
public:
    enum class Action { Move, Resize };

    /// Handles \a window, which becomes its parent.
    explicit MoveResizeHandler(QWidget *window);

    /// Width in pixels of the border that resizes; 4 at first.
    void setFrameWidth(int width);
    int frameWidth() const { return m_frameWidth; }

    /// Switches one of the two actions; both are on at first.
    void setActive(Action action, bool active);
    bool isActive(Action action) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class State { Idle, Pressed, Moving, Resizing };

    void watchChildren();
    void windowEvent(QEvent *event);
    void press(const QMouseEvent *event);
    void drag(const QMouseEvent *event);
    void startDrag(const QPoint &delta);
    void follow(const QPoint &delta);
    bool isStill() const;
    Qt::Edges edgesFor(const QPoint &position) const;
    void showCursor(Qt::Edges edges);

    QWidget *m_window;
    int m_frameWidth = 4;
    bool m_moveActive = true;
    bool m_resizeActive = true;
    State m_state = State::Idle;
    Qt::Edges m_edges;
    QPoint m_pressPosition; // on the screen
    QRect m_startGeometry;
    Qt::Edges m_shownEdges;              // the edges the pointer shows
    std::optional<QCursor> m_hostCursor; // what the pointer was before, if the host had set it
};

} // namespace ombrin
