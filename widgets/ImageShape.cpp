#include "widgets/ImageShape.h"

#include <QtCore/QRect>
#include <QtGui/QImage>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ombrin {

namespace {

// Builds a region row by row in the form in which QRegion keeps it: bands of equal rows, each with
// the longest possible runs. That spares QRegion from putting it together run by run.
class RegionBuilder
{
public:
    void addRow(int y, const uchar *first, const uchar *last)
    {
        const std::size_t rowStart = m_rects.size();
        for (const uchar *end = first; end != last;) {
            const uchar *const begin = std::find_if(end, last, [](uchar a) { return a != 0; });
            if (begin == last)
                break;
            end = std::find(begin, last, uchar(0));
            m_rects.emplace_back(static_cast<int>(begin - first), y, static_cast<int>(end - begin),
                                 1);
        }
        joinToBand(y, rowStart);
        m_bandBottom = y;
    }

    QRegion region() const
    {
        QRegion region;
        if (!m_rects.empty())
            region.setRects(m_rects.data(), static_cast<int>(m_rects.size()));
        return region;
    }

private:
    void joinToBand(int y, std::size_t rowStart)
    {
        const std::size_t count = m_rects.size() - rowStart;
        const bool isSame = m_bandBottom == y - 1 && count == rowStart - m_bandStart
                            && std::equal(m_rects.begin() + offset(rowStart), m_rects.end(),
                                          m_rects.begin() + offset(m_bandStart),
                                          [](const QRect &a, const QRect &b) {
                                              return a.left() == b.left() && a.right() == b.right();
                                          });
        if (!isSame) {
            m_bandStart = rowStart;
            return;
        }
        m_rects.resize(rowStart);
        for (std::size_t i = m_bandStart; i < rowStart; ++i)
            m_rects[i].setBottom(y);
    }

    static std::ptrdiff_t offset(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

    std::vector<QRect> m_rects;
    std::size_t m_bandStart = 0;
    int m_bandBottom = -1;
};

QRegion shapeAtDensityOne(const QImage &alpha)
{
    RegionBuilder builder;
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar *const line = alpha.constScanLine(y);
        builder.addRow(y, line, line + alpha.width());
    }
    return builder.region();
}

QRegion shapeAtDensity(const QImage &alpha, qreal density)
{
    const QSize size = logicalSize(alpha);
    std::vector<uchar> row(static_cast<std::size_t>(size.width()));
    RegionBuilder builder;
    int pixelY = 0;
    for (int y = 0; y < size.height(); ++y) {
        std::fill(row.begin(), row.end(), uchar(0));
        for (; pixelY < alpha.height() && static_cast<int>(pixelY / density) <= y; ++pixelY) {
            const uchar *const line = alpha.constScanLine(pixelY);
            for (int x = 0; x < alpha.width(); ++x)
                row[static_cast<std::size_t>(x / density)] |= line[x];
        }
        builder.addRow(y, row.data(), row.data() + row.size());
    }
    return builder.region();
}

} // namespace

QSize logicalSize(const QImage &image)
{
    const qreal density = image.devicePixelRatio();
    return QSize(static_cast<int>(std::ceil(image.width() / density)),
                 static_cast<int>(std::ceil(image.height() / density)));
}

QRegion imageShape(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return QRect(QPoint(0, 0), logicalSize(image));
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    const qreal density = alpha.devicePixelRatio();
    return qFuzzyCompare(density, 1.0) ? shapeAtDensityOne(alpha) : shapeAtDensity(alpha, density);
}

} // namespace ombrin
