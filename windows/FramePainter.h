#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QRegion>

class QPainter;

namespace ombrin {

/// Distances of the skinned frame, in logical pixels.
namespace frame_metrics {
constexpr int kBorder = 5;                      ///< left, right and bottom border
constexpr int kTitleHeight = 30;                ///< top border, the title band
constexpr int kLastTitleBandRow = kTitleHeight; ///< last row of double click and header menu
constexpr int kTopLeftWidth = 86;               ///< where the stretched part of the top begins
constexpr int kTopRightWidth = 88; ///< what the stretched part of the top leaves at the right
constexpr int kMinimumWidth = kTopLeftWidth + kTopRightWidth;
constexpr int kMinimumHeight = kTitleHeight + kBorder;
constexpr int kTitleLeft = 88;          ///< first column of the title
constexpr int kTitleTop = 2;            ///< first row of the title
constexpr int kTitleBottom = 27;        ///< last row of the title
constexpr int kTitleRightDistance = 92; ///< from the window's right edge to the title's last column
} // namespace frame_metrics

/// The shape of a frame of \a size: its rectangle without three pixels at each corner.
OMBRIN_AUTOTEST_EXPORT QRegion frameShape(const QSize &size);

/// The font of the title in a window of \a windowFont: bold and a little larger.
QFont frameTitleFont(const QFont &windowFont);
/// How wide a frame must be to show the whole of \a title; the narrowest frame without a title.
OMBRIN_AUTOTEST_EXPORT int frameWidthForTitle(const QString &title, const QFont &windowFont);

/// Paints a skinned frame: border and title. The inside is left alone.
class OMBRIN_AUTOTEST_EXPORT FramePainter
{
public:
    /// Paints what of the eight pieces of the border lies in \a exposed.
    ///
    /// Pieces begin and end on device pixels, so that none show seams at fractional densities.
    static void paintBorder(QPainter *painter, const QSize &size, bool active,
                            const QRegion &exposed);

    /// Paints \a title, shortened at the right to the room there is, in a bold and larger \a font.
    void paintTitle(QPainter *painter, const QSize &size, bool active, const QString &title,
                    const QFont &font);

private:
    // The title as it was last shortened: shortening a long one costs more than drawing it.
    struct Elided
    {
        QString title;
        QFont font;
        int width = -1;
        QString text;
    };
    Elided m_elided;
};

} // namespace ombrin
