#include "screen/DesktopPicture.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace ombrin {

DesktopPicture::DesktopPicture(const QVector<Screen> &screens)
{
    const auto isUseless = [](const Screen &screen) {
        return screen.pixmap.isNull() || screen.geometry.isEmpty();
    };
    if (std::any_of(screens.begin(), screens.end(), isUseless))
        return;
    m_screens = screens;
    for (const Screen &screen : screens)
        m_geometry |= screen.geometry;
}

qreal DesktopPicture::density(const Screen &screen)
{
    return qreal(screen.pixmap.width()) / screen.geometry.width();
}

QRect DesktopPicture::pixels(const Screen &screen, const QRect &rect)
{
    const QRect local = rect.translated(-screen.geometry.topLeft());
    const qreal scale = density(screen);
    const auto scaled = [scale](int value) { return qRound(value * scale); };
    const QPoint corner(scaled(local.left()), scaled(local.top()));
    const QPoint end(scaled(local.left() + local.width()), scaled(local.top() + local.height()));
    return QRect(corner, end - QPoint(1, 1)) & screen.pixmap.rect();
}

void DesktopPicture::paint(QPainter *painter, const QRect &rect) const
{
    for (const Screen &screen : m_screens) {
        const QRect shown = rect.translated(m_geometry.topLeft()) & screen.geometry;
        if (!shown.isEmpty())
            painter->drawPixmap(shown.translated(-m_geometry.topLeft()), screen.pixmap,
                                pixels(screen, shown));
    }
}

QPixmap DesktopPicture::copy(const QRect &rect) const
{
    const QRect wanted = rect.translated(m_geometry.topLeft()) & m_geometry;
    if (wanted.isEmpty())
        return QPixmap();

    qreal highest = 0;
    for (const Screen &screen : m_screens) {
        if (screen.geometry.intersects(wanted))
            highest = std::max(highest, density(screen));
        if (!screen.geometry.contains(wanted))
            continue;
        QPixmap cut = screen.pixmap.copy(pixels(screen, wanted));
        cut.setDevicePixelRatio(highest);
        return cut;
    }

    if (highest <= 0)
        highest = 1;
    QPixmap composed((QSizeF(wanted.size()) * highest).toSize());
    composed.setDevicePixelRatio(highest);
    composed.fill(Qt::black);
    QPainter painter(&composed);
    painter.translate(m_geometry.topLeft() - wanted.topLeft());
    paint(&painter, wanted.translated(-m_geometry.topLeft()));
    return composed;
}

QPixmap DesktopPicture::whole() const
{
    return copy(QRect(QPoint(), m_geometry.size()));
}

} // namespace ombrin
