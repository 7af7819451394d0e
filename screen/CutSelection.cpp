#include "screen/CutSelection.h"

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kHandleExtent = 5;
constexpr int kHandleTolerance = 2;
constexpr int kLargestInvalidExtent = 2;
constexpr int kButtonGap = 5;

/// The edges that a drag takes along.
struct Edges
{
    bool left;
    bool top;
    bool right;
    bool bottom;
};

/// What there is to know of each zone, in their order.
struct ZoneTraits
{
    Qt::CursorShape cursor;
    Edges edges;
};

constexpr ZoneTraits kZones[] = {
        {Qt::CrossCursor, {false, false, false, false}},
        {Qt::CrossCursor, {false, false, true, true}}, // the second corner
        {Qt::SizeAllCursor, {false, false, false, false}},
        {Qt::PointingHandCursor, {false, false, false, false}},
        {Qt::PointingHandCursor, {false, false, false, false}},
        {Qt::SizeFDiagCursor, {true, true, false, false}},
        {Qt::SizeVerCursor, {false, true, false, false}},
        {Qt::SizeBDiagCursor, {false, true, true, false}},
        {Qt::SizeHorCursor, {false, false, true, false}},
        {Qt::SizeFDiagCursor, {false, false, true, true}},
        {Qt::SizeVerCursor, {false, false, false, true}},
        {Qt::SizeBDiagCursor, {true, false, false, true}},
        {Qt::SizeHorCursor, {true, false, false, false}},
};

const ZoneTraits &traits(CutZone zone)
{
    return kZones[static_cast<int>(zone)];
}

QRect grown(const QRect &rect, int by)
{
    return rect.adjusted(-by, -by, by, by);
}

/// \a rect less \a by on every side; empty where nothing is left.
QRect shrunk(const QRect &rect, int by)
{
    const QRect inner = grown(rect, -by);
    return inner.isValid() ? inner : QRect();
}

} // namespace

Qt::CursorShape cursorShape(CutZone zone)
{
    return traits(zone).cursor;
}

CutSelection::CutSelection(const QSize &size, const QSize &snapSize, const QSize &closeSize)
    : m_size(size)
    , m_snapSize(snapSize)
    , m_closeSize(closeSize)
{}

// Not QRect::normalized(), which in some versions of Qt makes a flipped rectangle smaller.
QRect CutSelection::normalized(const Corners &corners)
{
    const auto [left, right] = std::minmax({corners.first.x(), corners.second.x()});
    const auto [top, bottom] = std::minmax({corners.first.y(), corners.second.y()});
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

QRect CutSelection::rect() const
{
    return normalized(m_corners);
}

QRect CutSelection::previousRect() const
{
    return normalized(m_previousCorners);
}

// Places

std::array<QRect, CutSelection::kHandleCount> CutSelection::handles() const
{
    const QRect area = rect();
    const int left = area.left() - 1;
    const int top = area.top() - 1;
    const int right = area.right() - 2;
    const int bottom = area.bottom() - 2;
    const int middleX = area.width() / 2 + area.left() - 1;
    const int middleY = area.height() / 2 + area.top() - 1;
    const auto at = [](int x, int y) { return QRect(x, y, kHandleExtent, kHandleExtent); };
    return {at(left, top),     at(middleX, top),    at(right, top),   at(right, middleY),
            at(right, bottom), at(middleX, bottom), at(left, bottom), at(left, middleY)};
}

QRect CutSelection::buttonBar() const
{
    const bool isShown = m_drag == CutZone::None || m_drag == CutZone::SnapButton
                         || m_drag == CutZone::CloseButton;
    if (!m_valid || !isShown)
        return QRect();
    const int width = m_snapSize.width() + kButtonGap + m_closeSize.width();
    const int height = m_snapSize.height();
    const QRect area = rect();
    QPoint corner(area.right() - m_closeSize.width() - m_snapSize.width() - 2 * kButtonGap,
                  area.bottom() - height - kButtonGap);
    // Inside of the whole area; the last rule wins where the area is too small for all of them.
    corner.setX(std::max(corner.x(), 0));
    corner.setY(std::max(corner.y(), 0));
    corner.setY(std::min(corner.y(), m_size.height() - height));
    corner.setX(std::min(corner.x(), m_size.width() - width));
    return QRect(corner, QSize(width, height));
}

QRect CutSelection::snapButton() const
{
    const QRect bar = buttonBar();
    return bar.isNull() ? QRect() : QRect(bar.topLeft(), m_snapSize);
}

QRect CutSelection::closeButton() const
{
    const QRect bar = buttonBar();
    const QPoint corner(bar.left() + bar.width() - m_closeSize.width(), bar.top());
    return bar.isNull() ? QRect() : QRect(corner, m_closeSize);
}

CutZone CutSelection::zoneAt(const QPoint &point) const
{
    if (!m_valid)
        return CutZone::Outside;
    if (m_drag == CutZone::None) {
        if (snapButton().contains(point))
            return CutZone::SnapButton;
        if (closeButton().contains(point))
            return CutZone::CloseButton;
    }
    const QRect area = rect();
    if (grown(area, kFrameBand).contains(point) && !shrunk(area, kFrameBand).contains(point)) {
        const auto places = handles();
        const auto hit = std::find_if(places.begin(), places.end(), [&point](const QRect &handle) {
            return grown(handle, kHandleTolerance).contains(point);
        });
        if (hit != places.end())
            return static_cast<CutZone>(static_cast<int>(CutZone::TopLeft)
                                        + std::distance(places.begin(), hit));
    }
    return area.contains(point) ? CutZone::Inside : CutZone::Outside;
}

// Drags

void CutSelection::press(const QPoint &point)
{
    m_wasValid = m_valid;
    m_previousCorners = m_corners;
    m_drag = zoneAt(point);
    m_pressPoint = point;
    if (m_drag == CutZone::Outside) {
        m_corners = {point, point};
        m_valid = false;
    }
}

void CutSelection::moveTo(const QPoint &point)
{
    const Edges &edges = traits(m_drag).edges;
    if (m_drag == CutZone::Inside) {
        const QPoint offset = point - m_pressPoint;
        m_corners = {m_previousCorners.first + offset, m_previousCorners.second + offset};
    }
    if (edges.left)
        m_corners.first.setX(point.x());
    if (edges.top)
        m_corners.first.setY(point.y());
    if (edges.right)
        m_corners.second.setX(point.x());
    if (edges.bottom)
        m_corners.second.setY(point.y());
    const QPoint extent = m_corners.second - m_corners.first;
    m_valid = std::abs(extent.x()) > kLargestInvalidExtent
              && std::abs(extent.y()) > kLargestInvalidExtent;
}

void CutSelection::release()
{
    m_drag = CutZone::None;
    const QRect area = rect();
    m_corners = {area.topLeft(), area.bottomRight()};
}

void CutSelection::restorePrevious()
{
    m_corners = m_previousCorners;
    m_valid = m_wasValid;
}

QRegion CutSelection::frame() const
{
    if (!m_valid)
        return QRegion();
    return QRegion(grown(rect(), kFrameBand)) - shrunk(rect(), kFrameBand);
}

QRegion CutSelection::changedSince(const CutSelection &before) const
{
    const QRegion now = m_valid ? rect() : QRegion();
    const QRegion then = before.m_valid ? before.rect() : QRegion();
    return (now ^ then) + frame() + before.frame();
}

} // namespace ombrin
