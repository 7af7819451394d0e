#include "support/TestCase.h"
#include "widgets/TabDrag.h"

#include <ombrin/OmTabBar.h>
#include <ombrin/OmTabWidget.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace ombrin::test;
using ombrin::OmTabBar;
using ombrin::OmTabWidget;

namespace {

// A page named "a" for every tab "A".
class Tabs : public OmTabWidget
{
public:
    explicit Tabs(const QString &letters = QString())
    {
        for (const QChar letter : letters) {
            auto *page = new QLineEdit;
            page->setObjectName(QString(letter.toLower()));
            addTab(page, QString(letter));
        }
        enableDragableTabs(true);
        resize(400, 200);
    }

    OmTabBar *bar() const { return qobject_cast<OmTabBar *>(tabBar()); }

    QToolButton *closeButton() const
    {
        return qobject_cast<QToolButton *>(cornerWidget(Qt::TopRightCorner));
    }

    // "Aa Bb [Cc]": the tabs with their pages, the current one in brackets.
    QString contents() const
    {
        QStringList list;
        for (int i = 0; i < count(); ++i) {
            const QString tab = tabText(i) + widget(i)->objectName();
            list.append(i == currentIndex() ? QStringLiteral("[%1]").arg(tab) : tab);
        }
        return list.join(QLatin1Char(' '));
    }

    // The one page that can be seen.
    QString shownPage() const
    {
        QStringList shown;
        const auto pages = findChildren<QLineEdit *>();
        for (const QLineEdit *page : pages) {
            if (page->isVisible())
                shown.append(page->objectName());
        }
        return shown.join(QLatin1Char(' '));
    }
};

void removeCloseButton(Tabs *tabs)
{
    QToolButton *const button = tabs->closeButton();
    tabs->setCornerWidget(nullptr, Qt::TopRightCorner); // or QTabWidget goes on using it
    delete button;
}

bool isShown(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowExposed(window);
}

} // namespace

class tst_OmTabWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hostsFindSignalAndSlotsInOrder();
    void startsWithAPlainTabBar();
    void forwardsToTheTabBar();
    void pagesFollowDraggedTabs_data();
    void pagesFollowDraggedTabs();
    void theEditOfADraggedPageKeepsTheFocus();
    void theDraggedPageIsShownWhateverWasBefore();
    void swappingNonsenseSwapsNothing_data();
    void swappingNonsenseSwapsNothing();
    void pagesSwitchWithoutTabBar();
    void keyboardSwitchesTabs();
    void closeButtonStandsInTheCorner();
    void closeButtonRemovesTheCurrentTab();
    void closeButtonSparesSpecialPages();
    void closeButtonSurvivesItsEnemies();
    void receiverOfTabRemovedMayDeleteAnything_data();
    void receiverOfTabRemovedMayDeleteAnything();
    void receiverOfTabsExchangedMayDeleteAnything_data();
    void receiverOfTabsExchangedMayDeleteAnything();
};

void tst_OmTabWidget::hostsFindSignalAndSlotsInOrder()
{
    const QMetaObject &meta = OmTabWidget::staticMetaObject;
    QStringList members;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        members.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(members.join(QLatin1Char(' ')),
             QStringLiteral("tabRemoved(QWidget*) removeCurrentTab() swapTabs(int,int) "
                            "slotTabChanged(int)"));
    QCOMPARE(meta.propertyCount(), QTabWidget::staticMetaObject.propertyCount());
}

void tst_OmTabWidget::startsWithAPlainTabBar()
{
    OmTabWidget tabs;
    QVERIFY(qobject_cast<OmTabBar *>(tabs.findChild<QTabBar *>()));
    QVERIFY(!tabs.usesScrollButtons());
    QCOMPARE(tabs.focusPolicy(), Qt::NoFocus);
    QVERIFY(tabs.hasTabBar() && tabs.hasTabText());
    QVERIFY(!tabs.hasDragableTabs() && !tabs.hasCloseTabButton());
    QVERIFY(!tabs.cornerWidget(Qt::TopRightCorner));
}

void tst_OmTabWidget::forwardsToTheTabBar()
{
    Tabs tabs(QStringLiteral("AB"));
    QVERIFY(tabs.hasDragableTabs() && tabs.bar()->hasDragableTabs());
    tabs.enableDragableTabs(false);
    QVERIFY(!tabs.hasDragableTabs() && !tabs.bar()->hasDragableTabs());
    tabs.enableTabText(false);
    QVERIFY(!tabs.hasTabText() && !tabs.bar()->hasTabText());
    QCOMPARE(tabs.contents(), QStringLiteral("[a] b"));
    tabs.enableTabText(true);
    QCOMPARE(tabs.contents(), QStringLiteral("[Aa] Bb"));
}

void tst_OmTabWidget::pagesFollowDraggedTabs_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("rightHalf");
    QTest::addColumn<QString>("contents");
    const auto row = [](const char *name, int source, int target, bool rightHalf,
                        const char *contents) {
        QTest::newRow(name) << source << target << rightHalf << QString::fromLatin1(contents);
    };
    row("right half of a later tab", 1, 3, true, "Aa Dd Cc [Bb] Ee");
    row("left half of a later tab", 1, 3, false, "Aa Cc [Bb] Dd Ee");
    row("right half of the tab before", 1, 0, true, "Aa [Bb] Cc Dd Ee");
    row("left half of the first tab", 1, 0, false, "[Bb] Aa Cc Dd Ee");
    row("from one end to the other", 0, 4, true, "Ee Bb Cc Dd [Aa]");
    row("and back", 4, 0, false, "[Ee] Bb Cc Dd Aa");
    row("disabled, so that the press does not select it", 2, 4, true, "Aa Bb Ee Dd [Cc]");
}

void tst_OmTabWidget::pagesFollowDraggedTabs()
{
    QFETCH(int, source);
    QFETCH(int, target);
    QFETCH(bool, rightHalf);
    QFETCH(QString, contents);
    for (const int current : {0, 4}) {
        Tabs tabs(QStringLiteral("ABCDE"));
        tabs.setTabEnabled(2, source != 2);
        tabs.setCurrentIndex(current);
        QVERIFY(isShown(&tabs));
        QList<QWidget *> removed;
        connect(&tabs, &OmTabWidget::tabRemoved,
                [&removed](QWidget *page) { removed.append(page); });
        dragOnto(tabs.tabBar(), source, target, rightHalf);
        QCOMPARE(tabs.contents(), contents);
        QCOMPARE(tabs.shownPage(), tabs.currentWidget()->objectName());
        QVERIFY(removed.isEmpty());
        for (int i = 0; i < tabs.count(); ++i)
            QCOMPARE(tabs.isTabEnabled(i), tabs.widget(i)->isEnabled());
    }
}

void tst_OmTabWidget::theEditOfADraggedPageKeepsTheFocus()
{
    for (const int target : {0, 2}) {
        Tabs tabs;
        tabs.addTab(new QLabel, QStringLiteral("A"));
        auto *page = new QWidget;
        auto *column = new QVBoxLayout(page);
        auto *edit = new QLineEdit;
        column->addWidget(new QLineEdit);
        column->addWidget(edit);
        tabs.addTab(page, QStringLiteral("B"));
        tabs.addTab(new QLineEdit, QStringLiteral("C"));
        tabs.setCurrentIndex(1);
        QVERIFY(isShown(&tabs));
        edit->setFocus();
        dragOnto(tabs.tabBar(), 1, target, target > 1);
        QCOMPARE(tabs.currentWidget(), page);
        // Here, unlike on a screen, the pointer's window takes the focus from ours during a drag.
        QCOMPARE(tabs.focusWidget(), edit);
    }
}

void tst_OmTabWidget::theDraggedPageIsShownWhateverWasBefore()
{
    for (const int current : {0, 1, 2}) {
        Tabs tabs(QStringLiteral("ABC"));
        tabs.setCurrentIndex(current);
        QVERIFY(isShown(&tabs));
        Q_EMIT tabs.bar()->tabsExchanged(2, 0);
        QCOMPARE(tabs.contents(), QStringLiteral("Ac Bb [Ca]")); // the bar has exchanged nothing
        QCOMPARE(tabs.shownPage(), QStringLiteral("a"));
    }
}

void tst_OmTabWidget::swappingNonsenseSwapsNothing_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("contents");
    QTest::newRow("itself") << 1 << 1 << "Aa [Bb] Cc";
    QTest::newRow("negative") << -1 << 1 << "[Aa] Bb Cc";
    QTest::newRow("behind the end") << 1 << 3 << "Aa [Bb] Cc";
    QTest::newRow("both") << 17 << -17 << "[Aa] Bb Cc";
}

void tst_OmTabWidget::swappingNonsenseSwapsNothing()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, contents);
    Tabs tabs(QStringLiteral("ABC"));
    QVERIFY(isShown(&tabs));
    Q_EMIT tabs.bar()->tabsExchanged(first, second);
    QCOMPARE(tabs.contents(), contents);
    QCOMPARE(tabs.shownPage(), tabs.currentWidget()->objectName());
    Tabs empty;
    Q_EMIT empty.bar()->tabsExchanged(first, second);
    QCOMPARE(empty.count(), 0);
}

void tst_OmTabWidget::pagesSwitchWithoutTabBar()
{
    Tabs tabs(QStringLiteral("ABC"));
    QVERIFY(isShown(&tabs));
    const int height = tabs.currentWidget()->height();
    tabs.enableTabBar(false);
    QVERIFY(!tabs.hasTabBar() && !tabs.tabBar()->isVisible());
    tabs.setCurrentIndex(2);
    QCOMPARE(tabs.shownPage(), QStringLiteral("c"));
    QTRY_VERIFY(tabs.currentWidget()->height() > height);
    tabs.enableTabBar(true);
    QVERIFY(tabs.hasTabBar() && tabs.tabBar()->isVisible());
    QTRY_COMPARE(tabs.currentWidget()->height(), height);
}

void tst_OmTabWidget::keyboardSwitchesTabs()
{
    Tabs tabs(QStringLiteral("ABC"));
    QVERIFY(isShown(&tabs));
    tabs.currentWidget()->setFocus();
    QTest::keyClick(tabs.currentWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(tabs.contents(), QStringLiteral("Aa [Bb] Cc"));
    QTest::keyClick(tabs.currentWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(tabs.contents(), QStringLiteral("[Aa] Bb Cc"));

    // A host that lets the bar have the focus sees where it is.
    tabs.tabBar()->setFocusPolicy(Qt::TabFocus);
    const QImage unfocused = tabs.tabBar()->grab().toImage();
    QTest::keyClick(tabs.currentWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(tabs.tabBar()->hasFocus());
    QVERIFY(tabs.tabBar()->grab().toImage() != unfocused);
    QTest::keyClick(tabs.tabBar(), Qt::Key_Right);
    QCOMPARE(tabs.contents(), QStringLiteral("Aa [Bb] Cc"));
}

void tst_OmTabWidget::closeButtonStandsInTheCorner()
{
    Tabs tabs(QStringLiteral("AB"));
    QVERIFY(isShown(&tabs));
    tabs.enableCloseTabButton(true);
    QToolButton *const button = tabs.closeButton();
    QVERIFY(tabs.hasCloseTabButton() && button);
    QVERIFY(button->isVisible() && button->isEnabled() && button->autoRaise());
    QAccessibleInterface *const seen = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(seen->role(), QAccessible::Button);
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Close tab"));

    tabs.enableCloseTabButton(false);
    QVERIFY(!tabs.hasCloseTabButton() && !button->isVisible());
    tabs.enableCloseTabButton(true);
    QCOMPARE(tabs.closeButton(), button);
    QVERIFY(button->isVisible());
}

void tst_OmTabWidget::closeButtonRemovesTheCurrentTab()
{
    Tabs tabs(QStringLiteral("ABC"));
    tabs.enableCloseTabButton(true);
    QList<QWidget *> removed;
    connect(&tabs, &OmTabWidget::tabRemoved, [&removed](QWidget *page) { removed.append(page); });
    const QPointer<QWidget> page = tabs.widget(1);
    tabs.setCurrentIndex(1);
    tabs.closeButton()->click();
    QCOMPARE(tabs.contents(), QStringLiteral("Aa [Cc]"));
    QVERIFY(page);
    QCOMPARE(removed, QList<QWidget *>{page});

    // The last click finds no tab.
    for (int clicks = 0; clicks < 3; ++clicks) {
        QVERIFY(tabs.closeButton()->isEnabled());
        tabs.closeButton()->click();
    }
    QCOMPARE(tabs.count(), 0);
    QCOMPARE(removed.size(), 4);
    QCOMPARE(removed.last(), nullptr);
    QVERIFY(tabs.closeButton()->isEnabled());
}

void tst_OmTabWidget::closeButtonSparesSpecialPages()
{
    Tabs tabs(QStringLiteral("ABCD"));
    tabs.addSpecialWidget(tabs.widget(0)); // before there is a button
    tabs.enableCloseTabButton(true);
    QSignalSpy spy(&tabs, &OmTabWidget::tabRemoved);
    const auto isClosable = [&tabs](int index) {
        tabs.setCurrentIndex(index);
        return tabs.closeButton()->isEnabled();
    };
    QVERIFY(!tabs.closeButton()->isEnabled());
    QVERIFY(isClosable(1) && !isClosable(0) && isClosable(2));
    tabs.addSpecialWidget(tabs.widget(2));
    QVERIFY(!tabs.closeButton()->isEnabled());
    tabs.addSpecialWidget(tabs.widget(3));
    tabs.addSpecialWidget(nullptr);
    QVERIFY(isClosable(1) && !isClosable(3));

    // Not even when the host takes the slot itself.
    QVERIFY(QMetaObject::invokeMethod(&tabs, "removeCurrentTab"));
    QCOMPARE(tabs.count(), 4);
    QVERIFY(spy.isEmpty());

    // The button does not follow the pages while it is hidden, but knows them when it comes back.
    tabs.enableCloseTabButton(false);
    tabs.setCurrentIndex(1);
    tabs.enableCloseTabButton(true);
    QVERIFY(tabs.closeButton()->isEnabled());

    // A special page that was dragged stays special.
    dragOnto(tabs.tabBar(), 0, 1, true);
    QCOMPARE(tabs.contents(), QStringLiteral("Bb [Aa] Cc Dd"));
    QVERIFY(!tabs.closeButton()->isEnabled());
}

void tst_OmTabWidget::closeButtonSurvivesItsEnemies()
{
    Tabs tabs(QStringLiteral("A"));
    QVERIFY(isShown(&tabs));
    for (const bool destroyed : {false, true}) {
        tabs.enableCloseTabButton(true);
        const QPointer<QToolButton> button(tabs.closeButton());
        tabs.setCornerWidget(new QLabel, Qt::TopRightCorner);
        if (destroyed)
            delete button;
        tabs.setCurrentIndex(tabs.addTab(new QLabel, QStringLiteral("B")));
        tabs.enableCloseTabButton(false);
        tabs.enableCloseTabButton(true);
        QCOMPARE(tabs.closeButton() == button, !destroyed);
        QVERIFY(tabs.closeButton()->isVisible() && tabs.closeButton()->isEnabled());
    }

    // A page that is made where a special one was deleted is not special itself.
    for (int times = 0; times < 20; ++times) {
        auto *page = new QLabel;
        tabs.setCurrentIndex(tabs.addTab(page, QString()));
        QVERIFY(tabs.closeButton()->isEnabled());
        tabs.addSpecialWidget(page);
        delete page;
    }
}

void tst_OmTabWidget::receiverOfTabRemovedMayDeleteAnything_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("early");
    for (const char *victim : {"page", "tabs", "button", "window"}) {
        QTest::addRow("%s", victim) << QString::fromLatin1(victim) << false;
        QTest::addRow("%s, in currentChanged", victim) << QString::fromLatin1(victim) << true;
    }
}

void tst_OmTabWidget::receiverOfTabRemovedMayDeleteAnything()
{
    QFETCH(QString, victim);
    QFETCH(bool, early);
    auto window = std::make_unique<QWidget>();
    auto *const tabs = new Tabs(QStringLiteral("ABC"));
    (new QVBoxLayout(window.get()))->addWidget(tabs);
    tabs->enableCloseTabButton(true);
    QVERIFY(isShown(window.get()));
    const QPointer<Tabs> guard(tabs);
    const QPointer<QWidget> page(tabs->widget(0));
    const auto destroy = [&] {
        if (victim == QLatin1String("page"))
            delete page;
        else if (victim == QLatin1String("tabs"))
            delete guard;
        else if (victim == QLatin1String("button") && guard)
            removeCloseButton(guard);
        else
            window.reset();
    };
    QList<QWidget *> removed;
    connect(tabs, &OmTabWidget::tabRemoved, this, [&](QWidget *reported) {
        removed.append(reported);
        if (!early)
            destroy();
    });
    if (early)
        connect(tabs, &QTabWidget::currentChanged, this, destroy);
    tabs->closeButton()->click();
    if (guard)
        QCOMPARE(tabs->contents(), QStringLiteral("[Bb] Cc"));
    if (page)
        QCOMPARE(removed, QList<QWidget *>{page});
    else if (early && guard)
        QCOMPARE(removed, QList<QWidget *>{nullptr}); // and not a page that is no more
}

void tst_OmTabWidget::receiverOfTabsExchangedMayDeleteAnything_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("early");
    for (const char *victim : {"page", "tabs", "window"}) {
        QTest::addRow("%s", victim) << QString::fromLatin1(victim) << false;
        QTest::addRow("%s, in currentChanged", victim) << QString::fromLatin1(victim) << true;
    }
}

void tst_OmTabWidget::receiverOfTabsExchangedMayDeleteAnything()
{
    QFETCH(QString, victim);
    QFETCH(bool, early);
    auto window = std::make_unique<QWidget>();
    auto *const tabs = new Tabs(QStringLiteral("ABC"));
    (new QVBoxLayout(window.get()))->addWidget(tabs);
    QVERIFY(isShown(window.get()));
    const QPointer<Tabs> guard(tabs);
    const auto destroy = [&] {
        if (victim == QLatin1String("page") && guard)
            delete tabs->widget(2);
        else if (victim == QLatin1String("tabs"))
            delete guard;
        else
            window.reset();
    };
    QVERIFY(dragTab(tabs->tabBar(), halfOfTab(*tabs->tabBar(), 0, true), [&] {
        const QPoint to = halfOfTab(*tabs->tabBar(), 2, true);
        QVERIFY(sendDrag<QDragEnterEvent>(tabs->tabBar(), to));
        QVERIFY(sendDrag<QDropEvent>(tabs->tabBar(), to));
        if (early)
            connect(tabs, &QTabWidget::currentChanged, this, destroy);
        else
            connect(tabs->bar(), &OmTabBar::tabsExchanged, this, destroy);
    }));
    if (guard)
        QCOMPARE(tabs->contents(), QStringLiteral("Cc [Bb]"));
}

int main(int argc, char *argv[])
{
    return runWithDrags<tst_OmTabWidget>(argc, argv);
}
#include "tst_omtabwidget.moc"
