#include <ombrin/OmStyle2.h>

#include "skin/OmStyle2_p.h"

#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kRelativeSliderMinimum = 50;
constexpr int kSliderMinimum = 16;
constexpr int kSearchFieldMargin = 18;
constexpr int kDockIconSize = 10;

QStyle *createBaseStyle()
{
    if (QStyle *plastique = QStyleFactory::create(QStringLiteral("plastique")))
        return plastique;
    return QStyleFactory::create(QStringLiteral("fusion"));
}

// Under a style of the Windows family Qt gives the title buttons of a dock icons of at most ten
// pixels. It looks for that family one style below a proxy only, where it finds Plastique, itself a
// proxy; the buttons, and with them the dock's title, would grow.
bool isDockTitleButtonOverPlastique(const QWidget *widget, const QStyle *base)
{
    return isA(widget, "QDockWidgetTitleButton") && base && base->inherits("QPlastiqueStyle");
}

} // namespace

void followMouse(const QStyleOption &option)
{
    auto *widget = qobject_cast<QWidget *>(option.styleObject);
    if (widget && !widget->testAttribute(Qt::WA_Hover))
        widget->setAttribute(Qt::WA_Hover);
}

OmStyle2::OmStyle2()
    : QProxyStyle(createBaseStyle())
{}

OmStyle2::~OmStyle2() = default;

int OmStyle2::pixelMetric(PixelMetric metric, const QStyleOption *option,
                          const QWidget *widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        return 1;
    case PM_ScrollBarExtent:
        return 16;
    case PM_ScrollBarSliderMin:
        return isA(widget, "RelativeScrollBar") ? kRelativeSliderMinimum : kSliderMinimum;
    case PM_MenuBarPanelWidth:
        return 2;
    case PM_MenuBarItemSpacing:
    case PM_MenuBarVMargin:
    case PM_MenuBarHMargin:
    case PM_ToolBarItemSpacing:
    case PM_ToolBarItemMargin:
        return 0;
    case PM_SmallIconSize: {
        const int size = QProxyStyle::pixelMetric(metric, option, widget);
        if (!isDockTitleButtonOverPlastique(widget, baseStyle()))
            return size;
        return std::min(kDockIconSize * widget->logicalDpiX() / 96, size);
    }
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int OmStyle2::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                        QStyleHintReturn *returnData) const
{
    if (hint == SH_ItemView_ActivateItemOnSingleClick)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QSize OmStyle2::sizeFromContents(ContentsType type, const QStyleOption *option,
                                 const QSize &contentsSize, const QWidget *widget) const
{
    if (!option)
        return contentsSize;
    // No margins around a tool button.
    if (type == CT_ToolButton)
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
        return QCommonStyle::sizeFromContents(type, option, contentsSize, widget);
    return QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

QRect OmStyle2::subElementRect(SubElement element, const QStyleOption *option,
                               const QWidget *widget) const
{
    if (!option)
        return QRect();
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents && isA(widget, "ombrin::OmSearchField"))
        return rect.adjusted(kSearchFieldMargin, 0, -kSearchFieldMargin, 0);
    return rect;
}

} // namespace ombrin
