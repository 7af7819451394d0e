#include "support/RatioCase.h"

#include "skin/SkinPixmap.h"
#include "windows/FramePainter.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QBitmap>
#include <QtGui/QPainter>
#include <QtWidgets/QFrame>
#include <QtWidgets/qdrawutil.h>

using namespace ombrin;
using namespace ombrin::frame_metrics;
using ombrin::bench::RatioCase;

namespace {

constexpr QSize kSize(800, 600);
// What qDrawBorderPixmap() and a style sheet call left, top, right and bottom of a nine-patch.
const QMargins kMargins(kTopLeftWidth, kTitleHeight, kTopRightWidth, kBorder);

QImage canvas()
{
    return QImage(kSize, QImage::Format_ARGB32_Premultiplied);
}

// The frame's eight pieces and a centre as one picture, as the alternatives want it.
QPixmap ninePatch()
{
    QPixmap patch(kMinimumWidth + 8, kMinimumHeight + 8);
    patch.fill(QColor(0xef, 0xef, 0xf0));
    QPainter painter(&patch);
    FramePainter::paintBorder(&painter, patch.size(), true, patch.rect());
    return patch;
}

void paintFrame(benchmark::State &state)
{
    QImage image = canvas();
    QPainter painter(&image);
    for (auto _ : state)
        FramePainter::paintBorder(&painter, kSize, true, image.rect());
}

void paintNinePatch(benchmark::State &state)
{
    const QPixmap patch = ninePatch();
    QImage image = canvas();
    QPainter painter(&image);
    for (auto _ : state)
        qDrawBorderPixmap(&painter, image.rect(), kMargins, patch);
}

void paintStyleSheetFrame(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("frame.png"));
    ninePatch().save(file);
    QFrame frame;
    frame.resize(kSize);
    frame.setStyleSheet(QStringLiteral("QFrame { border-width: %1px %2px %3px %4px;"
                                       " border-image: url(%5) %1 %2 %3 %4 stretch stretch; }")
                                .arg(kMargins.top())
                                .arg(kMargins.right())
                                .arg(kMargins.bottom())
                                .arg(kMargins.left())
                                .arg(file));
    QImage image = canvas();
    QPainter painter(&image);
    for (auto _ : state)
        frame.render(&painter, QPoint(), QRegion(), QWidget::DrawWindowBackground);
}

void shapeFromCorners(benchmark::State &state)
{
    int width = 400;
    for (auto _ : state)
        benchmark::DoNotOptimize(frameShape(QSize(++width % 400 + 400, 600)));
}

void shapeFromBitmap(benchmark::State &state)
{
    int width = 400;
    for (auto _ : state) {
        const QSize size(++width % 400 + 400, 600);
        const int right = size.width() - 1;
        const int bottom = size.height() - 1;
        QBitmap bitmap(size);
        bitmap.fill(Qt::color1);
        QPainter painter(&bitmap);
        painter.setPen(Qt::color0);
        for (const int x : {0, right}) {
            for (const int y : {0, bottom}) {
                painter.drawPoint(x, y);
                painter.drawPoint(x == 0 ? 1 : right - 1, y);
                painter.drawPoint(x, y == 0 ? 1 : bottom - 1);
            }
        }
        painter.end();
        benchmark::DoNotOptimize(QRegion(bitmap));
    }
}

const RatioCase kNinePatch("frame 800x600 vs qDrawBorderPixmap", 0.25, paintFrame, paintNinePatch);
const RatioCase kStyleSheet("frame 800x600 vs style sheet border-image", 0.2, paintFrame,
                            paintStyleSheetFrame);
const RatioCase kShape("corner mask vs full-size bitmap", 0.02, shapeFromCorners, shapeFromBitmap);

} // namespace
