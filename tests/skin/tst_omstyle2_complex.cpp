#include "skin/tst_omstyle2_support.h"
#include "support/TestCase.h"

#include <ombrin/OmStyle2.h>

#include <functional>

using namespace ombrin::test;
using ombrin::OmStyle2;

// The style knows these classes by their names only.
class RelativeScrollBar : public QScrollBar
{
    Q_OBJECT
};

namespace ombrin {

class OmIconComboBox : public QComboBox
{
    Q_OBJECT
};

} // namespace ombrin

namespace {

constexpr QSize kGround(220, 220);
constexpr QStyle::State kNoState = QStyle::State_None;
const QString kPictureOf[] = {
        ":/scrollbar_vertical_right_"_q,      ":/scrollbar_vertical_left_"_q,
        ":/scrollbar_horizontal_down_"_q,     ":/scrollbar_horizontal_up_"_q,
        ":/scrollbar_horizontal_trackbar_"_q, ":/scrollbar_vertical_trackbar_"_q};

QString skinFile()
{
    return QCoreApplication::applicationDirPath() + "/skins/default/default.res"_q;
}

QStyleOptionSlider scrollBar(const QRect &rect, Qt::Orientation orientation,
                             QStyle::State state = kEnabled)
{
    auto bar = makeOption<QStyleOptionSlider>(rect, state);
    bar.orientation = orientation;
    bar.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
    bar.subControls = QStyle::SC_All;
    bar.maximum = 100;
    bar.pageStep = 50;
    bar.sliderPosition = 40;
    bar.sliderValue = 40;
    return bar;
}

void drawExpectedPage(QPainter *painter, const QStyleOptionSlider &bar, const QRect &r)
{
    const QColor window = bar.palette.color(QPalette::Window);
    QLinearGradient gradient(r.topLeft(),
                             bar.orientation == Qt::Horizontal ? r.bottomLeft() : r.topRight());
    gradient.setStops(
            {{0.0, window.lighter(105)}, {0.5, window.lighter(108)}, {1.0, window.lighter(110)}});
    painter->fillRect(r, gradient);
}

} // namespace

class tst_OmStyle2Complex : public ombrin::test::TestCase
{
    Q_OBJECT

private:
    QImage drawn(QStyle::ControlElement element, const QStyleOption &option,
                 const QWidget *widget = nullptr)
    {
        const auto draw = [&](QPainter *painter) {
            m_style.drawControl(element, &option, painter, widget);
        };
        return painted(draw, kGround);
    }
    QImage drawn(QStyle::ComplexControl control, const QStyleOptionComplex &option,
                 const QWidget *widget = nullptr)
    {
        const auto draw = [&](QPainter *painter) {
            m_style.drawComplexControl(control, &option, painter, widget);
        };
        return painted(draw, kGround);
    }
    QRect part(const QStyleOptionSlider &bar, QStyle::SubControl control)
    {
        return m_style.subControlRect(QStyle::CC_ScrollBar, &bar, control, nullptr);
    }

    OmStyle2 m_style;

private Q_SLOTS:
    void initTestCase() { QVERIFY(QResource::registerResource(skinFile())); }
    void cleanupTestCase() { QVERIFY(QResource::unregisterResource(skinFile())); }

    void arrowsOfAMirroredBarPointOutward()
    {
        auto bar = scrollBar(QRect(0, 0, 16, 16), Qt::Horizontal);
        const QImage right = drawn(QStyle::CE_ScrollBarAddLine, bar);
        const QImage left = drawn(QStyle::CE_ScrollBarSubLine, bar);
        bar.direction = Qt::RightToLeft;
        QCOMPARE(drawn(QStyle::CE_ScrollBarAddLine, bar), left);
        QCOMPARE(drawn(QStyle::CE_ScrollBarSubLine, bar), right);

        bar.orientation = Qt::Vertical;
        const QImage down = drawn(QStyle::CE_ScrollBarAddLine, bar);
        bar.direction = Qt::LeftToRight;
        QCOMPARE(drawn(QStyle::CE_ScrollBarAddLine, bar), down);
    }

    void pagesShadeAcrossTheBar()
    {
        const std::pair<Qt::Orientation, QRect> pages[] = {
                {Qt::Horizontal, {5, 6, 150, 16}}, {Qt::Vertical, {6, 5, 16, 50}},
                {Qt::Vertical, {203, 0, 17, 220}}, {Qt::Vertical, {-5, -7, 16, 20}},
                {Qt::Vertical, {3, 4, 1, 1}},      {Qt::Vertical, {3, 4, 16, 0}}};
        for (const auto &[orientation, page] : pages) {
            const auto bar = scrollBar(page, orientation, kNoState);
            const QImage expected = painted(
                    [&](QPainter *painter) { drawExpectedPage(painter, bar, bar.rect); }, kGround);
            QCOMPARE(drawn(QStyle::CE_ScrollBarAddPage, bar), expected);
            QCOMPARE(drawn(QStyle::CE_ScrollBarSubPage, bar), expected); // from memory
        }
    }

    void relativeSliderHasAnArrowInEachHalf()
    {
        auto *style = new OmStyle2;
        const RecordingStyle above(style);
        const RelativeScrollBar relative;
        auto bar = scrollBar(QRect(0, 20, 16, 60), Qt::Vertical, kNoState | kHover);
        const auto draw = [&](QPainter *painter) {
            style->drawControl(QStyle::CE_ScrollBarSlider, &bar, painter, &relative);
        };
        QVERIFY(painted(draw, kGround) != blank(kGround)); // disabled too
        const QVector<RecordingStyle::Primitive> &arrows = above.primitives();
        QCOMPARE(arrows.size(), 2);
        QCOMPARE(arrows[0].element, QStyle::PE_IndicatorArrowUp);
        QCOMPARE(arrows[0].rect, QRect(QPoint(4, 24), QPoint(11, 45)));
        QCOMPARE(arrows[0].state, kNoState);
        QCOMPARE(arrows[1].element, QStyle::PE_IndicatorArrowDown);
        QCOMPARE(arrows[1].rect, QRect(QPoint(4, 53), QPoint(11, 74)));
        QCOMPARE(arrows[1].state, kNoState);
    }

    void scrollBarIsLaidOutTheCommonWay()
    {
        const auto upright = scrollBar(QRect(0, 0, 16, 200), Qt::Vertical);
        const auto lying = scrollBar(QRect(0, 0, 200, 16), Qt::Horizontal);
        const std::pair<QStyle::SubControl, QRect> parts[] = {
                {QStyle::SC_ScrollBarSubLine, {0, 0, 16, 16}},
                {QStyle::SC_ScrollBarAddLine, {0, 184, 16, 16}},
                {QStyle::SC_ScrollBarGroove, {0, 16, 16, 168}},
                {QStyle::SC_ScrollBarSlider, {0, 61, 16, 56}}};
        for (const auto &[control, rect] : parts) {
            QCOMPARE(part(upright, control), rect);
            QCOMPARE(part(lying, control), QRect(rect.y(), rect.x(), rect.height(), rect.width()));
        }
    }

    void scrollBarIsComposedOfItsParts_data()
    {
        columns<int, QStyle::State, QStyle::SubControl, int>("orientation", "state", "active",
                                                             "maximum");
        const auto none = QStyle::SC_None;
        const auto end = QStyle::SC_ScrollBarAddLine;
        const auto slider = QStyle::SC_ScrollBarSlider;
        const QStyle::State hovered = kEnabled | kHover;
        for (const int way : {int(Qt::Vertical), int(Qt::Horizontal)}) {
            QTest::addRow("plain %d", way) << way << kEnabled << end << 100;
            QTest::addRow("hovered %d", way) << way << hovered << none << 100;
            QTest::addRow("end hovered %d", way) << way << hovered << end << 100;
            QTest::addRow("slider hovered %d", way) << way << hovered << slider << 100;
            QTest::addRow("disabled %d", way) << way << kHover << slider << 100;
            QTest::addRow("nothing to scroll %d", way) << way << hovered << slider << 0;
        }
    }
    void scrollBarIsComposedOfItsParts()
    {
        QFETCH(const int, orientation);
        QFETCH(const QStyle::State, state);
        QFETCH(const QStyle::SubControl, active);
        QFETCH(const int, maximum);
        const bool upright = orientation == Qt::Vertical;
        auto bar = scrollBar(upright ? QRect(0, 0, 16, 150) : QRect(0, 0, 150, 16),
                             Qt::Orientation(orientation), state);
        bar.activeSubControls = active;
        bar.maximum = maximum;
        bar.sliderPosition = qMin(maximum, 40);
        const auto drawPart = [&](QPainter *painter, int picture, QStyle::SubControl control) {
            const bool hover = active == control && (state & kHover);
            const QString name = kPictureOf[picture] + (hover ? "hover"_q : "normal"_q);
            painter->drawPixmap(part(bar, control), QPixmap(name));
        };
        const auto draw = [&](QPainter *painter) {
            for (const auto page : {QStyle::SC_ScrollBarAddPage, QStyle::SC_ScrollBarSubPage}) {
                if (part(bar, page).isValid())
                    drawExpectedPage(painter, bar, part(bar, page));
            }
            if (!(state & kEnabled) || maximum == 0)
                return;
            drawPart(painter, upright ? 2 : 0, QStyle::SC_ScrollBarAddLine);
            drawPart(painter, upright ? 3 : 1, QStyle::SC_ScrollBarSubLine);
            drawPart(painter, upright ? 5 : 4, QStyle::SC_ScrollBarSlider);
        };
        QCOMPARE(drawn(QStyle::CC_ScrollBar, bar), painted(draw, kGround));
    }

    // Qt does not clear the ground of a widget that says it paints all of itself.
    void scrollBarCoversWhatWasThereBefore()
    {
        QScrollBar widget(Qt::Vertical);
        widget.setAttribute(Qt::WA_OpaquePaintEvent);
        auto bar = scrollBar(QRect(0, 0, 16, 150), Qt::Vertical, kNoState);
        const QImage image = drawn(QStyle::CC_ScrollBar, bar, &widget);
        QCOMPARE(image.pixelColor(1, 1), bar.palette.color(QPalette::Window));
        QCOMPARE(image.pixelColor(8, 80), bar.palette.color(QPalette::Window));
        widget.setAttribute(Qt::WA_OpaquePaintEvent, false);
        QCOMPARE(drawn(QStyle::CC_ScrollBar, bar, &widget), drawn(QStyle::CC_ScrollBar, bar));
    }

    void comboBoxIsAFieldWithAnArrow_data()
    {
        const auto row = columns<QStyle::State, QStyle::SubControl, QString, QColor>(
                "state", "active", "picture", "frame");
        const auto none = QStyle::SC_None;
        const auto arrow = QStyle::SC_ComboBoxArrow;
        const QColor grey(189, 189, 189);
        const QColor orange(255, 193, 48);
        row("normal", kEnabled, none, "normal", grey);
        row("under the mouse", kEnabled | kHover, none, "normal", orange);
        row("arrow under the mouse", kEnabled | kHover, arrow, "hover", orange);
        row("open", kEnabled | QStyle::State_On, none, "clicked", grey);
        row("pressed", kEnabled | QStyle::State_Sunken | kHover, arrow, "clicked", orange);
        row("disabled", kHover | QStyle::State_On, arrow, "disabled", {203, 203, 203});
    }

    void comboBoxIsAFieldWithAnArrow()
    {
        QFETCH(const QStyle::State, state);
        QFETCH(const QStyle::SubControl, active);
        QFETCH(const QString, picture);
        QFETCH(const QColor, frame);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            auto box = makeOption<QStyleOptionComboBox>(QRect(0, 0, 120, 24), state);
            box.subControls = QStyle::SC_All;
            box.activeSubControls = active;
            box.direction = direction;
            box.currentText = "not drawn here"_q;
            const auto draw = [&](QPainter *painter) {
                painter->fillRect(box.rect, box.palette.color(QPalette::Base));
                painter->setPen(frame);
                painter->drawRect(QRect(0, 0, 119, 23));
                const QRect arrow = m_style.subControlRect(QStyle::CC_ComboBox, &box,
                                                           QStyle::SC_ComboBoxArrow, nullptr);
                painter->drawPixmap(arrow.left(), (arrow.height() - 7) / 2,
                                    QPixmap(":/combobox_arrow_"_q + picture));
            };
            QCOMPARE(drawn(QStyle::CC_ComboBox, box), painted(draw, kGround));
        }
    }

    void iconComboBoxOpensAWiderList()
    {
        const ombrin::OmIconComboBox iconBox;
        const QComboBox plainBox;
        auto box = makeOption<QStyleOptionComboBox>(QRect(0, 0, 150, 24));
        const auto rect = [&](QStyle::SubControl control, const QWidget *widget) {
            return m_style.subControlRect(QStyle::CC_ComboBox, &box, control, widget);
        };
        const auto list = QStyle::SC_ComboBoxListBoxPopup;
        const auto arrow = QStyle::SC_ComboBoxArrow;
        QCOMPARE(rect(list, &iconBox), QRect(0, 0, 250, 24));
        QCOMPARE(rect(arrow, &iconBox), rect(arrow, &plainBox));
        const QRect below =
                m_style.baseStyle()->subControlRect(QStyle::CC_ComboBox, &box, list, &plainBox);
        QCOMPARE(rect(list, &plainBox), below);
    }

    // Plastique writes on a dark ground of its own, Fusion in white.
    void titlesWithinAWindowAreLegible()
    {
        auto bar = makeOption<QStyleOptionTitleBar>(QRect(0, 0, 64, 24),
                                                    QStyle::State_Enabled | QStyle::State_Active);
        bar.text = "Title"_q;
        bar.titleBarState = Qt::WindowActive;
        bar.titleBarFlags = Qt::WindowTitleHint;
        bar.subControls = QStyle::SC_TitleBarLabel;
        QVector<QImage> pictures;
        for (const Qt::GlobalColor text : {Qt::black, Qt::white}) {
            bar.palette.setColor(QPalette::HighlightedText, text);
            pictures.append(drawn(QStyle::CC_TitleBar, bar));
        }
        QCOMPARE(pictures.first(), pictures.last());
        QVERIFY(pictures.first() != blank(kGround));
    }

    void missingPicturesLeaveTheirPlaces()
    {
        QVERIFY(QResource::unregisterResource(skinFile()));
        QPixmapCache::clear();
        const auto bar = scrollBar(QRect(0, 0, 16, 16), Qt::Vertical);
        for (const auto element :
             {QStyle::CE_ScrollBarAddLine, QStyle::CE_ScrollBarSubLine, QStyle::CE_ScrollBarSlider})
            QCOMPARE(drawn(element, bar), blank(kGround));
        const auto box = makeOption<QStyleOptionComboBox>(QRect(0, 0, 120, 24));
        const QImage field = drawn(QStyle::CC_ComboBox, box);
        QCOMPARE(field.copy(1, 1, 118, 22).pixelColor(110, 11), box.palette.color(QPalette::Base));
        QVERIFY(QResource::registerResource(skinFile()));
    }
};

OMBRIN_TEST_MAIN(tst_OmStyle2Complex)
#include "tst_omstyle2_complex.moc"
