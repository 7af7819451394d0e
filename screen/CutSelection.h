#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/Qt>
#include <QtGui/QRegion>

#include <array>

namespace ombrin {

/// What lies under the pointer, and what a drag that begins there changes.
enum class CutZone {
    None, ///< no drag is going on
    Outside,
    Inside,
    SnapButton,
    CloseButton,
    TopLeft,
    Top,
    TopRight,
    Right,
    BottomRight,
    Bottom,
    BottomLeft,
    Left,
};

/// The pointer's shape over \a zone.
OMBRIN_AUTOTEST_EXPORT Qt::CursorShape cursorShape(CutZone zone);

/// The area a user cuts out of a picture: how presses and drags change it, its eight handles, the
/// hit test, and the place of the two buttons in its corner.
///
/// All coordinates are logical pixels, counted from the top left corner of the area that can be cut
/// from. Rectangles include their last row and column, as QRect's do: a drag from (100, 100) to
/// (300, 200) selects 201 x 101 pixels.
class OMBRIN_AUTOTEST_EXPORT CutSelection
{
public:
    /// The selection's frame, with its handles, reaches this far to both sides of its edges.
    static constexpr int kFrameBand = 10;
    static constexpr int kHandleCount = 8;

    /// \a size is that of the whole area, the others those of the buttons' pictures.
    CutSelection(const QSize &size, const QSize &snapSize, const QSize &closeSize);

    /// Whether there is a selection: one that is wider and taller than 2 pixels.
    bool isValid() const { return m_valid; }
    /// The selection with its corners in order; also one that is too small.
    QRect rect() const;
    /// The drag that is going on.
    CutZone drag() const { return m_drag; }

    CutZone zoneAt(const QPoint &point) const;
    std::array<QRect, kHandleCount> handles() const;
    /// Where the buttons are, or a null rectangle while there are none.
    QRect snapButton() const;
    QRect closeButton() const;

    void press(const QPoint &point);
    /// Takes \a point as the pointer's place in the drag that is going on.
    void moveTo(const QPoint &point);
    void release();

    /// The selection as it was at the last press.
    bool wasValid() const { return m_wasValid; }
    QRect previousRect() const;
    void restorePrevious();

    /// All that looks different than with \a before, frame and handles included. The buttons, which
    /// are not there during a drag, are not.
    QRegion changedSince(const CutSelection &before) const;

private:
    /// Two opposite corners, in whatever order the user dragged them into.
    struct Corners
    {
        QPoint first;
        QPoint second;
    };

    static QRect normalized(const Corners &corners);
    QRect buttonBar() const;
    QRegion frame() const;

    QSize m_size;
    QSize m_snapSize;
    QSize m_closeSize;
    CutZone m_drag = CutZone::None;
    QPoint m_pressPoint;
    Corners m_corners;
    bool m_valid = false;
    Corners m_previousCorners;
    bool m_wasValid = false;
};

} // namespace ombrin
