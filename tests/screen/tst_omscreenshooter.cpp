#include "screen/ScreenGrabber.h"
#include "skin/SkinPixmap.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include <functional>
#include <limits>

using namespace ombrin;
using namespace ombrin::test;
using Cutter = OmScreenShooter_FullscreenCutter;

namespace {

constexpr QPoint kFrom(100, 100);
constexpr QPoint kTo(300, 200);

/// The desktop of these tests: every pixel tells where it is.
QPixmap pattern(QScreen *screen)
{
    QImage image(screen->geometry().size() * screen->devicePixelRatio(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, 7));
    }
    image.setDevicePixelRatio(screen->devicePixelRatio());
    return QPixmap::fromImage(image);
}

const OmImageMaskedWidget *countdown()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        if (const auto *image = qobject_cast<const OmImageMaskedWidget *>(widget);
            image && image->isVisible() && !qobject_cast<const OmImageMaskedButton *>(widget))
            return image;
    }
    return nullptr;
}

/// The number that the countdown shows, or 0.
int number()
{
    const OmImageMaskedWidget *image = countdown();
    int found = image ? 10 : 0;
    while (found > 0 && image->image() != ombrin::skinImage(":/countdown-%1-128.png"_q.arg(found)))
        --found;
    return found;
}

} // namespace

using Act = std::function<void(Cutter *)>;
Q_DECLARE_METATYPE(Act)

class tst_OmScreenShooter : public ombrin::test::TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void shot(QPixmap picture)
    {
        m_reports.append("shot"_q);
        m_picture = picture;
    }
    void failed() { m_reports.append("failed"_q); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("skins/ombrin.res")); }

    void simplePictureIsOfTheWholeDesktop()
    {
        const QScreen *screen = QGuiApplication::primaryScreen();
        const QPixmap picture = OmScreenShooter::shootSimple();
        QCOMPARE(picture.toImage(), pattern(QGuiApplication::primaryScreen()).toImage());
        QCOMPARE(picture.devicePixelRatio(), screen->devicePixelRatio());
        ombrin::setScreenGrab([](QScreen *) { return QPixmap(); });
        QVERIFY(OmScreenShooter::shootSimple().isNull());
    }

    void requestShowsWhatItSays_data()
    {
        // number: of the countdown's picture; 0 for none
        const auto row = columns<unsigned int, bool, int>("delay", "button", "number");
        row("at once", 0U, false, 0);
        row("button alone", 0U, true, 0);
        row("not quite a second", 900U, false, 1);
        row("three seconds", 3000U, true, 3);
        row("twelve seconds", 12000U, true, 10);
        row("for ever", std::numeric_limits<unsigned int>::max(), true, 10);
    }

    void requestShowsWhatItSays()
    {
        QFETCH(unsigned int, delay);
        QFETCH(bool, button);
        shoot(false, delay, button);
        const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
        const QPoint middle(desktop.left() + desktop.width() / 2,
                            desktop.top() + desktop.height() / 2);
        QTEST(number(), "number");
        if (const OmImageMaskedWidget *image = countdown()) {
            QCOMPARE(image->geometry(), QRect(middle - QPoint(64, 128 + 5), QSize(128, 128)));
            QCOMPARE(qRound(image->windowOpacity() * 100), 75);
        }
        auto *now = shown<OmImageMaskedButton>();
        QCOMPARE(now != nullptr, button);
        if (now) {
            QCOMPARE(now->geometry(), QRect(middle + QPoint(-32, 5), QSize(64, 64)));
            QVERIFY(now->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            QTest::mouseClick(now, Qt::LeftButton);
            QVERIFY(!shown<OmImageMaskedWidget>()); // nothing of it is in the picture
        }
        QVERIFY(m_reports.isEmpty());
        QVERIFY(waitFor([this] { return !m_reports.isEmpty(); }));
        QCOMPARE(m_reports, QStringList("shot"_q));
        QCOMPARE(m_picture.toImage(), OmScreenShooter::shootSimple().toImage());
    }

    void countdownCountsSeconds()
    {
        shoot(false, 2000);
        QCOMPARE(number(), 2);
        QVERIFY(waitFor([] { return number() < 2; }));
        QVERIFY(waitFor([this] { return !m_reports.isEmpty(); }));
        QVERIFY(!countdown());
    }

    void delayMayEndWhileTheCountdownIsBeingShown()
    {
        // As window systems do that let events through while they show a window.
        class SlowToShow : public QObject
        {
            bool eventFilter(QObject *shown, QEvent *event) override
            {
                if (event->type() == QEvent::Show && qobject_cast<OmImageMaskedWidget *>(shown)) {
                    qApp->removeEventFilter(this);
                    QTest::qWait(1200);
                }
                return false;
            }
        } slowToShow;
        shoot(false, 1500);
        qApp->installEventFilter(&slowToShow); // when the next number is shown
        QTRY_COMPARE_WITH_TIMEOUT(m_reports, QStringList("shot"_q), 20000);
    }

    void everyRequestReportsOnce_data()
    {
        // act: once the button or the cutter is there, which may be null
        const auto row =
                columns<bool, bool, Act, QString>("cuts", "waitsForButton", "act", "report");
        const auto nothing = [](Cutter *) {};
        const auto forbid = [](Cutter *) {
            ombrin::setScreenGrab([](QScreen *) { return QPixmap(); });
        };
        const auto quit = [](Cutter *) { QMetaObject::invokeMethod(qApp, "aboutToQuit"); };
        const auto closeAll = [](Cutter *) { QApplication::closeAllWindows(); };
        const auto destroyButton = [](Cutter *) { shown<OmImageMaskedButton>()->deleteLater(); };
        const auto clickTwice = [](Cutter *) {
            auto *button = shown<OmImageMaskedButton>();
            Q_EMIT button->signalOnClicked();
            Q_EMIT button->signalOnClicked();
        };
        const auto clickAndQuit = [quit](Cutter *) {
            QTest::mouseClick(shown<OmImageMaskedButton>(), Qt::LeftButton);
            quit(nullptr);
        };
        row("shot", false, false, nothing, "shot");
        row("forbidden", false, false, forbid, "failed");
        row("application quits", false, false, quit, "failed");
        row("all windows closed, button", false, true, closeAll, "failed");
        row("button deleted", true, true, destroyButton, "failed");
        row("button clicked twice", false, true, clickTwice, "shot");
        row("button clicked, application quits", false, true, clickAndQuit, "failed");
    }

    void everyRequestReportsOnce()
    {
        QFETCH(bool, cuts);
        QFETCH(bool, waitsForButton);
        QFETCH(Act, act);
        shoot(cuts, 0, waitsForButton);
        act(nullptr);
        QVERIFY(waitFor([this] { return !m_reports.isEmpty(); }));
        QTest::qWait(400);
        QTEST(m_reports.join(QLatin1Char(' ')), "report");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void receiversMayBeMissing()
    {
        expectWarning("No such slot"_q);
        auto receiver = std::make_unique<QObject>();
        OmScreenShooter::shootDelayed(0, false, receiver.get(), SLOT(deleteLater()), nullptr,
                                      nullptr);
        OmScreenShooter::shootDelayed(0, false, this, nullptr, this, SLOT(nothing()));
        OmScreenShooter::shootDelayed(0, false, nullptr, SLOT(shot(QPixmap)), this, SLOT(failed()));
        receiver.reset();
        QTest::qWait(400);
        QCOMPARE(m_reports, QStringList());
    }

    void cutterEndsAsTheUserSays_data()
    {
        // size: of the picture; none where it fails
        columns<Act, QSize, QPoint>("act", "size", "corner");
        const auto row = [](const char *name, const Act &act, const QSize &size = QSize(),
                            const QPoint &corner = kFrom) {
            QTest::newRow(name) << act << size << corner;
        };
        const auto key = [](Qt::Key pressed) {
            return [pressed](Cutter *cutter) { QTest::keyClick(cutter, pressed); };
        };
        const auto click = [](const QPoint &point) {
            return [point](Cutter *cutter) {
                QTest::mouseClick(cutter, Qt::LeftButton, Qt::NoModifier, point);
            };
        };
        const auto doubleClick = [](const QPoint &point) {
            return [point](Cutter *cutter) {
                QTest::mouseClick(cutter, Qt::LeftButton, Qt::NoModifier, point);
                QTest::mouseDClick(cutter, Qt::LeftButton, Qt::NoModifier, point);
                QTest::mouseRelease(cutter, Qt::LeftButton, Qt::NoModifier, point);
            };
        };
        const auto dragged = [](const QPoint &from, const QPoint &to, const Act &then) {
            return [=](Cutter *cutter) {
                dragInside(cutter, from, to);
                then(cutter);
            };
        };
        const QSize whole(201, 101);
        const Act enter = key(Qt::Key_Enter);
        row("snap button", click({240, 170}), whole);
        row("enter", enter, whole);
        row("double click inside", doubleClick({150, 150}), whole);
        row("moved", dragged({150, 150}, {170, 180}, enter), whole, {120, 130});
        row("moved over the edge", dragged({150, 150}, {10, 150}, enter), {161, 101}, {0, 100});
        row("while dragging",
            [](Cutter *cutter) {
                QTest::mousePress(cutter, Qt::LeftButton, Qt::NoModifier, kTo);
                sendMouseMove(cutter, {50, 60}, Qt::LeftButton);
                QTest::keyClick(cutter, Qt::Key_Enter);
            },
            {51, 41}, {50, 60});
        row("close button", click({280, 170}));
        row("snap button, released elsewhere",
            dragged({240, 170}, {150, 150}, key(Qt::Key_Escape)));
        row("escape", key(Qt::Key_Escape));
        row("double click outside", doubleClick({20, 20}));
        row("other window", [](Cutter *) {
            QDialog other;
            other.show();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        });
        row("closed", [](Cutter *cutter) { cutter->close(); });
        row("deleted", [](Cutter *cutter) { delete cutter; });
        row("second request", [](Cutter *) {
            OmScreenShooter::shootUserCutted(0, false, nullptr, nullptr, nullptr, nullptr);
            const auto *first = shown<Cutter>();
            QVERIFY(waitFor([first] { return shown<Cutter>() && shown<Cutter>() != first; }));
            shown<Cutter>()->close();
        });
        row("screen removed", [](Cutter *) {
            Q_EMIT QGuiApplication::primaryScreen()->virtualGeometryChanged(QRect());
        });
        row("application quits", [](Cutter *) { QMetaObject::invokeMethod(qApp, "aboutToQuit"); });
    }

    void cutterEndsAsTheUserSays()
    {
        QFETCH(Act, act);
        QFETCH(QSize, size);
        QFETCH(QPoint, corner);
        Cutter *cutter = cut();
        QVERIFY(cutter);
        QCOMPARE(cutter->geometry(), QGuiApplication::primaryScreen()->virtualGeometry());
        dragInside(cutter, kFrom, kTo);
        act(cutter);
        QVERIFY(waitFor([this] { return !m_reports.isEmpty(); }));
        QTest::qWait(20);
        QCOMPARE(m_reports, QStringList(size.isValid() ? "shot"_q : "failed"_q));
        if (size.isValid()) {
            const qreal density = m_picture.devicePixelRatio();
            QCOMPARE(m_picture.size(), size * density);
            QCOMPARE(density, QGuiApplication::primaryScreen()->devicePixelRatio());
            const QImage expected = OmScreenShooter::shootSimple().toImage().copy(
                    QRect(corner * density, size * density));
            QCOMPARE(m_picture.toImage().convertToFormat(QImage::Format_RGB32),
                     expected.convertToFormat(QImage::Format_RGB32));
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void cutterPaintsSelectionOverTheFrozenDesktop()
    {
        Cutter *cutter = cut();
        QVERIFY(cutter);
        const auto color = [cutter](const QImage &image, const QPoint &point) {
            return image.pixelColor(point * cutter->devicePixelRatio());
        };
        // Frozen below, and dimmed by half to the grey 96.
        const QImage below = pattern(cutter->screen()).toImage();
        const auto isDimmed = [&](const QImage &image, const QPoint &point) {
            const QColor before = color(below, point);
            const QColor seen = color(image, point);
            return std::abs(seen.red() - (before.red() + 96) / 2) <= 1
                   && std::abs(seen.green() - (before.green() + 96) / 2) <= 1;
        };
        QImage image = cutter->grab().toImage();
        QVERIFY(isDimmed(image, {50, 60}));
        dragInside(cutter, kFrom, kTo);
        image = cutter->grab().toImage();
        for (const QPoint &point :
             {QPoint(50, 60), QPoint(150, 96), QPoint(305, 130), QPoint(150, 205)})
            QVERIFY(isDimmed(image, point));
        for (const QPoint &point : {QPoint(110, 130), QPoint(100, 130), QPoint(300, 130)})
            QCOMPARE(color(image, point), color(below, point));
        for (const QPoint &handle :
             {QPoint(99, 99), QPoint(103, 103), QPoint(199, 99), QPoint(298, 149)})
            QCOMPARE(color(image, handle), QColor(Qt::black));

        // The buttons: as they are, under the mouse, and pressed.
        const QRect snap(226, 163, 32, 32);
        const qreal density = cutter->devicePixelRatio();
        const auto button = [&](const char *state) {
            QPixmap expected = OmScreenShooter::shootSimple().copy(
                    QRect(snap.topLeft() * density, snap.size() * density));
            expected.setDevicePixelRatio(density);
            QPainter painter(&expected);
            painter.drawPixmap(
                    0, 0,
                    ombrin::skinPixmap(":/snapshot-snap%1-32.png"_q.arg(QLatin1String(state))));
            return expected.toImage().convertToFormat(QImage::Format_RGB32);
        };
        const auto seen = [&] {
            return cutter->grab(snap).toImage().convertToFormat(QImage::Format_RGB32);
        };
        QCOMPARE(seen(), button(""));
        sendMouseMove(cutter, snap.center());
        QCOMPARE(cutter->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(seen(), button("-hover"));
        QTest::mousePress(cutter, Qt::LeftButton, Qt::NoModifier, snap.center());
        QCOMPARE(seen(), button("-pressed"));
        sendMouseMove(cutter, {0, 0}, Qt::LeftButton);
        QCOMPARE(seen(), button(""));
        cutter->close();
    }

    void hintTellsWhatToDo()
    {
        Cutter *cutter = cut();
        QVERIFY(cutter);
        const QRect box(100, 20, 250, 200); // of the hint
        const QImage before = cutter->grab(box).toImage();
        dragInside(cutter, {10, 10}, {11, 11}); // not a selection
        QVERIFY(QMetaObject::invokeMethod(cutter, "slotOnUserIsAnIdiot"));
        const QImage image = cutter->grab(box).toImage();
        const auto has = [&image](const QColor &color) {
            return pixelCount(image, [&](const QColor &pixel) { return pixel == color; }) > 100;
        };
        QVERIFY(has(Qt::white) && has(Qt::black));
        dragInside(cutter, {2, 2}, {9, 9});
        QCOMPARE(cutter->grab(box).toImage(), before);
        QVERIFY(QMetaObject::invokeMethod(cutter, "slotOnUserIsAnIdiot"));
        QCOMPARE(cutter->grab(box).toImage(), before); // it never comes back
        cutter->close();
    }

protected:
    void setUp() override
    {
        ombrin::setScreenGrab(pattern);
        m_reports.clear();
        m_picture = QPixmap();
    }
    void tearDown() override { ombrin::setScreenGrab(nullptr); }

private:
    void shoot(bool cut, unsigned int delay = 0, bool button = false)
    {
        (cut ? OmScreenShooter::shootUserCutted : OmScreenShooter::shootDelayed)(
                delay, button, this, SLOT(shot(QPixmap)), this, SLOT(failed()));
    }
    /// Starts to cut and returns the cutter when it is there.
    Cutter *cut()
    {
        shoot(true);
        waitFor([] { return shown<Cutter>() && shown<Cutter>()->isActiveWindow(); });
        return shown<Cutter>();
    }

    QStringList m_reports;
    QPixmap m_picture;
};

OMBRIN_TEST_MAIN(tst_OmScreenShooter)
#include "tst_omscreenshooter.moc"
