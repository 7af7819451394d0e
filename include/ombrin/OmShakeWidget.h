#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace ombrin {

/// Shakes a widget to catch the user's eye.
///
/// The widget is moved at random, at most five pixels away from where it stood in either direction,
/// again and again, and then put back.
///
/// \code
/// auto *shaker = new ombrin::OmShakeWidget(chatWindow); // deleted with the window
/// shaker->shakeWidget();
/// \endcode
///
/// A shaker can be used as often as wanted; shakeWidget() during a shake puts the widget back and
/// begins anew. When the host or the user moves the widget during a shake, the shake goes on around
/// the new place, and there the widget stays. A shaker that is deleted during a shake puts the
/// widget back. Without a widget, nothing happens.
///
/// The random numbers are those of std::rand(), which shakeWidget() seeds with the time.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmShakeWidget : public QObject
{
    Q_OBJECT

public:
    /// Shakes \a parent.
    explicit OmShakeWidget(QWidget *parent);
    ~OmShakeWidget() override;

    /// The time between two moves in milliseconds, 5 by default; below 0 is taken for 0. Takes
    /// effect with the next shake.
    void setShakeDuration(int milliseconds);
    int shakeDuration() const;

    /// One less than the number of moves, 100 by default; below 0 there is no move at all.
    void setShakeTimes(int times);
    int shakeTimes() const;

    /// Shakes the widget, from the beginning if it is being shaken.
    void shakeWidget();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void shakeWidgetReal();
    void followForeignMove();
    void stop();

    int m_shakeDuration = 5;
    int m_timerId = 0;
    int m_shakeTimes = 100;
    qint64 m_moveCount = 0;
    QPointer<QWidget> m_widget;
    QPoint m_origin;
    // Where the last move put the widget.
    QPoint m_shaken;
};

} // namespace ombrin
