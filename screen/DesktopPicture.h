#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

class QPainter;

namespace ombrin {

/// A picture of the whole desktop that keeps the pixels of each screen.
///
/// Screens lie where they lie, also left of and above (0, 0), and may differ in density. Rectangles
/// are counted in logical pixels from the top left corner of the desktop.
class OMBRIN_AUTOTEST_EXPORT DesktopPicture
{
public:
    /// What one screen shows.
    struct Screen
    {
        QRect geometry; ///< in logical pixels
        QPixmap pixmap; ///< in pixels of the screen; its own device pixel ratio does not count
    };

    DesktopPicture() = default;
    /// Null when one of \a screens is: a part that is missing would be a black one.
    explicit DesktopPicture(const QVector<Screen> &screens);

    bool isNull() const { return m_screens.isEmpty(); }
    /// The desktop, in logical pixels.
    QRect geometry() const { return m_geometry; }

    /// Paints \a rect with a painter whose origin is the desktop's corner.
    void paint(QPainter *painter, const QRect &rect) const;

    /// What of \a rect lies on the desktop, in the real pixels of its screen, or of the densest one
    /// of its screens. The device pixel ratio says which. Where there is no screen it is black.
    QPixmap copy(const QRect &rect) const;
    QPixmap whole() const;

private:
    static qreal density(const Screen &screen);
    /// The pixels of \a screen that show \a rect, in coordinates of the desktop as it lies.
    static QRect pixels(const Screen &screen, const QRect &rect);

    QVector<Screen> m_screens;
    QRect m_geometry;
};

} // namespace ombrin
