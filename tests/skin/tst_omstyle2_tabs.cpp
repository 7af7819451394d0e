#include "skin/tst_omstyle2_support.h"
#include "support/TestCase.h"

#include <ombrin/OmStyle2.h>

using namespace ombrin::test;
using ombrin::OmStyle2;

namespace {

using Tab = QStyleOptionTab;

constexpr int kNone = -1;
constexpr int kOverlap = 4;
const QRect kTab(4, 3, 30, 24); // to 33, 26

/// Stands above the style and sets how far tabs reach into their pane and to which side they stand.
class TabSettings : public QProxyStyle
{
public:
    TabSettings(QStyle *below, Qt::Alignment alignment)
        : QProxyStyle(below)
        , m_alignment(alignment)
    {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_TabBarBaseOverlap)
            return kOverlap;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_TabBar_Alignment)
            return int(m_alignment);
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    Qt::Alignment m_alignment;
};

QImage drawnTab(const Tab &tab, Qt::Alignment alignment = Qt::AlignLeft)
{
    auto *style = new OmStyle2;
    const TabSettings above(style, alignment);
    return paintedKeepingSettings([&](QPainter *painter) {
        style->drawControl(QStyle::CE_TabBarTabShape, &tab, painter, nullptr);
    });
}

Tab makeTab(bool selected, Tab::TabPosition position = Tab::Middle)
{
    auto tab = makeOption<Tab>(kTab);
    tab.shape = QTabBar::RoundedNorth;
    tab.position = position;
    tab.selectedPosition = Tab::NotAdjacent;
    tab.state.setFlag(QStyle::State_Selected, selected);
    return tab;
}

QColor deepened(const QColor &color, double saturation, double value)
{
    return QColor::fromHsv(color.hue(), qMin(255, int(color.saturation() * saturation)),
                           qMin(255, int(color.value() * value)));
}

QGradientStops standardStops(const QColor &base)
{
    return {{0.0, base},  {0.08, base.lighter(103)}, {0.21, base.lighter(114)},
            {0.31, base}, {0.78, base.lighter(110)}, {1.0, base.lighter(105)}};
}

QImage filledTab(bool selected, const QGradientStops &stops)
{
    QLinearGradient gradient(kTab.topLeft(), kTab.bottomLeft());
    gradient.setStops(stops);
    return painted([&](QPainter *painter) {
        painter->fillRect(kTab.adjusted(0, 2, 0, selected ? -1 : -2), gradient);
    });
}

void drawColumn(QImage *image, int x, int top, int bottom, const QColor &color)
{
    for (int y = top; bottom != kNone && y <= bottom; ++y)
        image->setPixelColor(x, y, color);
}

} // namespace

class tst_OmStyle2Tabs : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void edgesFollowNeighboursAndAlignment_data()
    {
        // ends: of the left dark and light, the right light and dark line
        const auto row = columns<bool, bool, int, int, Qt::Alignment, QVector<int>>(
                "selected", "rightToLeft", "position", "neighbour", "alignment", "ends");
        const Qt::Alignment left = Qt::AlignLeft;
        const Qt::Alignment right = Qt::AlignRight;
        const Qt::Alignment centre = Qt::AlignHCenter;
        const auto none = Tab::NotAdjacent;
        const auto next = Tab::NextIsSelected;
        const auto previous = Tab::PreviousIsSelected;
        row("first, selected", true, false, Tab::Beginning, none, left, {25, 25, 24, 24});
        row("first", false, false, Tab::Beginning, none, left, {25, 22, kNone, 22});
        row("first before selected", false, false, Tab::Beginning, next, left,
            {25, 22, kNone, kNone});
        row("first, selected, centred", true, false, Tab::Beginning, none, centre,
            {23, 24, 24, 24});
        row("middle before selected", false, false, Tab::Middle, next, left,
            {kNone, kNone, kNone, kNone});
        row("middle, selected", true, false, Tab::Middle, none, left, {24, 24, 24, 24});
        row("last of a right bar, selected", true, false, Tab::End, none, right, {24, 24, 26, 26});
        row("only of a right bar, selected", true, false, Tab::OnlyOneTab, none, right,
            {23, 24, 26, 26});
        row("right to left: first, selected", true, true, Tab::Beginning, none, left,
            {23, 24, 26, 26});
        row("right to left: last after selected", false, true, Tab::End, previous, right,
            {kNone, kNone, kNone, kNone});
    }
    void edgesFollowNeighboursAndAlignment()
    {
        QFETCH(const bool, selected);
        QFETCH(const bool, rightToLeft);
        QFETCH(const int, position);
        QFETCH(const int, neighbour);
        QFETCH(const Qt::Alignment, alignment);
        QFETCH(const QVector<int>, ends);
        Tab tab = makeTab(selected, Tab::TabPosition(position));
        tab.selectedPosition = Tab::SelectedPosition(neighbour);
        tab.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;

        const QPalette &palette = tab.palette;
        const QColor dark = palette.color(QPalette::Dark);
        const QColor outline = deepened(dark, 2.0, 0.6);
        const QColor light = palette.color(QPalette::Light);
        const QColor button = palette.color(QPalette::Button);
        const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
        const int top = selected ? 3 : 5; // others stand two pixels lower
        QImage expected =
                filledTab(selected, standardStops(selected ? button : button.darker(110)));
        drawColumn(&expected, 5, top + 3, ends[1], light);
        if (ends[1] != kNone)
            expected.setPixelColor(5, top + 1, light);
        drawColumn(&expected, 4, top + 2, ends[0], deepened(dark, 1.9, 0.7));
        drawColumn(&expected, 33, top + 2, ends[3], outline);
        if (ends[3] != kNone)
            expected.setPixelColor(32, top + 1, selected ? highlight.darker(150) : outline);
        drawColumn(&expected, 32, top + 3, ends[2], palette.color(QPalette::Window).darker(110));
        QCOMPARE(drawnTab(tab, alignment), expected);
    }

    // A tab on another side is the standing one, turned.
    void otherSidesAreTurned_data()
    {
        const auto row = columns<int, QTransform, QRect>("shape", "turn", "standing");
        const QRect transposed(3, 4, 24, 30);
        row("south", QTabBar::RoundedSouth, QTransform().rotate(180).translate(0, -23).scale(-1, 1),
            kTab);
        row("west", QTabBar::RoundedWest, QTransform().rotate(270).scale(-1, 1), transposed);
        row("east", QTabBar::RoundedEast, QTransform().rotate(90).translate(0, -29), transposed);
    }
    void otherSidesAreTurned()
    {
        QFETCH(const int, shape);
        QFETCH(const QTransform, turn);
        QFETCH(const QRect, standing);
        for (const bool selected : {false, true}) {
            Tab tab = makeTab(selected, Tab::Beginning);
            tab.shape = QTabBar::Shape(shape);
            const QImage image = drawnTab(tab);
            tab.shape = QTabBar::RoundedNorth;
            tab.rect = standing;
            auto *style = new OmStyle2;
            const TabSettings above(style, Qt::AlignLeft);
            const QImage expected = painted([&](QPainter *painter) {
                painter->setTransform(turn);
                style->drawControl(QStyle::CE_TabBarTabShape, &tab, painter, nullptr);
            });
            QCOMPARE(image, expected);
            QVERIFY(image != blank());
        }
    }

    void triangularTabsAreTheCommonOnes()
    {
        for (int shape = QTabBar::TriangularNorth; shape <= QTabBar::TriangularEast; ++shape) {
            Tab tab = makeTab(true);
            tab.shape = QTabBar::Shape(shape);
            const OmStyle2 style;
            const QImage expected = painted([&](QPainter *painter) {
                style.QCommonStyle::drawControl(QStyle::CE_TabBarTabShape, &tab, painter, nullptr);
            });
            QCOMPARE(drawnTab(tab), expected);
        }
    }

    void gradientPaletteShadesTheTab()
    {
        Tab tab = makeTab(false);
        tab.selectedPosition = Tab::NextIsSelected; // no edges
        QLinearGradient button(0, 0, 1, 1);
        button.setStops({{0.0, Qt::red}, {1.0, Qt::blue}});
        QLinearGradient window(0, 0, 1, 1);
        const QGradientStops stops = {{0.0, Qt::black}, {0.4, Qt::green}, {1.0, Qt::white}};
        window.setStops(stops);
        tab.palette.setBrush(QPalette::Button, button);
        const QColor plain = tab.palette.color(QPalette::Button).darker(110);
        QCOMPARE(drawnTab(tab), filledTab(false, standardStops(plain))); // a flat window
        tab.palette.setBrush(QPalette::Window, window);
        QCOMPARE(drawnTab(tab), filledTab(false, stops));
    }
};

OMBRIN_TEST_MAIN(tst_OmStyle2Tabs)
#include "tst_omstyle2_tabs.moc"
