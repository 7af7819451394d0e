#include <ombrin/OmImageMaskedButton.h>

#include "widgets/WidgetAccessibility.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>

namespace ombrin {

OmImageMaskedButton::OmImageMaskedButton(QWidget *parent, Qt::WindowFlags flags)
    : OmImageMaskedWidget(parent, flags)
{
    installWidgetAccessibility();
    refreshImage();
}

OmImageMaskedButton::~OmImageMaskedButton() = default;

void OmImageMaskedButton::setImage_Normal(QImage image)
{
    m_normalImage = image;
    refreshImage();
}

void OmImageMaskedButton::setImage_Hovered(QImage image)
{
    m_hoveredImage = image;
    refreshImage();
}

void OmImageMaskedButton::setImage_Pressed(QImage image)
{
    m_pressedImage = image;
    refreshImage();
}

QImage OmImageMaskedButton::image_Normal() const
{
    return m_normalImage;
}

QImage OmImageMaskedButton::image_Hovered() const
{
    return m_hoveredImage;
}

QImage OmImageMaskedButton::image_Pressed() const
{
    return m_pressedImage;
}

void OmImageMaskedButton::setPixmapNormal(const QPixmap &pixmap)
{
    setImage_Normal(pixmap.toImage());
}

void OmImageMaskedButton::setPixmapHovered(const QPixmap &pixmap)
{
    setImage_Hovered(pixmap.toImage());
}

void OmImageMaskedButton::setPixmapPressed(const QPixmap &pixmap)
{
    setImage_Pressed(pixmap.toImage());
}

QPixmap OmImageMaskedButton::pixmapNormal() const
{
    return QPixmap::fromImage(m_normalImage);
}

QPixmap OmImageMaskedButton::pixmapHovered() const
{
    return QPixmap::fromImage(m_hoveredImage);
}

QPixmap OmImageMaskedButton::pixmapPressed() const
{
    return QPixmap::fromImage(m_pressedImage);
}

void OmImageMaskedButton::refreshImage()
{
    const QImage &chosen = m_pressed ? m_pressedImage : m_hovered ? m_hoveredImage : m_normalImage;
    if (!chosen.isNull() && chosen.cacheKey() != image().cacheKey())
        setImage(chosen);
}

bool OmImageMaskedButton::event(QEvent *event)
{
    // The release of a press on a button that goes out of reach never comes.
    if (event->type() == QEvent::Hide || (event->type() == QEvent::EnabledChange && !isEnabled()))
        setPressed(false);
    return OmImageMaskedWidget::event(event);
}

void OmImageMaskedButton::mousePressEvent(QMouseEvent *)
{
    setPressed(true);
}

void OmImageMaskedButton::mouseReleaseEvent(QMouseEvent *event)
{
    // Asked first, as the image of the new state may have another size.
    const bool isClick = m_pressed && rect().contains(mousePosition(event));
    setPressed(false);
    if (isClick)
        Q_EMIT signalOnClicked();
}

void OmImageMaskedButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Enter)
        Q_EMIT signalOnClicked();
}

void OmImageMaskedButton::enterEvent(EnterEvent *)
{
    setHovered(true);
}

void OmImageMaskedButton::leaveEvent(QEvent *)
{
    setHovered(false);
}

void OmImageMaskedButton::setPressed(bool pressed)
{
    const bool isChange = m_pressed != pressed;
    m_pressed = pressed;
    refreshImage();
    if (isChange)
        announcePressedChange(this);
}

void OmImageMaskedButton::setHovered(bool hovered)
{
    m_hovered = hovered;
    refreshImage();
}

} // namespace ombrin
