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

constexpr int kGround = 220;

// Measures \a draw(style, painter) with our style beside the plain one.
template <typename Draw>
RatioCase compareStyles(const char *name, double target, const Draw &draw)
{
    const auto measure = [draw](benchmark::State &state, const QStyle &style) {
        QImage image(kGround, kGround, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const auto drawOnce = draw();
        for (auto _ : state)
            drawOnce(style, &painter);
    };
    return RatioCase(
            name, target,
            [measure](benchmark::State &state) { measure(state, ombrin::OmStyle2()); },
            [measure](benchmark::State &state) { measure(state, *makePlainStyle()); });
}

template <typename Option>
Option makeOption(QSize size, QStyle::State state)
{
    Option option;
    option.rect = QRect(QPoint(3, 3), size);
    option.state = state;
    return option;
}

template <typename Option>
RatioCase comparePrimitives(const char *name, QStyle::PrimitiveElement element, QSize size,
                            QStyle::State state)
{
    return compareStyles(name, 0, [=] {
        return [element, option = makeOption<Option>(size, state)](const QStyle &style,
                                                                   QPainter *painter) {
            style.drawPrimitive(element, &option, painter, nullptr);
        };
    });
}

// \a prepare fills in what is special about the option.
template <typename Option, typename Prepare>
RatioCase compareControls(const char *name, QStyle::ControlElement element, QSize size,
                          QStyle::State state, const Prepare &prepare)
{
    return compareStyles(name, 0, [=] {
        auto option = makeOption<Option>(size, state);
        prepare(&option);
        return [element, option](const QStyle &style, QPainter *painter) {
            style.drawControl(element, &option, painter, nullptr);
        };
    });
}

template <typename Option, typename Prepare>
RatioCase compareComplexControls(const char *name, double target, QStyle::ComplexControl control,
                                 QSize size, QStyle::State state, const Prepare &prepare)
{
    return compareStyles(name, target, [=] {
        auto option = makeOption<Option>(size, state);
        option.subControls = QStyle::SC_All;
        prepare(&option);
        return [control, option](const QStyle &style, QPainter *painter) {
            style.drawComplexControl(control, &option, painter, nullptr);
        };
    });
}

void prepareProgress(QStyleOptionProgressBar *bar)
{
    bar->minimum = 0;
    bar->maximum = 100;
    bar->progress = 40;
    bar->textVisible = true;
    bar->text = QStringLiteral("40%");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    bar->orientation = Qt::Horizontal;
#endif
}

void prepareTab(QStyleOptionTab *tab)
{
    tab->shape = QTabBar::RoundedNorth;
    tab->position = QStyleOptionTab::Middle;
    tab->text = QStringLiteral("Contacts");
}

void prepareMenuItem(QStyleOptionMenuItem *item)
{
    item->menuItemType = QStyleOptionMenuItem::Normal;
    item->text = QStringLiteral("Contacts");
}

void prepareToolBox(QStyleOptionToolBox *tab)
{
    tab->text = QStringLiteral("Contacts");
}

void prepareToolBar(QStyleOptionToolBar *bar)
{
    bar->toolBarArea = Qt::TopToolBarArea;
}

template <Qt::Orientation orientation>
void prepareScrollBar(QStyleOptionSlider *bar)
{
    bar->orientation = orientation;
    bar->minimum = 0;
    bar->maximum = 100;
    bar->pageStep = 20;
    bar->sliderPosition = bar->sliderValue = 30;
    if (orientation == Qt::Horizontal)
        bar->state |= QStyle::State_Horizontal;
}

void prepareComboBox(QStyleOptionComboBox *box)
{
    box->editable = false;
    box->frame = true;
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

constexpr QStyle::State kEnabled = QStyle::State_Enabled;
constexpr QStyle::State kProgress = kEnabled | QStyle::State_Horizontal;
constexpr QSize kProgressBar(180, 20);
constexpr QSize kTab(80, 26);
constexpr QSize kUpright(16, 200);
constexpr QSize kLying(200, 16);
constexpr QSize kLineButton(16, 16);

const RatioCase controlCases[] = {
        compareControls<QStyleOptionTab>("style controls: CE_TabBarTab", QStyle::CE_TabBarTab, kTab,
                                         kEnabled, prepareTab),
        compareControls<QStyleOptionTab>("style controls: CE_TabBarTabShape",
                                         QStyle::CE_TabBarTabShape, kTab, kEnabled, prepareTab),
        compareControls<QStyleOptionTab>("style controls: CE_TabBarTabShape, selected",
                                         QStyle::CE_TabBarTabShape, kTab,
                                         kEnabled | QStyle::State_Selected, prepareTab),
        compareControls<QStyleOptionProgressBar>("style controls: CE_ProgressBarGroove",
                                                 QStyle::CE_ProgressBarGroove, kProgressBar,
                                                 kProgress, prepareProgress),
        compareControls<QStyleOptionProgressBar>("style controls: CE_ProgressBarContents",
                                                 QStyle::CE_ProgressBarContents, kProgressBar,
                                                 kProgress, prepareProgress),
        compareControls<QStyleOptionProgressBar>("style controls: CE_ProgressBarLabel",
                                                 QStyle::CE_ProgressBarLabel, kProgressBar,
                                                 kProgress, prepareProgress),
        compareControls<QStyleOptionMenuItem>("style controls: CE_MenuBarItem",
                                              QStyle::CE_MenuBarItem, kTab,
                                              kEnabled | QStyle::State_Selected, prepareMenuItem),
        compareControls<QStyleOptionToolBox>("style controls: CE_ToolBoxTab", QStyle::CE_ToolBoxTab,
                                             kProgressBar, kEnabled, prepareToolBox),
        compareControls<QStyleOptionToolBar>("style controls: CE_ToolBar", QStyle::CE_ToolBar,
                                             QSize(200, 30), kProgress, prepareToolBar),
        compareControls<QStyleOptionSlider>("style controls: CE_ScrollBarAddLine",
                                            QStyle::CE_ScrollBarAddLine, kLineButton, kEnabled,
                                            prepareScrollBar<Qt::Vertical>),
        compareControls<QStyleOptionSlider>("style controls: CE_ScrollBarSubLine",
                                            QStyle::CE_ScrollBarSubLine, kLineButton, kEnabled,
                                            prepareScrollBar<Qt::Vertical>),
        compareControls<QStyleOptionSlider>("style controls: CE_ScrollBarAddPage",
                                            QStyle::CE_ScrollBarAddPage, kUpright, kEnabled,
                                            prepareScrollBar<Qt::Vertical>),
        compareControls<QStyleOptionSlider>("style controls: CE_ScrollBarSubPage",
                                            QStyle::CE_ScrollBarSubPage, kLying, kEnabled,
                                            prepareScrollBar<Qt::Horizontal>),
        compareControls<QStyleOptionSlider>("style controls: CE_ScrollBarSlider",
                                            QStyle::CE_ScrollBarSlider, QSize(16, 70), kEnabled,
                                            prepareScrollBar<Qt::Vertical>),
        compareComplexControls<QStyleOptionSlider>("style controls: CC_ScrollBar, upright", 1.0,
                                                   QStyle::CC_ScrollBar, kUpright, kEnabled,
                                                   prepareScrollBar<Qt::Vertical>),
        compareComplexControls<QStyleOptionSlider>("style controls: CC_ScrollBar, lying", 1.0,
                                                   QStyle::CC_ScrollBar, kLying, kEnabled,
                                                   prepareScrollBar<Qt::Horizontal>),
        compareComplexControls<QStyleOptionComboBox>("style controls: CC_ComboBox", 0,
                                                     QStyle::CC_ComboBox, QSize(150, 24), kEnabled,
                                                     prepareComboBox),
};
const GeometricMean controlsMean("style controls", 0.8);

} // namespace
