#include "model/SceneryPicture.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace messenger {

namespace {

constexpr int kWidth = 480;
constexpr int kHeight = 270;

void fillHills(QPainter *painter, const QColor &color, qreal left, qreal middle, qreal right)
{
    QPainterPath hills(QPointF(0, kHeight));
    hills.lineTo(0, left);
    hills.cubicTo(kWidth * 0.25, left - 50, kWidth * 0.3, middle + 20, kWidth * 0.5, middle);
    hills.cubicTo(kWidth * 0.7, middle - 20, kWidth * 0.8, right - 60, kWidth, right);
    hills.lineTo(kWidth, kHeight);
    painter->fillPath(hills, color);
}

void drawTree(QPainter *painter, qreal x, qreal y, qreal height)
{
    painter->fillRect(QRectF(x - height * 0.04, y - height * 0.25, height * 0.08, height * 0.25),
                      QColor(0x3a, 0x2b, 0x26));
    QPainterPath crown(QPointF(x, y - height));
    crown.lineTo(x + height * 0.22, y - height * 0.2);
    crown.lineTo(x - height * 0.22, y - height * 0.2);
    painter->fillPath(crown, QColor(0x1e, 0x3f, 0x3a));
}

} // namespace

QImage sceneryPicture()
{
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, kHeight * 0.8);
    sky.setColorAt(0, QColor(0x2f, 0x4b, 0x7c));
    sky.setColorAt(0.55, QColor(0xd9, 0x7a, 0x72));
    sky.setColorAt(1, QColor(0xff, 0xd2, 0x8c));
    painter.fillRect(picture.rect(), sky);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 243, 205, 70));
    painter.drawEllipse(QPointF(330, 150), 52, 52);
    painter.setBrush(QColor(0xff, 0xf3, 0xcd));
    painter.drawEllipse(QPointF(330, 150), 34, 34);

    fillHills(&painter, QColor(0x7d, 0x5d, 0x7c), 160, 170, 150);
    fillHills(&painter, QColor(0x4e, 0x54, 0x6b), 205, 190, 200);
    fillHills(&painter, QColor(0x2c, 0x4a, 0x4c), 240, 232, 226);
    for (const QPointF tree :
         {QPointF(46, 236), QPointF(76, 232), QPointF(402, 216), QPointF(436, 222)})
        drawTree(&painter, tree.x(), tree.y(), 58);
    return picture;
}

} // namespace messenger
