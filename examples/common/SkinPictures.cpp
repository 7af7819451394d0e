#include "common/SkinPictures.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace example {

QIcon skinIcon(const QString &name)
{
    return QIcon(QStringLiteral(":/") + name);
}

QPixmap skinPicture(const QString &name)
{
    // QIcon finds the variants for denser screens; its smallest size is the one for density 1.
    const QIcon icon = skinIcon(name);
    const QList<QSize> sizes = icon.availableSizes();
    if (sizes.isEmpty())
        return QPixmap();
    const QSize size = *std::min_element(sizes.begin(), sizes.end(),
                                         [](QSize a, QSize b) { return a.width() < b.width(); });
    return icon.pixmap(size);
}

QPixmap stepSidebar(const QStringList &steps, int current, const QSize &size)
{
    constexpr int lineHeight = 30;
    constexpr int firstLine = 66;
    constexpr int dotDiameter = 18;
    const qreal density = qApp->devicePixelRatio();
    QPixmap sidebar(size * density);
    sidebar.setDevicePixelRatio(density);
    sidebar.fill(Qt::transparent);

    QPainter painter(&sidebar);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 0, 0, size.height());
    gradient.setColorAt(0, QColor(0x5f, 0xa8, 0xea));
    gradient.setColorAt(1, QColor(0x2a, 0x6f, 0xbb));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(size)), 4, 4);
    painter.drawPixmap(QPoint((size.width() - 32) / 2, 18), skinPicture(QStringLiteral("chat-32")));

    QFont font = QApplication::font();
    for (int step = 0; step < steps.size(); ++step) {
        const bool isCurrent = step == current;
        const int y = firstLine + step * lineHeight;
        const QRectF dot(10, y + (lineHeight - dotDiameter) / 2.0, dotDiameter, dotDiameter);
        font.setBold(isCurrent);
        painter.setFont(font);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, isCurrent ? 255 : 70));
        painter.drawEllipse(dot);
        painter.setPen(isCurrent ? QColor(0x2a, 0x6f, 0xbb) : QColor(Qt::white));
        painter.drawText(dot, Qt::AlignCenter, QString::number(step + 1));
        painter.setPen(QColor(255, 255, 255, isCurrent ? 255 : 200));
        painter.drawText(QRectF(dot.right() + 7, y, size.width() - 38, lineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter, steps.at(step));
    }
    return sidebar;
}

} // namespace example
