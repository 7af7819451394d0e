#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include "widgets/ImageShape.h"

#include <ombrin/OmImageMaskedButton.h>

#include <QtGui/QBitmap>
#include <QtGui/QPainter>

#include <memory>

using ombrin::OmImageMaskedButton;
using ombrin::OmImageMaskedWidget;
using namespace ombrin::test;

namespace {

constexpr QRgb kNormal = 0xff0a0a0a;
constexpr QRgb kHovered = 0xff141414;
constexpr QRgb kPressed = 0xff1e1e1e;

QImage flat(QRgb color, const QSize &size = QSize(20, 10))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
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
    QImage image = flat(0, QSize(41, 33));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::red);
    painter.drawEllipse(QRectF(image.rect()).adjusted(1, 1, -1, -1));
    return image;
}

QImage noise()
{
    QImage image = flat(0, QSize(37, 29));
    quint32 state = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            state = state * 1664525 + 1013904223;
            image.setPixel(x, y, qRgba(200, 100, 50, (state >> 24) % 4 == 0 ? 1 : 0));
        }
    }
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
        const QRgb color = paintedOnNothing(this).pixel(5, 5);
        return color == kNormal    ? QStringLiteral("normal")
               : color == kHovered ? QStringLiteral("hovered")
               : color == kPressed ? QStringLiteral("pressed")
                                   : QStringLiteral("nothing");
    }

    int clicks = 0;
};

} // namespace

class tst_OmImageMasked : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheShapeOfItsImage_data();
    void hasTheShapeOfItsImage();
    void semiTransparentPixelsAreDrawnOpaque();
    void denseImagesHaveTheirLogicalSize_data();
    void denseImagesHaveTheirLogicalSize();
    void nullImageLeavesNothing();
    void fullyTransparentImageIsNeitherSeenNorTouched();
    void cornersLetTheMouseThrough();
    void hugeImageIsTaken();

    void buttonShowsItsState();
    void buttonWithOneImageKeepsIt();
    void nextStateImageReplacesTheShownOne();
    void clicksAreReleasesInsideAfterAPress_data();
    void clicksAreReleasesInsideAfterAPress();
    void keysClick_data();
    void keysClick();
    void lostReleaseDoesNotLeaveTheButtonPressed();
    void buttonMayBeDeletedInItsSlot_data();
    void buttonMayBeDeletedInItsSlot();
    void screenReadersSeeAButton();
};

void tst_OmImageMasked::hasTheShapeOfItsImage_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("disc") << disc();
    QTest::newRow("disc, premultiplied")
            << disc().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("disc, colour table")
            << disc().convertToFormat(QImage::Format_Indexed8, Qt::AvoidDither);
    QTest::newRow("disc, alpha alone") << disc().convertToFormat(QImage::Format_Alpha8);
    QTest::newRow("noise") << noise();
    QTest::newRow("alpha 1") << flat(0x01ffffff);
    QTest::newRow("opaque") << flat(kNormal);
    QTest::newRow("no alpha channel") << disc().convertToFormat(QImage::Format_RGB888);
    QTest::newRow("one pixel") << flat(kNormal, QSize(1, 1));
    QTest::newRow("one row") << flat(kNormal, QSize(50, 1));
}

void tst_OmImageMasked::hasTheShapeOfItsImage()
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
    QImage expected(image.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    for (const QRect &rect : widget.mask())
        QPainter(&expected).drawImage(rect, opaque, rect);
    QCOMPARE(paintedOnNothing(&widget), expected);
}

void tst_OmImageMasked::semiTransparentPixelsAreDrawnOpaque()
{
    OmImageMaskedWidget widget;
    widget.setImage(flat(qRgba(10, 200, 30, 128)));
    QCOMPARE(paintedOnNothing(&widget).pixel(3, 3), qRgb(10, 200, 30));
}

void tst_OmImageMasked::denseImagesHaveTheirLogicalSize_data()
{
    QTest::addColumn<qreal>("density");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("shape"); // of an image whose pixels 21 to 22 are opaque
    QTest::newRow("1.5") << 1.5 << QSize(28, 14) << QRect(14, 14, 1, 1).translated(0, -7);
    QTest::newRow("2") << 2.0 << QSize(21, 11) << QRect(10, 5, 2, 1);
    QTest::newRow("3") << 3.0 << QSize(14, 7) << QRect(7, 3, 1, 1);
}

void tst_OmImageMasked::denseImagesHaveTheirLogicalSize()
{
    QFETCH(qreal, density);
    QFETCH(QSize, size);
    QFETCH(QRect, shape);
    QImage image = flat(0, QSize(42, 21));
    image.setPixel(21, 11, kNormal);
    image.setPixel(22, 11, kNormal);
    image.setDevicePixelRatio(density);
    OmImageMaskedWidget widget;
    widget.setImage(image);
    QCOMPARE(widget.size(), size);
    QCOMPARE(widget.mask(), QRegion(shape));
}

void tst_OmImageMasked::nullImageLeavesNothing()
{
    OmImageMaskedWidget widget;
    widget.setImage(disc());
    const QRegion mask = widget.mask();
    widget.setImage(QImage());
    QCOMPARE(widget.size(), QSize(0, 0));
    QVERIFY(widget.image().isNull());
    QCOMPARE(widget.mask(), mask);
    widget.setImage(flat(kNormal));
    QCOMPARE(widget.size(), QSize(20, 10));
}

void tst_OmImageMasked::fullyTransparentImageIsNeitherSeenNorTouched()
{
    QWidget window;
    window.resize(60, 60);
    OmImageMaskedWidget widget(&window);
    widget.setImage(flat(0));
    QCOMPARE(widget.size(), QSize(20, 10));
    QVERIFY((widget.mask() & widget.rect()).isEmpty());
    window.show();
    QVERIFY(!window.childAt(5, 5));
}

void tst_OmImageMasked::cornersLetTheMouseThrough()
{
    QWidget window;
    window.resize(60, 60);
    OmImageMaskedButton button(&window);
    button.setImage_Normal(disc());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy spy(&button, &OmImageMaskedButton::signalOnClicked);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QCOMPARE(spy.size(), 0);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 16));
    QCOMPARE(spy.size(), 1);
}

void tst_OmImageMasked::hugeImageIsTaken()
{
    QImage image = flat(0, QSize(10000, 10000));
    QPainter(&image).fillRect(4000, 5000, 3000, 2000, Qt::red);
    OmImageMaskedWidget widget;
    widget.setImage(image);
    QCOMPARE(widget.size(), image.size());
    QCOMPARE(widget.mask(), QRegion(4000, 5000, 3000, 2000));
}

void tst_OmImageMasked::buttonShowsItsState()
{
    Button button;
    QCOMPARE(button.shown(), QStringLiteral("normal"));
    sendEnter(&button);
    QCOMPARE(button.shown(), QStringLiteral("hovered"));
    QTest::mousePress(&button, Qt::RightButton);
    QCOMPARE(button.shown(), QStringLiteral("pressed"));
    sendLeave(&button);
    QCOMPARE(button.shown(), QStringLiteral("pressed"));
    QTest::mouseRelease(&button, Qt::RightButton);
    QCOMPARE(button.shown(), QStringLiteral("normal"));
}

void tst_OmImageMasked::buttonWithOneImageKeepsIt()
{
    Button button;
    button.setImage_Hovered(QImage());
    button.setImage_Pressed(QImage());
    sendEnter(&button);
    QCOMPARE(button.shown(), QStringLiteral("normal"));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(button.shown(), QStringLiteral("normal"));
    button.setImage_Normal(QImage());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(button.shown(), QStringLiteral("normal"));
    QVERIFY(button.image_Normal().isNull() && button.image_Pressed().isNull());
}

void tst_OmImageMasked::nextStateImageReplacesTheShownOne()
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

void tst_OmImageMasked::clicksAreReleasesInsideAfterAPress_data()
{
    QTest::addColumn<bool>("press");
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<int>("clicks");
    QTest::newRow("inside") << true << QPoint(19, 9) << 1;
    QTest::newRow("right of it") << true << QPoint(20, 9) << 0;
    QTest::newRow("above") << true << QPoint(3, -1) << 0;
    QTest::newRow("without a press") << false << QPoint(5, 5) << 0;
}

void tst_OmImageMasked::clicksAreReleasesInsideAfterAPress()
{
    QFETCH(bool, press);
    QFETCH(QPoint, release);
    QFETCH(int, clicks);
    for (const auto mouseButton : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        Button button;
        if (press)
            QTest::mousePress(&button, mouseButton);
        QTest::mouseRelease(&button, mouseButton, Qt::NoModifier, release);
        QCOMPARE(button.clicks, clicks);
        QCOMPARE(button.shown(), QStringLiteral("normal"));
        QTest::mouseRelease(&button, mouseButton);
        QCOMPARE(button.clicks, clicks);
    }
}

void tst_OmImageMasked::keysClick_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("clicks");
    QTest::newRow("space") << Qt::Key_Space << 1;
    QTest::newRow("Enter of the keypad") << Qt::Key_Enter << 1;
    QTest::newRow("Return") << Qt::Key_Return << 0;
    QTest::newRow("Escape") << Qt::Key_Escape << 0;
}

void tst_OmImageMasked::keysClick()
{
    QFETCH(Qt::Key, key);
    QFETCH(int, clicks);
    Button button;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &event);
    QCOMPARE(button.clicks, clicks);
    QVERIFY(event.isAccepted());
}

void tst_OmImageMasked::lostReleaseDoesNotLeaveTheButtonPressed()
{
    Button button;
    button.show();
    for (const bool hide : {false, true}) {
        QTest::mousePress(&button, Qt::LeftButton);
        hide ? button.hide() : button.setEnabled(false);
        QCOMPARE(button.shown(), QStringLiteral("normal"));
        button.setEnabled(true);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(button.clicks, 0);
    }
}

void tst_OmImageMasked::buttonMayBeDeletedInItsSlot_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("mouse") << 0;
    QTest::newRow("key") << 1;
    QTest::newRow("screen reader") << 2;
}

void tst_OmImageMasked::buttonMayBeDeletedInItsSlot()
{
    QFETCH(int, way);
    QWidget window;
    QPointer<Button> button(new Button);
    button->setParent(&window);
    window.show();
    connect(button, &OmImageMaskedButton::signalOnClicked, this, [button] { delete button; });
    if (way == 0)
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    else if (way == 1)
        QTest::keyClick(button.data(), Qt::Key_Space);
    else
        pressAccessibly(button);
    QVERIFY(!button);
}

void tst_OmImageMasked::screenReadersSeeAButton()
{
    Button button;
    button.setToolTip(QStringLiteral("Now"));
    QCOMPARE(accessible(&button)->role(), QAccessible::Button);
    QCOMPARE(accessibleName(&button), QStringLiteral("Now"));
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

OMBRIN_TEST_MAIN(tst_OmImageMasked)
#include "tst_omimagemasked.moc"
