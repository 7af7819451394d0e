#include "ContactSheet.h"

#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QGridLayout>

#include <algorithm>
#include <cstdlib>

namespace gallery {

namespace {

constexpr QRgb kLight = 0xffefeff0;
constexpr QRgb kDark = 0xff2b2f34;
constexpr qreal kGroundRadius = 4;
constexpr int kLabelGap = 3;

/// \a name in two lines, broken after the '_' or '-' nearest to its middle.
QString inTwoLines(const QString &name)
{
    const int length = static_cast<int>(name.size());
    int best = length;
    for (int index = 1; index < length; ++index) {
        const QChar before = name.at(index - 1);
        const bool breakable = before == QLatin1Char('_') || before == QLatin1Char('-');
        if (breakable && std::abs(2 * index - length) < std::abs(2 * best - length))
            best = index;
    }
    return best == length ? name : name.left(best) + QLatin1Char('\n') + name.mid(best);
}

} // namespace

PictureTile::PictureTile(const QString &name, QSize ground, Grounds grounds, const QString &label,
                         QWidget *parent)
    : QWidget(parent)
    , m_name(name)
    , m_label(label)
    , m_ground(ground)
    , m_grounds(grounds)
{
    setAccessibleName(name);
    setToolTip(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PictureTile::groundsSize() const
{
    switch (m_grounds) {
    case Grounds::SideBySide:
        return QSize(2 * m_ground.width(), m_ground.height());
    case Grounds::Stacked:
        return QSize(m_ground.width(), 2 * m_ground.height());
    case Grounds::Split:
        break;
    }
    return m_ground;
}

QFont PictureTile::labelFont() const
{
    QFont small = font();
    if (small.pixelSize() > 0)
        small.setPixelSize(small.pixelSize() - 1);
    else
        small.setPointSizeF(small.pointSizeF() - 1);
    return small;
}

QSize PictureTile::sizeHint() const
{
    const QSize grounds = groundsSize();
    if (m_label.isEmpty())
        return grounds;
    const QSize label = QFontMetrics(labelFont()).size(0, m_label);
    return QSize(std::max(grounds.width(), label.width() + 1),
                 grounds.height() + kLabelGap + label.height());
}

void PictureTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSize size = groundsSize();
    const QRect grounds(QPoint((width() - size.width()) / 2, 0), size);
    const QRect first(grounds.topLeft(), m_ground);

    QPainterPath outline;
    outline.addRoundedRect(grounds, kGroundRadius, kGroundRadius);
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(grounds, QColor::fromRgb(kLight));
    if (m_grounds == Grounds::Split) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgb(kDark));
        const QRectF area(grounds);
        painter.drawPolygon(QPolygonF({area.topRight(), area.bottomRight(), area.bottomLeft()}));
        painter.restore();
        paintPicture(&painter, first);
    } else {
        const QRect second = m_grounds == Grounds::SideBySide
                                     ? first.translated(m_ground.width(), 0)
                                     : first.translated(0, m_ground.height());
        painter.fillRect(second, QColor::fromRgb(kDark));
        painter.restore();
        paintPicture(&painter, first);
        paintPicture(&painter, second);
    }

    painter.setFont(labelFont());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect().adjusted(0, size.height() + kLabelGap, 0, 0),
                     Qt::AlignHCenter | Qt::AlignTop, m_label);
}

void PictureTile::paintPicture(QPainter *painter, const QRect &ground) const
{
    const QPixmap picture = skinPicture(m_name);
    if (picture.isNull())
        return;
    const QSize size = picture.size() / picture.devicePixelRatioF();
    painter->drawPixmap(ground.x() + (ground.width() - size.width()) / 2,
                        ground.y() + (ground.height() - size.height()) / 2, picture);
}

PictureTile *namedTile(const QString &name, QSize ground, Grounds grounds, int lines)
{
    return new PictureTile(name, ground, grounds, lines > 1 ? inTwoLines(name) : name);
}

QGridLayout *tileRows(const std::vector<const char *> &names, int columns, QSize ground, int lines)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(10);
    int index = 0;
    for (const char *name : names) {
        auto *tile = namedTile(QString::fromLatin1(name), ground, Grounds::SideBySide, lines);
        grid->addWidget(tile, index / columns, index % columns, Qt::AlignHCenter | Qt::AlignBottom);
        ++index;
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

} // namespace gallery
