#include <ombrin/OmFaderWidget.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QPainter>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kOpaque = 255;
constexpr int kIntervalMs = 33;

} // namespace

OmFaderWidget::OmFaderWidget(QWidget *parent)
    : QWidget(parent)
    , m_fadeColor(parent ? parent->palette().color(QPalette::Window) : QColor(Qt::white))
{
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    setAttribute(Qt::WA_DeleteOnClose);
    if (parent)
        resize(parent->size());
}

OmFaderWidget::~OmFaderWidget() = default;

void OmFaderWidget::fadeIn()
{
    start(false);
}

void OmFaderWidget::fadeOut()
{
    start(true);
}

void OmFaderWidget::setFadeColor(const QColor &color)
{
    m_fadeColor = color;
}

QColor OmFaderWidget::fadeColor() const
{
    return m_fadeColor;
}

void OmFaderWidget::setFadeDuration(int milliseconds)
{
    m_fadeDuration = milliseconds;
}

int OmFaderWidget::fadeDuration() const
{
    return m_fadeDuration;
}

void OmFaderWidget::paintEvent(QPaintEvent *)
{
    QColor color = m_fadeColor;
    color.setAlpha(std::clamp(m_alpha, 0, kOpaque));
    QPainter(this).fillRect(rect(), QBrush(color, Qt::SolidPattern));

    if (!m_timer->isActive())
        return;
    m_alpha += step();
    if (m_fadeOut ? m_alpha < kOpaque : m_alpha > 0)
        return;
    m_timer->stop();
    m_finishing = true;
    // Whoever hears of the end may delete the fader or its parent, which Qt is still painting.
    QMetaObject::invokeMethod(this, &OmFaderWidget::finish, Qt::QueuedConnection);
}

void OmFaderWidget::start(bool fadeOut)
{
    m_finishing = false;
    m_fadeOut = fadeOut;
    m_alpha = fadeOut ? 0 : kOpaque;
    m_timer->start(kIntervalMs);
    show();
}

// Never 0, so that every fade ends.
int OmFaderWidget::step() const
{
    const int wholeFade = m_timer->interval() * kOpaque;
    const int size = wholeFade / std::clamp(m_fadeDuration, 1, wholeFade);
    return m_fadeOut ? size : -size;
}

void OmFaderWidget::finish()
{
    // The fade may have been started anew in the meantime.
    if (!m_finishing)
        return;
    m_finishing = false;
    const bool fadeOut = m_fadeOut;
    const QPointer<OmFaderWidget> guard(this);
    close();
    if (guard)
        Q_EMIT done(fadeOut);
}

} // namespace ombrin
