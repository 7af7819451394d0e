#include "support/WidgetEvents.h"
#include "support/XUser.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmSkin.h>

using namespace ombrin::test;
using namespace ombrin;

// Two screens on a real X server, the second twice as dense as the first.
class tst_PopupsScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::screens().size(), 2);
        ombrin::OmSkin::init(false);
    }

    void popupsOpenOnTheScreenOfTheirWidget_data()
    {
        const auto row = columns<QString>("place");
        row("second screen on the right", "--right-of");
        row("second screen on the left", "--left-of");
        row("second screen above", "--above");
        row("second screen below", "--below");
    }

    void popupsOpenOnTheScreenOfTheirWidget()
    {
        QFETCH(QString, place);
        runBeside("xrandr"_q, {"--output"_q, "DUMMY1"_q, place, "DUMMY0"_q});
        const QList<QScreen *> screens = QGuiApplication::screens();
        QCOMPARE(screens.size(), 2);
        const auto geometryOf = [&screens](const char *name) {
            const bool isAhead = screens.constFirst()->name() == QLatin1String(name);
            return (isAhead ? screens.constFirst() : screens.constLast())->geometry();
        };
        const auto isInPlace = [&] {
            const QRect first = geometryOf("DUMMY0");
            const QRect second = geometryOf("DUMMY1");
            return place == "--right-of"_q  ? second.left() > first.right()
                   : place == "--left-of"_q ? second.right() < first.left()
                   : place == "--above"_q   ? second.bottom() < first.top()
                                            : second.top() > first.bottom();
        };
        QVERIFY(waitFor(isInPlace));
        for (const QScreen *screen : screens) {
            const QRect area = screen->geometry();
            const QPoint far = area.bottomRight() - QPoint(100, 100);
            for (const QPoint &position : {area.topLeft(), far}) {
                QWidget window(nullptr, Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
                window.setGeometry(QRect(position, QSize(90, 90)));
                OmAvatarSmall small(&window);
                small.setGeometry(4, 4, 50, 50);
                OmInfoPopup icon(&window);
                icon.move(60, 60);
                window.show();
                QVERIFY(QTest::qWaitForWindowExposed(&window, 20000));

                small.setAvatar(flatPixmap(QSize(200, 300), Qt::red), false);
                QVERIFY(QMetaObject::invokeMethod(&small, "slotAvatar"));
                const QPointer<OmAvatar> avatar = small.findChild<OmAvatar *>();
                QVERIFY(QTest::qWaitForWindowExposed(avatar, 20000));
                QCOMPARE(avatar->size(), QSize(202, 302));
                checkIsOn(avatar, screen);
                const QPoint anchor = position + QPoint(8, 8);
                QCOMPARE(avatar->pos(),
                         position == far ? anchor + QPoint(50 - 202, 50 - 302) : anchor);
                avatar->close();
                QVERIFY(waitFor([&] { return avatar.isNull(); }));

                sendEnter(&icon);
                QWidget *const popup = QApplication::activePopupWidget();
                QVERIFY(popup && QTest::qWaitForWindowExposed(popup, 20000));
                checkIsOn(popup, screen);
            }
        }
    }

private:
    static void checkIsOn(const QWidget *popup, const QScreen *screen)
    {
        QCOMPARE(popup->screen(), screen);
        QCOMPARE(popup->devicePixelRatioF(), screen->devicePixelRatio());
        QVERIFY(screen->geometry().contains(popup->geometry()));
    }
};

OMBRIN_TEST_MAIN(tst_PopupsScreens)
#include "tst_popups_screens.moc"
