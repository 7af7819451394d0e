#include "support/TestCase.h"

#include <ombrin/OmShakeWidget.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <limits>

using ombrin::OmShakeWidget;

namespace {

constexpr QPoint kStart(40, 30);

// A widget in a window, and everywhere it was put.
class Shaken : public QWidget
{
public:
    explicit Shaken(QWidget *parent)
        : QWidget(parent)
        , shaker(new OmShakeWidget(this))
    {
        setGeometry(QRect(kStart, QSize(20, 20)));
        shaker->setShakeDuration(0);
    }

    bool isWithinReachOf(const QPoint &place) const
    {
        return std::all_of(places.begin(), places.end(), [place](const QPoint &at) {
            return std::abs(at.x() - place.x()) <= 5 && std::abs(at.y() - place.y()) <= 5;
        });
    }

    bool waitForMoves(int count) const
    {
        return ombrin::test::TestCase::waitFor([&] { return moves >= count; });
    }

    // Long enough for some hundred ticks.
    static void settle() { QTest::qWait(100); }

    OmShakeWidget *const shaker;
    QVector<QPoint> places;
    int moves = 0;
    std::function<void()> onMove;

protected:
    void moveEvent(QMoveEvent *) override
    {
        places.append(pos());
        ++moves;
        if (onMove)
            onMove();
    }
};

class ShakeWindow : public QWidget
{
public:
    ShakeWindow()
    {
        resize(200, 150);
        show();
        shaken->places.clear();
        shaken->moves = 0;
    }

    QPointer<Shaken> shaken = new Shaken(this);
};

} // namespace

class tst_OmShakeWidget : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void shakesAroundItsPlaceAndReturns_data()
    {
        QTest::addColumn<int>("times");
        QTest::addColumn<int>("moves");
        QTest::newRow("default") << 100 << 101;
        QTest::newRow("once") << 0 << 1;
        QTest::newRow("never") << -1 << 0;
        QTest::newRow("most negative") << std::numeric_limits<int>::min() << 0;
    }

    // Every shake, not only the first one.
    void shakesAroundItsPlaceAndReturns()
    {
        QFETCH(int, times);
        QFETCH(int, moves);
        ShakeWindow window;
        Shaken *const shaken = window.shaken;
        shaken->shaker->setShakeTimes(times);
        for (int shake = 0; shake < 2; ++shake) {
            shaken->places.clear();
            shaken->moves = 0;
            QVector<QPoint> expected;
            const std::time_t before = std::time(nullptr);
            shaken->shaker->shakeWidget();
            const std::time_t seed = std::time(nullptr);
            QCOMPARE(shaken->moves, 0);
            shaken->settle();
            QVERIFY(shaken->isWithinReachOf(kStart));
            QCOMPARE(shaken->pos(), kStart);
            if (before != seed)
                continue;

            // Moves to where the widget already is leave no trace.
            std::srand(static_cast<unsigned>(seed));
            QPoint last = kStart;
            const auto expect = [&](const QPoint &place) {
                if (place != last)
                    expected.append(place);
                last = place;
            };
            for (int move = 0; move < moves; ++move) {
                const int dx = std::rand() % 11 - 5;
                const int dy = std::rand() % 11 - 5;
                expect(kStart + QPoint(dx, dy));
            }
            expect(kStart);
            QCOMPARE(shaken->places, expected);
        }
    }

    void defaultsAndValuesAreKept()
    {
        QWidget widget;
        OmShakeWidget shaker(&widget);
        QCOMPARE(shaker.parent(), &widget);
        QCOMPARE(shaker.shakeDuration(), 5);
        QCOMPARE(shaker.shakeTimes(), 100);
        shaker.setShakeDuration(-3); // starts no timer that Qt would complain about
        shaker.setShakeTimes(7);
        shaker.shakeWidget();
        QCOMPARE(shaker.shakeDuration(), -3);
        QCOMPARE(shaker.shakeTimes(), 7);
    }

    void shakingAgainMeanwhileBeginsAnew()
    {
        ShakeWindow window;
        Shaken *const shaken = window.shaken;
        shaken->shaker->shakeWidget();
        QVERIFY(shaken->waitForMoves(5));
        shaken->shaker->shakeWidget();
        QCOMPARE(shaken->pos(), kStart);
        shaken->moves = 0;
        shaken->settle();
        QVERIFY(shaken->moves > 80);
        QVERIFY(shaken->isWithinReachOf(kStart));
        QCOMPARE(shaken->pos(), kStart);
        const int moves = shaken->moves;
        shaken->settle();
        QCOMPARE(shaken->moves, moves);
    }

    void followsTheHostToAnotherPlace_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<bool>("window");
        QTest::addColumn<bool>("hidden");
        QTest::newRow("far") << QPoint(120, 90) << false << false;
        QTest::newRow("near") << kStart + QPoint(2, 1) << false << false;
        QTest::newRow("hidden") << kStart + QPoint(3, 3) << false << true;
        QTest::newRow("window") << QPoint(300, 200) << true << false;
    }

    void followsTheHostToAnotherPlace()
    {
        QFETCH(QPoint, place);
        QFETCH(bool, window);
        QFETCH(bool, hidden);
        ShakeWindow host;
        Shaken *const shaken = host.shaken;
        if (window) {
            shaken->setParent(nullptr);
            shaken->move(kStart);
            shaken->show();
        }
        shaken->shaker->setShakeTimes(30);
        shaken->shaker->shakeWidget();
        QVERIFY(shaken->waitForMoves(5));
        shaken->setHidden(hidden);
        shaken->move(place);
        shaken->places.clear();
        shaken->settle();
        QVERIFY(shaken->isWithinReachOf(place));
        QCOMPARE(shaken->pos(), place);
        if (window)
            delete shaken;
    }

    void timersOfOthersMoveNothing()
    {
        ShakeWindow window;
        const int foreign = window.shaken->shaker->startTimer(10000);
        QTimerEvent event(foreign);
        QCoreApplication::sendEvent(window.shaken->shaker, &event);
        window.shaken->shaker->setShakeDuration(10000);
        window.shaken->shaker->shakeWidget();
        QCoreApplication::sendEvent(window.shaken->shaker, &event);
        QCOMPARE(window.shaken->moves, 0);
    }

    void deletingTheShakerPutsTheWidgetBack_data()
    {
        QTest::addColumn<bool>("fromMove");
        QTest::newRow("between moves") << false;
        QTest::newRow("as the widget moves") << true;
    }

    void deletingTheShakerPutsTheWidgetBack()
    {
        QFETCH(bool, fromMove);
        ShakeWindow window;
        Shaken *const shaken = window.shaken;
        QPointer<OmShakeWidget> shaker = shaken->shaker;
        if (fromMove) {
            shaken->onMove = [&] {
                if (shaken->moves == 5)
                    delete shaker;
            };
        }
        shaker->shakeWidget();
        QVERIFY(shaken->waitForMoves(5));
        delete shaker;
        QCOMPARE(shaken->pos(), kStart);
    }

    void widgetMayGoAwayMeanwhile_data()
    {
        QTest::addColumn<bool>("shakerStays");
        QTest::newRow("with its shaker") << false;
        QTest::newRow("without its shaker") << true;
    }

    void widgetMayGoAwayMeanwhile()
    {
        QFETCH(bool, shakerStays);
        ShakeWindow window;
        const QPointer<OmShakeWidget> shaker = window.shaken->shaker;
        shaker->shakeWidget();
        QVERIFY(window.shaken->waitForMoves(5));
        if (shakerStays)
            shaker->setParent(&window);
        delete window.shaken;
        QCOMPARE(shaker.isNull(), !shakerStays);
        QTest::qWait(50);
        if (shaker)
            shaker->shakeWidget();

        OmShakeWidget(nullptr).shakeWidget();
    }
};

OMBRIN_TEST_MAIN(tst_OmShakeWidget)
#include "tst_omshakewidget.moc"
