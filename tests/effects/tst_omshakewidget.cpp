#include "support/TestCase.h"

#include <ombrin/OmShakeWidget.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <limits>

using ombrin::OmShakeWidget;
using ombrin::test::TestCase;

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
        return TestCase::waitFor([&] { return moves >= count; });
    }

    // Whether the shaking came to its end.
    bool waitForTheEnd() const
    {
        return TestCase::waitFor([this] {
            return QAbstractEventDispatcher::instance()->registeredTimers(shaker).isEmpty();
        });
    }

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

class tst_OmShakeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void shakesAroundItsPlaceAndReturns_data()
    {
        const auto row = columns<int, int>("times", "moves");
        row("default", 100, 101);
        row("never", -1, 0);
        row("most negative", std::numeric_limits<int>::min(), 0);
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
            QVERIFY(shaken->waitForTheEnd());
            QVERIFY(shaken->isWithinReachOf(kStart));
            QCOMPARE(shaken->pos(), kStart);
            if (before != seed)
                continue;

            // Moves to where the widget already is leave no trace.
            std::srand(static_cast<unsigned>(seed));
            for (int move = 0; move <= moves; ++move) {
                const int dx = move < moves ? std::rand() % 11 - 5 : 0;
                const int dy = move < moves ? std::rand() % 11 - 5 : 0;
                const QPoint place = kStart + QPoint(dx, dy);
                if (place != (expected.isEmpty() ? kStart : expected.last()))
                    expected.append(place);
            }
            QCOMPARE(shaken->places, expected);
        }
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
        QVERIFY(shaken->waitForTheEnd());
        QVERIFY(shaken->moves > 80);
        QVERIFY(shaken->isWithinReachOf(kStart));
        QCOMPARE(shaken->pos(), kStart);
    }

    void followsTheHostToAnotherPlace_data()
    {
        const auto row = columns<QPoint, bool, bool>("place", "window", "hidden");
        row("far", {120, 90}, false, false);
        row("hidden", kStart + QPoint(3, 3), false, true);
        row("window", {300, 200}, true, false);
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
        QVERIFY(shaken->waitForTheEnd());
        QVERIFY(shaken->isWithinReachOf(place));
        QCOMPARE(shaken->pos(), place);
        if (window)
            delete shaken;
    }

    void negativeDurationIsHarmless()
    {
        QWidget widget;
        OmShakeWidget shaker(&widget);
        shaker.setShakeDuration(-3); // starts no timer that Qt would complain about
        shaker.shakeWidget();
    }

    void deletingTheShakerPutsTheWidgetBack()
    {
        for (const bool fromMove : {false, true}) {
            ShakeWindow window;
            Shaken *const shaken = window.shaken;
            QPointer<OmShakeWidget> shaker = shaken->shaker;
            shaken->onMove = [&] {
                if (fromMove && shaken->moves == 5)
                    delete shaker;
            };
            shaker->shakeWidget();
            QVERIFY(shaken->waitForMoves(5));
            delete shaker;
            QCOMPARE(shaken->pos(), kStart);
        }
    }

    void widgetMayGoAwayMeanwhile()
    {
        for (const bool shakerStays : {false, true}) {
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
    }
};

OMBRIN_TEST_MAIN(tst_OmShakeWidget)
#include "tst_omshakewidget.moc"
