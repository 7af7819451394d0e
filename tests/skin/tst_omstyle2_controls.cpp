#include "skin/tst_omstyle2_support.h"
#include "support/TestCase.h"

#include <ombrin/OmStyle2.h>

#include <limits>

using namespace ombrin::test;
using ombrin::OmStyle2;

namespace {

constexpr QSize kGround(130, 60);

QStyleOptionProgressBar progressBar(const QRect &rect, Qt::Orientation orientation)
{
    auto bar = makeOption<QStyleOptionProgressBar>(rect);
    bar.minimum = 0;
    bar.maximum = 100;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    bar.orientation = orientation;
#endif
    bar.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
    return bar;
}

QLinearGradient gradient(QPoint from, QPoint to, const QGradientStops &stops)
{
    QLinearGradient result(from, to);
    result.setStops(stops);
    return result;
}

} // namespace

class tst_OmStyle2Controls : public ombrin::test::TestCase
{
    Q_OBJECT

private:
    QImage drawn(QStyle::ControlElement element, const QStyleOption &option)
    {
        const auto draw = [&](QPainter *painter) {
            m_style.drawControl(element, &option, painter, nullptr);
        };
        return paintedKeepingSettings(draw, kGround);
    }
    OmStyle2 m_style;

private Q_SLOTS:
    void progressGrooveIsAThinStrip()
    {
        const std::pair<QRect, QRect> cases[] = {
                {{0, 0, 100, 20}, {2, 7, 96, 4}},
                {{11, 9, 101, 23}, {13, 18, 97, 4}},
                {{0, 10, 60, 3}, {2, 9, 56, 4}}}; // lower than the strip
        for (const auto &[bar, strip] : cases) {
            for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
                const auto option = progressBar(bar, orientation);
                const QColor window = option.palette.color(QPalette::Window);
                const QPoint end =
                        orientation == Qt::Horizontal ? strip.bottomLeft() : strip.topRight();
                const auto shades = gradient(strip.topLeft(), end,
                                             {{0.0, window.darker(120)},
                                              {0.5, window.darker(117)},
                                              {1.0, window.darker(110)}});
                QImage expected = blank(kGround);
                QPainter(&expected).fillRect(strip, shades);
                QCOMPARE(drawn(QStyle::CE_ProgressBarGroove, option), expected);
            }
        }
    }

    void progressFillsItsShare_data()
    {
        const auto row = columns<int, int, int, int>("minimum", "maximum", "progress", "width");
        constexpr int lowest = std::numeric_limits<int>::min();
        constexpr int highest = std::numeric_limits<int>::max();
        row("nothing done", 0, 100, 0, 0);
        row("all done", 0, 100, 100, 96);
        row("truncated", 0, 100, 33, 31);
        row("below minimum", 10, 20, 5, 0);
        row("whole range of numbers", lowest, highest, highest, 96);
        row("busy", 0, 0, 1, 0);
        row("range upside down", 100, 0, 50, 0);
    }
    void progressFillsItsShare()
    {
        QFETCH(const int, minimum);
        QFETCH(const int, maximum);
        QFETCH(const int, progress);
        QFETCH(const int, width);
        auto option = progressBar(QRect(3, 4, 100, 20), Qt::Horizontal);
        option.minimum = minimum;
        option.maximum = maximum;
        option.progress = progress;
        const QRect strip(5, 11, 96, 4);
        const QColor highlight = option.palette.color(QPalette::Highlight);
        const QColor vivid = QColor::fromHsv(highlight.hue(), qMin(255, 3 * highlight.saturation()),
                                             highlight.value());
        const auto draw = [&](QPainter *painter) {
            painter->fillRect(QRect(strip.topLeft(), QSize(width, 4)),
                              gradient(strip.topLeft(), strip.topRight(),
                                       {{0.0, vivid}, {1.0, vivid.lighter(130)}}));
        };
        const QImage expected = width > 0 ? painted(draw, kGround) : blank(kGround);
        QCOMPARE(drawn(QStyle::CE_ProgressBarContents, option), expected);
        option.invertedAppearance = true;
        QCOMPARE(drawn(QStyle::CE_ProgressBarContents, option), expected);
    }

    void progressTextIsDrawnPlainly()
    {
        auto bar = progressBar(QRect(3, 4, 100, 20), Qt::Horizontal);
        bar.textVisible = true;
        bar.text = "40%"_q;
        const auto plain = [&](QPainter *painter) {
            m_style.QCommonStyle::drawControl(QStyle::CE_ProgressBarLabel, &bar, painter, nullptr);
        };
        QCOMPARE(drawn(QStyle::CE_ProgressBarLabel, bar), paintedKeepingSettings(plain, kGround));
    }

    void menuBarItemIsMarkedOnlyWhenItCanBeChosen()
    {
        const std::pair<QStyle::State, bool> states[] = {{kEnabled, false},
                                                         {kEnabled | QStyle::State_Selected, true},
                                                         {QStyle::State_Selected, false}};
        for (const auto &[state, marked] : states) {
            auto item = makeOption<QStyleOptionMenuItem>(QRect(6, 5, 70, 24), state);
            item.menuItemType = QStyleOptionMenuItem::Normal;
            item.text = "&File"_q;
            const QColor ground = item.palette.color(QPalette::Button).darker(110);
            const QRect mark = marked ? item.rect : QRect();
            const auto draw = [&](QPainter *painter) {
                painter->fillRect(mark, ground);
                m_style.QCommonStyle::drawControl(QStyle::CE_MenuBarItem, &item, painter, nullptr);
            };
            QCOMPARE(drawn(QStyle::CE_MenuBarItem, item), painted(draw, kGround));
        }
    }

    void toolBoxTabShadesFromWhiteToWhite()
    {
        for (const bool selected : {false, true}) {
            auto tab = makeOption<QStyleOptionToolBox>(QRect(5, 6, 80, 25), kEnabled);
            tab.state.setFlag(QStyle::State_Selected, selected);
            tab.text = "not drawn here"_q;
            const QColor middle(selected ? qRgb(195, 195, 195) : qRgb(235, 235, 235));
            const QColor edge(selected ? qRgb(89, 89, 89) : qRgb(189, 189, 189));
            const QImage expected = painted(
                    [&](QPainter *painter) {
                        painter->fillRect(
                                QRect(6, 7, 78, 23),
                                gradient(QPoint(5, 6), QPoint(5, 30),
                                         {{0.0, Qt::white}, {0.5, middle}, {1.0, Qt::white}}));
                        painter->setPen(QPen(edge, 0));
                        painter->drawRect(tab.rect);
                    },
                    kGround);
            QCOMPARE(drawn(QStyle::CE_ToolBoxTab, tab), expected);
            QCOMPARE(drawn(QStyle::CE_ToolBoxTabShape, tab), expected); // under a style sheet

            tab.palette.setColor(QPalette::ButtonText, Qt::black);
            const QImage caption = drawn(QStyle::CE_ToolBoxTabLabel, tab);
            tab.palette.setColor(QPalette::ButtonText, Qt::white); // as in a dark skin
            QCOMPARE(drawn(QStyle::CE_ToolBoxTabLabel, tab), caption);
            tab.text.clear();
            QVERIFY(drawn(QStyle::CE_ToolBoxTabLabel, tab) != caption);
        }
    }

    void toolBarShadesDown()
    {
        const auto bar = makeOption<QStyleOptionToolBar>(QRect(4, 5, 120, 40));
        const QColor window = bar.palette.color(QPalette::Window);
        const auto draw = [&](QPainter *painter) {
            painter->fillRect(bar.rect,
                              gradient(QPoint(4, 5), QPoint(4, 44),
                                       {{0.0, window.darker(150)},
                                        {0.05, bar.palette.color(QPalette::Mid).lighter(120)},
                                        {0.11, window},
                                        {0.3, window.lighter(104)},
                                        {0.6, window},
                                        {1.0, window.darker(107)}}));
        };
        QCOMPARE(drawn(QStyle::CE_ToolBar, bar), painted(draw, kGround));
    }

    void otherKindsOfOptionsDrawNothing()
    {
        const auto option = makeOption<QStyleOptionButton>(QRect(5, 6, 80, 25));
        for (const auto element :
             {QStyle::CE_ProgressBarGroove, QStyle::CE_ProgressBarContents, QStyle::CE_ToolBoxTab,
              QStyle::CE_TabBarTab, QStyle::CE_TabBarTabShape, QStyle::CE_ScrollBarAddLine,
              QStyle::CE_ScrollBarSubLine, QStyle::CE_ScrollBarSlider})
            QCOMPARE(drawn(element, option), blank(kGround));
    }
};

OMBRIN_TEST_MAIN(tst_OmStyle2Controls)
#include "tst_omstyle2_controls.moc"
