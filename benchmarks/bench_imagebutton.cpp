#include "support/RatioCase.h"

#include <ombrin/OmImageButton.h>

#include <QtGui/QImage>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QToolButton>

#include <memory>

using namespace ombrin::bench;

namespace {

constexpr QSize kSize(32, 32);

QPixmap icon(int density)
{
    QImage image(kSize * density, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(64, 96, 128, 160));
    image.setDevicePixelRatio(density);
    return QPixmap::fromImage(image);
}

enum class State { Up, Down, Hovered, Disabled };

void renderRepeatedly(benchmark::State &state, QWidget *widget, int density)
{
    QImage image(kSize * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(Qt::white);
    for (auto _ : state)
        widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    benchmark::DoNotOptimize(image.constBits());
}

void paintImageButton(benchmark::State &state, State buttonState, int density)
{
    ombrin::OmImageButton button;
    button.resize(kSize);
    button.setAllPixmaps(icon(density), false, true, true, true, true);
    button.setDown(buttonState == State::Down);
    button.setHovered(buttonState == State::Hovered);
    button.setEnabled(buttonState != State::Disabled);
    renderRepeatedly(state, &button, density);
}

void paintToolButton(benchmark::State &state, State buttonState, int density)
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    QToolButton button;
    button.setStyle(fusion.get());
    button.resize(kSize);
    button.setIconSize(kSize);
    button.setIcon(QIcon(icon(density)));
    button.setDown(buttonState == State::Down);
    button.setAttribute(Qt::WA_UnderMouse, buttonState == State::Hovered);
    button.setEnabled(buttonState != State::Disabled);
    renderRepeatedly(state, &button, density);
}

RatioCase compare(const char *name, State buttonState, int density)
{
    return RatioCase(
            name, 0.5,
            [=](benchmark::State &state) { paintImageButton(state, buttonState, density); },
            [=](benchmark::State &state) { paintToolButton(state, buttonState, density); });
}

const RatioCase kCases[] = {
        compare("image button, up : tool button", State::Up, 1),
        compare("image button, down : tool button", State::Down, 1),
        compare("image button, hovered : tool button", State::Hovered, 1),
        compare("image button, disabled : tool button", State::Disabled, 1),
        compare("image button, up, density 2 : tool button", State::Up, 2),
};

} // namespace
