#include "support/TestCase.h"
#include "support/WidgetEvents.h"
#include "widgets/TabDrag.h"

#include <ombrin/OmTabBar.h>

using namespace ombrin::test;
using ombrin::OmTabBar;

namespace {

class Bar : public OmTabBar
{
public:
    // A tab for every letter, with everything that belongs to a tab made of that letter.
    explicit Bar(const QString &letters = QString())
    {
        enableDragableTabs(true);
        setExpanding(false);
        for (const QChar letter : letters)
            fill(addTab(QString()), letter);
        resize(sizeHint() + QSize(60, 0));
    }

    // What a host does: "remove 0", "insert 0", "move 0 4", "drag 0 2", "name 0", "hide", "clear".
    void perform(const QStringList &step)
    {
        const QString &deed = step.first();
        const int index = step.value(1).toInt();
        const int target = step.value(2).toInt();
        if (deed == "remove"_q)
            removeTab(index);
        else if (deed == "insert"_q)
            insertTab(index, "new"_q);
        else if (deed == "move"_q)
            moveTab(index, target);
        else if (deed == "drag"_q)
            dragOnto(this, index, target, true);
        else if (deed == "name"_q)
            setTabText(index, "new"_q);
        else if (deed == "hide"_q)
            enableTabText(false);
        while (deed == "clear"_q && count() > 0)
            removeTab(0);
    }

    bool isPressed(int index) const
    {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        return option.state.testFlag(QStyle::State_Sunken);
    }

    QString captions() const
    {
        QStringList list;
        for (int i = 0; i < count(); ++i)
            list.append(tabText(i));
        return list.join(QLatin1Char('|'));
    }

    // What a screen reader hears.
    QString names()
    {
        QStringList list;
        for (int i = 0; i < count(); ++i)
            list.append(accessible(this)->child(i)->text(QAccessible::Name));
        return list.join(QLatin1Char('|'));
    }

    // The letters of the tabs; '?' where something belongs to another letter.
    QString order() const
    {
        QString letters;
        for (int i = 0; i < count(); ++i) {
            const QChar letter = tabData(i).toChar();
            const QString name(letter);
            const bool agrees =
                    tabText(i) == name && tabToolTip(i) == name && tabWhatsThis(i) == name
                    && accessibleTabName(i) == name && tabTextColor(i) == colorOf(letter)
                    && tabIcon(i).pixmap(16).toImage().pixelColor(8, 8) == colorOf(letter);
            letters.append(agrees ? letter : QLatin1Char('?'));
        }
        return letters;
    }

private:
    static QColor colorOf(QChar letter) { return QColor(letter.unicode(), 100, 0); }

    void fill(int index, QChar letter)
    {
        const QString name(letter);
        setTabText(index, name);
        setTabIcon(index, flatPixmap(QSize(16, 16), colorOf(letter)));
        setTabTextColor(index, colorOf(letter));
        setTabToolTip(index, name);
        setTabWhatsThis(index, name);
        setTabData(index, letter);
        setAccessibleTabName(index, name);
    }
};

QString exchangesOf(const QSignalSpy &spy)
{
    QStringList list;
    for (const QVariantList &arguments : spy)
        list.append("%1,%2"_q.arg(arguments[0].toInt()).arg(arguments[1].toInt()));
    return list.join(QLatin1Char(' '));
}

QImage painted(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    widget->render(&image);
    return image;
}

const auto nothing = [] {};

} // namespace

class tst_OmTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesNoFocusAndShowsAllTabs()
    {
        OmTabBar bar;
        QVERIFY(!bar.usesScrollButtons());
        QCOMPARE(bar.focusPolicy(), Qt::NoFocus);
    }

    void droppedTabExchangesPlaces_data()
    {
        // source: -1 is empty space
        const auto row = columns<int, int, bool, QString, QString>("source", "target", "rightHalf",
                                                                   "order", "exchanges");
        row("right half of a later tab", 1, 3, true, "ADCBE", "3,1");
        row("left half of a later tab", 1, 3, false, "ACBDE", "2,1");
        row("left half of the first tab", 1, 0, false, "BACDE", "0,1");
        row("empty space", 1, -1, false, "BACDE", "0,1");
        row("right half of itself", 1, 1, true, "ABCDE", "");
        row("first tab on the last one", 0, 4, true, "EBCDA", "4,0");
        row("right half of an earlier tab", 4, 1, true, "ABEDC", "2,4");
        row("pressed on empty space", -1, 3, true, "ABCDE", "");
    }
    void droppedTabExchangesPlaces()
    {
        QFETCH(int, source);
        QFETCH(int, target);
        QFETCH(bool, rightHalf);
        QFETCH(QString, order);
        Bar bar("ABCDE"_q);
        QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
        dragOnto(&bar, source, target, rightHalf);
        QCOMPARE(bar.order(), order);
        QTEST(exchangesOf(spy), "exchanges");
        // The next drag is not confused by this one.
        dragOnto(&bar, 0, 1, false);
        QCOMPARE(bar.order(), order);
    }

    void shortOrForbiddenMovesAreNoDrags()
    {
        Bar bar("ABC"_q);
        const QPoint onTab = halfOfTab(bar, 1, true);
        QVERIFY(!dragTab(&bar, onTab, nothing, QApplication::startDragDistance() - 1));
        QCOMPARE(bar.currentIndex(), 1); // as with any tab bar
        QVERIFY(dragTab(&bar, onTab, nothing));

        // Without a button, or with another one, the mouse only passes by.
        const QPoint start = halfOfTab(bar, 0, false);
        sendMouse(&bar, QEvent::MouseButtonPress, start);
        sendMouse(&bar, QEvent::MouseButtonRelease, start);
        for (const Qt::MouseButtons held : {Qt::NoButton, Qt::RightButton}) {
            QTimer::singleShot(0, &bar, [] { QFAIL("This is a drag."); });
            sendMouseMove(&bar, onTab, held);
        }

        // Without dragable tabs the bar moves them as QTabBar does.
        bar.enableDragableTabs(false);
        bar.setMovable(true);
        QVERIFY(!dragTab(&bar, halfOfTab(bar, 0, true), nothing, bar.tabRect(0).width()));
        QVERIFY(bar.order() != "ABC"_q);
    }

    void foreignDragsAreRefused()
    {
        const Qt::DropActions all = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        const auto drag = [](bool isForeign, Qt::DropActions actions, bool isAccepted) {
            Bar bar("ABC"_q);
            Bar other("XYZ"_q);
            Bar *const source = isForeign ? &other : &bar;
            const QPoint to = halfOfTab(bar, 2, true);
            const auto expectAccepted = [&](bool expected) {
                QCOMPARE(sendDrag<QDragEnterEvent>(&bar, to, actions), expected);
                QCOMPARE(sendDrag<QDragMoveEvent>(&bar, to, actions), expected);
                QCOMPARE(sendDrag<QDropEvent>(&bar, to, actions), expected);
            };
            QVERIFY(dragTab(source, halfOfTab(*source, 0, true),
                            [&] { expectAccepted(isAccepted); }));
            QCOMPARE(bar.order(), isAccepted ? "CBA"_q : "ABC"_q);
            QCOMPARE(other.order(), "XYZ"_q);
            expectAccepted(false); // nor does a drag without a source, which is another program's
        };
        drag(false, Qt::MoveAction, true);
        drag(false, all, true);
        drag(false, Qt::CopyAction, false);
        drag(true, all, false);
    }

    void markerShowsWhereTheTabWouldGo_data()
    {
        // tab: whose right edge counts
        // left: from that edge
        const auto row = columns<int, bool, int, int>("target", "rightHalf", "tab", "left");
        row("before the first tab", 0, false, -1, 1);
        row("empty space", -1, false, -1, 1);
        row("after the first tab", 0, true, 0, -1);
        row("before the last tab", 2, false, 1, -1);
        row("after the last tab", 2, true, 2, -2);
    }
    void markerShowsWhereTheTabWouldGo()
    {
        QFETCH(int, target);
        QFETCH(bool, rightHalf);
        QFETCH(int, tab);
        QFETCH(int, left);
        Bar bar("ABC"_q);
        QPalette palette = bar.palette();
        palette.setColor(QPalette::WindowText, QColor(10, 20, 30));
        palette.setColor(QPalette::Highlight, QColor(250, 40, 50));
        bar.setPalette(palette);
        QImage expected;
        QImage actual;
        const QPoint to = halfOfTab(bar, target, rightHalf);
        QVERIFY(dragTab(&bar, halfOfTab(bar, 1, true), [&] {
            sendDrag<QDragEnterEvent>(&bar, to);
            sendDragLeave(&bar);
            expected = painted(&bar);
            sendDrag<QDragEnterEvent>(&bar, to);
            sendDrag<QDragMoveEvent>(&bar, to);
            actual = painted(&bar);
        }));

        // The outline of a rectangle, one pixel wide, lies half outside of it.
        const QRect rect = bar.tabRect(tab);
        const QRect marker(rect.right() + left, rect.top(), 3, 14);
        QPainter painter(&expected);
        painter.fillRect(marker, QColor(10, 20, 30));
        painter.fillRect(marker.adjusted(1, 1, -1, -1), QColor(250, 40, 50));
        painter.end();
        QCOMPARE(actual, expected);
    }

    void markerGoesWithTheDrag_data()
    {
        const auto row = columns<QString>("end");
        for (const char *end : {"leave", "drop", "refused drop", "cancel", "forbid"})
            row(end, end);
    }
    void markerGoesWithTheDrag()
    {
        QFETCH(QString, end);
        Bar bar("ABC"_q);
        bar.setCurrentIndex(1);
        const QImage idle = painted(&bar);
        const QPoint onItself = halfOfTab(bar, 1, true);
        QVERIFY(dragTab(&bar, onItself, [&] {
            sendDrag<QDragEnterEvent>(&bar, onItself);
            sendDrag<QDragMoveEvent>(&bar, onItself);
            QVERIFY(painted(&bar) != idle);
            if (end == "cancel"_q)
                return;
            if (end == "drop"_q)
                sendDrag<QDropEvent>(&bar, onItself);
            else if (end == "refused drop"_q)
                sendDrag<QDropEvent>(&bar, onItself, Qt::CopyAction);
            if (end == "forbid"_q)
                bar.enableDragableTabs(false);
            if (end == "forbid"_q || end == "leave"_q)
                sendDragLeave(&bar);
            QCOMPARE(painted(&bar), idle);
        }));
        QCOMPARE(painted(&bar), idle);
        QCOMPARE(bar.order(), "ABC"_q);
    }

    void disabledAndHiddenTabsStaySo()
    {
        Bar bar("ABCD"_q);
        bar.setTabEnabled(3, false);
        dragOnto(&bar, 0, 3, true);
        QCOMPARE(bar.order(), "DBCA"_q);
        QVERIFY(!bar.isTabEnabled(0) && bar.isTabEnabled(3));

        bar.setTabVisible(1, false);
        dragOnto(&bar, 3, 2, false); // in the place of the hidden tab is none to see
        QCOMPARE(bar.order(), "DBAC"_q);
        dragOnto(&bar, 2, -1, false);
        QCOMPARE(bar.order(), "ABDC"_q);
        bar.setTabVisible(2, false);
        dragOnto(&bar, 0, 3, false);
        QCOMPARE(bar.order(), "DBAC"_q);
        QVERIFY(!bar.isTabVisible(0) && !bar.isTabVisible(1) && bar.isTabVisible(2));
    }

    void canceledDragLeavesNoPressedTab()
    {
        Bar bar("AB"_q);
        sendMouse(&bar, QEvent::MouseButtonPress, halfOfTab(bar, 1, false));
        QVERIFY(bar.isPressed(1));
        QTimer::singleShot(0, &bar, [] { QDrag::cancel(); });
        sendMouse(&bar, QEvent::MouseMove, halfOfTab(bar, 0, false));
        QVERIFY(!bar.isPressed(1));
        QCOMPARE(bar.currentIndex(), 1);
    }

    void hostMayChangeTabsDuringADrag_data()
    {
        const auto row = columns<int, QString, QString>("target", "captions", "exchanges");
        // B is dragged; the target is an index after the change.
        row("remove 0", 2, "D|C|B|E", "2,0");
        row("remove 1", 2, "A|C|D|E", "");
        row("insert 0", 4, "new|A|D|C|B|E", "4,2");
        row("move 0 4", 3, "E|C|D|B|A", "3,0");
        row("move 1 2", 3, "A|C|D|B|E", "3,2");
        row("clear", -1, "", "");
        row("drop, then remove 1", 3, "A|C|D|E", "");
        row("drop, then remove 3", 3, "A|B|C|E", "");
        row("drop, then move 0 4", 3, "D|C|B|E|A", "2,0");
    }
    void hostMayChangeTabsDuringADrag()
    {
        QFETCH(int, target);
        QFETCH(QString, captions);
        Bar bar("ABCDE"_q);
        QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
        const auto drop = [&] {
            const QPoint to = halfOfTab(bar, target, true);
            QVERIFY(sendDrag<QDragMoveEvent>(&bar, to));
            QVERIFY(sendDrag<QDropEvent>(&bar, to));
        };
        QStringList change = words(QTest::currentDataTag());
        const bool dropsFirst = change.first() == "drop,"_q;
        if (dropsFirst)
            change = change.mid(2);
        QVERIFY(dragTab(&bar, halfOfTab(bar, 1, true), [&] {
            const QPoint last = halfOfTab(bar, 4, true);
            sendDrag<QDragEnterEvent>(&bar, last);
            sendDrag<QDragMoveEvent>(&bar, last);
            if (dropsFirst)
                drop();
            bar.perform(change);
            painted(&bar); // with the marker where the tab was
            if (!dropsFirst)
                drop();
        }));
        QCOMPARE(bar.captions(), captions);
        QTEST(exchangesOf(spy), "exchanges");
    }

    void barMayBeDeletedDuringADrag_data()
    {
        const auto row = columns<QString>("moment");
        for (const QString &moment : words("started moved dropped tabsExchanged currentChanged"))
            row(qPrintable(moment), moment);
    }
    void barMayBeDeletedDuringADrag()
    {
        QFETCH(QString, moment);
        auto *const bar = new Bar("ABC"_q);
        const QPointer<Bar> guard(bar);
        bar->setTabEnabled(2, false);
        bar->show();
        QVERIFY(QTest::qWaitForWindowExposed(bar));
        const QPoint to = halfOfTab(*bar, 2, true);
        const auto endAt = [&](const char *now) {
            if (moment == QLatin1String(now))
                delete bar;
            return guard.isNull();
        };
        QVERIFY(dragTab(bar, halfOfTab(*bar, 0, true), [&] {
            if (endAt("started"))
                return;
            QVERIFY(sendDrag<QDragEnterEvent>(bar, to));
            QVERIFY(sendDrag<QDragMoveEvent>(bar, to));
            if (endAt("moved"))
                return;
            QVERIFY(sendDrag<QDropEvent>(bar, to));
            if (endAt("dropped"))
                return;
            connect(bar, &QTabBar::currentChanged, this, [&] { endAt("currentChanged"); });
            connect(bar, &OmTabBar::tabsExchanged, this, [&] { endAt("tabsExchanged"); });
        }));
        QVERIFY(!guard);
    }

    void captionsComeBackToTheirTabs_data()
    {
        const auto row = columns<QString, QString>("hidden", "shown");
        row("hide", "||", "A|B|C");
        row("drag 0 2", "||", "C|B|A");
        row("insert 0", "new|||", "|A|B|C");
        row("remove 0", "|", "B|C");
        row("move 0 2", "||", "B|C|A");
        row("name 0", "new||", "A|B|C");
    }
    void captionsComeBackToTheirTabs()
    {
        Bar bar("ABC"_q);
        bar.enableTabText(false);
        bar.perform(words(QTest::currentDataTag()));
        QTEST(bar.captions(), "hidden");
        bar.enableTabText(true);
        bar.enableTabText(true);
        QTEST(bar.captions(), "shown");
        bar.enableTabText(false);
        bar.enableTabText(true);
        QTEST(bar.captions(), "shown");
    }

    void screenReadersKnowHiddenCaptions()
    {
        Bar bar;
        for (const QString &caption : {"&Chat && more"_q, "Calls"_q, "Files"_q})
            bar.addTab(caption);
        bar.setAccessibleTabName(1, "3 missed calls"_q);
        bar.resize(bar.sizeHint());
        bar.enableTabText(false);
        QCOMPARE(bar.names(), "Chat & more|3 missed calls|Files"_q);
        dragOnto(&bar, 0, 2, true);
        QCOMPARE(bar.names(), "Files|3 missed calls|Chat & more"_q);
        bar.enableTabText(true);
        // A name that only stood in for the caption goes as soon as the caption is back.
        QCOMPARE(bar.accessibleTabName(2), QString());
        QCOMPARE(bar.accessibleTabName(1), "3 missed calls"_q);
    }
};

int main(int argc, char *argv[])
{
    return runWithDrags<tst_OmTabBar>(argc, argv);
}
#include "tst_omtabbar.moc"
