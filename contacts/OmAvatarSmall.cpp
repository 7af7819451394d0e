#include <ombrin/OmAvatarSmall.h>

#include "contacts/ScaledPixmap.h"
#include "effects/PopupPlacement.h"
#include "skin/SkinPixmap.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmFaderWidget.h>

#include <QtCore/QTimer>
#include <QtGui/QPainter>

namespace ombrin {

namespace {

constexpr int kMaxSize = 78;
constexpr int kMargin = 2;
constexpr int kDelayMs = 20;
constexpr int kMagnifierLeft = 4;
constexpr int kMagnifierAboveBottom = 28;
constexpr qreal kMagnifierOpacity = 0.7;

QString placeholderPath()
{
    return QStringLiteral(":/no_userpic-78");
}

} // namespace

OmAvatarSmall::OmAvatarSmall(QWidget *parent)
    : OmLabel(parent)
{
    setMaximumSize(kMaxSize, kMaxSize);
    showPlaceholder();
    connect(this, &OmLabel::hovered, this, &OmAvatarSmall::slotAvatarHovered);
}

OmAvatarSmall::~OmAvatarSmall() = default;

void OmAvatarSmall::setAvatar(const QPixmap &avatar, bool hover)
{
    m_avatar = avatar;
    m_hover = hover;
    if (isLink() && avatar.isNull())
        setCursor(Qt::ArrowCursor);
    enableLink(!avatar.isNull());
    render(size());
}

QPixmap OmAvatarSmall::avatar() const
{
    return m_avatar;
}

void OmAvatarSmall::paintEvent(QPaintEvent *event)
{
    // On another screen than before.
    if (m_source.devicePixelRatio != devicePixelRatioF())
        m_source.size.isValid() ? render(m_source.size) : showPlaceholder();
    OmLabel::paintEvent(event);
}

void OmAvatarSmall::slotAvatarTimer()
{
    QTimer::singleShot(kDelayMs, this, &OmAvatarSmall::slotAvatar);
}

void OmAvatarSmall::slotAvatar()
{
    if (m_avatar.isNull())
        return;
    const QPoint anchor = mapToGlobal(pos());
    auto *const popup = new OmAvatar(m_avatar, this);
    popup->move(popup_placement::flipped(anchor, size(), popup->size(),
                                         popup_placement::screenAt(anchor)));
    auto *const fader = new OmFaderWidget(popup);
    fader->fadeIn();
    popup->show();
}

void OmAvatarSmall::slotAvatarHovered(bool hover)
{
    setAvatar(avatar(), hover);
}

void OmAvatarSmall::showPlaceholder()
{
    m_source.devicePixelRatio = devicePixelRatioF();
    setPixmap(skinPixmap(placeholderPath(), m_source.devicePixelRatio));
}

// Scaling takes by far the longest: its result is kept as long as it is right.
void OmAvatarSmall::render(const QSize &size)
{
    const qreal ratio = devicePixelRatioF();
    const Source source{m_avatar.cacheKey(), skinPixmap(placeholderPath(), ratio).cacheKey(), size,
                        ratio};
    if (m_thumbnail.isNull() || !(source == m_source))
        m_thumbnail = thumbnail(source);
    m_source = source;
    setPixmap(m_hover && !m_avatar.isNull() ? withMagnifier(m_thumbnail) : m_thumbnail);
}

QPixmap OmAvatarSmall::thumbnail(const Source &source) const
{
    if (source.size.isEmpty())
        return QPixmap();
    const qreal ratio = source.devicePixelRatio;
    QPixmap canvas((QSizeF(source.size) * ratio).toSize());
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.drawPixmap(0, 0, scaledSkinPixmap(placeholderPath(), source.size, ratio));
    if (m_avatar.isNull())
        return canvas;

    const QSize inner = source.size - 2 * QSize(kMargin, kMargin);
    if (inner.isEmpty())
        return canvas;
    painter.fillRect(QRect(QPoint(kMargin, kMargin), inner), Qt::white);
    const QPixmap picture = scaledPixmap(m_avatar, inner, ratio);
    const QSize size = logicalSize(picture);
    painter.drawPixmap((source.size.width() - size.width()) / 2,
                       (source.size.height() - size.height()) / 2, picture);
    return canvas;
}

QPixmap OmAvatarSmall::withMagnifier(QPixmap canvas) const
{
    if (canvas.isNull())
        return canvas;
    QPainter painter(&canvas);
    painter.setOpacity(kMagnifierOpacity);
    painter.drawPixmap(kMagnifierLeft, m_source.size.height() - kMagnifierAboveBottom,
                       skinPixmap(QStringLiteral(":/zoom+-24"), m_source.devicePixelRatio));
    return canvas;
}

bool OmAvatarSmall::Source::operator==(const Source &other) const
{
    return avatar == other.avatar && placeholder == other.placeholder && size == other.size
           && devicePixelRatio == other.devicePixelRatio;
}

} // namespace ombrin
