#include "Portrait.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <array>

namespace gallery {

namespace {

struct Person
{
    QRgb sky;
    QRgb ground;
    QRgb skin;
    QRgb hair;
    QRgb shirt;
};

constexpr std::array<Person, 6> kPeople = {{
        {0xffbfe3f5, 0xff6fb1d6, 0xfff2c9a4, 0xff5b3a24, 0xffd64541},
        {0xfffbe3b5, 0xfff0b45a, 0xff8d5a3b, 0xff221a17, 0xff3a8ddb},
        {0xffd4efcf, 0xff7fbf74, 0xffe8b48c, 0xffc98a2d, 0xff51417a},
        {0xffe7d7f2, 0xffa983c6, 0xfff6d7bd, 0xff8b2f1f, 0xff21a121},
        {0xffdde3ea, 0xff8f9cab, 0xffc58a63, 0xff3b3f46, 0xffffc130},
        {0xfffadcd6, 0xffe2897b, 0xffecc29b, 0xffd8d4cc, 0xff2b6777},
}};

} // namespace

QPixmap portrait(int person, const QSize &size)
{
    const Person &colors = kPeople[static_cast<std::size_t>(person) % kPeople.size()];
    QPixmap picture(size);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromRgb(colors.sky));
    sky.setColorAt(1, QColor::fromRgb(colors.ground));
    painter.fillRect(picture.rect(), sky);

    // Drawn into a square of 100 in the middle of the lower edge.
    const qreal unit = std::min(size.width(), size.height()) / 100.0;
    painter.translate(size.width() / 2.0, size.height());
    painter.scale(unit, unit);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colors.shirt));
    painter.drawRoundedRect(QRectF(-36, -30, 72, 60), 26, 26);
    painter.setBrush(QColor::fromRgb(colors.skin).darker(112));
    painter.drawRoundedRect(QRectF(-9, -42, 18, 20), 8, 8);
    painter.setBrush(QColor::fromRgb(colors.hair));
    painter.drawEllipse(QPointF(0, -62), 24, 26);
    painter.setBrush(QColor::fromRgb(colors.skin));
    painter.drawEllipse(QPointF(0, -56), 19, 21);
    painter.setBrush(QColor(0x1f, 0x23, 0x27));
    painter.drawEllipse(QPointF(-7, -58), 2, 2.4);
    painter.drawEllipse(QPointF(7, -58), 2, 2.4);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgb(colors.skin).darker(160), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(-8, -56, 16, 12), 200 * 16, 140 * 16);
    return picture;
}

} // namespace gallery
