#include <ombrin/OmShakeWidget.h>

#include <QtCore/QTimerEvent>

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace ombrin {

namespace {

constexpr int kReach = 5;

int randomOffset()
{
    return std::rand() % (2 * kReach + 1) - kReach;
}

bool isWithinReach(const QPoint &offset)
{
    return std::abs(offset.x()) <= kReach && std::abs(offset.y()) <= kReach;
}

} // namespace

OmShakeWidget::OmShakeWidget(QWidget *parent)
    : QObject(parent)
    , m_widget(parent)
{}

OmShakeWidget::~OmShakeWidget()
{
    stop();
}

void OmShakeWidget::setShakeDuration(int milliseconds)
{
    m_shakeDuration = milliseconds;
}

int OmShakeWidget::shakeDuration() const
{
    return m_shakeDuration;
}

void OmShakeWidget::setShakeTimes(int times)
{
    m_shakeTimes = times;
}

int OmShakeWidget::shakeTimes() const
{
    return m_shakeTimes;
}

void OmShakeWidget::shakeWidget()
{
    const QPointer<OmShakeWidget> guard(this);
    stop();
    if (!guard || !m_widget)
        return;
    m_origin = m_widget->pos();
    m_shaken = m_origin;
    m_moveCount = 0;
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    m_timerId = startTimer(std::max(m_shakeDuration, 0));
}

void OmShakeWidget::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId)
        return;
    if (m_moveCount++ <= m_shakeTimes)
        shakeWidgetReal();
    else
        stop();
}

void OmShakeWidget::shakeWidgetReal()
{
    if (!m_widget)
        return;
    followForeignMove();
    const int dx = randomOffset();
    const int dy = randomOffset();
    m_shaken = m_origin + QPoint(dx, dy);
    m_widget->move(m_shaken);
}

// A window manager may put a window a little beside the place that it was asked for, and tell of it
// late; only a place out of the shake's reach shows that somebody else has moved the window.
void OmShakeWidget::followForeignMove()
{
    const QPoint now = m_widget->pos();
    const bool isManaged = m_widget->isWindow() && m_widget->isVisible();
    if (isManaged ? !isWithinReach(now - m_origin) : now != m_shaken)
        m_origin = now;
}

// The last thing that is done: the host may delete the shaker when the widget moves.
void OmShakeWidget::stop()
{
    if (m_timerId == 0)
        return;
    killTimer(m_timerId);
    m_timerId = 0;
    if (!m_widget)
        return;
    followForeignMove();
    m_widget->move(m_origin);
}

} // namespace ombrin
