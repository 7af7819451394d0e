#include <ombrin/OmStyle2.h>

#include "skin/LightGround.h"
#include "skin/OmStyle2_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kStripHeight = 4;
constexpr int kStripMargin = 2;

// The band in the middle of a progress bar in which it shows its progress.
QRect progressStrip(const QRect &rect)
{
    QRect strip = rect;
    strip.setHeight(kStripHeight);
    strip.moveCenter(
            QPoint((rect.left() + rect.right()) / 2, (rect.top() + rect.bottom()) / 2 - 1));
    return strip.adjusted(kStripMargin, 0, -kStripMargin, 0);
}

bool isHorizontal(const QStyleOptionProgressBar &bar)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return bar.orientation == Qt::Horizontal;
#else
    return bar.state & QStyle::State_Horizontal;
#endif
}

void drawProgressGroove(QPainter *painter, const QStyleOption *option)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
    if (!bar)
        return;
    const QRect strip = progressStrip(bar->rect);
    const QColor window = bar->palette.color(QPalette::Window);
    QLinearGradient gradient(strip.topLeft(),
                             isHorizontal(*bar) ? strip.bottomLeft() : strip.topRight());
    gradient.setStops(
            {{0.0, window.darker(120)}, {0.5, window.darker(117)}, {1.0, window.darker(110)}});
    painter->fillRect(strip, gradient);
}

// How many of \a width pixels are done.
int progressWidth(const QStyleOptionProgressBar &bar, int width)
{
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    if (range == 0)
        return 0;
    const qint64 done = qint64(std::max(bar.progress, bar.minimum)) - bar.minimum;
    return static_cast<int>(std::clamp<qint64>(done * width / range, 0, std::max(width, 0)));
}

void drawProgressContents(QPainter *painter, const QStyleOption *option)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
    if (!bar || bar->progress <= 0)
        return;
    const QRect strip = progressStrip(bar->rect);
    const int width = progressWidth(*bar, strip.width());
    if (width == 0)
        return;

    const QColor highlight = bar->palette.color(QPalette::Highlight);
    const QColor vivid = QColor::fromHsv(highlight.hue(), std::min(255, highlight.saturation() * 3),
                                         highlight.value());
    QLinearGradient gradient(strip.topLeft(), strip.topRight());
    gradient.setStops({{0.0, vivid}, {1.0, vivid.lighter(130)}});
    painter->fillRect(QRect(strip.topLeft(), QSize(width, strip.height())), gradient);
}

void drawToolBoxTab(QPainter *painter, const QStyleOption *option)
{
    if (!qstyleoption_cast<const QStyleOptionToolBox *>(option))
        return;
    static const QPen selectedPen(QColor(89, 89, 89), 0);
    static const QPen plainPen(QColor(189, 189, 189), 0);

    const bool selected = option->state & QStyle::State_Selected;
    const QRect r = option->rect;
    const int middle = selected ? 195 : 235;
    QLinearGradient gradient(r.topLeft(), r.bottomLeft());
    gradient.setStops({{0.0, QColor(255, 255, 255)},
                       {0.5, QColor(middle, middle, middle)},
                       {1.0, QColor(255, 255, 255)}});
    painter->fillRect(r.adjusted(1, 1, -1, -1), gradient);

    const QPen oldPen = painter->pen();
    const QBrush oldBrush = painter->brush();
    painter->setPen(selected ? selectedPen : plainPen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(r);
    painter->setBrush(oldBrush);
    painter->setPen(oldPen);
}

void drawToolBar(QPainter *painter, const QStyleOption *option)
{
    const QRect r = option->rect;
    const QColor window = option->palette.color(QPalette::Window);
    QLinearGradient gradient(r.topLeft(), r.bottomLeft());
    gradient.setStops({{0.0, window.darker(150)},
                       {0.05, option->palette.color(QPalette::Mid).lighter(120)},
                       {0.11, window},
                       {0.3, window.lighter(104)},
                       {0.6, window},
                       {1.0, window.darker(107)}});
    painter->fillRect(r, gradient);
}

} // namespace

void OmStyle2::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const
{
    if (!option || !painter)
        return;

    switch (element) {
    case CE_TabBarTab:
        drawTab(option, painter, widget);
        break;
    case CE_TabBarTabShape:
        drawTabShape(option, painter, widget);
        break;
    case CE_ProgressBarGroove:
        drawProgressGroove(painter, option);
        break;
    case CE_ProgressBarContents:
        drawProgressContents(painter, option);
        break;
    case CE_ProgressBarLabel:
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
        QCommonStyle::drawControl(element, option, painter, widget);
        break;
    case CE_MenuBarItem:
        drawMenuBarItem(option, painter, widget);
        break;
    case CE_ToolBoxTab:
        drawToolBoxTab(painter, option);
        // A tool box asks for nothing more, and its captions must be seen.
        if (isA(widget, "QToolBox"))
            proxy()->drawControl(CE_ToolBoxTabLabel, option, painter, widget);
        break;
    case CE_ToolBoxTabLabel:
        if (const auto *tab = qstyleoption_cast<const QStyleOptionToolBox *>(option)) {
            QStyleOptionToolBox legible(*tab); // on a ground that is light in every skin
            blackenLightText(&legible.palette, QPalette::ButtonText);
            QProxyStyle::drawControl(element, &legible, painter, widget);
        }
        break;
    case CE_ToolBoxTabShape:
        // What a style sheet on top asks for in place of the whole tab.
        drawToolBoxTab(painter, option);
        break;
    case CE_ToolBar:
        drawToolBar(painter, option);
        break;
    case CE_ScrollBarAddLine:
    case CE_ScrollBarSubLine:
        drawScrollBarLine(painter, option, element == CE_ScrollBarAddLine);
        break;
    case CE_ScrollBarAddPage:
    case CE_ScrollBarSubPage:
        drawScrollBarPage(element, option, painter, widget);
        break;
    case CE_ScrollBarSlider:
        drawScrollBarSlider(option, painter, widget);
        break;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void OmStyle2::drawMenuBarItem(const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    if ((option->state & State_Selected) && (option->state & State_Enabled))
        painter->fillRect(option->rect, option->palette.color(QPalette::Button).darker(110));
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
    QCommonStyle::drawControl(CE_MenuBarItem, option, painter, widget);
}

} // namespace ombrin
