#include "support/WidgetEvents.h"

#include "skin/SkinPixmap.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmFaderWidget.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

// As the test's skin has them.
const QColor kPlaceholder(0x70, 0x80, 0x90);
const QColor kMagnifier(Qt::blue);
const QColor kPicture(Qt::red);

QPixmap picture(const QSize &size)
{
    return flatPixmap(size, kPicture);
}

QImage shown(const OmAvatarSmall &avatar)
{
    return avatar.pixmap(Qt::ReturnByValue)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QColor under(const QColor &upper, qreal opacity, const QColor &lower)
{
    QImage pixel = flatImage(QSize(1, 1), lower, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&pixel);
    painter.setOpacity(opacity);
    painter.fillRect(pixel.rect(), upper);
    painter.end();
    return pixel.pixelColor(0, 0);
}

// A window in the middle of the screen with a thumbnail in it.
struct Host
{
    explicit Host(const QPoint &position = QPoint(100, 100), const QSize &avatarSize = {50, 50})
    {
        window.setGeometry(QRect(position, QSize(80, 80)));
        avatar->setGeometry(QRect(QPoint(12, 7), avatarSize));
        window.show();
    }

    OmAvatar *popup() const { return avatar->findChild<OmAvatar *>(); }

    QWidget window;
    QPointer<OmAvatarSmall> avatar = new OmAvatarSmall(&window);
};

void openPopup(OmAvatarSmall *avatar)
{
    QVERIFY(QMetaObject::invokeMethod(avatar, "slotAvatar"));
}

} // namespace

class tst_OmAvatarSmall : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("testdata/contacts.res")); }

    void startsWithThePlaceholder()
    {
        OmAvatarSmall avatar;
        QCOMPARE(avatar.maximumSize(), QSize(78, 78));
        QCOMPARE(avatar.sizeHint(), QSize(78, 78));
        avatar.resize(78, 78);
        QCOMPARE(paintedOnNothing(&avatar).pixelColor(40, 40), kPlaceholder);
    }

    void rendersThePictureIntoTheLabel_data()
    {
        const auto row = columns<QSize, QSize, QRect>("label", "avatar", "picture");
        row("square", {50, 50}, {100, 100}, {2, 2, 46, 46});
        row("wide", {50, 50}, {100, 50}, {2, 13, 46, 23});
        row("high", {32, 32}, {40, 70}, {8, 2, 16, 28});
        row("small, blown up", {78, 78}, {2, 2}, {2, 2, 74, 74});
        row("wide label", {70, 40}, {60, 60}, {17, 2, 36, 36});
        row("high label", {40, 70}, {60, 60}, {2, 17, 36, 36});
        row("no room inside", {4, 4}, {60, 60}, {});
        row("no picture", {50, 50}, {}, {});
    }

    void rendersThePictureIntoTheLabel()
    {
        QFETCH(QSize, label);
        QFETCH(QSize, avatar);
        QFETCH(QRect, picture);
        OmAvatarSmall small;
        small.resize(label);
        const QPixmap source = avatar.isEmpty() ? QPixmap() : ::picture(avatar);
        const qreal ratio = small.devicePixelRatioF();
        const int square = qMin(label.width(), label.height());
        const QRect white =
                avatar.isEmpty() ? QRect() : QRect(QPoint(), label).adjusted(2, 2, -2, -2);
        const QRect magnifier(4, label.height() - 28, 24, 24);
        for (const bool hover : {false, true}) {
            small.setAvatar(source, hover);
            QCOMPARE(small.avatar().cacheKey(), source.cacheKey());
            QCOMPARE(small.isLink(), !source.isNull());
            const QImage image = shown(small);
            QCOMPARE(image.size(), (QSizeF(label) * ratio).toSize());
            QCOMPARE(image.devicePixelRatio(), ratio);
            QCOMPARE(small.sizeHint(), label);
            for (int y = 0; y < label.height(); ++y) {
                for (int x = 0; x < label.width(); ++x) {
                    const QPoint pixel(int((x + 0.5) * ratio), int((y + 0.5) * ratio));
                    QColor expected = x < square && y < square ? kPlaceholder : Qt::transparent;
                    if (white.contains(x, y))
                        expected = Qt::white;
                    if (picture.contains(x, y))
                        expected = kPicture;
                    if (hover && !avatar.isEmpty() && magnifier.contains(x, y))
                        expected = under(kMagnifier, 0.7, expected);
                    QCOMPARE(image.pixelColor(pixel), expected);
                }
            }
        }
    }

    void magnifierFollowsTheMouse()
    {
        Host host;
        const QPixmap avatar = picture(QSize(100, 100));
        host.avatar->setAvatar(avatar, false);
        const QImage plain = shown(*host.avatar);
        sendEnter(host.avatar);
        QCOMPARE(host.avatar->cursor().shape(), Qt::PointingHandCursor);
        const QImage hovered = shown(*host.avatar);
        QVERIFY(hovered != plain);
        QCOMPARE(hovered.pixelColor(QPoint(10, 40) * int(host.avatar->devicePixelRatioF())),
                 under(kMagnifier, 0.7, kPicture));
        sendLeave(host.avatar);
        QCOMPARE(shown(*host.avatar), plain);

        // Its size is the one at the time when the picture is set.
        host.avatar->resize(32, 32);
        QCOMPARE(shown(*host.avatar), plain);
        host.avatar->setAvatar(picture(QSize(50, 50)), false);
        QCOMPARE(shown(*host.avatar).size(),
                 (QSizeF(32, 32) * host.avatar->devicePixelRatioF()).toSize());
    }

    void withoutPictureNothingCanBeClicked()
    {
        Host host;
        host.avatar->setAvatar(picture(QSize(10, 10)), false);
        sendEnter(host.avatar);
        host.avatar->setAvatar(QPixmap(), true);
        QCOMPARE(host.avatar->cursor().shape(), Qt::ArrowCursor);
        QSignalSpy hovered(host.avatar, &OmAvatarSmall::hovered);
        QSignalSpy clicked(host.avatar, &OmAvatarSmall::clicked);
        sendLeave(host.avatar);
        sendEnter(host.avatar);
        QTest::mouseClick(host.avatar, Qt::LeftButton);
        QVERIFY(hovered.isEmpty() && clicked.isEmpty());
        openPopup(host.avatar);
        QVERIFY(!host.popup());
    }

    // The anchor is the thumbnail's corner moved by its place in the window, (12, 7).
    void opensTheLargePictureBesideItself()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QPoint far = screen.bottomRight() - QPoint(149, 149);
        const std::pair<QPoint, QPoint> places[] = {
                {{100, 100}, QPoint(124, 114)},
                {far, far + QPoint(24, 14) + QPoint(50 - 200, 50 - 150)},
                {far + QPoint(90, 100), screen.bottomRight() - QPoint(199, 149)}};
        for (const auto &[window, expected] : places) {
            Host host(window);
            host.avatar->setAvatar(picture(QSize(198, 148)), false);
            openPopup(host.avatar);
            QVERIFY(host.popup() && host.popup()->isVisible());
            QCOMPARE(host.popup()->geometry(), QRect(expected, QSize(200, 150)));
        }
    }

    void largePictureFadesInAndOut()
    {
        Host host;
        host.avatar->setAvatar(picture(QSize(90, 60)), false);
        openPopup(host.avatar);
        const QPointer<OmAvatar> popup = host.popup();
        const QPointer<OmFaderWidget> fader = popup->findChild<OmFaderWidget *>();
        QVERIFY(fader);
        QSignalSpy done(fader, &OmFaderWidget::done);
        QVERIFY(waitFor([&] { return fader.isNull(); }));
        QCOMPARE(done, QList<QVariantList>{{false}});
        QVERIFY(popup && popup->isVisible());
        sendLeave(popup);
        QVERIFY(waitFor([&] { return popup.isNull(); }));
    }

    void hostsOpenItByTheNameOfTheSlot()
    {
        Host host;
        host.avatar->setAvatar(picture(QSize(90, 60)), false);
        QVERIFY(connect(host.avatar, SIGNAL(clicked()), host.avatar, SLOT(slotAvatarTimer())));
        QTest::mouseClick(host.avatar, Qt::LeftButton);
        QVERIFY(!host.popup());
        QVERIFY(waitFor([&] { return host.popup() != nullptr; }));
        const QPointer<OmAvatar> popup = host.popup();
        QVERIFY(QMetaObject::invokeMethod(host.avatar, "slotAvatarTimer")); // which it outlives
        delete host.avatar;
        QVERIFY(!popup);
    }

    void slotsKeepTheirOrder()
    {
        QCOMPARE(methodsOf(OmAvatarSmall::staticMetaObject),
                 words("slotAvatarTimer() slotAvatar() slotAvatarHovered(bool)"));
    }
};

OMBRIN_TEST_MAIN(tst_OmAvatarSmall)
#include "tst_omavatarsmall.moc"
