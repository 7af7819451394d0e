#include "windows/Pictures.h"

#include "common/SkinPictures.h"
#include "model/MessageHtml.h"
#include "model/PictureFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmapCache>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

// Sharp on every screen.
constexpr int kDensity = 3;
constexpr int kSmileyExtent = 18;
constexpr int kDotExtent = 12;

QPixmap emptyPicture(int extent)
{
    QPixmap picture(extent * kDensity, extent * kDensity);
    picture.setDevicePixelRatio(kDensity);
    picture.fill(Qt::transparent);
    return picture;
}

void drawMouth(QPainter *painter, const QString &smiley)
{
    const QPen line(QColor(0x4a, 0x38, 0x10), 1.4, Qt::SolidLine, Qt::RoundCap);
    painter->setPen(line);
    painter->setBrush(Qt::NoBrush);
    const QChar mouth = smiley.back();
    if (mouth == QLatin1Char('(')) {
        painter->drawArc(QRectF(5, 11, 8, 6), 20 * 16, 140 * 16);
    } else if (mouth == QLatin1Char('o')) {
        painter->setBrush(line.color());
        painter->drawEllipse(QPointF(9, 12.4), 1.5, 2);
    } else if (mouth == QLatin1Char('D')) {
        painter->setBrush(Qt::white);
        painter->drawChord(QRectF(4.6, 6.4, 8.8, 8.6), 180 * 16, 180 * 16);
    } else {
        painter->drawArc(QRectF(5, 5.5, 8, 8.5), 200 * 16, 140 * 16);
    }
    if (mouth == QLatin1Char('P')) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0xd9, 0x5b, 0x66));
        painter->drawRoundedRect(QRectF(9, 13, 3.4, 3.8), 1.6, 1.6);
    }
}

} // namespace

QPixmap portraitOf(const Contact &contact)
{
    if (contact.picture.isEmpty())
        return QPixmap();
    const QString key = QStringLiteral("messenger-portrait:") + contact.picture;
    QPixmap portrait;
    if (!QPixmapCache::find(key, &portrait)) {
        portrait = QPixmap::fromImage(readPicture(contact.picture));
        if (!portrait.isNull())
            QPixmapCache::insert(key, portrait);
    }
    return portrait;
}

bool isMoving(const Contact &contact)
{
    return QFileInfo(contact.picture).suffix() == QLatin1String("gif")
           && !portraitOf(contact).isNull();
}

QPixmap roundPortrait(const QPixmap &portrait, int extent)
{
    const QPixmap source =
            portrait.isNull() ? example::skinPicture(QStringLiteral("no_userpic-78")) : portrait;
    QPixmap picture = emptyPicture(extent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(0, 0, extent, extent), extent / 6.0, extent / 6.0);
    painter.setClipPath(shape);
    painter.drawPixmap(QRect(0, 0, extent, extent), source);
    painter.setClipping(false);
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1));
    painter.drawPath(shape);
    return picture;
}

QColor presenceColor(Om::ContactStatus status)
{
    switch (status) {
    case Om::Online:
        return QColor(0x3f, 0xa0, 0x4a);
    case Om::Away:
    case Om::ExtendedAway:
        return QColor(0xe0, 0x9b, 0x1c);
    case Om::Busy:
    case Om::DoNotDisturb:
        return QColor(0xcf, 0x3f, 0x3a);
    case Om::Offline:
    case Om::Invisible:
    case Om::InvisibleForEveryone:
        break;
    }
    return QColor(0x9a, 0xa2, 0xab);
}

QIcon presenceIcon(Om::ContactStatus status)
{
    QPixmap picture = emptyPicture(kDotExtent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = presenceColor(status);
    const bool isFilled = status != Om::Invisible && status != Om::InvisibleForEveryone;
    painter.setPen(QPen(color.darker(120), 1));
    painter.setBrush(isFilled ? QBrush(color) : QBrush(Qt::white));
    painter.drawEllipse(QRectF(1.5, 1.5, kDotExtent - 3, kDotExtent - 3));
    if (status == Om::DoNotDisturb)
        painter.fillRect(QRectF(3.5, 5.2, 5, 1.6), Qt::white);
    painter.end();
    return QIcon(picture);
}

QString presenceName(Om::ContactStatus status)
{
    const auto translated = [](const char *name) {
        return QCoreApplication::translate("Presence", name);
    };
    switch (status) {
    case Om::Online:
        return translated(QT_TRANSLATE_NOOP("Presence", "Online"));
    case Om::Away:
        return translated(QT_TRANSLATE_NOOP("Presence", "Away"));
    case Om::ExtendedAway:
        return translated(QT_TRANSLATE_NOOP("Presence", "Extended away"));
    case Om::Busy:
        return translated(QT_TRANSLATE_NOOP("Presence", "Busy"));
    case Om::DoNotDisturb:
        return translated(QT_TRANSLATE_NOOP("Presence", "Do not disturb"));
    case Om::Invisible:
    case Om::InvisibleForEveryone:
        return translated(QT_TRANSLATE_NOOP("Presence", "Invisible"));
    case Om::Offline:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Presence", "Offline"));
}

QPixmap smileyPicture(const QString &text)
{
    QPixmap picture = emptyPicture(kSmileyExtent);
    if (text.isEmpty())
        return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xb8, 0x86, 0x0b), 1));
    painter.setBrush(QColor(0xff, 0xd2, 0x4d));
    painter.drawEllipse(QRectF(1.5, 1.5, 15, 15));
    const QPen eye(QColor(0x4a, 0x38, 0x10), 1.7, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(eye);
    painter.drawPoint(QPointF(6.5, 7));
    if (text.startsWith(QLatin1Char(';')))
        painter.drawLine(QPointF(10.3, 7), QPointF(12.7, 7));
    else
        painter.drawPoint(QPointF(11.5, 7));
    drawMouth(&painter, text);
    return picture;
}

} // namespace messenger
