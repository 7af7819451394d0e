#include "support/TestCase.h"
#include "support/WidgetEvents.h"
#include "support/XUser.h"

#include <ombrin/OmBalloonTip.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

OmBalloonTip *showTip(const QPoint &position, int timeout = 0)
{
    OmBalloonTip::showBalloon(MessageIcon(0), QString(), "A message of two\nlines"_q, position,
                              timeout, true, false, false);
    return shown<OmBalloonTip>();
}

QScreen *secondScreen()
{
    return QGuiApplication::screens().value(1);
}

// Where the X server has the pixels of \a rect, which lies on \a screen or begins there.
QRect nativeRect(const QRect &rect, const QScreen *screen)
{
    const QPoint origin = screen->geometry().topLeft();
    const int density = int(screen->devicePixelRatio());
    return QRect((rect.topLeft() - origin) * density + origin, rect.size() * density);
}

// The window as the X server has it.
QRect serverRect(const QWidget *widget)
{
    const WId id = widget->windowHandle()->winId(); // the widget's own may be out of date
    const QString info = runBeside("xwininfo"_q, {"-id"_q, QString::number(id)});
    const auto number = [&info](const char *key) {
        const QRegularExpression line(QLatin1String(key) + ":\\s+(-?\\d+)"_q);
        return line.match(info).captured(1).toInt();
    };
    return QRect(number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
                 number("Height"));
}

} // namespace

// Two screens on a real X server, the second twice as dense as the first.
class tst_OmBalloonTipScreens : public TestCase
{
    Q_OBJECT

protected:
    void tearDown() override { OmBalloonTip::hideBalloon(); }

private Q_SLOTS:
    void initTestCase() { QCOMPARE(QGuiApplication::screens().size(), 2); }

    void itPointsAtItsPositionOnAnyScreen_data()
    {
        const auto row = columns<QPoint>("second");
        row("second right of the first", {1280, 0});
        row("second right of the first and lower", {1280, 600});
        row("second below the first", {0, 1024});
        row("second below the first and further right", {900, 1024});
    }

    void itPointsAtItsPositionOnAnyScreen()
    {
        QFETCH(QPoint, second);
        const QString corner = "%1x%2"_q.arg(second.x()).arg(second.y());
        runBeside("xrandr"_q, {"--output"_q, "DUMMY1"_q, "--pos"_q, corner});
        QVERIFY(waitFor([&] { return secondScreen()->geometry().topLeft() == second; }));

        for (QScreen *screen : QGuiApplication::screens()) {
            const QRect area = screen->geometry();
            const QRect inner = area.adjusted(40, 4, -40, -4);
            for (const QPoint &position : {inner.center(), inner.topLeft(), inner.topRight(),
                                           inner.bottomLeft(), inner.bottomRight()}) {
                OmBalloonTip *const tip = showTip(position);
                QVERIFY(QTest::qWaitForWindowExposed(tip, 20000));
                QCOMPARE(tip->devicePixelRatioF(), screen->devicePixelRatio());

                const QRect place(tip->pos(), tip->size());
                QVERIFY(place.top() == position.y() || place.bottom() == position.y() - 1);
                QVERIFY(place.left() + 18 == position.x() || place.right() - 17 == position.x());
                QVERIFY(area.contains(place));
                QCOMPARE(serverRect(tip), nativeRect(place, screen));
            }
        }
    }

    void withoutTheMouseItGoesWhenItsTimeIsUp()
    {
        xdo("mousemove 2 2"_q);
        const QPointer<OmBalloonTip> tip(showTip(secondScreen()->geometry().center(), 100));
        QVERIFY(waitFor([&] { return tip.isNull(); }));
    }
};

OMBRIN_TEST_MAIN(tst_OmBalloonTipScreens)
#include "tst_omballoontip_screens.moc"
