#include "support/WidgetEvents.h"
#include "support/XUser.h"
#include "widgets/LetteredTabs.h"

#include <functional>
#include <utility>

using namespace ombrin::test;
using ombrin::OmTabBar;

namespace {

class Tabs : public LetteredTabs
{
public:
    explicit Tabs(const QString &letters)
        : LetteredTabs(letters)
    {
        tabBar()->setExpanding(false);
        setDocumentMode(true); // gives the bar the whole width
        setGeometry(100, 100, 500, 200);
    }

    bool isReady() { return activate(this); } // when the window manager has placed it

    // On the screen: the middle of a half of a tab, or empty space beside the tabs.
    QPoint half(int index, bool rightHalf) const
    {
        const QRect rect = tabBar()->tabRect(index);
        if (rect.isNull())
            return tabBar()->mapToGlobal(tabBar()->tabRect(count() - 1).center()) + QPoint(80, 0);
        const int quarter = rect.width() / 4;
        return tabBar()->mapToGlobal(rect.center() + QPoint(rightHalf ? quarter : -quarter, 0));
    }
};

void drag(const QPoint &from, const QPoint &to)
{
    dragBy(from, to - from);
}

QStringList moveTo(const QPoint &position)
{
    return {"mousemove"_q, QString::number(position.x()), QString::number(position.y()), "sleep"_q,
            "0.1"_q};
}

// A drag with an interruption. The event loop of the drag holds up everything that waits for it.
class InterruptedDrag : public QObject
{
public:
    // Drags the second tab over the third one. As soon as it is there, does the deed and then what
    // the deed tells xdotool.
    bool run(Tabs *tabs, const std::function<QStringList()> &deed)
    {
        m_deed = deed;
        tabs->tabBar()->installEventFilter(this);
        const QPoint from = tabs->half(1, true);
        const QStringList script = moveTo(from) + words("mousedown 1") + moveTo(from + QPoint(5, 0))
                                   + moveTo(from + QPoint(15, 0)) + moveTo(tabs->half(2, true));
        runBeside("xdotool"_q, script);
        return !m_deed
               && TestCase::waitFor([this] { return m_user.state() == QProcess::NotRunning; });
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove && m_deed) {
            QTimer::singleShot(0, this, [this, deed = std::exchange(m_deed, nullptr)] {
                m_user.start("xdotool"_q, deed());
            });
        }
        return false;
    }

private:
    std::function<QStringList()> m_deed;
    QProcess m_user;
};

} // namespace

class tst_OmTabsX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mouseExchangesTabs()
    {
        Tabs tabs("ABCDE"_q);
        QVERIFY(tabs.isReady());
        QSignalSpy spy(tabs.bar(), &OmTabBar::tabsExchanged);
        drag(tabs.half(1, true), tabs.half(3, true));
        QTRY_COMPARE_WITH_TIMEOUT(tabs.contents(), "Aa Dd Cc [Bb] Ee"_q, 20000);
        drag(tabs.half(3, true), tabs.half(-1, false)); // onto empty space
        QTRY_COMPARE_WITH_TIMEOUT(tabs.contents(), "[Bb] Dd Cc Aa Ee"_q, 20000);
        QCOMPARE(spy.size(), 2);

        // The mouse is free again: a click selects a tab.
        clickAt(tabs.half(4, true));
        QVERIFY(waitFor([&] { return tabs.currentIndex() == 4; }));
    }

    void typingGoesOnAfterADrag()
    {
        Tabs tabs("ABC"_q);
        QVERIFY(tabs.isReady());
        auto *edit = qobject_cast<QLineEdit *>(tabs.currentWidget());
        clickAt(edit->mapToGlobal(edit->rect().center()));
        QVERIFY(waitFor([&] { return edit->hasFocus(); }));
        drag(tabs.half(0, true), tabs.half(2, true));
        QVERIFY(waitFor([&] { return tabs.currentIndex() == 2; }));
        xdo("type hello"_q);
        QVERIFY(waitFor([&] { return edit->text() == "hello"_q; }));
    }

    // The tab widget is the window itself, of which the drag has most to lose.
    void hostMayDeleteTheTabsDuringADrag()
    {
        QPointer<Tabs> tabs(new Tabs("ABCD"_q));
        QVERIFY(tabs->isReady());
        QVERIFY(InterruptedDrag().run(tabs, [&] {
            const QPoint last = tabs->half(3, true);
            delete tabs;
            return moveTo(last) + words("mouseup 1 sleep 0.2");
        }));
        QVERIFY(!tabs);

        // Nothing of that drag is left to disturb the next one.
        Tabs next("AB"_q);
        QVERIFY(next.isReady());
        drag(next.half(0, true), next.half(1, true));
        QVERIFY(waitFor([&] { return next.contents() == "Bb [Aa]"_q; }));
    }
};

OMBRIN_TEST_MAIN(tst_OmTabsX11)
#include "tst_omtabs_x11.moc"
