#include "support/TestCase.h"
#include "widgets/TabDrag.h"

#include <ombrin/OmTabBar.h>

#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionTab>

#include <memory>

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
        QPixmap icon(16, 16);
        icon.fill(colorOf(letter));
        setTabText(index, name);
        setTabIcon(index, icon);
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
        list.append(QStringLiteral("%1,%2").arg(arguments[0].toInt()).arg(arguments[1].toInt()));
    return list.join(QLatin1Char(' '));
}

QImage painted(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    widget->render(&image);
    return image;
}

QStringList namesOf(const QTabBar &bar)
{
    QStringList names;
    QAccessibleInterface *const list =
            QAccessible::queryAccessibleInterface(const_cast<QTabBar *>(&bar));
    for (int i = 0; i < bar.count(); ++i)
        names.append(list->child(i)->text(QAccessible::Name));
    return names;
}

const auto nothing = [] {};

} // namespace

class tst_OmTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hostsFindPropertiesSignalAndSlot();
    void startsAsAPlainTabBar();
    void droppedTabExchangesPlaces_data();
    void droppedTabExchangesPlaces();
    void shortOrForbiddenMovesAreNoDrags();
    void dragCarriesOnlyItsMark();
    void foreignDragsAreRefused_data();
    void foreignDragsAreRefused();
    void markerShowsWhereTheTabWouldGo_data();
    void markerShowsWhereTheTabWouldGo();
    void markerGoesWithTheDrag_data();
    void markerGoesWithTheDrag();
    void disabledAndHiddenTabsStaySo();
    void canceledDragLeavesNoPressedTab();
    void hostMayChangeTabsDuringADrag_data();
    void hostMayChangeTabsDuringADrag();
    void barMayBeDeletedDuringADrag_data();
    void barMayBeDeletedDuringADrag();
    void captionsComeBackToTheirTabs_data();
    void captionsComeBackToTheirTabs();
    void screenReadersSeeTabs();
    void screenReadersKnowHiddenCaptions();
    void longAndStrangeCaptionsFit();
    void emptyBarSurvivesEverything();
};

void tst_OmTabBar::hostsFindPropertiesSignalAndSlot()
{
    const QMetaObject &meta = OmTabBar::staticMetaObject;
    QStringList members;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        members.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(members, QStringList({QStringLiteral("tabsExchanged(int,int)"),
                                   QStringLiteral("enableTabText(bool)")}));
    OmTabBar bar;
    for (const char *property : {"dragableTabs", "tabText"}) {
        const bool before = bar.property(property).toBool();
        QVERIFY(bar.setProperty(property, !before));
        QCOMPARE(bar.property(property).toBool(), !before);
    }
}

void tst_OmTabBar::startsAsAPlainTabBar()
{
    OmTabBar bar;
    QVERIFY(!bar.hasDragableTabs() && !bar.acceptDrops());
    QVERIFY(bar.hasTabText());
    QVERIFY(!bar.usesScrollButtons());
    QCOMPARE(bar.focusPolicy(), Qt::NoFocus);
    bar.enableDragableTabs(true);
    QVERIFY(bar.hasDragableTabs() && bar.acceptDrops());
    bar.enableDragableTabs(false);
    QVERIFY(!bar.hasDragableTabs() && !bar.acceptDrops());
}

void tst_OmTabBar::droppedTabExchangesPlaces_data()
{
    QTest::addColumn<int>("source"); // -1: empty space
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("rightHalf");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("exchanges");
    const auto row = [](const char *name, int source, int target, bool rightHalf, const char *order,
                        const char *exchanges) {
        QTest::newRow(name) << source << target << rightHalf << QString::fromLatin1(order)
                            << QString::fromLatin1(exchanges);
    };
    row("right half of a later tab", 1, 3, true, "ADCBE", "3,1");
    row("left half of a later tab", 1, 3, false, "ACBDE", "2,1");
    row("right half of the tab before", 1, 0, true, "ABCDE", "");
    row("left half of the first tab", 1, 0, false, "BACDE", "0,1");
    row("empty space", 1, -1, false, "BACDE", "0,1");
    row("right half of itself", 1, 1, true, "ABCDE", "");
    row("left half of itself", 1, 1, false, "ABCDE", "");
    row("left half of the next tab", 1, 2, false, "ABCDE", "");
    row("first tab on empty space", 0, -1, false, "ABCDE", "");
    row("first tab on the last one", 0, 4, true, "EBCDA", "4,0");
    row("last tab on the first one", 4, 0, false, "EBCDA", "0,4");
    row("right half of an earlier tab", 4, 1, true, "ABEDC", "2,4");
    row("left half of an earlier tab", 4, 1, false, "AECDB", "1,4");
    row("pressed on empty space", -1, 3, true, "ABCDE", "");
}

void tst_OmTabBar::droppedTabExchangesPlaces()
{
    QFETCH(int, source);
    QFETCH(int, target);
    QFETCH(bool, rightHalf);
    QFETCH(QString, order);
    QFETCH(QString, exchanges);
    Bar bar(QStringLiteral("ABCDE"));
    QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
    dragOnto(&bar, source, target, rightHalf);
    QCOMPARE(bar.order(), order);
    QCOMPARE(exchangesOf(spy), exchanges);
    // The next drag is not confused by this one.
    dragOnto(&bar, 0, 1, false);
    QCOMPARE(bar.order(), order);
}

void tst_OmTabBar::shortOrForbiddenMovesAreNoDrags()
{
    Bar bar(QStringLiteral("ABC"));
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
        QMouseEvent move(QEvent::MouseMove, onTab, bar.mapToGlobal(onTab), Qt::NoButton, held,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&bar, &move);
    }

    // Without dragable tabs the bar moves them as QTabBar does.
    Bar movable(QStringLiteral("ABC"));
    movable.enableDragableTabs(false);
    movable.setMovable(true);
    const int width = movable.tabRect(0).width();
    QVERIFY(!dragTab(&movable, halfOfTab(movable, 0, true), nothing, width));
    QVERIFY(movable.order() != QStringLiteral("ABC"));
}

void tst_OmTabBar::dragCarriesOnlyItsMark()
{
    Bar bar(QStringLiteral("AB"));
    QStringList formats;
    QByteArray data("?");
    Qt::DropActions actions;
    QVERIFY(dragTab(&bar, halfOfTab(bar, 0, true), [&] {
        const auto drags = QCoreApplication::instance()->findChildren<QDrag *>();
        QCOMPARE(drags.size(), 1);
        QCOMPARE(drags.first()->source(), &bar);
        formats = drags.first()->mimeData()->formats();
        data = drags.first()->mimeData()->data(QStringLiteral("binary/ombrin-tab"));
        actions = drags.first()->supportedActions();
    }));
    QCOMPARE(formats, QStringList{QStringLiteral("binary/ombrin-tab")});
    QCOMPARE(data, QByteArray());
    QCOMPARE(actions, Qt::MoveAction);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QCoreApplication::instance()->findChildren<QDrag *>().isEmpty());
}

void tst_OmTabBar::foreignDragsAreRefused_data()
{
    QTest::addColumn<bool>("fromOtherBar");
    QTest::addColumn<Qt::DropActions>("actions");
    QTest::addColumn<bool>("accepted");
    const Qt::DropActions all = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QTest::newRow("move in this bar") << false << Qt::DropActions(Qt::MoveAction) << true;
    QTest::newRow("anything in this bar") << false << all << true;
    QTest::newRow("copy in this bar") << false << Qt::DropActions(Qt::CopyAction) << false;
    QTest::newRow("move from another bar") << true << Qt::DropActions(Qt::MoveAction) << false;
    QTest::newRow("anything from another bar") << true << all << false;
}

void tst_OmTabBar::foreignDragsAreRefused()
{
    QFETCH(bool, fromOtherBar);
    QFETCH(Qt::DropActions, actions);
    QFETCH(bool, accepted);
    Bar bar(QStringLiteral("ABC"));
    Bar other(QStringLiteral("XYZ"));
    QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
    Bar *const source = fromOtherBar ? &other : &bar;
    const QPoint to = halfOfTab(bar, 2, true);
    QVERIFY(dragTab(source, halfOfTab(*source, 0, true), [&] {
        QCOMPARE(sendDrag<QDragEnterEvent>(&bar, to, actions), accepted);
        QCOMPARE(sendDrag<QDragMoveEvent>(&bar, to, actions), accepted);
        QCOMPARE(sendDrag<QDropEvent>(&bar, to, actions), accepted);
    }));
    QCOMPARE(bar.order(), accepted ? QStringLiteral("CBA") : QStringLiteral("ABC"));
    QCOMPARE(spy.size(), accepted ? 1 : 0);
    QCOMPARE(other.order(), QStringLiteral("XYZ"));

    // Nor does a drag without a source, which comes from another program.
    QVERIFY(!sendDrag<QDragEnterEvent>(&bar, to));
    QVERIFY(!sendDrag<QDragMoveEvent>(&bar, to));
    QVERIFY(!sendDrag<QDropEvent>(&bar, to));
}

void tst_OmTabBar::markerShowsWhereTheTabWouldGo_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("rightHalf");
    QTest::addColumn<int>("tab");  // whose right edge counts
    QTest::addColumn<int>("left"); // from that edge
    QTest::newRow("before the first tab") << 0 << false << -1 << 1;
    QTest::newRow("empty space") << -1 << false << -1 << 1;
    QTest::newRow("after the first tab") << 0 << true << 0 << -1;
    QTest::newRow("before the last tab") << 2 << false << 1 << -1;
    QTest::newRow("after the last tab") << 2 << true << 2 << -2;
}

void tst_OmTabBar::markerShowsWhereTheTabWouldGo()
{
    QFETCH(int, target);
    QFETCH(bool, rightHalf);
    QFETCH(int, tab);
    QFETCH(int, left);
    Bar bar(QStringLiteral("ABC"));
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

void tst_OmTabBar::markerGoesWithTheDrag_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end : {"leave", "drop", "refused drop", "cancel", "forbid"})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void tst_OmTabBar::markerGoesWithTheDrag()
{
    QFETCH(QString, end);
    Bar bar(QStringLiteral("ABC"));
    bar.setCurrentIndex(1);
    const QImage idle = painted(&bar);
    const QPoint onItself = halfOfTab(bar, 1, true);
    bool isShown = false;
    bool isHidden = false;
    QVERIFY(dragTab(&bar, onItself, [&] {
        sendDrag<QDragEnterEvent>(&bar, onItself);
        sendDrag<QDragMoveEvent>(&bar, onItself);
        isShown = painted(&bar) != idle;
        if (end == QLatin1String("cancel"))
            return;
        if (end == QLatin1String("drop"))
            sendDrag<QDropEvent>(&bar, onItself);
        else if (end == QLatin1String("refused drop"))
            sendDrag<QDropEvent>(&bar, onItself, Qt::CopyAction);
        if (end == QLatin1String("forbid"))
            bar.enableDragableTabs(false);
        if (end == QLatin1String("forbid") || end == QLatin1String("leave"))
            sendDragLeave(&bar);
        isHidden = painted(&bar) == idle;
    }));
    QVERIFY(isShown);
    QVERIFY(isHidden || end == QLatin1String("cancel"));
    QCOMPARE(painted(&bar), idle);
    QCOMPARE(bar.order(), QStringLiteral("ABC"));
}

void tst_OmTabBar::disabledAndHiddenTabsStaySo()
{
    Bar bar(QStringLiteral("ABCD"));
    bar.setTabEnabled(3, false);
    dragOnto(&bar, 0, 3, true);
    QCOMPARE(bar.order(), QStringLiteral("DBCA"));
    QVERIFY(!bar.isTabEnabled(0) && bar.isTabEnabled(3));

    bar.setTabVisible(1, false);
    dragOnto(&bar, 3, 2, false); // in the place of the hidden tab is none to see
    QCOMPARE(bar.order(), QStringLiteral("DBAC"));
    dragOnto(&bar, 2, -1, false);
    QCOMPARE(bar.order(), QStringLiteral("ABDC"));
    bar.setTabVisible(2, false);
    dragOnto(&bar, 0, 3, false);
    QCOMPARE(bar.order(), QStringLiteral("DBAC"));
    QVERIFY(!bar.isTabVisible(0) && !bar.isTabVisible(1) && bar.isTabVisible(2));
}

void tst_OmTabBar::canceledDragLeavesNoPressedTab()
{
    Bar bar(QStringLiteral("AB"));
    sendMouse(&bar, QEvent::MouseButtonPress, halfOfTab(bar, 1, false));
    QVERIFY(bar.isPressed(1));
    QTimer::singleShot(0, &bar, [] { QDrag::cancel(); });
    sendMouse(&bar, QEvent::MouseMove, halfOfTab(bar, 0, false));
    QVERIFY(!bar.isPressed(1));
    QCOMPARE(bar.currentIndex(), 1);
}

void tst_OmTabBar::hostMayChangeTabsDuringADrag_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("captions");
    QTest::addColumn<QString>("exchanges");
    const auto row = [](const char *change, int target, const char *captions,
                        const char *exchanges) {
        QTest::newRow(change) << QString::fromLatin1(change) << target
                              << QString::fromLatin1(captions) << QString::fromLatin1(exchanges);
    };
    // B is dragged; the target is an index after the change.
    row("remove 0", 2, "D|C|B|E", "2,0");
    row("remove 1", 2, "A|C|D|E", "");
    row("remove 4", 3, "A|D|C|B", "3,1");
    row("insert 0", 4, "new|A|D|C|B|E", "4,2");
    row("move 0 4", 3, "E|C|D|B|A", "3,0");
    row("move 1 2", 3, "A|C|D|B|E", "3,2");
    row("move 4 0", 4, "E|A|D|C|B", "4,2");
    row("clear", -1, "", "");
    row("drop, then remove 0", 3, "D|C|B|E", "2,0");
    row("drop, then remove 1", 3, "A|C|D|E", "");
    row("drop, then remove 3", 3, "A|B|C|E", "");
    row("drop, then move 0 4", 3, "D|C|B|E|A", "2,0");
    row("drop, then insert 0", 3, "new|A|D|C|B|E", "4,2");
}

void tst_OmTabBar::hostMayChangeTabsDuringADrag()
{
    QFETCH(QString, change);
    QFETCH(int, target);
    QFETCH(QString, captions);
    QFETCH(QString, exchanges);
    Bar bar(QStringLiteral("ABCDE"));
    QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
    const auto drop = [&] {
        const QPoint to = halfOfTab(bar, target, true);
        QVERIFY(sendDrag<QDragMoveEvent>(&bar, to));
        QVERIFY(sendDrag<QDropEvent>(&bar, to));
    };
    QStringList words = change.split(QLatin1Char(' '));
    const bool dropsFirst = words.first() == QLatin1String("drop,");
    if (dropsFirst)
        words = words.mid(2);
    const int index = words.value(1).toInt();
    QVERIFY(dragTab(&bar, halfOfTab(bar, 1, true), [&] {
        const QPoint last = halfOfTab(bar, 4, true);
        sendDrag<QDragEnterEvent>(&bar, last);
        sendDrag<QDragMoveEvent>(&bar, last);
        if (dropsFirst)
            drop();
        if (words.first() == QLatin1String("remove"))
            bar.removeTab(index);
        else if (words.first() == QLatin1String("insert"))
            bar.insertTab(index, QStringLiteral("new"));
        else if (words.first() == QLatin1String("move"))
            bar.moveTab(index, words.value(2).toInt());
        else
            while (bar.count() > 0)
                bar.removeTab(0);
        painted(&bar); // with the marker where the tab was
        if (!dropsFirst)
            drop();
    }));
    QCOMPARE(bar.captions(), captions);
    QCOMPARE(exchangesOf(spy), exchanges);
}

void tst_OmTabBar::barMayBeDeletedDuringADrag_data()
{
    QTest::addColumn<QString>("moment");
    for (const char *moment :
         {"started", "entered", "moved", "dropped", "tabsExchanged", "currentChanged"})
        QTest::newRow(moment) << QString::fromLatin1(moment);
}

void tst_OmTabBar::barMayBeDeletedDuringADrag()
{
    QFETCH(QString, moment);
    auto *const bar = new Bar(QStringLiteral("ABC"));
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
        if (endAt("entered"))
            return;
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

void tst_OmTabBar::captionsComeBackToTheirTabs_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("hidden");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *change, const char *hidden, const char *shown) {
        QTest::newRow(change) << QString::fromLatin1(change) << QString::fromLatin1(hidden)
                              << QString::fromLatin1(shown);
    };
    row("nothing", "||", "A|B|C");
    row("hide again", "||", "A|B|C");
    row("exchange", "||", "C|B|A");
    row("add at the end", "|||new", "A|B|C|");
    row("add at the front", "new|||", "|A|B|C");
    row("remove the first", "|", "B|C");
    row("move the first to the end", "||", "B|C|A");
    row("name the first", "X||", "A|B|C");
}

void tst_OmTabBar::captionsComeBackToTheirTabs()
{
    QFETCH(QString, change);
    QFETCH(QString, hidden);
    QFETCH(QString, shown);
    Bar bar(QStringLiteral("ABC"));
    bar.enableTabText(false);
    QVERIFY(!bar.hasTabText());
    if (change == QLatin1String("hide again"))
        bar.enableTabText(false);
    else if (change == QLatin1String("exchange"))
        dragOnto(&bar, 0, 2, true);
    else if (change == QLatin1String("add at the end"))
        bar.addTab(QStringLiteral("new"));
    else if (change == QLatin1String("add at the front"))
        bar.insertTab(0, QStringLiteral("new"));
    else if (change == QLatin1String("remove the first"))
        bar.removeTab(0);
    else if (change == QLatin1String("move the first to the end"))
        bar.moveTab(0, 2);
    else if (change == QLatin1String("name the first"))
        bar.setTabText(0, QStringLiteral("X"));
    QCOMPARE(bar.captions(), hidden);
    for (int times = 0; times < 2; ++times) {
        bar.enableTabText(true);
        QVERIFY(bar.hasTabText());
        QCOMPARE(bar.captions(), shown);
    }
    bar.enableTabText(false);
    bar.enableTabText(true);
    QCOMPARE(bar.captions(), shown);
}

void tst_OmTabBar::screenReadersSeeTabs()
{
    Bar bar(QStringLiteral("ABC"));
    bar.setCurrentIndex(1);
    bar.show();
    QAccessibleInterface *const list = QAccessible::queryAccessibleInterface(&bar);
    QVERIFY(list);
    QCOMPARE(list->role(), QAccessible::PageTabList);
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface *const tab = list->child(i);
        QCOMPARE(tab->role(), QAccessible::PageTab);
        QCOMPARE(bool(tab->state().focused), i == 1); // Qt's way to tell the current tab
        QCOMPARE(tab->rect(),
                 QRect(bar.mapToGlobal(bar.tabRect(i).topLeft()), bar.tabRect(i).size()));
    }
    QCOMPARE(namesOf(bar).join(QString()), QStringLiteral("ABC"));
    dragOnto(&bar, 0, 1, true);
    QCOMPARE(namesOf(bar).join(QString()), QStringLiteral("BAC"));
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(bar.currentIndex(), 1);
}

void tst_OmTabBar::screenReadersKnowHiddenCaptions()
{
    Bar bar;
    bar.addTab(QStringLiteral("&Chat && more"));
    bar.addTab(QStringLiteral("Calls"));
    bar.addTab(QStringLiteral("Files"));
    bar.setAccessibleTabName(1, QStringLiteral("3 missed calls"));
    bar.resize(bar.sizeHint());
    const QStringList names{QStringLiteral("Chat & more"), QStringLiteral("3 missed calls"),
                            QStringLiteral("Files")};
    bar.enableTabText(false);
    QCOMPARE(namesOf(bar), names);
    dragOnto(&bar, 0, 2, true);
    QCOMPARE(namesOf(bar), QStringList({names[2], names[1], names[0]}));
    bar.enableTabText(true);
    QCOMPARE(namesOf(bar).value(0), names[0 + 2]);
    // A name that only stood in for the caption goes as soon as the caption is back.
    QCOMPARE(bar.accessibleTabName(2), QString());
    QCOMPARE(bar.accessibleTabName(1), names[1]);
}

void tst_OmTabBar::longAndStrangeCaptionsFit()
{
    const QString captions[] = {
            QString(100000, QLatin1Char('x')),
            QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xd8\xa7\xd9\x84\xd8\xb9"),
            QStringLiteral("e") + QString(1000, QChar(0x0301)),
            QString(QChar(0xd83d)), // half of a pair
            QStringLiteral("a\nb\tc&"),
            QString(),
    };
    QPixmap pixel(1, 1);
    pixel.fill(Qt::red);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        Bar bar;
        bar.setLayoutDirection(direction);
        for (const QString &caption : captions)
            bar.addTab(caption == captions[1] ? QIcon(pixel) : QIcon(QPixmap()), caption);
        QVERIFY2(bar.minimumSizeHint().width() < 600,
                 qPrintable(QString::number(bar.minimumSizeHint().width())));
        bar.resize(600, bar.sizeHint().height());
        painted(&bar);
        for (int target = 1; target < bar.count(); ++target)
            dragOnto(&bar, target - 1, target, true); // shifts the first caption to the end
        QCOMPARE(bar.tabText(5), captions[0]);
        bar.enableTabText(false);
        painted(&bar);
        bar.enableTabText(true);
        QCOMPARE(bar.tabText(0), captions[1]);
        QCOMPARE(bar.tabText(5), captions[0]);
    }
}

void tst_OmTabBar::emptyBarSurvivesEverything()
{
    Bar bar;
    bar.resize(100, 30);
    QSignalSpy spy(&bar, &OmTabBar::tabsExchanged);
    dragOnto(&bar, -1, -1, false);
    bar.enableTabText(false);
    dragOnto(&bar, -1, -1, false);
    bar.removeTab(0);
    bar.removeTab(-1);
    bar.moveTab(0, 1);
    bar.setTabText(7, QStringLiteral("nobody"));
    bar.enableTabText(true);
    painted(&bar);
    QCOMPARE(bar.count(), 0);
    QVERIFY(spy.isEmpty());
}

int main(int argc, char *argv[])
{
    return runWithDrags<tst_OmTabBar>(argc, argv);
}
#include "tst_omtabbar.moc"
