#include "support/RatioCase.h"

#include <ombrin/OmImageMaskedWidget.h>

#include <QtGui/QBitmap>
#include <QtGui/QPainter>

using ombrin::OmImageMaskedWidget;
using ombrin::bench::RatioCase;

namespace {

constexpr int kExtent = 1000;

// A disc with a soft edge and a hole.
QImage freeForm()
{
    QImage image(kExtent, kExtent, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 200));
    painter.drawEllipse(QRectF(image.rect()).adjusted(110, 110, -110, -110));
    return image;
}

// Many small holes.
QImage sieve()
{
    QImage image = freeForm();
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (int y = 10; y < kExtent; y += 20) {
        for (int x = 10; x < kExtent; x += 20)
            painter.drawEllipse(x, y, 6, 6);
    }
    return image;
}

void setImage(benchmark::State &state, const QImage &image)
{
    OmImageMaskedWidget widget;
    for (auto _ : state)
        widget.setImage(image);
}

void alphaToRegion(benchmark::State &state, const QImage &image)
{
    for (auto _ : state) {
        QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
        for (int y = 0; y < alpha.height(); ++y) {
            uchar *const line = alpha.scanLine(y);
            for (int x = 0; x < alpha.width(); ++x)
                line[x] = line[x] == 0 ? 255 : 0;
        }
        const QImage grey(alpha.constBits(), alpha.width(), alpha.height(),
                          static_cast<int>(alpha.bytesPerLine()), QImage::Format_Grayscale8);
        benchmark::DoNotOptimize(QRegion(QBitmap::fromImage(grey)));
    }
}

RatioCase compare(const char *name, QImage (*make)())
{
    return RatioCase(
            name, 1.5, [=](benchmark::State &state) { setImage(state, make()); },
            [=](benchmark::State &state) { alphaToRegion(state, make()); });
}

const RatioCase maskCases[] = {
        compare("masked image 1000x1000, ring, vs alpha to region", freeForm),
        compare("masked image 1000x1000, sieve, vs alpha to region", sieve),
};

} // namespace
