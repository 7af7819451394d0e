#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace ombrin {

/// A picture that stands by itself: the widget has the shape of its image.
///
/// Pixels that are fully transparent do not belong to the widget: what lies below shows there and
/// gets the mouse. All other pixels are drawn opaque. Without parent and frame the picture stands
/// free on the desktop:
///
/// \code
/// auto *picture = new ombrin::OmImageMaskedWidget(
///         nullptr, Qt::SplashScreen | Qt::FramelessWindowHint);
/// picture->setImage(QImage(QStringLiteral(":/countdown-3-128.png")));
/// picture->show();
/// \endcode
///
/// The widget takes the image's logical size (pixels divided by the device pixel ratio) each time
/// an image is set. A logical pixel belongs to the widget if any pixel of the image in it is not
/// fully transparent. An image without an alpha channel gives a rectangle. An image that is fully
/// transparent gives a widget of its size of which nothing is seen or touched.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmImageMaskedWidget : public QWidget
{
    Q_OBJECT

    /// The image as a pixmap, which form editors know how to set.
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)

public:
    explicit OmImageMaskedWidget(QWidget *parent = nullptr,
                                 Qt::WindowFlags flags = Qt::WindowFlags());
    ~OmImageMaskedWidget() override;

    /// Shows \a image and takes its size and shape. A null image makes the widget 0 x 0.
    void setImage(QImage image);
    /// The image as it was given to setImage().
    QImage image() const;

    /// The same as setImage() with the image of \a pixmap.
    void setPixmap(const QPixmap &pixmap);
    QPixmap pixmap() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
    QImage m_displayImage;
};

} // namespace ombrin
