#include "support/TestCase.h"
#include "support/XUser.h"
#include "widgets/LetteredTabs.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <functional>
#include <utility>

using namespace ombrin::test;
using ombrin::OmTabBar;

namespace {

class Tabs : public LetteredTabs
{
public:
    explicit Tabs(const QString &letters, const QRect &place = QRect(100, 100, 500, 200))
        : LetteredTabs(letters)
    {
        tabBar()->setExpanding(false);
        setDocumentMode(true); // gives the bar the whole width
        setGeometry(place);
        show();
    }

    bool isReady()
    {
        if (!QTest::qWaitForWindowExposed(this))
            return false;
        QTest::qWait(200); // until the window manager has placed it
        return true;
    }

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
    return {QStringLiteral("mousemove"), QString::number(position.x()),
            QString::number(position.y()), QStringLiteral("sleep"), QStringLiteral("0.1")};
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
        const QStringList script = moveTo(from)
                                   + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")}
                                   + moveTo(from + QPoint(5, 0)) + moveTo(from + QPoint(15, 0))
                                   + moveTo(tabs->half(2, true));
        runBeside(QStringLiteral("xdotool"), script);
        return !m_deed
               && TestCase::waitFor([this] { return m_user.state() == QProcess::NotRunning; });
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove && m_deed) {
            QTimer::singleShot(0, this, [this, deed = std::exchange(m_deed, nullptr)] {
                m_user.start(QStringLiteral("xdotool"), deed());
            });
        }
        return false;
    }

private:
    std::function<QStringList()> m_deed;
    QProcess m_user;
};

QStringList mouseUp()
{
    return {QStringLiteral("mouseup"), QStringLiteral("1"), QStringLiteral("sleep"),
            QStringLiteral("0.2")};
}

} // namespace

class tst_OmTabsX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mouseExchangesTabs_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("rightHalf");
        QTest::addColumn<QString>("contents");
        QTest::newRow("later tab") << 1 << 3 << true << "Aa Dd Cc [Bb] Ee";
        QTest::newRow("empty space") << 1 << -1 << false << "[Bb] Aa Cc Dd Ee";
        QTest::newRow("itself") << 1 << 1 << true << "Aa [Bb] Cc Dd Ee";
        QTest::newRow("from empty space") << -1 << 3 << true << "[Aa] Bb Cc Dd Ee";
    }

    void mouseExchangesTabs()
    {
        QFETCH(int, source);
        QFETCH(int, target);
        QFETCH(bool, rightHalf);
        QFETCH(QString, contents);
        Tabs tabs(QStringLiteral("ABCDE"));
        QVERIFY(tabs.isReady());
        QSignalSpy spy(tabs.bar(), &OmTabBar::tabsExchanged);
        drag(tabs.half(source, true), tabs.half(target, rightHalf));
        QVERIFY2(waitFor([&] { return tabs.contents() == contents; }), qPrintable(tabs.contents()));
        QTest::qWait(100);
        QCOMPARE(spy.size(), tabs.tabText(1) == QLatin1String("B") ? 0 : 1);

        // The mouse is free again: a click selects a tab.
        clickAt(tabs.half(4, true));
        QVERIFY(waitFor([&] { return tabs.currentIndex() == 4; }));
    }

    void typingGoesOnAfterADrag()
    {
        Tabs tabs(QStringLiteral("ABC"));
        QVERIFY(tabs.isReady());
        auto *edit = qobject_cast<QLineEdit *>(tabs.currentWidget());
        clickAt(edit->mapToGlobal(edit->rect().center()));
        QVERIFY(waitFor([&] { return edit->hasFocus(); }));
        drag(tabs.half(0, true), tabs.half(2, true));
        QVERIFY(waitFor([&] { return tabs.currentIndex() == 2; }));
        xdo(QStringLiteral("type hello"));
        QVERIFY(waitFor([&] { return edit->text() == QLatin1String("hello"); }));
    }

    void escapeCancelsTheDrag()
    {
        Tabs tabs(QStringLiteral("ABC"));
        QVERIFY(tabs.isReady());
        tabs.setCurrentIndex(1);
        const QImage idle = tabs.tabBar()->grab().toImage();
        QImage dragged;
        QVERIFY(InterruptedDrag().run(&tabs, [&] {
            dragged = tabs.tabBar()->grab().toImage();
            return QStringList{QStringLiteral("key"), QStringLiteral("Escape")} + mouseUp()
                   + moveTo(QPoint(10, 10));
        }));
        QVERIFY(dragged != idle); // the marker
        QVERIFY(waitFor([&] { return tabs.tabBar()->grab().toImage() == idle; }));
        QCOMPARE(tabs.contents(), QStringLiteral("Aa [Bb] Cc"));
    }

    void hostMayDoAnythingDuringADrag_data()
    {
        QTest::addColumn<QString>("contents");
        QTest::newRow("remove tab 0") << "Dd Cc [Bb]";
        QTest::newRow("remove tab 1") << "Aa [Cc] Dd"; // the one that is dragged
        QTest::newRow("delete a page") << "Aa Dd [Bb]";
        QTest::newRow("delete") << "";
        QTest::newRow("delete in tabsExchanged") << "";
        QTest::newRow("delete in currentChanged") << "";
    }

    // The tab widget is the window itself, of which the drag has most to lose.
    void hostMayDoAnythingDuringADrag()
    {
        const QString deed = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, contents);
        QPointer<Tabs> tabs(new Tabs(QStringLiteral("ABCD")));
        QVERIFY(tabs->isReady());
        const auto destroy = [&] { delete tabs; };
        if (deed == QLatin1String("delete in tabsExchanged"))
            connect(tabs->bar(), &OmTabBar::tabsExchanged, this, destroy);
        QVERIFY(InterruptedDrag().run(tabs, [&] {
            const QPoint last = tabs->half(3, true);
            if (deed.startsWith(QLatin1String("remove")))
                tabs->removeTab(deed.right(1).toInt());
            else if (deed == QLatin1String("delete a page"))
                delete tabs->widget(2);
            else if (deed == QLatin1String("delete"))
                delete tabs;
            else if (deed == QLatin1String("delete in currentChanged"))
                connect(tabs, &QTabWidget::currentChanged, this, destroy);
            return moveTo(tabs ? tabs->half(tabs->count() - 1, true) : last) + mouseUp();
        }));
        QVERIFY(waitFor([&] { return !tabs == contents.isEmpty(); }));
        if (tabs)
            QVERIFY2(waitFor([&] { return tabs->contents() == contents; }),
                     qPrintable(tabs->contents()));
        delete tabs;

        // Nothing of that drag is left to disturb the next one.
        Tabs next(QStringLiteral("AB"));
        QVERIFY(next.isReady());
        drag(next.half(0, true), next.half(1, true));
        QVERIFY(waitFor([&] { return next.contents() == QLatin1String("Bb [Aa]"); }));
    }
};

OMBRIN_TEST_MAIN(tst_OmTabsX11)
#include "tst_omtabs_x11.moc"
