#include "dialogs/WizardParts.h"
#include "support/TaggedLanguage.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

using namespace wizard_parts;
using dialog_user::click;
using dialog_user::type;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

QString shownButtons(const QWidget *wizard)
{
    QStringList texts;
    for (const Action action : kActions) {
        if (button(wizard, action)->isVisible())
            texts.append(button(wizard, action)->text());
    }
    return texts.join(QLatin1Char(' '));
}

void invoke(COmWizard_Base *wizard, Action action)
{
    static constexpr const char *kNames[] = {"Prev", "Next", "Execute", "Cancel"};
    const bool compact = qobject_cast<OmWizard_Standard2 *>(wizard) != nullptr;
    const QByteArray slot =
            (compact ? "slotOn" : "On") + QByteArray(kNames[action]) + "ButtonClicked";
    QVERIFY(QMetaObject::invokeMethod(wizard, slot.constData()));
}

/// Counts what an application or a style would notice of the widgets of a window.
class Observer : public QObject
{
public:
    explicit Observer(QWidget *window)
        : m_window(window)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && (widget == m_window || m_window->isAncestorOf(widget)))
            seen.append(event->type());
        return false;
    }

    QList<QEvent::Type> seen;

private:
    QWidget *m_window;
};

} // namespace

class tst_Wizards : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void actionsAreShownEnabledAndRunAsTheMissionSays_data() { forBothWizards(); }
    void actionsAreShownEnabledAndRunAsTheMissionSays()
    {
        QFETCH(bool, compact);
        Log log;
        const Pages pages(1);
        Mission mission(pages, &log);
        mission.confirms = false;
        const auto wizard = makeWizard(compact, &mission);
        QVERIFY(activate(wizard.get()));
        for (int bits = 0; bits < 256; ++bits) {
            mission.possible = bits & 15;
            mission.allowed = bits >> 4;
            mission.DoOnChanged();
            const int runs = *mission.possible & *mission.allowed;
            QString calls;
            for (const Action action : kActions) {
                const int bit = 1 << action;
                QCOMPARE(button(wizard.get(), action)->isVisible(), (*mission.possible & bit) != 0);
                QCOMPARE(button(wizard.get(), action)->isEnabled(), (*mission.allowed & bit) != 0);
                log.take();
                invoke(wizard.get(), action);
                static constexpr const char *kCalls[] = {"PrevPage", "NextPage", "ExecuteMission",
                                                         "CancelWizard"};
                QCOMPARE(log.take(), QLatin1String(runs & bit ? kCalls[action] : ""));
            }
            mission.succeeds = false;
            if (compact) { // the default button is what Return stands for
                const bool executes = runs & 1 << Execute;
                const bool goesOn = runs & 1 << Next;
                for (const Action action : {Execute, Next}) {
                    if (executes || goesOn)
                        QCOMPARE(button(wizard.get(), action)->isDefault(),
                                 (action == Execute) == executes);
                }
            }
        }
        wizard->Set_Mission(nullptr); // nor does anything run without a mission
        log.take();
        for (const Action action : kActions)
            invoke(wizard.get(), action);
        type(wizard.get(), Qt::Key_Enter);
        wizard->close();
        QCOMPARE(log.take(), QString());
        QVERIFY(wizard->isVisible());
        type(wizard.get(), Qt::Key_Escape);
        QVERIFY(!wizard->isVisible());
    }

    void userWalksThroughTheMission_data() { forBothWizards(); }
    void userWalksThroughTheMission()
    {
        QFETCH(bool, compact);
        Log log;
        const Pages pages(3);
        Mission mission(pages, &log);
        const auto wizard = makeWizard(compact, &mission);
        // Clicks while the mission works are not piled up.
        log.heard = [&](const QString &what) {
            for (const Action action : {Execute, Next, Previous}) {
                if (what.endsWith("Page"_q) || what == "ExecuteMission"_q)
                    invoke(wizard.get(), action);
            }
        };
        whenOpen<COmWizard_Base>([&](COmWizard_Base *open) {
            const std::tuple<Action, bool, const char *> steps[] = {
                    {Next, true, "< &Previous &Next > &Cancel"},
                    {Next, true, "< &Previous &Complete &Cancel"},
                    {Previous, true, "< &Previous &Next > &Cancel"},
                    {Next, true, "< &Previous &Complete &Cancel"},
                    {Execute, true, "< &Previous &Complete &Exit"},
                    {Execute, false, "< &Previous &Complete &Cancel"},
                    {Execute, true, "< &Previous &Complete &Exit"}};
            QCOMPARE(shownButtons(open), "&Next > &Cancel"_q);
            for (const auto &[action, succeeds, texts] : steps) {
                mission.succeeds = succeeds;
                click(button(open, action));
                QCOMPARE(shownButtons(open), QLatin1String(texts));
                const QWidget *page = mission.CurrentPage();
                for (int index = 0; index < 3; ++index) {
                    QCOMPARE(pages[index]->isVisible(), pages[index] == page);
                    QCOMPARE(pages[index]->parentWidget() == nullptr, pages[index] != page);
                }
                QVERIFY(open->isAncestorOf(page));
            }
            click(button(open, Cancel));
        });
        QCOMPARE(wizard->exec(), int(QDialog::Accepted));
        QCOMPARE(log.take(), "NextPage NextPage PrevPage NextPage ExecuteMission ExecuteMission "
                             "ExecuteMission"_q);
    }

    void cancelAsksUntilTheMissionIsExecuted_data() { forBothWizards(); }
    void cancelAsksUntilTheMissionIsExecuted()
    {
        QFETCH(bool, compact);
        Log log;
        const Pages pages(1);
        Mission mission(pages, &log);
        const auto wizard = makeWizard(compact, &mission);
        QSignalSpy finished(wizard.get(), &QDialog::finished);
        /// Cancels by the button or the frame, and returns how the dialog ended, or -1.
        const auto cancel = [&](bool byFrame) {
            if (!activate(wizard.get()))
                return -2;
            click(byFrame ? static_cast<QWidget *>(dialog_user::closeButton(wizard.get()))
                          : button(wizard.get(), Cancel));
            if (finished.isEmpty())
                return wizard->isVisible() ? -1 : -2;
            return wizard->isVisible() ? -2 : finished.takeFirst().value(0).toInt();
        };
        const auto answer = [](const char *caption) {
            whenOpen<OmMessageBox>(
                    [caption](OmMessageBox *box) { click(dialog_user::button(box, caption)); });
        };
        for (const bool byFrame : {false, true}) {
            mission.name = "Before"_q;
            mission.DoOnChanged();
            mission.name = "After"_q;
            answer("&No");
            QCOMPARE(cancel(byFrame), -1);
            QCOMPARE(wizard->windowTitle(), "After"_q); // refreshed
            answer("&Yes");
            QCOMPARE(cancel(byFrame), int(QDialog::Rejected));
            QCOMPARE(log.take(), "CancelWizard CancelWizard"_q);
        }

        // Executed while the question is open, or asked again: the confirmed cancel is an exit.
        mission.confirms = true;
        log.heard = [&](const QString &what) {
            if (what != "CancelWizard"_q)
                return;
            click(button(wizard.get(), Cancel));
            click(button(wizard.get(), Execute));
        };
        QCOMPARE(cancel(false), int(QDialog::Accepted));
        QCOMPARE(log.take(), "CancelWizard ExecuteMission"_q);

        // Once executed nothing is asked.
        QCOMPARE(cancel(false), int(QDialog::Accepted));
        QCOMPARE(cancel(true), int(QDialog::Accepted));
        QCOMPARE(log.take(), QString());
    }

    void keysDoWhatEachWizardSays_data()
    {
        // standard: on no page, the first and the last one
        const auto row = columns<int, QStringList, QStringList>("key", "standard", "compact");
        const QStringList nothing = {""_q, ""_q, ""_q};
        const QStringList goesOn = {""_q, "NextPage"_q, "ExecuteMission"_q};
        row("enter", Qt::Key_Enter, goesOn, goesOn);
        row("return", Qt::Key_Return, nothing, goesOn);
        row("escape", Qt::Key_Escape, {"closed"_q, "closed"_q, "closed"_q},
            {"CancelWizard closed"_q, "CancelWizard closed"_q, "CancelWizard closed"_q});
        row("letter", Qt::Key_A, nothing, nothing);
    }

    void keysDoWhatEachWizardSays()
    {
        QFETCH(int, key);
        QFETCH(QStringList, standard);
        QFETCH(QStringList, compact);
        for (const bool isCompact : {false, true}) {
            for (const int position : {0, 1, 2}) {
                Log log;
                const Pages pages(2);
                Mission mission(&log);
                mission.confirms = true;
                if (position > 0)
                    mission.UseStaticPages(pages.widgets());
                if (position > 1)
                    mission.NextPage();
                const auto wizard = makeWizard(isCompact, &mission);
                connect(wizard.get(), &QDialog::rejected, &log, [&] { log.tell("closed"_q); });
                QVERIFY(activate(wizard.get()));
                QWidget *page = mission.CurrentPage();
                if (isCompact && page)
                    QTRY_VERIFY_WITH_TIMEOUT(page->hasFocus(), 20000);
                (page ? page : wizard.get())
                        ->setFocus(); // a button with the focus would be pressed
                log.take();
                type(wizard.get(), Qt::Key(key));
                QCOMPARE(log.take(), (isCompact ? compact : standard).value(position));
                // Held down, a key acts once.
                for (const QEvent::Type eventType : {QEvent::KeyRelease, QEvent::KeyPress}) {
                    QKeyEvent repeated(eventType, key, Qt::NoModifier, QString(), true);
                    if (key != Qt::Key_Escape)
                        QApplication::sendEvent(wizard.get(), &repeated);
                }
                QCOMPARE(log.take(), QString());
            }
        }
    }

    void enterThatWasPressedForSomethingElseDoesNotGoOn()
    {
        for (const int what : {0, 1, 2}) { // text with line breaks, list, question
            Log log;
            const Pages pages(1);
            auto *text = new QPlainTextEdit(pages[0]);
            auto *list = new QComboBox(pages[0]);
            list->addItems({"one"_q, "two"_q});
            Mission mission(pages, &log);
            COmWizard_Standard wizard;
            wizard.Set_Mission(&mission);
            QVERIFY(activate(&wizard));
            pages[0]->setFocus();
            if (what == 0) {
                text->setFocus();
                type(&wizard, Qt::Key_Enter);
                QCOMPARE(text->toPlainText(), "\n"_q);
            } else if (what == 1) {
                list->showPopup();
                QTest::keyPress(list->view(), Qt::Key_Enter);
                QVERIFY(!list->view()->isVisible());
                QTest::keyRelease(wizard.windowHandle(), Qt::Key_Enter);
            } else {
                whenOpen<OmMessageBox>([](OmMessageBox *box) {
                    dialog_user::button(box, "&No")->setFocus();
                    QTest::keyPress(box->windowHandle(), Qt::Key_Enter);
                });
                click(dialog_user::closeButton(&wizard));
                QVERIFY(activate(&wizard));
                QTest::keyRelease(wizard.windowHandle(), Qt::Key_Enter);
            }
            QVERIFY(!log.take().contains("ExecuteMission"_q));
            pages[0]->setFocus();
            type(&wizard, Qt::Key_Enter);
            QCOMPARE(log.take(), "ExecuteMission"_q);
        }
    }

    void wizardShowsWhatTheMissionSays_data() { forBothWizards(); }
    void wizardShowsWhatTheMissionSays()
    {
        QFETCH(bool, compact);
        const Pages pages(1);
        Mission mission(pages);
        const auto wizard = makeWizard(compact, &mission);
        for (const bool saysSomething : {false, true, false}) {
            mission.name = saysSomething ? "Add an account"_q : QString();
            mission.text = saysSomething ? "Your name"_q : QString();
            mission.description = saysSomething ? "How others see you."_q : QString();
            mission.icon = saysSomething ? QIcon(picture({16, 16})) : QIcon();
            mission.DoOnChanged();
            const QString title = saysSomething ? mission.name : "Assistant"_q;
            QCOMPARE(wizard->windowTitle(), title);
            QCOMPARE(wizard->windowTitleOnly(), title);
            QCOMPARE(wizard->windowIcon().cacheKey(),
                     (saysSomething ? mission.icon : QApplication::windowIcon()).cacheKey());
            QString texts;
            const auto labels = wizard->findChildren<QLabel *>();
            for (const QLabel *label : labels)
                texts += label->text();
            QCOMPARE(texts, compact ? QString() : mission.text + mission.description);
        }
        QCOMPARE(wizard->windowModality(), Qt::WindowModal);
        QVERIFY(!wizard->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(wizard->palette().color(group, QPalette::Window), QColor(Qt::white));
        QVERIFY(wizard->autoFillBackground());
        QPalette dark = wizard->palette();
        dark.setColor(QPalette::WindowText, Qt::white);
        wizard->setPalette(dark);
        QCOMPARE(wizard->palette().color(QPalette::WindowText), QColor(Qt::black));
        if (!compact) { // the help button is there, but nobody sees it
            const auto *help = wizard->findChild<QPushButton *>();
            QCOMPARE(help->text(), "hilfe ich seh nix"_q);
            QVERIFY(help->isHidden() && !help->isEnabled());
        }
    }

    void unchangedRefreshChangesNothing_data() { forBothWizards(); }
    void unchangedRefreshChangesNothing()
    {
        QFETCH(bool, compact);
        const Pages pages(3);
        Mission mission(pages);
        new QLineEdit(pages[1]);
        mission.name = "Name"_q;
        mission.text = "Text"_q;
        mission.description = "Description"_q;
        mission.icon = QIcon(picture({16, 16}));
        mission.sidebar = picture({100, 200});
        mission.picture = picture({48, 48});
        const auto wizard = makeWizard(compact, &mission);
        QVERIFY(activate(wizard.get()));
        mission.NextPage();
        Observer observer(wizard.get());
        QVERIFY(waitFor([&observer] { // until it has come to rest
            observer.seen.clear();
            QTest::qWait(50);
            return observer.seen.isEmpty();
        }));

        const QSignalSpy titles(wizard.get(), &QWidget::windowTitleChanged);
        const QSignalSpy icons(wizard.get(), &QWidget::windowIconChanged);
        for (int repetition = 0; repetition < 3; ++repetition)
            mission.DoOnChanged();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(observer.seen, QList<QEvent::Type>());
        QCOMPARE(titles.count() + icons.count(), 0);

        mission.sidebar = QPixmap();
        mission.DoOnChanged();
        QVERIFY(!observer.seen.isEmpty()); // the observer is awake
    }

    void languageChangeReachesTitleAndButtons_data() { forBothWizards(); }
    void languageChangeReachesTitleAndButtons()
    {
        QFETCH(bool, compact);
        const Pages pages(3);
        Mission mission(pages);
        mission.possible = 15;
        const auto wizard = makeWizard(compact, &mission);
        QVERIFY(activate(wizard.get()));
        const QString prefix =
                QLatin1String(compact ? "OmWizard_Standard2|" : "COmWizard_Standard|");
        const QString before = shownButtons(wizard.get());
        {
            const ombrin::test::TaggedLanguage language;
            QCOMPARE(
                    wizard->windowTitleOnly(),
                    prefix + "Assistant|windowtitle of a wizard who hasn't get one by the mission"_q);
            QCOMPARE(shownButtons(wizard.get()),
                     "%1< &Previous|previous-button in standard-wizard "
                     "%1&Next >|next-button in standard-wizard "
                     "%1&Complete|execute-button in standard-wizard "
                     "%1&Cancel|cancel-button in standard-wizard"_q.arg(prefix));
            mission.allowed = 15;
            mission.DoOnChanged();
            click(button(wizard.get(), Execute));
            QCOMPARE(button(wizard.get(), Cancel)->text(),
                     prefix + "&Exit|exit-button in standard-wizard"_q);
        }
        QCOMPARE(shownButtons(wizard.get()), QString(before).replace("Cancel"_q, "Exit"_q));
        QCOMPARE(wizard->windowTitleOnly(), "Assistant"_q);
    }

    void tabOrderStartsOnThePage_data() { forBothWizards(); }
    void tabOrderStartsOnThePage()
    {
        QFETCH(bool, compact);
        const Pages pages(3);
        for (const int index : {0, 1}) {
            for (const char *name : {"first", "second"})
                (new QLineEdit(pages[index]))->setObjectName(QLatin1String(name));
            new QLabel(pages[index]);
        }
        Mission mission(pages);
        const auto wizard = makeWizard(compact, &mission);
        QVERIFY(activate(wizard.get()));
        if (compact)
            QVERIFY(pages[0]->hasFocus());
        else
            QCOMPARE(wizard->focusWidget()->objectName(), "first"_q);
        const auto nextStops = [&](int count) {
            QStringList stops;
            for (int stop = 0; stop < count; ++stop) {
                type(wizard.get(), Qt::Key_Tab);
                const QWidget *focus = wizard->focusWidget();
                const auto *pushButton = qobject_cast<const QPushButton *>(focus);
                stops.append(pushButton ? pushButton->text() : focus->objectName());
            }
            return stops.join(QLatin1Char(' '));
        };
        mission.NextPage();
        if (compact)
            QVERIFY(pages[1]->hasFocus());
        else
            pages[1]->setFocus();
        QCOMPARE(nextStops(6), "first second < &Previous &Next > &Cancel first"_q);
        mission.NextPage();
        pages[2]->setFocus();
        QCOMPARE(nextStops(3), "< &Previous &Complete &Cancel"_q);
    }
};

OMBRIN_TEST_MAIN(tst_Wizards)
#include "tst_wizards.moc"
