#include <ombrin/OmStyle2.h>

#include "skin/OmStyle2_p.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace ombrin {

namespace {

constexpr int kSliderArrowInset = 4;

// The pictures of one part of a scroll bar.
struct PartPictures
{
    QString horizontal[2]; // normal, under the mouse
    QString vertical[2];
};

const PartPictures &addLinePictures()
{
    static const PartPictures pictures = {
            {QStringLiteral(":/scrollbar_vertical_right_normal"),
             QStringLiteral(":/scrollbar_vertical_right_hover")},
            {QStringLiteral(":/scrollbar_horizontal_down_normal"),
             QStringLiteral(":/scrollbar_horizontal_down_hover")},
    };
    return pictures;
}

const PartPictures &subLinePictures()
{
    static const PartPictures pictures = {
            {QStringLiteral(":/scrollbar_vertical_left_normal"),
             QStringLiteral(":/scrollbar_vertical_left_hover")},
            {QStringLiteral(":/scrollbar_horizontal_up_normal"),
             QStringLiteral(":/scrollbar_horizontal_up_hover")},
    };
    return pictures;
}

const PartPictures &sliderPictures()
{
    static const PartPictures pictures = {
            {QStringLiteral(":/scrollbar_horizontal_trackbar_normal"),
             QStringLiteral(":/scrollbar_horizontal_trackbar_hover")},
            {QStringLiteral(":/scrollbar_vertical_trackbar_normal"),
             QStringLiteral(":/scrollbar_vertical_trackbar_hover")},
    };
    return pictures;
}

// Whether one pixel of the painter is one pixel of a picture in memory, so that what was painted
// beforehand can stand for painting.
bool paintsPixels(const QPainter *painter)
{
    const QPaintEngine *engine = painter->paintEngine();
    const QTransform &transform = painter->deviceTransform();
    return engine && engine->type() == QPaintEngine::Raster && painter->opacity() >= 1.0
           && painter->compositionMode() == QPainter::CompositionMode_SourceOver
           && transform.type() <= QTransform::TxTranslate
           && transform.dx() == std::floor(transform.dx())
           && transform.dy() == std::floor(transform.dy());
}

// A slider's picture is scaled again only when the slider has changed its size.
class ScaledPictures
{
public:
    const QImage &scaled(const QPixmap &picture, QSize size)
    {
        const auto isWanted = [&](const Picture &known) {
            return known.key == picture.cacheKey() && known.image.size() == size;
        };
        const auto found = std::find_if(m_pictures.begin(), m_pictures.end(), isWanted);
        if (found != m_pictures.end())
            return found->image;
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter(&image).drawPixmap(image.rect(), picture);
        Picture &entry = m_pictures[m_next];
        m_next = (m_next + 1) % m_pictures.size();
        entry = {picture.cacheKey(), image};
        return entry.image;
    }

private:
    struct Picture
    {
        qint64 key = 0;
        QImage image;
    };

    std::array<Picture, 16> m_pictures;
    std::size_t m_next = 0;
};

constexpr int kLargestKeptPicture = 64 * 2048;

void drawScaled(QPainter *painter, const QRect &r, const QPixmap &picture)
{
    const bool keep = !picture.isNull() && !r.isEmpty() && picture.size() != r.size()
                      && r.width() <= kLargestKeptPicture / r.height() && paintsPixels(painter)
                      && !painter->testRenderHint(QPainter::SmoothPixmapTransform);
    if (!keep) {
        painter->drawPixmap(r, picture);
        return;
    }
    static ScaledPictures pictures;
    painter->drawImage(r.topLeft(), pictures.scaled(picture, r.size()));
}

void drawPart(QPainter *painter, const QStyleOptionSlider &slider, const PartPictures &pictures)
{
    if (!(slider.state & QStyle::State_Enabled))
        return;
    const bool horizontal = slider.orientation == Qt::Horizontal;
    const auto &states = horizontal ? pictures.horizontal : pictures.vertical;
    const QString &path = states[slider.state & QStyle::State_MouseOver ? 1 : 0];
    drawScaled(painter, slider.rect, skinPixmapFor(path, painter));
}

QLinearGradient pageGradient(const QPoint &start, const QPoint &end, const QColor &window)
{
    QLinearGradient gradient(start, end);
    gradient.setStops(
            {{0.0, window.lighter(105)}, {0.5, window.lighter(108)}, {1.0, window.lighter(110)}});
    return gradient;
}

// A gradient that runs along the lines of a picture is computed anew for each of them, which makes
// an upright scroll bar several times as expensive as a lying one. All its lines are alike, so some
// of them are painted once, copied from then on, and kept for the last few places.
class PageStrips
{
public:
    static constexpr int kHeight = 128;

    // The lines for a page that is \a width pixels wide and begins at \a left, on a device to
    // which the painter moves everything by \a shift.
    const QImage &strip(int left, int width, int shift, const QColor &window)
    {
        const auto isWanted = [&](const Strip &known) {
            return known.left == left && known.shift == shift && known.window == window.rgba()
                   && known.lines.width() == width;
        };
        const auto found = std::find_if(m_strips.begin(), m_strips.end(), isWanted);
        if (found != m_strips.end())
            return found->lines;
        Strip &strip = m_strips[m_next];
        m_next = (m_next + 1) % m_strips.size();
        strip = {left, shift, window.rgba(), paintLines(left, width, shift, window)};
        return strip.lines;
    }

private:
    struct Strip
    {
        int left = 0;
        int shift = 0;
        QRgb window = 0;
        QImage lines;
    };

    // The first line is painted at its place on the device, so that not even rounding differs.
    static QImage paintLines(int left, int width, int shift, const QColor &window)
    {
        QImage line(shift + left + width, 1, QImage::Format_RGB32);
        QPainter painter(&line);
        painter.translate(shift, 0);
        painter.fillRect(QRect(left, 0, width, 1),
                         pageGradient(QPoint(left, 0), QPoint(left + width - 1, 0), window));
        painter.end();

        const uchar *first = line.constScanLine(0) + std::ptrdiff_t(4) * (shift + left);
        QImage lines(width, kHeight, QImage::Format_RGB32);
        for (int y = 0; y < kHeight; ++y)
            std::memcpy(lines.scanLine(y), first, std::size_t(4) * std::size_t(width));
        return lines;
    }

    std::array<Strip, 16> m_strips;
    std::size_t m_next = 0;
};

constexpr int kWidestStrip = 64;
constexpr int kFarthestStrip = 8192;

void drawUprightPage(QPainter *painter, const QRect &r, const QColor &window)
{
    const int shift = static_cast<int>(painter->deviceTransform().dx());
    const int place = shift + r.left();
    if (r.width() > kWidestStrip || shift < 0 || place < 0 || place > kFarthestStrip
        || window.alpha() != 255 || !paintsPixels(painter)) {
        painter->fillRect(r, pageGradient(r.topLeft(), r.topRight(), window));
        return;
    }
    if (r.isEmpty())
        return;
    static PageStrips strips;
    const QImage &strip = strips.strip(r.left(), r.width(), shift, window);
    for (int y = r.top(); y <= r.bottom(); y += PageStrips::kHeight) {
        const int height = std::min(PageStrips::kHeight, r.bottom() + 1 - y);
        painter->drawImage(QPoint(r.left(), y), strip, QRect(0, 0, r.width(), height));
    }
}

} // namespace

void drawScrollBarLine(QPainter *painter, const QStyleOption *option, bool towardEnd)
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (!slider)
        return;
    // The end of a right-to-left bar is its left side, and arrows point outward.
    const bool mirrored =
            slider->orientation == Qt::Horizontal && slider->direction == Qt::RightToLeft;
    drawPart(painter, *slider, towardEnd != mirrored ? addLinePictures() : subLinePictures());
}

// Composed as Plastique composes it, whichever style is below: Fusion would paint a scroll bar
// whole and not ask for its parts.
void OmStyle2::drawScrollBar(const QStyleOptionComplex *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (!slider)
        return;
    followMouse(*slider);
    // A scroll bar tells Qt that it paints all of itself, but pictures have transparent parts and a
    // disabled bar has no pictures: what was there before would stay.
    if (widget && widget->testAttribute(Qt::WA_OpaquePaintEvent))
        painter->fillRect(slider->rect, slider->palette.brush(QPalette::Window));

    QStyleOptionSlider bar(*slider);
    bar.state &= ~State_HasFocus;
    if (bar.minimum == bar.maximum)
        bar.state &= ~State_Enabled;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
    QCommonStyle::drawComplexControl(CC_ScrollBar, &bar, painter, widget);
}

void OmStyle2::drawScrollBarPage(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (!slider) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const QRect r = slider->rect;
    const QColor window = slider->palette.color(QPalette::Window);
    if (slider->orientation == Qt::Horizontal)
        painter->fillRect(r, pageGradient(r.topLeft(), r.bottomLeft(), window));
    else
        drawUprightPage(painter, r, window);
}

void OmStyle2::drawScrollBarSlider(const QStyleOption *option, QPainter *painter,
                                   const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (!slider)
        return;
    drawPart(painter, *slider, sliderPictures());
    if (!isA(widget, "RelativeScrollBar"))
        return;

    const QRect r = slider->rect;
    const int inset = kSliderArrowInset;
    const int middle = (r.top() + r.bottom()) / 2;
    QStyleOptionSlider arrow(*slider);
    arrow.state = State_None;
    arrow.rect.setCoords(r.left() + inset, r.top() + inset, r.right() - inset, middle - inset);
    proxy()->drawPrimitive(PE_IndicatorArrowUp, &arrow, painter, widget);
    arrow.rect.setCoords(r.left() + inset, middle + inset, r.right() - inset,
                         2 * middle - r.top() - inset);
    proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
}

} // namespace ombrin
