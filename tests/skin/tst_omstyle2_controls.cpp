#include "skin/tst_omstyle2_support.h"
#include "support/TestCase.h"

#include <ombrin/OmStyle2.h>

#include <limits>

Q_DECLARE_METATYPE(QStyle::ControlElement)
Q_DECLARE_METATYPE(QStyle::State)

using namespace ombrin::test;
using ombrin::OmStyle2;

namespace {

constexpr QSize kGround(130, 60);
constexpr QStyle::State kEnabled = QStyle::State_Enabled;

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
        return painted(draw, kGround);
    }
    QImage drawnByCommonStyle(QStyle::ControlElement element, const QStyleOption &option)
    {
        const auto draw = [&](QPainter *painter) {
            m_style.QCommonStyle::drawControl(element, &option, painter, nullptr);
        };
        return painted(draw, kGround);
    }

    OmStyle2 m_style;

private Q_SLOTS:
    void progressGrooveIsAThinStrip_data()
    {
        QTest::addColumn<QRect>("bar");
        QTest::addColumn<QRect>("strip");
        QTest::newRow("at the origin") << QRect(0, 0, 100, 20) << QRect(2, 7, 96, 4);
        QTest::newRow("elsewhere") << QRect(11, 9, 101, 23) << QRect(13, 18, 97, 4);
        QTest::newRow("narrow") << QRect(5, 4, 20, 50) << QRect(7, 26, 16, 4);
        QTest::newRow("lower than the strip") << QRect(0, 10, 60, 3) << QRect(2, 9, 56, 4);
    }
    void progressGrooveIsAThinStrip()
    {
        QFETCH(const QRect, bar);
        QFETCH(const QRect, strip);
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const auto option = progressBar(bar, orientation);
            const QColor window = option.palette.color(QPalette::Window);
            const QPoint end =
                    orientation == Qt::Horizontal ? strip.bottomLeft() : strip.topRight();
            const auto draw = [&](QPainter *painter) {
                painter->fillRect(strip, gradient(strip.topLeft(), end,
                                                  {{0.0, window.darker(120)},
                                                   {0.5, window.darker(117)},
                                                   {1.0, window.darker(110)}}));
            };
            QCOMPARE(drawn(QStyle::CE_ProgressBarGroove, option), painted(draw, kGround));
        }
    }

    void progressFillsItsShare_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("progress");
        QTest::addColumn<int>("width");
        constexpr int lowest = std::numeric_limits<int>::min();
        constexpr int highest = std::numeric_limits<int>::max();
        QTest::newRow("nothing done") << 0 << 100 << 0 << 0;
        QTest::newRow("all done") << 0 << 100 << 100 << 96;
        QTest::newRow("truncated") << 0 << 100 << 33 << 31;
        QTest::newRow("from a negative minimum") << -100 << 100 << 50 << 72;
        QTest::newRow("below minimum") << 10 << 20 << 5 << 0;
        QTest::newRow("above maximum") << 0 << 100 << 300 << 96;
        QTest::newRow("whole range of numbers") << lowest << highest << highest << 96;
        QTest::newRow("busy") << 0 << 0 << 1 << 0;
        QTest::newRow("range upside down") << 100 << 0 << 50 << 0;
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
        bar.text = QStringLiteral("40%");
        bar.progress = 40;
        QCOMPARE(drawn(QStyle::CE_ProgressBarLabel, bar),
                 drawnByCommonStyle(QStyle::CE_ProgressBarLabel, bar));
        QVERIFY(drawn(QStyle::CE_ProgressBarLabel, bar) != blank(kGround));
    }

    void menuBarItemIsMarkedOnlyWhenItCanBeChosen_data()
    {
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<bool>("marked");
        QTest::newRow("plain") << kEnabled << false;
        QTest::newRow("selected") << (kEnabled | QStyle::State_Selected) << true;
        QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << false;
        QTest::newRow("selected, disabled") << QStyle::State(QStyle::State_Selected) << false;
    }
    void menuBarItemIsMarkedOnlyWhenItCanBeChosen()
    {
        QFETCH(const QStyle::State, state);
        QFETCH(const bool, marked);
        auto item = makeOption<QStyleOptionMenuItem>(QRect(6, 5, 70, 24), state);
        item.menuItemType = QStyleOptionMenuItem::Normal;
        item.text = QStringLiteral("&File");
        const auto draw = [&](QPainter *painter) {
            if (marked)
                painter->fillRect(item.rect, item.palette.color(QPalette::Button).darker(110));
            m_style.QCommonStyle::drawControl(QStyle::CE_MenuBarItem, &item, painter, nullptr);
        };
        const QImage expected = painted(draw, kGround);
        QCOMPARE(drawn(QStyle::CE_MenuBarItem, item), expected);
        QVERIFY(expected != blank(kGround));
    }

    void toolBoxTabShadesFromWhiteToWhite_data()
    {
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<int>("middle");
        QTest::addColumn<int>("edge");
        QTest::newRow("plain") << kEnabled << 235 << 189;
        QTest::newRow("selected") << (kEnabled | QStyle::State_Selected) << 195 << 89;
    }
    void toolBoxTabShadesFromWhiteToWhite()
    {
        QFETCH(const QStyle::State, state);
        QFETCH(const int, middle);
        QFETCH(const int, edge);
        auto tab = makeOption<QStyleOptionToolBox>(QRect(5, 6, 80, 25), state);
        tab.text = QStringLiteral("not drawn here");
        const auto draw = [&](QPainter *painter) {
            painter->fillRect(QRect(6, 7, 78, 23), gradient(QPoint(5, 6), QPoint(5, 30),
                                                            {{0.0, Qt::white},
                                                             {0.5, QColor(middle, middle, middle)},
                                                             {1.0, Qt::white}}));
            painter->setPen(QPen(QColor(edge, edge, edge), 0));
            painter->drawRect(tab.rect);
        };
        QCOMPARE(drawn(QStyle::CE_ToolBoxTab, tab), painted(draw, kGround));
        QCOMPARE(drawn(QStyle::CE_ToolBoxTabShape, tab),
                 painted(draw, kGround)); // under a style sheet
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

    void painterIsLeftAsItWas()
    {
        auto box = makeOption<QStyleOptionToolBox>(QRect(5, 6, 80, 25));
        auto tab =
                makeOption<QStyleOptionTab>(QRect(5, 6, 80, 25), kEnabled | QStyle::State_Selected);
        const auto draw = [&](QPainter *painter) {
            const QPen pen(Qt::red, 3);
            const QBrush brush(Qt::green);
            painter->setPen(pen);
            painter->setBrush(brush);
            m_style.drawControl(QStyle::CE_ToolBoxTab, &box, painter, nullptr);
            for (int shape = QTabBar::RoundedNorth; shape <= QTabBar::TriangularEast; ++shape) {
                tab.shape = QTabBar::Shape(shape);
                m_style.drawControl(QStyle::CE_TabBarTabShape, &tab, painter, nullptr);
            }
            QCOMPARE(painter->pen(), pen);
            QCOMPARE(painter->brush(), brush);
            QCOMPARE(painter->transform(), QTransform());
        };
        painted(draw, kGround);
    }
};

OMBRIN_TEST_MAIN(tst_OmStyle2Controls)
#include "tst_omstyle2_controls.moc"
