#include "support/WidgetEvents.h"
#include "widgets/LetteredTabs.h"
#include "widgets/TabDrag.h"

using namespace ombrin::test;
using namespace ombrin;

namespace {

class Tabs : public LetteredTabs
{
public:
    explicit Tabs(const QString &letters = QString())
        : LetteredTabs(letters)
    {
        resize(400, 200);
    }

    QToolButton *closeButton() const
    {
        return qobject_cast<QToolButton *>(cornerWidget(Qt::TopRightCorner));
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

// A window with tabs, whose signals may delete anything.
struct FragileTabs
{
    FragileTabs()
    {
        (new QVBoxLayout(window.get()))->addWidget(tabs);
        tabs->enableCloseTabButton(true);
        window->show();
    }

    bool isReady() { return QTest::qWaitForWindowExposed(window.get()); }

    void destroy(const QString &victim)
    {
        if (victim == "page"_q)
            delete page;
        else if (victim == "tabs"_q)
            delete tabs;
        else if (victim == "button"_q && tabs)
            removeCloseButton(tabs);
        else
            window.reset();
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<Tabs> tabs = new Tabs("ABC"_q);
    QPointer<QWidget> page = tabs->widget(0);
};

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
    void slotsKeepTheirOrder()
    {
        QCOMPARE(methodsOf(OmTabWidget::staticMetaObject),
                 words("tabRemoved(QWidget*) removeCurrentTab() swapTabs(int,int) "
                       "slotTabChanged(int)"));
    }

    void pagesFollowDraggedTabs_data()
    {
        const auto row =
                columns<int, int, bool, QString>("source", "target", "rightHalf", "contents");
        row("later tab", 1, 3, true, "Aa Dd Cc [Bb] Ee");
        row("first tab", 1, 0, false, "[Bb] Aa Cc Dd Ee");
        row("from one end to the other", 0, 4, true, "Ee Bb Cc Dd [Aa]");
        row("a disabled tab, which a press does not select", 2, 4, true, "Aa Bb Ee Dd [Cc]");
    }
    void pagesFollowDraggedTabs()
    {
        QFETCH(int, source);
        QFETCH(int, target);
        QFETCH(bool, rightHalf);
        QFETCH(QString, contents);
        for (const int current : {0, 4}) {
            Tabs tabs("ABCDE"_q);
            tabs.setTabEnabled(2, source != 2);
            tabs.setCurrentIndex(current);
            QVERIFY(isShown(&tabs));
            QSignalSpy removals(&tabs, &OmTabWidget::tabRemoved);
            dragOnto(tabs.tabBar(), source, target, rightHalf);
            QCOMPARE(tabs.contents(), contents);
            QCOMPARE(tabs.shownPage(), tabs.currentWidget()->objectName());
            QVERIFY(removals.isEmpty());
            for (int i = 0; i < tabs.count(); ++i)
                QCOMPARE(tabs.isTabEnabled(i), tabs.widget(i)->isEnabled());
        }
    }

    void swappingNonsenseSwapsNothing()
    {
        Tabs tabs("ABC"_q);
        QVERIFY(isShown(&tabs));
        Tabs empty;
        const std::pair<int, int> nonsense[] = {{-1, 1}, {1, 3}, {17, -17}, {1, 1}};
        for (const auto &[first, second] : nonsense) {
            Q_EMIT tabs.bar()->tabsExchanged(first, second);
            Q_EMIT empty.bar()->tabsExchanged(first, second);
        }
        QCOMPARE(tabs.contents(), "Aa [Bb] Cc"_q);
        QCOMPARE(tabs.shownPage(), "b"_q);
    }

    void pagesSwitchWithoutTabBar()
    {
        Tabs tabs("ABC"_q);
        QVERIFY(isShown(&tabs));
        const int height = tabs.currentWidget()->height();
        tabs.enableTabBar(false);
        QVERIFY(!tabs.tabBar()->isVisible());
        tabs.setCurrentIndex(2);
        QCOMPARE(tabs.shownPage(), "c"_q);
        QTRY_VERIFY_WITH_TIMEOUT(tabs.currentWidget()->height() > height, 20000);
        tabs.enableTabBar(true);
        QVERIFY(tabs.tabBar()->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(tabs.currentWidget()->height(), height, 20000);
    }

    void closeButtonStandsInTheCorner()
    {
        Tabs tabs("AB"_q);
        QVERIFY(isShown(&tabs));
        tabs.enableCloseTabButton(true);
        QToolButton *const button = tabs.closeButton();
        QVERIFY(button && button->isVisible() && button->isEnabled() && button->autoRaise());
        QCOMPARE(accessibleName(button), "Close tab"_q);
        tabs.enableCloseTabButton(false);
        QVERIFY(!button->isVisible());
        tabs.enableCloseTabButton(true);
        QVERIFY(button->isVisible());
        QCOMPARE(tabs.closeButton(), button);
    }

    void closeButtonRemovesTheCurrentTab()
    {
        Tabs tabs("ABC"_q);
        tabs.enableCloseTabButton(true);
        QList<QWidget *> removed;
        connect(&tabs, &OmTabWidget::tabRemoved,
                [&removed](QWidget *page) { removed.append(page); });
        const QPointer<QWidget> page = tabs.widget(1);
        tabs.setCurrentIndex(1);
        tabs.closeButton()->click();
        QCOMPARE(tabs.contents(), "Aa [Cc]"_q);
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

    void closeButtonSparesSpecialPages()
    {
        Tabs tabs("ABCD"_q);
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

        // The button does not follow the pages while it is hidden, but knows them when it comes
        // back.
        tabs.enableCloseTabButton(false);
        tabs.setCurrentIndex(1);
        tabs.enableCloseTabButton(true);
        QVERIFY(tabs.closeButton()->isEnabled());

        // A special page that was dragged stays special.
        dragOnto(tabs.tabBar(), 0, 1, true);
        QCOMPARE(tabs.contents(), "Bb [Aa] Cc Dd"_q);
        QVERIFY(!tabs.closeButton()->isEnabled());
    }

    void closeButtonSurvivesItsEnemies()
    {
        Tabs tabs("A"_q);
        QVERIFY(isShown(&tabs));
        for (const bool destroyed : {false, true}) {
            tabs.enableCloseTabButton(true);
            const QPointer<QToolButton> button(tabs.closeButton());
            tabs.setCornerWidget(new QLabel, Qt::TopRightCorner);
            if (destroyed)
                delete button;
            tabs.setCurrentIndex(tabs.addTab(new QLabel, "B"_q));
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

    void receiverOfTabRemovedMayDeleteAnything_data()
    {
        const auto row = columns<QString, bool>("victim", "early");
        for (const QString &victim : words("page tabs button window")) {
            row(qPrintable(victim), victim, false);
            row(qPrintable(victim + ", in currentChanged"_q), victim, true);
        }
    }
    void receiverOfTabRemovedMayDeleteAnything()
    {
        QFETCH(QString, victim);
        QFETCH(bool, early);
        FragileTabs test;
        QVERIFY(test.isReady());
        QList<QWidget *> removed;
        connect(test.tabs, &OmTabWidget::tabRemoved, this, [&](QWidget *reported) {
            removed.append(reported);
            if (!early)
                test.destroy(victim);
        });
        if (early)
            connect(test.tabs, &QTabWidget::currentChanged, this, [&] { test.destroy(victim); });
        test.tabs->closeButton()->click();
        if (test.tabs)
            QCOMPARE(test.tabs->contents(), "[Bb] Cc"_q);
        if (test.page)
            QCOMPARE(removed, QList<QWidget *>{test.page});
        else if (early && test.tabs)
            QCOMPARE(removed, QList<QWidget *>{nullptr}); // and not a page that is no more
    }
};

int main(int argc, char *argv[])
{
    return runWithDrags<tst_OmTabWidget>(argc, argv);
}
#include "tst_omtabwidget.moc"
