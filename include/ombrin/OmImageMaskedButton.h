#pragma once

#include <ombrin/OmImageMaskedWidget.h>
#include <ombrin/OmQtCompat.h>

namespace ombrin {

/// A button in the shape of its picture.
///
/// It shows the pressed image while a mouse button is held on it, else the hovered image while the
/// pointer is over it, else the normal image. An image that is null is passed over: what is shown
/// stays. Each image brings its own size and shape.
///
/// \code
/// auto *button = new ombrin::OmImageMaskedButton(this);
/// button->setImage_Normal(QImage(QStringLiteral(":/countdown-snap-64.png")));
/// button->setImage_Hovered(QImage(QStringLiteral(":/countdown-snap-hover-64.png")));
/// button->setImage_Pressed(QImage(QStringLiteral(":/countdown-snap-pressed-64.png")));
/// button->setToolTip(tr("Take the picture now"));
/// connect(button, &ombrin::OmImageMaskedButton::signalOnClicked, this, &Window::shoot);
/// \endcode
///
/// Any mouse button clicks, if it is let go inside the button's rectangle. So do the space bar and
/// the Enter key of the keypad; all other keys are swallowed. The button takes the keyboard focus
/// only if the host gives it a focus policy; as a window it gets keys while it is active. A press
/// ends without a click when the button is disabled or hidden. The button may be deleted in a slot
/// of its signal.
///
/// Assistive technology sees a push button named by accessibleName() or else by its tool tip.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmImageMaskedButton : public OmImageMaskedWidget
{
    Q_OBJECT

    // Which picture is shown is for the button to decide.
    Q_PROPERTY(QPixmap pixmap READ pixmap DESIGNABLE false STORED false)
    /// \name The images as pixmaps, which form editors know how to set
    /// \{
    Q_PROPERTY(QPixmap pixmapNormal READ pixmapNormal WRITE setPixmapNormal)
    Q_PROPERTY(QPixmap pixmapHovered READ pixmapHovered WRITE setPixmapHovered)
    Q_PROPERTY(QPixmap pixmapPressed READ pixmapPressed WRITE setPixmapPressed)
    /// \}

public:
    explicit OmImageMaskedButton(QWidget *parent = nullptr,
                                 Qt::WindowFlags flags = Qt::WindowFlags());
    ~OmImageMaskedButton() override;

    /// The image of a state, null unless set, as setImage() takes it.
    void setImage_Normal(QImage image);
    void setImage_Hovered(QImage image);
    void setImage_Pressed(QImage image);
    QImage image_Normal() const;
    QImage image_Hovered() const;
    QImage image_Pressed() const;

    /// \name The same with the images of pixmaps
    /// \{
    /// The image of a state as a pixmap.
    void setPixmapNormal(const QPixmap &pixmap);
    void setPixmapHovered(const QPixmap &pixmap);
    void setPixmapPressed(const QPixmap &pixmap);
    QPixmap pixmapNormal() const;
    QPixmap pixmapHovered() const;
    QPixmap pixmapPressed() const;
    /// \}

Q_SIGNALS:
    /// The button was clicked, with the mouse or with a key.
    void signalOnClicked();

protected:
    /// Shows the image of the present state unless it is null or shown already.
    void refreshImage();

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    friend class OmImageMaskedButtonAccessible;

    void setPressed(bool pressed);
    void setHovered(bool hovered);

    QImage m_normalImage;
    QImage m_hoveredImage;
    QImage m_pressedImage;
    bool m_hovered = false;
    bool m_pressed = false;
};

} // namespace ombrin
