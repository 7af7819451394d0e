#include "windows/FramePainter.h"

#include "skin/SkinPixmap.h"

#include <QtCore/QHash>
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>

#include <cmath>

namespace ombrin {

using namespace frame_metrics;

namespace {

struct PieceNames
{
    QString topLeft;
    QString topCenter;
    QString topRight;
    QString right;
    QString bottomRight;
    QString bottomCenter;
    QString bottomLeft;
    QString left;
};

PieceNames namesFor(const QString &activation)
{
    return {QStringLiteral(":/top_left_%1").arg(activation),
            QStringLiteral(":/top_center_%12").arg(activation),
            QStringLiteral(":/top_right_%1").arg(activation),
            QStringLiteral(":/right_%1").arg(activation),
            QStringLiteral(":/bottom_right_%1").arg(activation),
            QStringLiteral(":/bottom_center_%1").arg(activation),
            QStringLiteral(":/bottom_left_%1").arg(activation),
            QStringLiteral(":/left_%1").arg(activation)};
}

const PieceNames &pieceNames(bool active)
{
    static const PieceNames activeNames = namesFor(QStringLiteral("active"));
    static const PieceNames inactiveNames = namesFor(QStringLiteral("inactive"));
    return active ? activeNames : inactiveNames;
}

bool isWhole(qreal density)
{
    return qFuzzyCompare(density, std::round(density));
}

// A piece scaled smoothly, once, to the pixels it has at a fractional density.
QPixmap scaledPiece(const QString &path, qreal density)
{
    static QHash<QString, QPixmapCache::Key> keys;
    const QString name = path + QLatin1Char('@') + QString::number(density);
    QPixmap scaled;
    const auto known = keys.constFind(name);
    if (known != keys.constEnd() && QPixmapCache::find(*known, &scaled))
        return scaled;

    const QPixmap source = skinPixmap(path, density);
    if (source.isNull())
        return source;
    const QSizeF size = QSizeF(source.size()) * (density / source.devicePixelRatio());
    scaled = source.scaled(qMax(qRound(size.width()), 1), qMax(qRound(size.height()), 1),
                           Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(density);
    keys.insert(name, QPixmapCache::insert(scaled));
    return scaled;
}

// One painting of the border.
class BorderPainting
{
public:
    BorderPainting(QPainter *painter, const QRegion &exposed)
        : m_painter(painter)
        , m_exposed(exposed)
        , m_density(painter->device()->devicePixelRatioF())
        , m_whole(isWhole(m_density))
    {}

    QPixmap piece(const QString &path) const
    {
        return m_whole ? skinPixmap(path, m_density) : scaledPiece(path, m_density);
    }

    // Logical size; a fraction is rounded, since pieces are drawn for whole pixels.
    static QSize sizeOf(const QPixmap &pixmap)
    {
        return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
    }

    void draw(const QPixmap &pixmap, const QRect &target) const
    {
        if (pixmap.isNull() || target.isEmpty() || !m_exposed.intersects(target))
            return;
        if (m_whole && target.size() == sizeOf(pixmap))
            m_painter->drawPixmap(target.topLeft(), pixmap);
        else
            m_painter->drawPixmap(onDevicePixels(target), pixmap, QRectF());
    }

private:
    QRectF onDevicePixels(const QRect &rect) const
    {
        if (m_whole)
            return rect;
        return QRectF(QPointF(snap(rect.x()), snap(rect.y())),
                      QPointF(snap(rect.x() + rect.width()), snap(rect.y() + rect.height())));
    }
    qreal snap(int position) const { return std::round(position * m_density) / m_density; }

    QPainter *m_painter;
    const QRegion &m_exposed;
    qreal m_density;
    bool m_whole;
};

} // namespace

QRegion frameShape(const QSize &size)
{
    const int width = size.width();
    const int height = size.height();
    if (width < 5 || height < 5) {
        QRegion shape(QRect(QPoint(0, 0), size));
        for (const int y : {0, height - 1})
            shape -= QRegion(0, y, 2, 1) + QRegion(width - 2, y, 2, 1);
        for (const int y : {0, height - 2})
            shape -= QRegion(0, y, 1, 2) + QRegion(width - 1, y, 1, 2);
        return shape;
    }
    const QRect rows[] = {{2, 0, width - 4, 1},
                          {1, 1, width - 2, 1},
                          {0, 2, width, height - 4},
                          {1, height - 2, width - 2, 1},
                          {2, height - 1, width - 4, 1}};
    QRegion shape;
    shape.setRects(rows, static_cast<int>(std::size(rows)));
    return shape;
}

QFont frameTitleFont(const QFont &windowFont)
{
    QFont font = windowFont;
    font.setWeight(QFont::Bold);
    if (font.pixelSize() > 0)
        font.setPixelSize(font.pixelSize() + 2);
    else
        font.setPointSizeF(font.pointSizeF() + 1);
    return font;
}

int frameWidthForTitle(const QString &title, const QFont &windowFont)
{
    const int around = kTitleLeft + kTitleRightDistance - 1;
    const int width = QFontMetrics(frameTitleFont(windowFont)).horizontalAdvance(title);
    return title.isEmpty() ? kMinimumWidth : around + width + 1; // rounding may hide a fraction
}

void FramePainter::paintBorder(QPainter *painter, const QSize &size, bool active,
                               const QRegion &exposed)
{
    const int width = size.width();
    const int height = size.height();
    const int sideHeight = height - kMinimumHeight;
    const PieceNames &names = pieceNames(active);
    const BorderPainting painting(painter, exposed);
    const auto sizeOf = &BorderPainting::sizeOf;

    QPixmap piece = painting.piece(names.topLeft);
    painting.draw(piece, QRect(QPoint(0, 0), sizeOf(piece)));

    piece = painting.piece(names.topCenter);
    painting.draw(piece, QRect(kTopLeftWidth, 0, width - kMinimumWidth, sizeOf(piece).height()));

    piece = painting.piece(names.topRight);
    painting.draw(piece, QRect(QPoint(width - sizeOf(piece).width(), 0), sizeOf(piece)));

    piece = painting.piece(names.right);
    painting.draw(piece, QRect(width - sizeOf(piece).width(), kTitleHeight, sizeOf(piece).width(),
                               sideHeight));

    piece = painting.piece(names.bottomRight);
    painting.draw(piece,
                  QRect(QPoint(width - sizeOf(piece).width(), height - sizeOf(piece).height()),
                        sizeOf(piece)));

    piece = painting.piece(names.bottomCenter);
    painting.draw(piece,
                  QRect(kBorder, height - kBorder, width - 2 * kBorder, sizeOf(piece).height()));

    piece = painting.piece(names.bottomLeft);
    painting.draw(piece, QRect(QPoint(0, height - sizeOf(piece).height()), sizeOf(piece)));

    piece = painting.piece(names.left);
    painting.draw(piece, QRect(0, kTitleHeight, sizeOf(piece).width(), sideHeight));
}

void FramePainter::paintTitle(QPainter *painter, const QSize &size, bool active,
                              const QString &title, const QFont &font)
{
    const QRect place(QPoint(kTitleLeft, kTitleTop),
                      QPoint(size.width() - kTitleRightDistance, kTitleBottom));
    if (title.isEmpty() || place.isEmpty())
        return;

    if (m_elided.width != place.width() || m_elided.title != title || m_elided.font != font) {
        m_elided = {title, font, place.width(),
                    QFontMetrics(font).elidedText(title, Qt::ElideRight, place.width())};
    }
    painter->setFont(font);
    painter->setPen(active ? QColor(0x00, 0x00, 0x00) : QColor(0xff, 0xff, 0xff));
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, m_elided.text);
}

} // namespace ombrin
