#include <ombrin/OmImageMaskedWidget.h>

#include "widgets/ImageShape.h"

#include <QtGui/QPainter>

namespace ombrin {

OmImageMaskedWidget::OmImageMaskedWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setAttribute(Qt::WA_NoSystemBackground);
}

OmImageMaskedWidget::~OmImageMaskedWidget() = default;

void OmImageMaskedWidget::setImage(QImage image)
{
    m_image = image;
    if (image.isNull()) {
        resize(0, 0);
        return;
    }
    resize(logicalSize(image));
    const QRegion shape = imageShape(image);
    // Qt takes an empty region for no mask at all.
    setMask(shape.isEmpty() ? QRegion(-1, -1, 1, 1) : shape);
    m_displayImage = image.convertToFormat(QImage::Format_RGB32);
    update();
}

QImage OmImageMaskedWidget::image() const
{
    return m_image;
}

void OmImageMaskedWidget::setPixmap(const QPixmap &pixmap)
{
    setImage(pixmap.toImage());
}

QPixmap OmImageMaskedWidget::pixmap() const
{
    return QPixmap::fromImage(m_image);
}

void OmImageMaskedWidget::paintEvent(QPaintEvent *)
{
    if (m_displayImage.isNull())
        return;
    QPainter painter(this);
    painter.drawImage(0, 0, m_displayImage);
}

} // namespace ombrin
