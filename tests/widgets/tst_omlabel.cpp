#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmLabel.h>

#include <functional>

using ombrin::OmLabel;
using namespace ombrin::test;

namespace {

const QString kText = "Back in ten minutes, gone for a walk"_q;

QString shownText(const OmLabel &label)
{
    return label.QLabel::text();
}

QString expectedText(const OmLabel &label, const QString &text)
{
    return label.fontMetrics().elidedText(text, label.elideMode(), label.width());
}

// On screen, as a hidden widget is not told of its size.
struct ShownLabel
{
    explicit ShownLabel(int width = 60, bool elide = true)
        : label(new OmLabel(elide, &window))
    {
        window.resize(800, 100);
        label->resize(width, 20);
        window.show();
    }

    QWidget window;
    QPointer<OmLabel> label;
};

} // namespace

class tst_OmLabel : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatFitsAtEveryWidth_data()
    {
        const auto row = columns<Qt::TextElideMode, QString>("mode", "text");
        row("right", Qt::ElideRight, kText);
        row("left", Qt::ElideLeft, kText);
        row("middle", Qt::ElideMiddle, kText);
        row("none", Qt::ElideNone, kText);
        row("right-to-left", Qt::ElideRight, "\u05e9\u05dc\u05d5\u05dd Ada, \u05d0\u05d1");
        row("combining", Qt::ElideMiddle, "Ae\u0301\u0323o\u0308\u0308y");
    }
    void showsWhatFitsAtEveryWidth()
    {
        QFETCH(Qt::TextElideMode, mode);
        QFETCH(QString, text);
        ShownLabel test;
        test.label->setElideMode(mode);
        test.label->setText(text);
        // Up, down, and to and fro, as a splitter is dragged.
        QVector<int> widths;
        for (int width = 0; width < 300; ++width)
            widths << width;
        for (int width = 300; width >= 0; width -= 3)
            widths << width << width + 2;
        for (const int width : std::as_const(widths)) {
            test.label->resize(width, 20);
            QCOMPARE(shownText(*test.label), expectedText(*test.label, text));
            QCOMPARE(test.label->text(), text);
        }
    }

    void settersShowNothingBeforeTheNextTextOrSize()
    {
        ShownLabel test(60, false);
        OmLabel &label = *test.label;
        label.setText(kText);
        label.resize(50, 20);
        QCOMPARE(shownText(label), kText);
        QCOMPARE(label.minimumSizeHint(), QLabel(kText).minimumSizeHint());
        label.enableElide(true);
        QCOMPARE(shownText(label), kText);
        label.resize(60, 21);
        QCOMPARE(shownText(label), expectedText(label, kText));

        const QString before = shownText(label);
        label.setElideMode(Qt::ElideLeft);
        QCOMPARE(shownText(label), before);
        label.resize(60, 22);
        QVERIFY(shownText(label) != before);
        QCOMPARE(shownText(label), expectedText(label, kText));

        label.enableElide(false);
        label.resize(40, 20);
        QVERIFY(shownText(label).startsWith(QChar(0x2026)));
        label.setText(kText);
        QCOMPARE(shownText(label), kText);
    }

    void followsItsFont()
    {
        ShownLabel test(100);
        test.label->setText(kText);
        const QString before = shownText(*test.label);
        QFont font = test.label->font();
        font.setPixelSize(24);
        test.label->setFont(font);
        QVERIFY(shownText(*test.label).size() < before.size());
        QCOMPARE(shownText(*test.label), expectedText(*test.label, kText));
    }

    void whatTheHostShowsThroughQLabelStays()
    {
        ShownLabel test;
        test.label->setText(kText);
        test.label->setPixmap(QPixmap(8, 8));
        test.label->resize(90, 20);
        QVERIFY(!test.label->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(accessible(test.label)->role(), QAccessible::Graphic);
        test.label->setNum(7);
        test.label->resize(100, 20);
        QCOMPARE(shownText(*test.label), "7"_q);
        test.label->setText(kText);
        QCOMPARE(shownText(*test.label), expectedText(*test.label, kText));
    }

    void layoutsGiveRoomForTheWholeTextButNeedNone()
    {
        QLabel reference(kText);
        QWidget window;
        QHBoxLayout row(&window);
        row.setContentsMargins(0, 0, 0, 0);
        auto *const label = new OmLabel(true, &window);
        row.addWidget(label);
        row.addStretch();
        label->setText(kText);
        window.resize(600, 40);
        window.show();
        QCOMPARE(label->sizeHint(), reference.sizeHint());
        QCOMPARE(label->width(), reference.sizeHint().width());
        QCOMPARE(shownText(*label), kText);

        window.resize(window.minimumSizeHint());
        QVERIFY(label->width() < 25);
        QCOMPARE(label->sizeHint(), reference.sizeHint());
        window.resize(600, 40);
        QCOMPARE(shownText(*label), kText);
    }

    void linkFollowsTheMouse()
    {
        OmLabel label;
        QSignalSpy hovered(&label, &OmLabel::hovered);
        sendEnter(&label);
        sendLeave(&label);
        QVERIFY(hovered.isEmpty() && !label.testAttribute(Qt::WA_SetCursor));

        label.enableLink(true);
        sendEnter(&label);
        QCOMPARE(label.cursor().shape(), Qt::PointingHandCursor);
        sendLeave(&label);
        QCOMPARE(label.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(hovered, QList<QVariantList>({{true}, {false}}));
    }

    void onlyLeftReleasesInsideALinkClick()
    {
        ShownLabel test;
        QVERIFY(QTest::qWaitForWindowExposed(&test.window));
        const auto clicksFor = [&test](Qt::MouseButton button, const QPoint &release) {
            QSignalSpy spy(test.label, &OmLabel::clicked);
            QWindow *const window = test.window.windowHandle();
            QTest::mousePress(window, button, Qt::NoModifier, QPoint(5, 5));
            QTest::mouseRelease(window, button, Qt::NoModifier, release);
            return spy.size();
        };
        QCOMPARE(clicksFor(Qt::LeftButton, {59, 19}), 0);
        test.label->enableLink(true);
        QCOMPARE(clicksFor(Qt::LeftButton, {59, 19}), 1);
        QCOMPARE(clicksFor(Qt::LeftButton, {60, 19}), 0);
        QCOMPARE(clicksFor(Qt::RightButton, {5, 5}), 0);
    }

    void mayBeDeletedInItsSlots()
    {
        const std::function<void(ShownLabel &)> acts[] = {
                [](ShownLabel &test) {
                    QTest::mouseClick(test.window.windowHandle(), Qt::LeftButton, {}, {5, 5});
                },
                [](ShownLabel &test) { sendEnter(test.label); },
                [](ShownLabel &test) { sendLeave(test.label); }};
        for (const auto &act : acts) {
            ShownLabel test;
            test.label->enableLink(true);
            connect(test.label, &OmLabel::clicked, this, [&test] { delete test.label; });
            connect(test.label, &OmLabel::hovered, this, [&test] { delete test.label; });
            act(test);
            QVERIFY(!test.label);
        }
    }

    void screenReadersSeeTextOrALink()
    {
        ShownLabel test;
        OmLabel &label = *test.label;
        label.setText(kText);
        QCOMPARE(accessible(&label)->role(), QAccessible::StaticText);
        QCOMPARE(accessibleName(&label), kText);
        QVERIFY(accessible(&label)->state().readOnly && !accessible(&label)->state().linked);
        QVERIFY(!isAccessiblyPressable(&label));

        QSignalSpy spy(&label, &OmLabel::clicked);
        pressAccessibly(&label);
        QCOMPARE(spy.size(), 0);
        label.enableLink(true);
        QCOMPARE(accessible(&label)->role(), QAccessible::Link);
        QVERIFY(accessible(&label)->state().linked && isAccessiblyPressable(&label));
        pressAccessibly(&label);
        QCOMPARE(spy.size(), 1);

        label.setText("<b>Ada</b> &amp; Max"_q);
        QCOMPARE(accessibleName(&label), "Ada & Max"_q);
        label.setTextFormat(Qt::PlainText);
        QCOMPARE(accessibleName(&label), "<b>Ada</b> &amp; Max"_q);
        QLineEdit edit;
        label.setBuddy(&edit);
        label.setText("&Name && more"_q);
        QCOMPARE(accessibleName(&label), "Name & more"_q);
        const auto relations = accessible(&label)->relations(QAccessible::Labelled);
        QCOMPARE(relations.size(), 1);
        QCOMPARE(relations.first().first->object(), &edit);
    }
};

OMBRIN_TEST_MAIN(tst_OmLabel)
#include "tst_omlabel.moc"
