#include <ombrin/OmStyle2.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kUnselectedOffset = 2;

QColor deepened(const QColor &color, double saturation, double value)
{
    return QColor::fromHsv(color.hue(),
                           std::min(255, static_cast<int>(color.saturation() * saturation)),
                           std::min(255, static_cast<int>(color.value() * value)));
}

QPen cosmeticPen(const QColor &color)
{
    return QPen(color, 0);
}

// What the neighbours and the alignment of its bar mean for one tab. Horizontal tabs of a
// right-to-left bar have their ends and neighbours exchanged.
struct TabFacts
{
    TabFacts(const QStyleOptionTab &tab, Qt::Alignment barAlignment)
        : selected(tab.state & QStyle::State_Selected)
    {
        const bool mirrored =
                tab.direction == Qt::RightToLeft
                && (tab.shape == QTabBar::RoundedNorth || tab.shape == QTabBar::RoundedSouth);
        const bool only = tab.position == QStyleOptionTab::OnlyOneTab;
        const auto lastPosition = mirrored ? QStyleOptionTab::Beginning : QStyleOptionTab::End;
        const auto nextPosition =
                mirrored ? QStyleOptionTab::PreviousIsSelected : QStyleOptionTab::NextIsSelected;
        atBeginning = only || tab.position == QStyleOptionTab::Beginning;
        atEnd = only || tab.position == lastPosition;
        nextSelected = tab.selectedPosition == nextPosition;
        leftAligned = barAlignment == (mirrored ? Qt::AlignRight : Qt::AlignLeft);
        rightAligned = barAlignment == (mirrored ? Qt::AlignLeft : Qt::AlignRight);
    }

    bool selected;
    bool atBeginning;
    bool atEnd;
    bool nextSelected;
    bool leftAligned;
    bool rightAligned;
};

bool isVertical(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::RoundedEast;
}

// Turns the painter so that a tab of any rounded shape is drawn as one that stands on its bar.
// False for the shapes that are not rounded.
bool turnPainter(QPainter *painter, QTabBar::Shape shape, QSize size)
{
    switch (shape) {
    case QTabBar::RoundedNorth:
        return true;
    case QTabBar::RoundedSouth:
        painter->rotate(180);
        painter->translate(0, -size.height() + 1);
        painter->scale(-1, 1);
        return true;
    case QTabBar::RoundedWest:
        painter->rotate(270);
        painter->scale(-1, 1);
        return true;
    case QTabBar::RoundedEast:
        painter->rotate(90);
        painter->translate(0, -size.width() + 1);
        return true;
    default:
        return false;
    }
}

QGradientStops tabStops(const QPalette &palette, bool selected)
{
    const QGradient *window = palette.window().gradient();
    if (palette.button().gradient() && window)
        return window->stops();
    const QColor &button = palette.color(QPalette::Button);
    const QColor base = selected ? button : button.darker(110);
    return {{0.0, base},  {0.08, base.lighter(103)}, {0.21, base.lighter(114)},
            {0.31, base}, {0.78, base.lighter(110)}, {1.0, base.lighter(105)}};
}

void fillTab(QPainter *painter, const QRect &rect, const QPalette &palette, bool selected)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setStops(tabStops(palette, selected));
    painter->fillRect(rect.adjusted(0, 2, 0, selected ? -1 : -2), gradient);
}

void drawLeftEdge(QPainter *painter, const QRect &r, const QPalette &palette, const TabFacts &tab,
                  int overlap)
{
    const QColor dark = deepened(palette.color(QPalette::Dark), 1.9, 0.7);
    const bool joinsBar = tab.atBeginning && tab.leftAligned;
    const int lightEnd = r.bottom() - (joinsBar && tab.selected ? 1 : overlap);
    const int darkEnd = r.bottom() - (tab.atBeginning ? 1 : 0) - (joinsBar ? 0 : overlap);

    painter->setPen(cosmeticPen(palette.color(QPalette::Light)));
    painter->drawLine(r.left() + 1, r.top() + 3, r.left() + 1, lightEnd);
    painter->drawPoint(r.left() + 1, r.top() + 1);
    painter->setPen(cosmeticPen(dark));
    painter->drawLine(r.left(), r.top() + 2, r.left(), darkEnd);
}

void drawRightEdge(QPainter *painter, const QRect &r, const QPalette &palette, const TabFacts &tab,
                   int overlap)
{
    const QColor outline = deepened(palette.color(QPalette::Dark), 2.0, 0.6);
    const bool joinsBar = tab.atEnd && tab.rightAligned;
    const int end = r.bottom() - (joinsBar ? 0 : overlap);
    const int outlineEnd = tab.selected ? end : r.bottom() - overlap;

    painter->setPen(cosmeticPen(outline));
    painter->drawLine(r.right(), r.top() + 2, r.right(), outlineEnd);
    if (!tab.selected) {
        painter->drawPoint(r.right() - 1, r.top() + 1);
        return;
    }
    const QColor &highlight = palette.color(QPalette::Active, QPalette::Highlight);
    painter->setPen(cosmeticPen(highlight.darker(150)));
    painter->drawPoint(r.right() - 1, r.top() + 1);
    painter->setPen(cosmeticPen(palette.color(QPalette::Window).darker(110)));
    painter->drawLine(r.right() - 1, r.top() + 3, r.right() - 1, end);
}

} // namespace

void OmStyle2::drawTab(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!qstyleoption_cast<const QStyleOptionTab *>(option))
        return;
    proxy()->drawControl(CE_TabBarTabShape, option, painter, widget);
    proxy()->drawControl(CE_TabBarTabLabel, option, painter, widget);
}

void OmStyle2::drawTabShape(const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (!tab)
        return;

    painter->save();
    if (!turnPainter(painter, tab->shape, tab->rect.size())) {
        painter->restore();
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
        QCommonStyle::drawControl(CE_TabBarTabShape, option, painter, widget);
        return;
    }
    const Qt::Alignment alignment(proxy()->styleHint(SH_TabBar_Alignment, option, widget));
    const TabFacts facts(*tab, alignment);
    const int barOverlap = proxy()->pixelMetric(PM_TabBarBaseOverlap, option, widget);
    const int overlap = facts.selected ? barOverlap / 2 : barOverlap;

    QRect r = tab->rect;
    if (isVertical(tab->shape))
        r = QRect(r.y(), r.x(), r.height(), r.width());
    fillTab(painter, r, tab->palette, facts.selected);
    if (!facts.selected)
        r.setTop(r.top() + kUnselectedOffset);
    if (facts.atBeginning || facts.selected)
        drawLeftEdge(painter, r, tab->palette, facts, overlap);
    if (facts.atEnd || facts.selected || !facts.nextSelected)
        drawRightEdge(painter, r, tab->palette, facts, overlap);
    painter->restore();
}

} // namespace ombrin
