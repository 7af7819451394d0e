#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmImageMaskedButton.h>

#include <functional>

using namespace ombrin;
using namespace ombrin::test;

namespace {

const QColor kNormal(Qt::red);
const QColor kHovered(Qt::green);
const QColor kPressed(Qt::blue);

QImage flat(const QColor &color, const QSize &size = QSize(20, 10))
{
    return flatImage(size, color);
}

// The same rule at its slowest.
QRegion pixelsThatAreNotTransparent(const QImage &image)
{
    QRegion region;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                region += QRect(x, y, 1, 1);
        }
    }
    return region;
}

QImage disc()
{
    QImage image = flat(Qt::transparent, QSize(41, 33));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::red);
    painter.drawEllipse(QRectF(image.rect()).adjusted(1, 1, -1, -1));
    return image;
}

QImage noise()
{
    QImage image = flat(Qt::transparent, QSize(37, 29));
    QRandomGenerator random(1);
    for (int i = 0; i < 37 * 29 / 4; ++i)
        image.setPixel(random.bounded(37), random.bounded(29), qRgba(200, 100, 50, 1));
    return image;
}

struct Button : OmImageMaskedButton
{
    Button()
    {
        setImage_Normal(flat(kNormal));
        setImage_Hovered(flat(kHovered));
        setImage_Pressed(flat(kPressed));
        connect(this, &OmImageMaskedButton::signalOnClicked, this, [this] { ++clicks; });
    }

    QString shown()
    {
        const QColor color = paintedOnNothing(this).pixelColor(5, 5);
        return color == kNormal    ? "normal"_q
               : color == kHovered ? "hovered"_q
               : color == kPressed ? "pressed"_q
                                   : "nothing"_q;
    }

    int clicks = 0;
};

// One step of what happens to a button.
void perform(const QString &step, Button *button)
{
    const auto release = [button](const QPoint &position) {
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, position);
    };
    const auto press = [button](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &event);
        QVERIFY(event.isAccepted()); // also a key that means nothing to it
    };
    const QMap<QByteArray, std::function<void()>> steps = {
            {"enter", [=] { sendEnter(button); }},
            {"leave", [=] { sendLeave(button); }},
            {"press", [=] { QTest::mousePress(button, Qt::LeftButton); }},
            {"rightPress", [=] { QTest::mousePress(button, Qt::RightButton); }},
            {"release", [=] { release(QPoint(19, 9)); }},
            {"releaseRightOfIt", [=] { release(QPoint(20, 9)); }},
            {"releaseAbove", [=] { release(QPoint(3, -1)); }},
            {"rightRelease", [=] { QTest::mouseRelease(button, Qt::RightButton); }},
            {"space", [=] { press(Qt::Key_Space); }},
            {"keypadEnter", [=] { press(Qt::Key_Enter); }},
            {"return", [=] { press(Qt::Key_Return); }},
            {"escape", [=] { press(Qt::Key_Escape); }},
            {"noNormal", [=] { button->setImage_Normal(QImage()); }},
            {"noHovered", [=] { button->setImage_Hovered(QImage()); }},
            {"noPressed", [=] { button->setImage_Pressed(QImage()); }},
            {"disable", [=] { button->setEnabled(false); }},
            {"enable", [=] { button->setEnabled(true); }},
            {"hide", [=] { button->hide(); }},
            {"show", [=] { button->show(); }},
    };
    steps.value(step.toLatin1())();
}

} // namespace

class tst_OmImageMasked : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheShapeOfItsImage_data()
    {
        const auto row = columns<QImage>("image");
        row("disc", disc());
        row("disc, colour table", disc().convertToFormat(QImage::Format_Indexed8, Qt::AvoidDither));
        row("noise", noise());
        row("alpha 1", flat(QColor(255, 255, 255, 1))); // drawn opaque
        row("opaque", flat(kNormal));
        row("no alpha channel", disc().convertToFormat(QImage::Format_RGB888));
    }
    void hasTheShapeOfItsImage()
    {
        QFETCH(QImage, image);
        OmImageMaskedWidget widget;
        QVERIFY(widget.testAttribute(Qt::WA_NoSystemBackground));
        widget.setImage(flat(kNormal, QSize(3, 3)));
        widget.setImage(image);
        QCOMPARE(widget.image(), image);
        QCOMPARE(widget.size(), image.size());
        QCOMPARE(widget.mask(), pixelsThatAreNotTransparent(image));

        const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
        QImage expected =
                flatImage(image.size(), Qt::transparent, QImage::Format_ARGB32_Premultiplied);
        for (const QRect &rect : widget.mask())
            QPainter(&expected).drawImage(rect, opaque, rect);
        QCOMPARE(paintedOnNothing(&widget), expected);
    }

    void denseImagesHaveTheirLogicalSize()
    {
        QImage image = flat(Qt::transparent, QSize(42, 21));
        image.setPixelColor(21, 11, kNormal);
        image.setPixelColor(22, 11, kNormal);
        const std::tuple<qreal, QSize, QRect> cases[] = {{1.5, {28, 14}, {14, 7, 1, 1}},
                                                         {2.0, {21, 11}, {10, 5, 2, 1}},
                                                         {3.0, {14, 7}, {7, 3, 1, 1}}};
        for (const auto &[density, size, shape] : cases) {
            image.setDevicePixelRatio(density);
            OmImageMaskedWidget widget;
            widget.setImage(image);
            QCOMPARE(widget.size(), size);
            QCOMPARE(widget.mask(), QRegion(shape));
        }
    }

    void nullImageLeavesNothing()
    {
        OmImageMaskedWidget widget;
        widget.setImage(disc());
        const QRegion mask = widget.mask();
        widget.setImage(QImage());
        QCOMPARE(widget.size(), QSize(0, 0));
        QCOMPARE(widget.mask(), mask);
        // One that is there, but cannot be seen, takes its room and no clicks.
        widget.setImage(flat(Qt::transparent));
        QCOMPARE(widget.size(), QSize(20, 10));
        QVERIFY(!widget.mask().intersects(widget.rect()));
    }

    void buttonFollowsTheUser_data()
    {
        // images: after each step
        const auto row = columns<QString, int>("images", "clicks");
        row("enter press leave release", "hovered pressed pressed normal", 1);
        row("enter rightPress rightRelease leave", "hovered pressed hovered normal", 1);
        row("press releaseRightOfIt release", "pressed normal normal", 0);
        row("release", "normal", 0);
        row("space", "normal", 1);
        row("keypadEnter", "normal", 1);
        row("return escape", "normal normal", 0);
        // An image that is missing leaves the one before it.
        row("noHovered enter noPressed press noNormal release",
            "normal normal normal normal normal normal", 1);
        // A release that the button does not see
        row("press disable enable release", "pressed normal normal normal", 0);
        row("show press hide show release", "normal pressed normal normal normal", 0);
    }
    void buttonFollowsTheUser()
    {
        QFETCH(int, clicks);
        Button button;
        QStringList shown;
        for (const QString &step : words(QTest::currentDataTag())) {
            perform(step, &button);
            shown.append(button.shown());
        }
        QTEST(shown.join(QLatin1Char(' ')), "images");
        QCOMPARE(button.clicks, clicks);
    }

    void nextStateImageReplacesTheShownOne()
    {
        Button button;
        const QImage wide = flat(kHovered, QSize(40, 10));
        button.setImage_Hovered(wide);
        QCOMPARE(button.width(), 20);
        sendEnter(&button);
        QCOMPARE(button.width(), 40);
        QCOMPARE(button.image_Hovered(), wide);
        // An image that is shown already is not set again.
        button.resize(7, 7);
        button.setImage_Pressed(flat(kPressed));
        QCOMPARE(button.width(), 7);
        button.setImage_Hovered(flat(kHovered));
        QCOMPARE(button.width(), 20);
    }

    void buttonMayBeDeletedInItsSlot()
    {
        for (const bool byMouse : {true, false}) {
            QWidget window;
            const QPointer<Button> button(new Button);
            button->setParent(&window);
            window.show();
            connect(button, &OmImageMaskedButton::signalOnClicked, this,
                    [button] { delete button; });
            if (byMouse)
                QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {5, 5});
            else
                QTest::keyClick(button, Qt::Key_Space);
            QVERIFY(!button);
        }
    }

    void screenReadersSeeAButton()
    {
        Button button;
        button.setToolTip("Now"_q);
        QCOMPARE(accessible(&button)->role(), QAccessible::Button);
        QCOMPARE(accessibleName(&button), "Now"_q);
        QVERIFY(!accessible(&button)->state().pressed && !accessible(&button)->state().hotTracked);
        sendEnter(&button);
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(accessible(&button)->state().pressed && accessible(&button)->state().hotTracked);
        sendLeave(&button);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(button.clicks, 1);

        QVERIFY(isAccessiblyPressable(&button));
        pressAccessibly(&button);
        QCOMPARE(button.clicks, 2);
        button.setEnabled(false);
        QVERIFY(!isAccessiblyPressable(&button));
        pressAccessibly(&button);
        QCOMPARE(button.clicks, 2);
    }
};

OMBRIN_TEST_MAIN(tst_OmImageMasked)
#include "tst_omimagemasked.moc"
