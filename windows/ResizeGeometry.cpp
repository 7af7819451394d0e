#include "windows/ResizeGeometry.h"

namespace ombrin::resize_geometry {

Qt::Edges edgesAt(const QPoint &position, const QSize &size, int border)
{
    Qt::Edges edges;
    if (!QRect(QPoint(0, 0), size).contains(position))
        return edges;
    if (position.x() < border)
        edges |= Qt::LeftEdge;
    else if (position.x() >= size.width() - border)
        edges |= Qt::RightEdge;
    if (position.y() < border)
        edges |= Qt::TopEdge;
    else if (position.y() >= size.height() - border)
        edges |= Qt::BottomEdge;
    return edges;
}

Qt::CursorShape cursorAt(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    if (edges & (Qt::TopEdge | Qt::BottomEdge))
        return Qt::SizeVerCursor;
    return Qt::ArrowCursor;
}

QRect resized(const QRect &start, Qt::Edges edges, const QPoint &delta, const QSize &minimum,
              const QSize &maximum)
{
    QSize size = start.size();
    if (edges & Qt::LeftEdge)
        size.rwidth() -= delta.x();
    else if (edges & Qt::RightEdge)
        size.rwidth() += delta.x();
    if (edges & Qt::TopEdge)
        size.rheight() -= delta.y();
    else if (edges & Qt::BottomEdge)
        size.rheight() += delta.y();
    size = size.boundedTo(maximum).expandedTo(minimum);

    QRect result(start.topLeft(), size);
    if (edges & Qt::LeftEdge)
        result.moveRight(start.right());
    if (edges & Qt::TopEdge)
        result.moveBottom(start.bottom());
    return result;
}

} // namespace ombrin::resize_geometry
