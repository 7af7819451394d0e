#include "support/RatioCase.h"

#include <ombrin/OmStyle2.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <memory>

using namespace ombrin::bench;

namespace {

// Plastique draws what the style does not, so it is what a host would see without the style.
std::unique_ptr<QStyle> makePlainStyle()
{
    std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("plastique")));
    if (!style)
        style.reset(QStyleFactory::create(QStringLiteral("fusion")));
    return style;
}

template <typename Option>
void drawPrimitives(benchmark::State &state, const QStyle &style, QStyle::PrimitiveElement element,
                    QSize size, QStyle::State flags)
{
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    Option option;
    option.rect = QRect(QPoint(3, 3), size);
    option.state = flags;
    for (auto _ : state)
        style.drawPrimitive(element, &option, &painter, nullptr);
}

template <typename Option>
RatioCase comparePrimitives(const char *name, QStyle::PrimitiveElement element, QSize size,
                            QStyle::State flags)
{
    return RatioCase(
            name, 0,
            [=](benchmark::State &state) {
                drawPrimitives<Option>(state, ombrin::OmStyle2(), element, size, flags);
            },
            [=](benchmark::State &state) {
                drawPrimitives<Option>(state, *makePlainStyle(), element, size, flags);
            });
}

constexpr QStyle::State kHover = QStyle::State_Enabled | QStyle::State_MouseOver;
constexpr QSize kLineEdit(120, 22);
constexpr QSize kIndicator(13, 13);

const RatioCase primitiveCases[] = {
        comparePrimitives<QStyleOptionFrame>("style primitives: PE_Frame", QStyle::PE_Frame,
                                             QSize(150, 100), QStyle::State_Enabled),
        comparePrimitives<QStyleOptionFrame>("style primitives: PE_FrameLineEdit",
                                             QStyle::PE_FrameLineEdit, kLineEdit, kHover),
        comparePrimitives<QStyleOptionToolButton>("style primitives: PE_PanelButtonTool",
                                                  QStyle::PE_PanelButtonTool, QSize(24, 24),
                                                  kHover | QStyle::State_Raised),
        comparePrimitives<QStyleOptionFrame>("style primitives: PE_PanelMenuBar",
                                             QStyle::PE_PanelMenuBar, QSize(190, 24),
                                             QStyle::State_Enabled),
        comparePrimitives<QStyleOptionViewItem>(
                "style primitives: PE_IndicatorBranch", QStyle::PE_IndicatorBranch, QSize(20, 20),
                QStyle::State_Enabled | QStyle::State_Children | QStyle::State_Open),
        comparePrimitives<QStyleOptionButton>("style primitives: PE_IndicatorCheckBox",
                                              QStyle::PE_IndicatorCheckBox, kIndicator,
                                              QStyle::State_Enabled | QStyle::State_Off),
        comparePrimitives<QStyleOptionButton>("style primitives: PE_IndicatorCheckBox, checked",
                                              QStyle::PE_IndicatorCheckBox, kIndicator,
                                              kHover | QStyle::State_On),
};
const GeometricMean primitivesMean("style primitives", 0.8);

} // namespace
