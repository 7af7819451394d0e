#include "skin/tst_omstyle2_support.h"
#include "support/TestCase.h"

#include <ombrin/OmStyle2.h>

using namespace ombrin::test;
using ombrin::OmStyle2;

namespace {

const QColor kGrey(189, 189, 189);
const QColor kDisabledGrey(203, 203, 203);
const QColor kOrange(255, 193, 48);

void drawOutline(QPainter *painter, const QRect &rect, const QPen &pen)
{
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect);
}

QImage checkMark(const QColor &color)
{
    static const char *const rows[] = {
            "         .", "        ..", "   .   ...", "   .. ...", "   .....", "    ...", "     .",
    };
    QImage image(13, 13, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < 7; ++y) {
        for (int x = 0; rows[y][x] != '\0'; ++x) {
            if (rows[y][x] == '.')
                image.setPixelColor(x, y + 3, color);
        }
    }
    return image;
}

void drawExpectedCheckBox(QPainter *painter, const QStyleOptionButton &option)
{
    const QRect r = option.rect;
    const bool enabled = option.state & kEnabled;
    const bool sunken = option.state & QStyle::State_Sunken;
    if (enabled && (option.state & kHover) && !sunken)
        drawOutline(painter, r, kOrange);

    QLinearGradient gradient(r.topLeft(), r.bottomRight());
    gradient.setColorAt(0, option.palette.color(QPalette::Window));
    gradient.setColorAt(1, option.palette.color(QPalette::Light));
    const QColor button = option.palette.color(QPalette::Button);
    QPen pen(button.darker(enabled ? 160 : 130));
    if (sunken)
        pen = QPen(button.darker(200), 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(gradient);
    painter->drawRect(
            QRect(QPoint(r.left() + 1, r.top() + 1), QPoint(r.right() - 1, r.bottom() - 1)));
    if (option.state & (QStyle::State_On | QStyle::State_NoChange | QStyle::State_Sunken))
        painter->drawImage(
                r, checkMark(enabled ? QColor(0x21, 0xa1, 0x21) : QColor(0x90, 0xd0, 0x90)));
}

} // namespace

class tst_OmStyle2Primitives : public ombrin::test::TestCase
{
    Q_OBJECT

private:
    QImage drawn(QStyle::PrimitiveElement element, const QStyleOption &option)
    {
        return paintedKeepingSettings([&](QPainter *painter) {
            m_style.drawPrimitive(element, &option, painter, nullptr);
        });
    }

    OmStyle2 m_style;

private Q_SLOTS:
    void frameIsOnePixelOfItsColour_data()
    {
        const auto row = columns<QStyle::PrimitiveElement, QStyle::State, QRect, QColor>(
                "element", "state", "rect", "color");

        const QRect rect(5, 7, 40, 21);
        row("frame", QStyle::PE_Frame, kEnabled, rect, kGrey);
        row("frame, disabled under the mouse", QStyle::PE_Frame, kHover, rect, kGrey);
        row("frame, tiny", QStyle::PE_Frame, kEnabled, {3, 3, 2, 2}, kGrey);
        row("line edit", QStyle::PE_FrameLineEdit, kEnabled, rect, kGrey);
        row("line edit under the mouse", QStyle::PE_FrameLineEdit, kEnabled | kHover, rect,
            kOrange);
        row("line edit, disabled", QStyle::PE_FrameLineEdit, QStyle::State(QStyle::State_None),
            rect, kDisabledGrey);
    }
    void frameIsOnePixelOfItsColour()
    {
        QFETCH(const QStyle::PrimitiveElement, element);
        QFETCH(const QStyle::State, state);
        QFETCH(const QRect, rect);
        QFETCH(const QColor, color);
        const auto option = makeOption<QStyleOptionFrame>(rect, state);
        const QImage expected = painted([&](QPainter *painter) {
            drawOutline(painter, rect.adjusted(0, 0, -1, -1), color);
        });
        QCOMPARE(drawn(element, option), expected);
    }

    // A pen of width 1 would leave a gap at the right and the bottom.
    void frameReachesEverySideOfADenseScreen()
    {
        const auto option = makeOption<QStyleOptionFrame>(QRect(0, 0, 20, 12));
        const auto draw = [&](QPainter *painter) {
            m_style.drawPrimitive(QStyle::PE_Frame, &option, painter, nullptr);
        };
        for (const qreal density : {1.25, 1.5, 2.0, 3.0}) {
            const QImage image = painted(draw, QSize(20, 12), density);
            const QRect outer = image.rect();
            const int thickest = qCeil(density);
            const QRect inner = outer.adjusted(thickest, thickest, -thickest, -thickest);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const bool isEdge = x == outer.left() || x == outer.right() || y == outer.top()
                                        || y == outer.bottom();
                    if (isEdge)
                        QCOMPARE(image.pixelColor(x, y), kGrey);
                    else if (inner.contains(x, y))
                        QCOMPARE(image.pixelColor(x, y), QColor(250, 235, 215));
                }
            }
        }
    }

    void menuBarHasTwoDarkLinesAboveAndBelow()
    {
        const QRect r(4, 3, 30, 20);
        const auto option = makeOption<QStyleOptionFrame>(r);
        const QColor window = option.palette.color(QPalette::Inactive, QPalette::Window);
        const QImage expected = painted([&](QPainter *painter) {
            painter->fillRect(QRect(4, 3, 30, 1), window.darker(200));
            painter->fillRect(QRect(4, 4, 30, 1), window.darker(150));
            painter->fillRect(QRect(4, 21, 30, 2), window.darker(150));
            painter->fillRect(QRect(4, 3, 1, 20), window.darker(150));
        });
        QCOMPARE(drawn(QStyle::PE_PanelMenuBar, option), expected);
    }

    void checkBoxInEveryState_data()
    {
        const auto row = columns<QStyle::State, QRect>("state", "rect");
        const QRect rect(6, 5, 13, 13);
        const QStyle::State checks[] = {QStyle::State_Off, QStyle::State_On,
                                        QStyle::State_NoChange};
        for (const QStyle::State check : checks) {
            for (const QStyle::State rest : {QStyle::State(kHover), kEnabled, kEnabled | kHover,
                                             kEnabled | kHover | QStyle::State_Sunken})
                QTest::addRow("state %x", unsigned(check | rest)) << (check | rest) << rect;
        }
        const QStyle::State checked = kEnabled | QStyle::State_On;
        row("scaled up", checked, {6, 5, 26, 26});
        row("scaled unevenly", checked | kHover, {6, 5, 17, 20});
        row("scaled down", checked | QStyle::State_Sunken, {6, 5, 8, 8});
    }
    void checkBoxInEveryState()
    {
        QFETCH(const QStyle::State, state);
        QFETCH(const QRect, rect);
        const auto option = makeOption<QStyleOptionButton>(rect, state);
        const QImage expected =
                painted([&](QPainter *painter) { drawExpectedCheckBox(painter, option); });
        QCOMPARE(drawn(QStyle::PE_IndicatorCheckBox, option), expected);
        const auto wrongKind = makeOption<QStyleOptionViewItem>(rect, state);
        QCOMPARE(drawn(QStyle::PE_IndicatorCheckBox, wrongKind), blank());
    }

    void branchShowsAnArrowInTheMiddle_data()
    {
        const auto row =
                columns<QRect, QStyle::State, int, QRect>("cell", "state", "arrow", "place");
        const QStyle::State closed = kEnabled | QStyle::State_Children;
        const QStyle::State open = closed | QStyle::State_Open;
        const int right = QStyle::PE_IndicatorArrowRight;
        const int down = QStyle::PE_IndicatorArrowDown;
        row("closed", {2, 3, 20, 20}, closed, right, {7, 8, 10, 10});
        row("open", {2, 3, 20, 20}, open, down, {7, 8, 10, 10});
        row("odd cell", {0, 0, 21, 17}, open, down, {6, 4, 10, 10});
        row("narrow", {2, 3, 8, 20}, closed, right, {2, 3, 8, 20});
        row("low", {2, 3, 20, 10}, open, down, {2, 3, 20, 10});
        row("no children", {2, 3, 20, 20}, kEnabled | QStyle::State_Open | QStyle::State_Item, -1,
            {});
    }
    void branchShowsAnArrowInTheMiddle()
    {
        QFETCH(const QRect, cell);
        QFETCH(const QStyle::State, state);
        QFETCH(const int, arrow);
        QFETCH(const QRect, place);
        auto *style = new OmStyle2;
        const RecordingStyle above(style);
        auto option = makeOption<QStyleOptionViewItem>(cell, state);
        const QImage image = painted([&](QPainter *painter) {
            style->drawPrimitive(QStyle::PE_IndicatorBranch, &option, painter, nullptr);
        });
        if (arrow < 0) {
            QVERIFY(above.primitives().isEmpty());
            QCOMPARE(image, blank());
            return;
        }
        QCOMPARE(above.primitives().size(), 1);
        QCOMPARE(int(above.primitives().first().element), arrow);
        QCOMPARE(above.primitives().first().rect, place);

        option.rect = place;
        const QImage expected = painted([&](QPainter *painter) {
            style->baseStyle()->drawPrimitive(QStyle::PrimitiveElement(arrow), &option, painter,
                                              nullptr);
        });
        QCOMPARE(image, expected);
        QVERIFY(image != blank());
    }

    void lineEditPanelIsFilledInsideAFrameOfOurs()
    {
        auto option = makeOption<QStyleOptionFrame>(QRect(5, 7, 40, 21), kEnabled | kHover);
        option.lineWidth = 1;
        const QImage image = drawn(QStyle::PE_PanelLineEdit, option);
        QCOMPARE(image.pixelColor(option.rect.center()), option.palette.color(QPalette::Base));

        option.lineWidth = 0;
        const QImage ground = drawn(QStyle::PE_PanelLineEdit, option);
        const QImage expected = painted([&](QPainter *painter) {
            m_style.baseStyle()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, painter, nullptr);
        });
        QCOMPARE(ground, expected); // a line edit without a frame
        const QImage framed = painted([&](QPainter *painter) {
            painter->drawImage(0, 0, expected);
            drawOutline(painter, option.rect.adjusted(0, 0, -1, -1), kOrange);
        });
        QCOMPARE(image, framed);
    }
};

OMBRIN_TEST_MAIN(tst_OmStyle2Primitives)
#include "tst_omstyle2_primitives.moc"
