#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmImageButton.h>

#include <QtGui/QPainter>
#include <QtGui/QWindow>

#include <functional>
#include <memory>
#include <vector>

using ombrin::OmImageButton;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(16, 16);

struct StatePicture
{
    const char *property;
    QRgb color;
};

constexpr StatePicture kPictures[] = {
        {"pixmapUp", 0xff010101},
        {"pixmapDown", 0xff020202},
        {"pixmapHovered", 0xff030303},
        {"pixmapDisabled", 0xff040404},
        {"pixmapUpSelected", 0xff050505},
        {"pixmapDownSelected", 0xff060606},
        {"pixmapHoveredSelected", 0xff070707},
        {"pixmapDisabledSelected", 0xff080808},
};

class Button : public OmImageButton
{
public:
    using OmImageButton::OmImageButton;
    using OmImageButton::refinePictureToDisabledState;
    using OmImageButton::refinePictureToDownState;
    using OmImageButton::refinePictureToHoveredState;
};

using Refinement = QPixmap (Button::*)(QPixmap);

QPixmap flatPixmap(QRgb color, const QSize &size = kSize)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return QPixmap::fromImage(image);
}

void setAllStatePictures(OmImageButton *button)
{
    for (const StatePicture &picture : kPictures)
        QVERIFY(button->setProperty(picture.property, flatPixmap(picture.color)));
}

// "pixmap" and the name of the state whose picture is shown, or "nothing".
QString shownPicture(QWidget *button)
{
    const QRgb color = paintedOnNothing(button).pixel(kSize.width() / 2, kSize.height() / 2);
    for (const StatePicture &picture : kPictures) {
        if (picture.color == color)
            return QString::fromLatin1(picture.property);
    }
    return QStringLiteral("nothing");
}

void recordSignals(OmImageButton *button, QStringList *log)
{
    QObject::connect(button, &OmImageButton::pressed,
                     [log] { log->append(QStringLiteral("pressed")); });
    QObject::connect(button, &OmImageButton::clicked, [log](bool checked) {
        log->append(checked ? QStringLiteral("clicked(true)") : QStringLiteral("clicked(false)"));
    });
    QObject::connect(button, &OmImageButton::released,
                     [log] { log->append(QStringLiteral("released")); });
}

// One step of a user's dealings with a button.
void perform(const QString &step, OmImageButton *button)
{
    const QPoint outside(-5, 5);
    if (step == QLatin1String("enter"))
        sendEnter(button);
    else if (step == QLatin1String("leave"))
        sendLeave(button);
    else if (step == QLatin1String("press"))
        QTest::mousePress(button, Qt::LeftButton);
    else if (step == QLatin1String("release"))
        QTest::mouseRelease(button, Qt::LeftButton);
    else if (step == QLatin1String("releaseOutside"))
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, outside);
    else if (step == QLatin1String("rightPress"))
        QTest::mousePress(button, Qt::RightButton);
    else if (step == QLatin1String("rightRelease"))
        QTest::mouseRelease(button, Qt::RightButton);
    else if (step == QLatin1String("doubleClick"))
        QTest::mouseDClick(button, Qt::LeftButton);
    else
        QFAIL(qPrintable(QStringLiteral("unknown step ") + step));
}

// A window with a button in it, driven through the window system.
struct ButtonWindow
{
    ButtonWindow()
    {
        window.resize(200, 100);
        button = new OmImageButton(&window);
        button->setGeometry(QRect(QPoint(20, 20), kSize));
        setAllStatePictures(button);
        recordSignals(button, &log);
        window.show();
    }

    bool isReady() { return QTest::qWaitForWindowExposed(&window); }
    void move(const QPoint &pos) { QTest::mouseMove(window.windowHandle(), pos); }
    void press(const QPoint &pos)
    {
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, pos);
    }
    void release(const QPoint &pos)
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, pos);
    }

    const QPoint inside{25, 25};
    const QPoint outside{100, 60};
    QStringList log;
    QWidget window;
    QPointer<OmImageButton> button;
};

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    int countAfter(const std::function<void()> &action)
    {
        QCoreApplication::processEvents();
        m_count = 0;
        action();
        QCoreApplication::processEvents();
        return m_count;
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

class tst_OmImageButton : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hostsFindPropertiesAndSignalsInOrder();
    void startsAsAnEmptyUncheckedButton();
    void showsThePictureOfItsState_data();
    void showsThePictureOfItsState();
    void nullPicturesShowNothingButADisabledButtonShowsDown();
    void pictureShiftsByTheOffsetWhileDownOrDisabled();
    void pictureIsDrawnUnscaledAtItsLogicalSize();
    void writingRepaintsWhereItMust_data();
    void writingRepaintsWhereItMust();
    void mouseAndHoverFollowTheRules_data();
    void mouseAndHoverFollowTheRules();
    void ignoringHoverLeavesHoveredToTheHost();
    void draggingOutAndBackInStillClicks();
    void draggingOutAndReleasingDoesNothing();
    void aLostReleaseDoesNotLeaveTheButtonDown_data();
    void aLostReleaseDoesNotLeaveTheButtonDown();
    void mayBeDeletedInItsSlots_data();
    void mayBeDeletedInItsSlots();
    void refinesColours_data();
    void refinesColours();
    void refiningKeepsAlphaAndDensity();
    void setAllPixmapsFillsTheChosenPictures();
    void screenReadersSeeAButton();
    void screenReadersPressTheButton();
};

void tst_OmImageButton::hostsFindPropertiesAndSignalsInOrder()
{
    const QMetaObject &meta = OmImageButton::staticMetaObject;
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QVERIFY(property.isReadable() && property.isWritable() && !property.hasNotifySignal());
        properties.append(QString::fromLatin1(property.typeName()) + QLatin1Char(' ')
                          + QString::fromLatin1(property.name()));
    }
    QStringList expected{QStringLiteral("bool checkable"), QStringLiteral("bool checked"),
                         QStringLiteral("bool down"), QStringLiteral("bool hovered"),
                         QStringLiteral("int offset")};
    for (const StatePicture &picture : kPictures)
        expected.append(QStringLiteral("QPixmap ") + QString::fromLatin1(picture.property));
    QCOMPARE(properties, expected);

    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    const QStringList expectedMethods{QStringLiteral("clicked(bool)"), QStringLiteral("clicked()"),
                                      QStringLiteral("pressed()"), QStringLiteral("released()")};
    QCOMPARE(methods, expectedMethods);
}

void tst_OmImageButton::startsAsAnEmptyUncheckedButton()
{
    const OmImageButton button(nullptr, Qt::Tool);
    QCOMPARE(button.windowType(), Qt::Tool);
    QVERIFY(!button.isCheckable() && !button.isChecked() && !button.isDown());
    QVERIFY(!button.isHovered());
    QCOMPARE(button.offset(), 0);
    for (const StatePicture &picture : kPictures)
        QVERIFY(button.property(picture.property).value<QPixmap>().isNull());
    QVERIFY(button.testAttribute(Qt::WA_SetCursor));
    QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

void tst_OmImageButton::showsThePictureOfItsState_data()
{
    QTest::addColumn<bool>("down");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("picture");

    QTest::newRow("up") << false << true << false << "pixmapUp";
    QTest::newRow("hovered") << false << true << true << "pixmapHovered";
    QTest::newRow("disabled") << false << false << false << "pixmapDisabled";
    QTest::newRow("disabled, hovered") << false << false << true << "pixmapDisabled";
    QTest::newRow("down") << true << true << false << "pixmapDown";
    QTest::newRow("down, hovered") << true << true << true << "pixmapDown";
    QTest::newRow("down, disabled") << true << false << false << "pixmapDown";
    QTest::newRow("down, disabled, hovered") << true << false << true << "pixmapDown";
}

void tst_OmImageButton::showsThePictureOfItsState()
{
    QFETCH(bool, down);
    QFETCH(bool, enabled);
    QFETCH(bool, hovered);
    QFETCH(QString, picture);

    OmImageButton button;
    button.resize(kSize);
    setAllStatePictures(&button);
    button.setDown(down);
    button.setEnabled(enabled);
    button.setHovered(hovered);
    QCOMPARE(shownPicture(&button), picture);
    button.setChecked(true);
    QCOMPARE(shownPicture(&button), picture);
    button.setCheckable(true);
    QCOMPARE(shownPicture(&button), picture + QLatin1String("Selected"));
    button.setChecked(false);
    QCOMPARE(shownPicture(&button), picture);
}

void tst_OmImageButton::nullPicturesShowNothingButADisabledButtonShowsDown()
{
    OmImageButton button;
    button.resize(kSize);
    button.setPixmapUp(flatPixmap(kPictures[0].color));
    button.setHovered(true);
    QCOMPARE(shownPicture(&button), QStringLiteral("nothing"));
    button.setEnabled(false);
    QCOMPARE(shownPicture(&button), QStringLiteral("nothing"));
    button.setPixmapDown(flatPixmap(kPictures[1].color));
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapDown"));
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(shownPicture(&button), QStringLiteral("nothing"));
    button.setPixmapDownSelected(flatPixmap(kPictures[5].color));
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapDownSelected"));
}

void tst_OmImageButton::pictureShiftsByTheOffsetWhileDownOrDisabled()
{
    const auto topLeftOfPicture = [](OmImageButton *button) {
        const QImage image = paintedOnNothing(button);
        for (int i = 0; i < image.width(); ++i) {
            if (qAlpha(image.pixel(i, i)) != 0 && (i == 0 || qAlpha(image.pixel(i, i - 1)) == 0))
                return i;
        }
        return -1;
    };
    OmImageButton button;
    button.resize(kSize);
    for (const StatePicture &picture : kPictures)
        button.setProperty(picture.property, flatPixmap(picture.color, QSize(4, 4)));
    button.setOffset(2);
    QCOMPARE(topLeftOfPicture(&button), 0);
    button.setHovered(true);
    QCOMPARE(topLeftOfPicture(&button), 0);
    button.setDown(true);
    QCOMPARE(topLeftOfPicture(&button), 2);
    button.setDown(false);
    button.setEnabled(false);
    QCOMPARE(topLeftOfPicture(&button), 2);
}

void tst_OmImageButton::pictureIsDrawnUnscaledAtItsLogicalSize()
{
    const QRgb color = kPictures[0].color;
    OmImageButton button;
    button.resize(kSize);
    QImage expected(kSize, QImage::Format_ARGB32_Premultiplied);

    for (const int density : {1, 2, 3}) {
        QPixmap picture = flatPixmap(color, QSize(8, 5) * density);
        picture.setDevicePixelRatio(density);
        button.setPixmapUp(picture);
        expected.fill(Qt::transparent);
        QPainter(&expected).fillRect(QRect(0, 0, 8, 5), QColor::fromRgba(color));
        QCOMPARE(paintedOnNothing(&button), expected);
    }
    // Larger than the button: cut, not scaled.
    button.setPixmapUp(flatPixmap(color, kSize * 2));
    expected.fill(color);
    QCOMPARE(paintedOnNothing(&button), expected);
}

void tst_OmImageButton::writingRepaintsWhereItMust_data()
{
    QTest::addColumn<bool>("repaints");

    const QMetaObject &meta = OmImageButton::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QByteArray name(meta.property(i).name());
        QTest::newRow(name.constData()) << (name != "checkable" && name != "offset");
    }
}

void tst_OmImageButton::writingRepaintsWhereItMust()
{
    QFETCH(bool, repaints);
    ButtonWindow test;
    QVERIFY(test.isReady());
    PaintCounter counter(test.button);
    const char *const name = QTest::currentDataTag();
    // Also when the value is the old one.
    const QVariant value = test.button->property(name);
    QCOMPARE(counter.countAfter([&] { test.button->setProperty(name, value); }), repaints ? 1 : 0);
    QCOMPARE(counter.countAfter([&] { test.button->setIgnoreHovered(true); }), 0);
    QCOMPARE(counter.countAfter([&] {
        test.button->setAllPixmaps(QPixmap(), false, false, true, true, true);
    }),
             1);
    QVERIFY(test.log.isEmpty());
}

void tst_OmImageButton::mouseAndHoverFollowTheRules_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("pictures");
    QTest::addColumn<QString>("signalLog");

    QTest::newRow("hover") << "enter leave"
                           << "Hovered Up"
                           << "";
    QTest::newRow("click") << "enter press release"
                           << "Hovered Down Hovered"
                           << "pressed clicked(true) released";
    QTest::newRow("click twice") << "press release press release"
                                 << "Down Up Down Up"
                                 << "pressed clicked(true) released pressed clicked(false) "
                                    "released";
    QTest::newRow("double click") << "press release doubleClick release"
                                  << "Down Up Down Up"
                                  << "pressed clicked(true) released pressed clicked(false) "
                                     "released";
    QTest::newRow("out and back in") << "enter press leave enter release"
                                     << "Hovered Down Up Down Hovered"
                                     << "pressed clicked(true) released";
    QTest::newRow("out twice and back in") << "press leave enter leave enter release"
                                           << "Down Up Down Up Down Hovered"
                                           << "pressed clicked(true) released";
    QTest::newRow("release outside after leaving") << "press leave releaseOutside enter"
                                                   << "Down Up Up Hovered"
                                                   << "pressed";
    QTest::newRow("release outside without leaving") << "press releaseOutside"
                                                     << "Down Up"
                                                     << "pressed";
    QTest::newRow("release inside after leaving") << "press leave release enter"
                                                  << "Down Up Up Hovered"
                                                  << "pressed";
    QTest::newRow("right button") << "rightPress rightRelease"
                                  << "Up Up"
                                  << "";
    QTest::newRow("right release ends left press") << "press rightPress rightRelease release"
                                                   << "Down Down Up Up"
                                                   << "pressed clicked(true) released";
    QTest::newRow("release without press") << "release"
                                           << "Up"
                                           << "";
}

void tst_OmImageButton::mouseAndHoverFollowTheRules()
{
    QFETCH(QString, steps);
    QFETCH(QString, pictures);
    QFETCH(QString, signalLog);

    OmImageButton button;
    button.resize(kSize);
    setAllStatePictures(&button);
    QStringList log;
    recordSignals(&button, &log);
    QStringList shown;
    const QStringList stepList = steps.split(QLatin1Char(' '));
    for (const QString &step : stepList) {
        perform(step, &button);
        // The button is not checkable: always the normal set.
        shown.append(shownPicture(&button).mid(6));
    }
    QCOMPARE(shown.join(QLatin1Char(' ')), pictures);
    QCOMPARE(log.join(QLatin1Char(' ')), signalLog);
    QCOMPARE(button.isChecked(), log.count(QStringLiteral("released")) % 2 == 1);
}

void tst_OmImageButton::ignoringHoverLeavesHoveredToTheHost()
{
    OmImageButton button;
    button.resize(kSize);
    setAllStatePictures(&button);
    button.setIgnoreHovered(true);
    sendEnter(&button);
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapUp"));
    button.setHovered(true);
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapHovered"));
    sendLeave(&button);
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapHovered"));
    // Pressed is followed all the same.
    QTest::mousePress(&button, Qt::LeftButton);
    sendLeave(&button);
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapHovered"));
    sendEnter(&button);
    QCOMPARE(shownPicture(&button), QStringLiteral("pixmapDown"));
    QTest::mouseRelease(&button, Qt::LeftButton);
}

void tst_OmImageButton::draggingOutAndBackInStillClicks()
{
    ButtonWindow test;
    QVERIFY(test.isReady());
    test.move(test.inside);
    test.press(test.inside);
    QCOMPARE(shownPicture(test.button), QStringLiteral("pixmapDown"));
    test.move(test.outside);
    QCOMPARE(shownPicture(test.button), QStringLiteral("pixmapUp"));
    test.move(test.inside);
    QCOMPARE(shownPicture(test.button), QStringLiteral("pixmapDown"));
    test.release(test.inside);
    QCOMPARE(test.log.join(QLatin1Char(' ')), QStringLiteral("pressed clicked(true) released"));
}

void tst_OmImageButton::draggingOutAndReleasingDoesNothing()
{
    ButtonWindow test;
    QVERIFY(test.isReady());
    test.press(test.inside);
    test.move(test.outside);
    test.release(test.outside);
    test.move(test.inside);
    QVERIFY(!test.button->isDown());
    QCOMPARE(test.log, QStringList{QStringLiteral("pressed")});
    QVERIFY(!test.button->isChecked());
}

void tst_OmImageButton::aLostReleaseDoesNotLeaveTheButtonDown_data()
{
    QTest::addColumn<bool>("hide");
    QTest::addColumn<bool>("leave");
    QTest::newRow("disabled") << false << false;
    QTest::newRow("disabled and left") << false << true;
    QTest::newRow("hidden") << true << false;
    QTest::newRow("hidden and left") << true << true;
}

void tst_OmImageButton::aLostReleaseDoesNotLeaveTheButtonDown()
{
    QFETCH(bool, hide);
    QFETCH(bool, leave);
    ButtonWindow test;
    QVERIFY(test.isReady());
    const auto setUsable = [&](bool usable) {
        if (hide)
            test.button->setVisible(usable);
        else
            test.button->setEnabled(usable);
    };
    test.press(test.inside);
    setUsable(false);
    if (leave)
        test.move(test.outside);
    test.release(leave ? test.outside : test.inside);
    setUsable(true);
    QVERIFY(!test.button->isDown());
    sendEnter(test.button);
    QVERIFY(!test.button->isDown());
    QCOMPARE(test.log, QStringList{QStringLiteral("pressed")});

    // A button that comes back while the mouse button is held goes on with the press.
    if (!hide) {
        test.log.clear();
        test.press(test.inside);
        setUsable(false);
        setUsable(true);
        test.release(test.inside);
        QCOMPARE(test.log.join(QLatin1Char(' ')), QStringLiteral("pressed clicked(true) released"));
    }
}

void tst_OmImageButton::mayBeDeletedInItsSlots_data()
{
    QTest::addColumn<QByteArray>("deletingSignal");
    QTest::addColumn<QString>("signalLog");
    QTest::newRow("pressed") << QByteArray("pressed()") << "pressed";
    QTest::newRow("clicked") << QByteArray("clicked()") << "pressed clicked(true)";
    QTest::newRow("released") << QByteArray("released()") << "pressed clicked(true) released";
}

void tst_OmImageButton::mayBeDeletedInItsSlots()
{
    QFETCH(QByteArray, deletingSignal);
    QFETCH(QString, signalLog);
    ButtonWindow test;
    QVERIFY(test.isReady());
    const auto destroy = [&test] { delete test.button; };
    if (deletingSignal == "pressed()")
        connect(test.button, &OmImageButton::pressed, this, destroy);
    else if (deletingSignal == "clicked()")
        connect(test.button, &OmImageButton::clicked, this, destroy);
    else
        connect(test.button, &OmImageButton::released, this, destroy);
    test.press(test.inside);
    test.release(test.inside);
    QVERIFY(!test.button);
    QCOMPARE(test.log.join(QLatin1Char(' ')), signalLog);
}

void tst_OmImageButton::refinesColours_data()
{
    QTest::addColumn<int>("refinement");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");

    static const struct
    {
        const char *name;
        std::vector<std::pair<int, int>> examples;
    } kTable[] = {
            {"down", {{0, 0}, {1, 0}, {96, 91}, {100, 95}, {255, 242}}},
            {"hovered", {{0, 0}, {19, 19}, {96, 100}, {224, 235}, {243, 255}, {254, 255}}},
            {"disabled", {{0, 192}, {1, 191}, {96, 155}, {192, 192}, {254, 253}, {255, 255}}},
    };
    int refinement = 0;
    for (const auto &row : kTable) {
        for (const auto &[before, after] : row.examples)
            QTest::addRow("%s %d", row.name, before) << refinement << before << after;
        ++refinement;
    }
}

void tst_OmImageButton::refinesColours()
{
    QFETCH(int, refinement);
    QFETCH(int, before);
    QFETCH(int, after);
    static constexpr Refinement kRefinements[] = {&Button::refinePictureToDownState,
                                                  &Button::refinePictureToHoveredState,
                                                  &Button::refinePictureToDisabledState};
    Button button;
    const Refinement function = kRefinements[refinement];
    const auto refine = [&button, function](QRgb color) {
        return (button.*function)(flatPixmap(color)).toImage().pixel(3, 5);
    };
    // One channel at a time, so that none is taken for another.
    const int other = qRed(refine(qRgb(0, 0, 0)));
    QCOMPARE(refine(qRgb(before, 0, 0)), qRgb(after, other, other));
    QCOMPARE(refine(qRgb(0, before, 0)), qRgb(other, after, other));
    QCOMPARE(refine(qRgb(0, 0, before)), qRgb(other, other, after));
}

void tst_OmImageButton::refiningKeepsAlphaAndDensity()
{
    QImage image(4, 1, QImage::Format_ARGB32);
    const int alphas[] = {0, 7, 128, 255};
    for (int x = 0; x < 4; ++x)
        image.setPixel(x, 0, qRgba(90, 90, 90, alphas[x]));
    QPixmap picture = QPixmap::fromImage(image);
    picture.setDevicePixelRatio(2);

    Button button;
    for (const Refinement refinement :
         {&Button::refinePictureToDownState, &Button::refinePictureToHoveredState,
          &Button::refinePictureToDisabledState}) {
        const QPixmap refined = (button.*refinement)(picture);
        QCOMPARE(refined.devicePixelRatio(), 2.0);
        const QImage result = refined.toImage();
        for (int x = 0; x < 4; ++x)
            QCOMPARE(qAlpha(result.pixel(x, 0)), alphas[x]);
        QVERIFY((button.*refinement)(QPixmap()).isNull());
    }
}

void tst_OmImageButton::setAllPixmapsFillsTheChosenPictures()
{
    const QPixmap kept = flatPixmap(0xff123456);
    const QPixmap picture = flatPixmap(0xff606060);
    Button button;
    const QPixmap refined[] = {picture, button.refinePictureToDownState(picture),
                               button.refinePictureToHoveredState(picture),
                               button.refinePictureToDisabledState(picture)};
    for (int flags = 0; flags < 32; ++flags) {
        const auto flag = [flags](int bit) { return (flags >> bit & 1) != 0; };
        for (const StatePicture &state : kPictures)
            button.setProperty(state.property, kept);
        button.setAllPixmaps(picture, flag(0), flag(1), flag(2), flag(3), flag(4));
        for (int i = 0; i < 8; ++i) {
            const int state = i % 4;
            const bool filled = flag(i < 4 ? 1 : 0) && (state == 0 || flag(1 + state));
            const QPixmap actual = button.property(kPictures[i].property).value<QPixmap>();
            QCOMPARE(actual.toImage(), (filled ? refined[state] : kept).toImage());
        }
    }
    button.setAllPixmaps(QPixmap(), true, true, true, true, true);
    for (const StatePicture &state : kPictures)
        QVERIFY(button.property(state.property).value<QPixmap>().isNull());
}

void tst_OmImageButton::screenReadersSeeAButton()
{
    Button button; // A host's subclass is seen as well.
    QAccessibleInterface *const seen = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(seen);
    QCOMPARE(seen->role(), QAccessible::Button);
    button.setToolTip(QStringLiteral("Chat"));
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Chat"));
    QCOMPARE(seen->text(QAccessible::Description), QString());
    button.setAccessibleName(QStringLiteral("Start a chat"));
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Start a chat"));
    QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("Chat"));

    button.setChecked(true);
    QVERIFY(!seen->state().checkable && !seen->state().checked && !seen->state().pressed);
    QVERIFY(!seen->state().hotTracked && !seen->state().disabled && !seen->state().focusable);
    button.setCheckable(true);
    button.setDown(true);
    button.setHovered(true);
    QVERIFY(seen->state().checkable && seen->state().checked && seen->state().pressed);
    QVERIFY(seen->state().hotTracked);
    button.setEnabled(false);
    QVERIFY(seen->state().disabled);
    QVERIFY(!seen->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
}

void tst_OmImageButton::screenReadersPressTheButton()
{
    const auto pressAction = QAccessibleActionInterface::pressAction();
    auto button = std::make_unique<OmImageButton>();
    button->resize(kSize);
    QStringList log;
    recordSignals(button.get(), &log);
    QAccessibleActionInterface *const actions =
            QAccessible::queryAccessibleInterface(button.get())->actionInterface();
    QVERIFY(actions->actionNames().contains(pressAction));
    actions->doAction(pressAction);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("pressed clicked(true) released"));
    QVERIFY(!button->isDown());
    button->setEnabled(false);
    actions->doAction(pressAction);
    QCOMPARE(log.size(), 3);

    button->setEnabled(true);
    connect(button.get(), &OmImageButton::pressed, this, [&button] { button.reset(); });
    actions->doAction(pressAction);
    QVERIFY(!button);
    QCOMPARE(log.size(), 4);
}

OMBRIN_TEST_MAIN(tst_OmImageButton)
#include "tst_omimagebutton.moc"
