#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include "skin/SkinPixmap.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmFaderWidget.h>

#include <QtCore/QResource>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

#include <memory>

using namespace ombrin::test;
using ombrin::OmAvatar;
using ombrin::OmAvatarSmall;
using ombrin::OmFaderWidget;

namespace {

// As the test's skin has them.
const QColor kPlaceholder(0x70, 0x80, 0x90);
const QColor kMagnifier(Qt::blue);
const QColor kPicture(Qt::red);

QPixmap picture(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(kPicture);
    return pixmap;
}

QImage shown(const OmAvatarSmall &avatar)
{
    return avatar.pixmap(Qt::ReturnByValue)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QColor under(const QColor &upper, qreal opacity, const QColor &lower)
{
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(lower);
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
    void initTestCase()
    {
        QVERIFY(QResource::registerResource(QCoreApplication::applicationDirPath()
                                            + QStringLiteral("/testdata/contacts.res")));
    }

    void startsWithThePlaceholder()
    {
        OmAvatarSmall avatar;
        QCOMPARE(avatar.maximumSize(), QSize(78, 78));
        QVERIFY(avatar.avatar().isNull() && !avatar.isLink());
        QCOMPARE(shown(avatar).size(), QSize(78, 78) * std::ceil(avatar.devicePixelRatioF()));
        QCOMPARE(shown(avatar).pixelColor(77, 0), kPlaceholder);
        QCOMPARE(avatar.sizeHint(), QSize(78, 78));
        avatar.resize(78, 78);
        QCOMPARE(paintedOnNothing(&avatar).pixelColor(40, 40), kPlaceholder);
    }

    void rendersThePictureIntoTheLabel_data()
    {
        QTest::addColumn<QSize>("label");
        QTest::addColumn<QSize>("avatar");
        QTest::addColumn<QRect>("picture");
        QTest::addColumn<bool>("hover");

        const struct
        {
            const char *name;
            QSize label;
            QSize avatar;
            QRect picture;
        } rows[] = {
                {"square", {50, 50}, {100, 100}, {2, 2, 46, 46}},
                {"wide", {50, 50}, {100, 50}, {2, 13, 46, 23}},
                {"high", {32, 32}, {40, 70}, {8, 2, 16, 28}},
                {"thin", {50, 50}, {4000, 1}, {2, 24, 46, 1}},
                {"small, blown up", {78, 78}, {2, 2}, {2, 2, 74, 74}},
                {"wide label", {70, 40}, {60, 60}, {17, 2, 36, 36}},
                {"high label", {40, 70}, {60, 60}, {2, 17, 36, 36}},
                {"no room inside", {4, 4}, {60, 60}, {}},
                {"no picture", {50, 50}, {}, {}},
                {"no picture, wide label", {70, 40}, {}, {}},
        };
        for (const auto &row : rows) {
            for (const bool hover : {false, true})
                QTest::addRow("%s%s", row.name, hover ? ", hovered" : "")
                        << row.label << row.avatar << row.picture << hover;
        }
    }

    void rendersThePictureIntoTheLabel()
    {
        QFETCH(QSize, label);
        QFETCH(QSize, avatar);
        QFETCH(QRect, picture);
        QFETCH(bool, hover);

        OmAvatarSmall small;
        small.resize(label);
        const QPixmap source = avatar.isEmpty() ? QPixmap() : ::picture(avatar);
        small.setAvatar(source, hover);
        QCOMPARE(small.avatar().cacheKey(), source.cacheKey());
        QCOMPARE(small.isLink(), !source.isNull());
        const qreal ratio = small.devicePixelRatioF();
        const QImage image = shown(small);
        QCOMPARE(image.size(), (QSizeF(label) * ratio).toSize());
        QCOMPARE(image.devicePixelRatio(), ratio);
        QCOMPARE(small.sizeHint(), label);

        const int square = qMin(label.width(), label.height());
        const QRect white =
                avatar.isEmpty() ? QRect() : QRect(QPoint(), label).adjusted(2, 2, -2, -2);
        const QRect magnifier(4, label.height() - 28, 24, 24);
        for (int y = 0; y < label.height(); ++y) {
            for (int x = 0; x < label.width(); ++x) {
                // The middle of the point: with a fraction, edges fall between pixels.
                const QPoint pixel(int((x + 0.5) * ratio), int((y + 0.5) * ratio));
                if (ratio != std::floor(ratio)
                    && !isInside(x, y, picture, white, square, magnifier))
                    continue;
                QColor expected = x < square && y < square ? kPlaceholder : QColor(Qt::transparent);
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
        host.avatar->setAvatar(host.avatar->avatar(), false);
        QCOMPARE(shown(*host.avatar).size(),
                 (QSizeF(32, 32) * host.avatar->devicePixelRatioF()).toSize());
    }

    void anotherPictureReplacesTheKeptOne()
    {
        OmAvatarSmall avatar;
        avatar.resize(50, 50);
        avatar.setAvatar(picture(QSize(100, 100)), true);
        QPixmap green(100, 100);
        green.fill(Qt::green);
        avatar.setAvatar(green, false);
        QCOMPARE(shown(avatar).pixelColor(20, 20), QColor(Qt::green));
        green.fill(Qt::yellow); // painted on by the host
        QCOMPARE(avatar.avatar().toImage().pixelColor(0, 0), QColor(Qt::green));
        avatar.setAvatar(green, false);
        QCOMPARE(shown(avatar).pixelColor(20, 20), QColor(Qt::yellow));
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

    void opensTheLargePictureBesideItself_data()
    {
        QTest::addColumn<QPoint>("window");
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QPoint>("expected");

        // The anchor is the thumbnail's corner moved by its place in the window, (12, 7).
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QSize size(198, 148);
        const QPoint far(screen.width() - 150, screen.height() - 150);
        const QPoint anchor = QPoint(24, 14);
        QTest::newRow("room") << QPoint(100, 100) << size << QPoint(100, 100) + anchor;
        QTest::newRow("right") << QPoint(far.x(), 100) << size
                               << QPoint(far.x() + 50 - 200, 100) + anchor;
        QTest::newRow("bottom") << QPoint(100, far.y()) << size
                                << QPoint(100, far.y() + 50 - 150) + anchor;
        QTest::newRow("corner") << far << size << far + QPoint(50 - 200, 50 - 150) + anchor;
        QTest::newRow("not even then")
                << far + QPoint(90, 100) << size
                << QPoint(screen.width(), screen.height()) - QPoint(200, 150);
        QTest::newRow("larger than the screen") << QPoint(100, 100) << 2 * screen << QPoint(0, 0);
    }

    void opensTheLargePictureBesideItself()
    {
        QFETCH(QPoint, window);
        QFETCH(QSize, picture);
        QFETCH(QPoint, expected);
        Host host(window);
        const QPixmap avatar = ::picture(picture);
        host.avatar->setAvatar(avatar, false);
        openPopup(host.avatar);
        OmAvatar *const popup = host.popup();
        QVERIFY(popup && popup->isVisible());
        QCOMPARE(popup->size(), picture + QSize(2, 2));
        QCOMPARE(popup->pos(), expected);
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
        delete host.avatar;
        QVERIFY(!popup);
    }

    void mayGoAwayBeforeItOpens()
    {
        Host host;
        host.avatar->setAvatar(picture(QSize(90, 60)), false);
        QVERIFY(QMetaObject::invokeMethod(host.avatar, "slotAvatarTimer"));
        delete host.avatar;
        QTest::qWait(50);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void slotsKeepTheirOrder()
    {
        const QMetaObject &meta = OmAvatarSmall::staticMetaObject;
        QStringList names;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            names.append(QString::fromLatin1(meta.method(index).methodSignature()));
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("slotAvatarTimer() slotAvatar() slotAvatarHovered(bool)"));
    }

private:
    // Whether a point is not beside an edge of one of the parts.
    static bool isInside(int x, int y, const QRect &picture, const QRect &white, int square,
                         const QRect &magnifier)
    {
        for (const QRect &rect : {picture, white, QRect(0, 0, square, square), magnifier}) {
            if (rect.adjusted(-2, -2, 2, 2).contains(x, y)
                && !rect.adjusted(2, 2, -2, -2).contains(x, y))
                return false;
        }
        return true;
    }
};

OMBRIN_TEST_MAIN(tst_OmAvatarSmall)
#include "tst_omavatarsmall.moc"
