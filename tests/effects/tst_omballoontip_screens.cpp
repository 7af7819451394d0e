#include "support/TestCase.h"
#include "support/XUser.h"

#include <ombrin/OmBalloonTip.h>

#include <QtCore/QPointer>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

using namespace ombrin::test;
using ombrin::MessageIcon;
using ombrin::OmBalloonTip;

namespace {

OmBalloonTip *showTip(const QPoint &position, int timeout = 0)
{
    OmBalloonTip::showBalloon(MessageIcon(0), QString(), QStringLiteral("A message of two\nlines"),
                              position, timeout, true, false, false);
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *const tip = qobject_cast<OmBalloonTip *>(widget);
        if (tip && tip->isVisible())
            return tip;
    }
    return nullptr;
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
    const QString info =
            runBeside(QStringLiteral("xwininfo"), {QStringLiteral("-id"), QString::number(id)});
    const auto number = [&info](const char *key) {
        const QRegularExpression line(QLatin1String(key) + QLatin1String(":\\s+(-?\\d+)"));
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
        QTest::addColumn<QPoint>("place"); // of the second screen
        QTest::newRow("right of the first") << QPoint(1280, 0);
        QTest::newRow("right of the first and lower") << QPoint(1280, 600);
        QTest::newRow("below the first") << QPoint(0, 1024);
        QTest::newRow("below the first and further right") << QPoint(900, 1024);
    }

    void itPointsAtItsPositionOnAnyScreen()
    {
        QFETCH(QPoint, place);
        runBeside(QStringLiteral("xrandr"),
                  {QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--pos"),
                   QStringLiteral("%1x%2").arg(place.x()).arg(place.y())});
        QVERIFY(waitFor([&] { return secondScreen()->geometry().topLeft() == place; }));

        for (QScreen *screen : QGuiApplication::screens()) {
            const QRect area = screen->geometry();
            const QRect inner = area.adjusted(40, 4, -40, -4);
            for (const QPoint &position : {inner.center(), inner.topLeft(), inner.topRight(),
                                           inner.bottomLeft(), inner.bottomRight()}) {
                OmBalloonTip *const tip = showTip(position);
                QVERIFY(QTest::qWaitForWindowExposed(tip, 20000));
                QCOMPARE(tip->devicePixelRatioF(), screen->devicePixelRatio());

                const QRect shown(tip->pos(), tip->size());
                QVERIFY(shown.top() == position.y() || shown.bottom() == position.y() - 1);
                QVERIFY(shown.left() + 18 == position.x() || shown.right() - 17 == position.x());
                QVERIFY(area.contains(shown));
                QCOMPARE(serverRect(tip), nativeRect(shown, screen));
            }
        }
    }

    void withoutTheMouseItGoesWhenItsTimeIsUp()
    {
        xdo(QStringLiteral("mousemove 2 2"));
        const QPointer<OmBalloonTip> tip(showTip(secondScreen()->geometry().center(), 100));
        QVERIFY(waitFor([&] { return tip.isNull(); }));
    }
};

OMBRIN_TEST_MAIN(tst_OmBalloonTipScreens)
#include "tst_omballoontip_screens.moc"
