#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmLinkButton.h>

#include <tuple>

using ombrin::OmLinkButton;
using namespace ombrin::test;

namespace {

constexpr QRgb kLink = 0xff009cff;
const QString kText = "Show details"_q;

// Notes the arrows and focus frames that a button asks for, and draws none of them.
class NotingStyle : public QProxyStyle
{
public:
    NotingStyle()
        : QProxyStyle("fusion"_q)
    {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        drawn.append({element, option->rect});
    }

    mutable QVector<QPair<PrimitiveElement, QRect>> drawn;
};

struct Button : OmLinkButton
{
    explicit Button(const QString &text = kText)
        : OmLinkButton(text, nullptr)
    {
        setStyle(&style);
        QPalette colors = palette();
        colors.setColor(QPalette::Link, QColor::fromRgb(kLink));
        colors.setColor(QPalette::Disabled, QPalette::Link, Qt::gray);
        setPalette(colors);
        resize(200, 30);
    }
    ~Button() override { setStyle(nullptr); }

    QImage paint()
    {
        style.drawn.clear();
        return paintedOnNothing(this);
    }

    NotingStyle style;
};

// The text and its underline, put down by the rules; returns where the text lies.
QRect drawExpected(QImage *image, const OmLinkButton &button, const QString &text,
                   const QColor &color)
{
    QPainter painter(image);
    painter.setFont(button.font());
    painter.setPen(color);
    const bool isMirrored = button.layoutDirection() == Qt::RightToLeft;
    const int alignment = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    QRect bounds;
    painter.drawText(QRect(2, 0, button.width() - 4, button.height()), alignment | Qt::AlignVCenter,
                     text, &bounds);
    const int y = bounds.bottom() + 1 - button.fontMetrics().descent();
    painter.fillRect(bounds.left(), y, bounds.width(), 1, color);
    return bounds;
}

QImage blank(const QSize &size)
{
    return flatImage(size, Qt::transparent, QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class tst_OmLinkButton : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizeHintLeavesRoomForMarginsAndArrow()
    {
        Button button;
        const QSize text = button.fontMetrics().boundingRect(kText).size();
        QCOMPARE(button.sizeHint(), text + QSize(4, 0));
        button.setCheckable(true);
        const int arrow = button.fontMetrics().height();
        QCOMPARE(button.sizeHint(), text + QSize(4 + arrow, 0));
        button.setText(QString());
        QCOMPARE(button.sizeHint().width(), 4 + arrow);
    }

    void drawsUnderlinedText_data()
    {
        const auto row =
                columns<QString, bool, Qt::LayoutDirection>("text", "enabled", "direction");
        row("plain", kText, true, Qt::LeftToRight);
        row("disabled", kText, false, Qt::LeftToRight);
        row("ampersand", "You && &me", true, Qt::LeftToRight);
        row("right-to-left", "\u05e9\u05dc\u05d5\u05dd", true, Qt::RightToLeft);
    }
    void drawsUnderlinedText()
    {
        QFETCH(QString, text);
        QFETCH(bool, enabled);
        QFETCH(Qt::LayoutDirection, direction);
        Button button(text);
        QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
        button.setEnabled(enabled);
        button.setLayoutDirection(direction);
        QImage expected = blank(button.size());
        drawExpected(&expected, button, text, enabled ? QColor::fromRgb(kLink) : QColor(Qt::gray));
        QCOMPARE(button.paint(), expected);
        QVERIFY(button.style.drawn.isEmpty());
    }

    void elidesAsToldTo()
    {
        Button button;
        button.resize(60, 30);
        QCOMPARE(button.textElideMode(), Qt::ElideNone);
        for (const auto mode : {Qt::ElideNone, Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight}) {
            button.setTextElideMode(mode);
            QImage expected = blank(button.size());
            const QString shown = button.fontMetrics().elidedText(kText, mode, 56);
            QCOMPARE(shown == kText, mode == Qt::ElideNone);
            drawExpected(&expected, button, shown, QColor::fromRgb(kLink));
            QCOMPARE(button.paint(), expected);
        }
    }

    void arrowFollowsTheText()
    {
        const std::tuple<bool, Qt::LayoutDirection, int> arrows[] = {
                {false, Qt::LeftToRight, QStyle::PE_IndicatorArrowRight},
                {true, Qt::LeftToRight, QStyle::PE_IndicatorArrowDown},
                {false, Qt::RightToLeft, QStyle::PE_IndicatorArrowLeft},
                {true, Qt::RightToLeft, QStyle::PE_IndicatorArrowDown}};
        for (const auto &[checked, direction, arrow] : arrows) {
            Button button;
            button.setLayoutDirection(direction);
            button.setCheckable(true);
            button.setChecked(checked);
            button.resize(button.sizeHint());
            QImage image = blank(button.size());
            const QRect text = drawExpected(&image, button, kText, Qt::black);
            button.paint();
            QCOMPARE(button.style.drawn.size(), 1);
            QCOMPARE(int(button.style.drawn.first().first), arrow);
            const int extent = button.fontMetrics().height();
            const int left = direction == Qt::LeftToRight ? text.right() : text.left() - extent + 1;
            const QRect place = button.style.drawn.first().second;
            QCOMPARE(place, QRect(left, text.top(), extent, text.height()));
            QVERIFY(button.rect().adjusted(0, -20, 0, 20).contains(place));
        }
    }

    void focusIsVisible()
    {
        Button button;
        QVERIFY(activate(&button));
        button.clearFocus();
        button.paint();
        QVERIFY(button.style.drawn.isEmpty());
        QTest::keyClick(&button, Qt::Key_Tab);
        button.setFocus(Qt::TabFocusReason);
        QVERIFY(button.hasFocus());
        button.paint();
        QCOMPARE(button.style.drawn.size(), 1);
        QCOMPARE(button.style.drawn.first().first, QStyle::PE_FrameFocusRect);
        QCOMPARE(button.style.drawn.first().second, button.rect());

        QSignalSpy spy(&button, &QAbstractButton::clicked);
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(spy.size(), 1);
    }

    void screenReadersSeeALinkOrAnExpander()
    {
        Button button;
        QCOMPARE(accessible(&button)->role(), QAccessible::Link);
        QCOMPARE(accessibleName(&button), kText);
        QVERIFY(accessible(&button)->state().linked && accessible(&button)->state().focusable);
        QVERIFY(!accessible(&button)->state().expandable);
        QSignalSpy spy(&button, &QAbstractButton::clicked);
        pressAccessibly(&button);
        QCOMPARE(spy.size(), 1);

        button.setCheckable(true);
        QCOMPARE(accessible(&button)->role(), QAccessible::Button);
        QVERIFY(accessible(&button)->state().expandable && accessible(&button)->state().collapsed);
        pressAccessibly(&button);
        QVERIFY(accessible(&button)->state().checked && accessible(&button)->state().expanded);
        QVERIFY(!accessible(&button)->state().collapsed);
        button.setDown(true);
        QVERIFY(accessible(&button)->state().pressed);
        button.setShortcut(QKeySequence(Qt::Key_F7));
        QCOMPARE(accessible(&button)->text(QAccessible::Accelerator), "F7"_q);
    }

    void mayBeDeletedInItsSlot()
    {
        auto button = std::make_unique<Button>();
        connect(button.get(), &QAbstractButton::pressed, this, [&button] { button.reset(); });
        pressAccessibly(button.get());
        QVERIFY(!button);
    }
};

OMBRIN_TEST_MAIN(tst_OmLinkButton)
#include "tst_omlinkbutton.moc"
