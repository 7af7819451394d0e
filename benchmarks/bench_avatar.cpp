#include "support/RatioCase.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmRatingLabel.h>

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>

using namespace ombrin::bench;

namespace {

// What a user's picture looks like to the scaler: no two pixels alike.
QPixmap picture(int extent)
{
    QImage image(extent, extent, QImage::Format_RGB32);
    for (int y = 0; y < extent; ++y) {
        for (int x = 0; x < extent; ++x)
            image.setPixel(x, y, qRgb(x & 0xff, y & 0xff, x * y & 0xff));
    }
    return QPixmap::fromImage(image);
}

void paint(QWidget *widget, QImage *target)
{
    widget->render(target, QPoint(), QRegion(), QWidget::RenderFlags());
    benchmark::DoNotOptimize(target->constBits());
}

QImage targetFor(const QWidget &widget)
{
    QImage target(widget.size(), QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::white);
    return target;
}

// The mouse comes and goes, and each time the thumbnail is painted.
void hoverAvatar(benchmark::State &state, int size, int extent)
{
    ombrin::OmAvatarSmall avatar;
    avatar.resize(size, size);
    avatar.setAvatar(picture(extent), false);
    QImage target = targetFor(avatar);
    bool hover = false;
    for (auto _ : state) {
        hover = !hover;
        avatar.setAvatar(avatar.avatar(), hover);
        paint(&avatar, &target);
    }
}

// The same with everything scaled anew.
QPixmap renderedAnew(const QPixmap &avatar, const QSize &size, bool hover)
{
    QPixmap canvas(size);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.drawPixmap(0, 0,
                       QPixmap(QStringLiteral(":/no_userpic-78"))
                               .scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    const QSize inner = size - QSize(4, 4);
    painter.fillRect(QRect(QPoint(2, 2), inner), Qt::white);
    painter.drawPixmap(2, 2, avatar.scaled(inner, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    if (hover) {
        painter.setOpacity(0.7);
        painter.drawPixmap(4, size.height() - 28, QPixmap(QStringLiteral(":/zoom+-24")));
    }
    return canvas;
}

void hoverLabel(benchmark::State &state, int size, int extent)
{
    const QPixmap avatar = picture(extent);
    QLabel label;
    label.resize(size, size);
    QImage target = targetFor(label);
    bool hover = false;
    for (auto _ : state) {
        hover = !hover;
        label.setPixmap(renderedAnew(avatar, label.size(), hover));
        paint(&label, &target);
    }
}

RatioCase hovering(const char *name, int size, int extent)
{
    return RatioCase(
            name, 0.3, [=](benchmark::State &state) { hoverAvatar(state, size, extent); },
            [=](benchmark::State &state) { hoverLabel(state, size, extent); });
}

constexpr int kRatingHeight = 26;

void paintRating(benchmark::State &state)
{
    ombrin::OmRatingLabel label;
    label.resize(166, kRatingHeight);
    label.setRating(7);
    QImage target = targetFor(label);
    for (auto _ : state)
        paint(&label, &target);
}

/// Stars scaled in each paint.
class ScalingLabel : public QLabel
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        const int size = height() - 2;
        const auto star = [size](const char *name) {
            return QPixmap(QLatin1String(name))
                    .scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        };
        const QPixmap empty = star(":/star_empty-32");
        const QPixmap half = star(":/star_half-32");
        const QPixmap full = star(":/star_full-32");
        QPainter painter(this);
        for (int place = 0; place < 5; ++place) {
            const QPoint position(1 + place * (size + 1), 1);
            painter.drawPixmap(position, empty);
            if (place == 3)
                painter.drawPixmap(position, half);
            else if (place < 3)
                painter.drawPixmap(position, full);
        }
    }
};

void paintScalingRating(benchmark::State &state)
{
    ScalingLabel label;
    label.resize(166, kRatingHeight);
    QImage target = targetFor(label);
    for (auto _ : state)
        paint(&label, &target);
}

const RatioCase kCases[] = {
        hovering("avatar 50, hover, picture of 256 : scaled anew", 50, 256),
        hovering("avatar 78, hover, picture of 256 : scaled anew", 78, 256),
        hovering("avatar 32, hover, picture of 96 : scaled anew", 32, 96),
        hovering("avatar 50, hover, picture of 1024 : scaled anew", 50, 1024),
        RatioCase("rating label, paint : stars scaled anew", 0.5, paintRating, paintScalingRating),
};

} // namespace
