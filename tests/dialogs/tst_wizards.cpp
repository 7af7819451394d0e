#include "dialogs/DialogUser.h"
#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

using namespace wizard_parts;
using dialog_user::click;
using dialog_user::closeButton;
using dialog_user::type;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

constexpr Action kActions[] = {Previous, Next, Execute, Cancel};

/// Which buttons can be seen, and which of these are enabled.
QString buttons(const QWidget *wizard)
{
    QStringList list;
    for (const Action action : kActions) {
        const QPushButton *shown = button(wizard, action);
        if (!shown->isHidden())
            list.append(shown->text() + QLatin1String(shown->isEnabled() ? "" : "(disabled)"));
    }
    return list.join(QLatin1Char(' '));
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

void answer(const char *caption)
{
    whenOpen<OmMessageBox>(
            [caption](OmMessageBox *box) { click(dialog_user::button(box, caption)); });
}

} // namespace

class tst_Wizards : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void buttonsShowWhatIsPossibleAndEnableWhatIsAllowed_data() { forBothWizards(); }
    void buttonsShowWhatIsPossibleAndEnableWhatIsAllowed();
    void userWalksThroughTheMission_data() { forBothWizards(); }
    void userWalksThroughTheMission();
    void onlyWhatIsPossibleAndAllowedRuns_data() { forBothWizards(); }
    void onlyWhatIsPossibleAndAllowedRuns();
    void cancelAsksUntilTheMissionIsExecuted_data() { forBothWizards(); }
    void cancelAsksUntilTheMissionIsExecuted();
    void failedMissionCanBeTriedAgain_data() { forBothWizards(); }
    void failedMissionCanBeTriedAgain();
    void clicksWhileTheMissionWorksAreNotPiledUp_data() { forBothWizards(); }
    void clicksWhileTheMissionWorksAreNotPiledUp();
    void keysDoWhatEachWizardSays_data();
    void keysDoWhatEachWizardSays();
    void enterThatAnsweredAQuestionIsNotTakenTwice();
    void titleAndIconAreTheMissionsOrTheWizards_data() { forBothWizards(); }
    void titleAndIconAreTheMissionsOrTheWizards();
    void textsAndPicturesFollowThePage();
    void unchangedRefreshChangesNothing_data() { forBothWizards(); }
    void unchangedRefreshChangesNothing();
    void languageChangeReachesTitleAndButtons_data() { forBothWizards(); }
    void languageChangeReachesTitleAndButtons();
    void tabOrderStartsOnThePage_data() { forBothWizards(); }
    void tabOrderStartsOnThePage();
};

void tst_Wizards::buttonsShowWhatIsPossibleAndEnableWhatIsAllowed()
{
    QFETCH(bool, compact);
    const Pages pages(1);
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    for (int bits = 0; bits < 256; ++bits) {
        mission.possible = [bits](Action action) { return (bits & (1 << action)) != 0; };
        mission.allowed = [bits](Action action) { return (bits & (16 << action)) != 0; };
        mission.DoOnChanged();
        for (const Action action : kActions) {
            QCOMPARE(button(wizard.get(), action)->isVisible(), mission.possible(action));
            QCOMPARE(button(wizard.get(), action)->isEnabled(), mission.allowed(action));
        }
    }
}

void tst_Wizards::userWalksThroughTheMission()
{
    QFETCH(bool, compact);
    const Pages pages(3);
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QSignalSpy finished(wizard.get(), &QDialog::finished);
    QStringList states;
    whenOpen<COmWizard_Base>([&](COmWizard_Base *open) {
        states.append(buttons(open));
        for (const Action action : {Next, Next, Previous, Next, Execute}) {
            click(button(open, action));
            states.append(buttons(open));
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
    const QString middle = QStringLiteral("< &Previous &Next > &Cancel");
    const QString last = QStringLiteral("< &Previous &Complete &Cancel");
    const QStringList expected = {QStringLiteral("&Next > &Cancel"),
                                  middle,
                                  last,
                                  middle,
                                  last,
                                  QStringLiteral("< &Previous &Complete &Exit")};
    QCOMPARE(states, expected);
    QCOMPARE(mission.calls.join(QLatin1Char(' ')),
             QStringLiteral("NextPage NextPage PrevPage NextPage ExecuteMission"));
    QCOMPARE(finished.count(), 1);
}

void tst_Wizards::onlyWhatIsPossibleAndAllowedRuns()
{
    QFETCH(bool, compact);
    const Pages pages(3);
    Mission mission(pages);
    mission.NextPage();
    mission.calls.clear();
    mission.confirms = true;
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    const char *slotNames[] = {"Prev", "Next", "Execute", "Cancel"};
    const auto runAll = [&] {
        for (const char *name : slotNames) {
            const QByteArray slot =
                    (compact ? "slotOn" : "On") + QByteArray(name) + "ButtonClicked";
            QVERIFY(QMetaObject::invokeMethod(wizard.get(), slot.constData()));
        }
        type(wizard.get(), Qt::Key_Enter);
        wizard->close();
    };
    for (const auto &[possible, allowed] :
         {std::pair(true, false), {false, true}, {false, false}}) {
        mission.possible = [answer = possible](Action) { return answer; };
        mission.allowed = [answer = allowed](Action) { return answer; };
        mission.DoOnChanged();
        runAll();
        QCOMPARE(mission.calls, QStringList());
        QVERIFY(wizard->isVisible());
    }
    wizard->Set_Mission(nullptr); // nor does anything run without a mission
    runAll();
    QVERIFY(wizard->isVisible());
    type(wizard.get(), Qt::Key_Escape);
    QVERIFY(!wizard->isVisible());
}

void tst_Wizards::cancelAsksUntilTheMissionIsExecuted()
{
    QFETCH(bool, compact);
    const Pages pages(1);
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QSignalSpy finished(wizard.get(), &QDialog::finished);
    const QStringList asked = {QStringLiteral("CancelWizard")};
    const auto byButton = [&] { click(button(wizard.get(), Cancel)); };
    const auto byFrame = [&] { click(closeButton(wizard.get())); };
    for (const Hook &cancel : {Hook(byButton), Hook(byFrame)}) {
        QVERIFY(show(wizard.get()));
        mission.calls.clear();
        mission.name = QStringLiteral("Before");
        mission.DoOnChanged();
        mission.name = QStringLiteral("After");
        answer("&No");
        cancel();
        QCOMPARE(mission.calls, asked);
        QVERIFY(wizard->isVisible());
        QCOMPARE(finished.count(), 0);
        QCOMPARE(wizard->windowTitle(), QStringLiteral("After")); // refreshed

        mission.calls.clear();
        answer("&Yes");
        cancel();
        QCOMPARE(mission.calls, asked);
        QVERIFY(!wizard->isVisible());
        QCOMPARE(finished.takeFirst().value(0).toInt(), int(QDialog::Rejected));
    }

    // Executed while the question is open: the confirmed cancel is an exit.
    QVERIFY(show(wizard.get()));
    mission.confirms = true;
    mission.onCancel = [&] { click(button(wizard.get(), Execute)); };
    byButton();
    QCOMPARE(finished.takeFirst().value(0).toInt(), int(QDialog::Accepted));

    // Once executed nothing is asked.
    mission.calls.clear();
    for (const Hook &exit : {Hook(byButton), Hook(byFrame)}) {
        QVERIFY(show(wizard.get()));
        QCOMPARE(caption(wizard.get(), Cancel), QStringLiteral("Exit"));
        exit();
        QCOMPARE(finished.takeFirst().value(0).toInt(), int(QDialog::Accepted));
        QVERIFY(!wizard->isVisible());
    }
    QCOMPARE(mission.calls, QStringList());
}

void tst_Wizards::failedMissionCanBeTriedAgain()
{
    QFETCH(bool, compact);
    const Pages pages(1);
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    for (const bool succeeds : {false, true, false}) {
        mission.succeeds = succeeds;
        click(button(wizard.get(), Execute));
        QVERIFY(wizard->isVisible());
        QCOMPARE(caption(wizard.get(), Cancel),
                 succeeds ? QStringLiteral("Exit") : QStringLiteral("Cancel"));
    }
    QCOMPARE(mission.calls.size(), 3);
}

void tst_Wizards::clicksWhileTheMissionWorksAreNotPiledUp()
{
    QFETCH(bool, compact);
    const Pages pages(1);
    Mission mission(pages);
    mission.confirms = false;
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    mission.onExecute = [&] { click(button(wizard.get(), Execute)); };
    mission.onCancel = [&] { click(button(wizard.get(), Cancel)); };
    click(button(wizard.get(), Cancel));
    click(button(wizard.get(), Execute));
    QCOMPARE(mission.calls.join(QLatin1Char(' ')), QStringLiteral("CancelWizard ExecuteMission"));
}

void tst_Wizards::keysDoWhatEachWizardSays_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("calls");
    QTest::addColumn<bool>("staysOpen");
    const auto row = [](const char *name, bool compact, int pages, Qt::Key key, const char *calls,
                        bool staysOpen = true) {
        QTest::newRow(name) << compact << pages << int(key) << QString::fromLatin1(calls)
                            << staysOpen;
    };
    row("standard, enter, first page", false, 2, Qt::Key_Enter, "NextPage");
    row("standard, enter, last page", false, 1, Qt::Key_Enter, "ExecuteMission");
    row("standard, enter, no page", false, 0, Qt::Key_Enter, "");
    row("standard, return, first page", false, 2, Qt::Key_Return, "");
    row("standard, return, last page", false, 1, Qt::Key_Return, "");
    row("standard, escape", false, 1, Qt::Key_Escape, "", false);
    row("standard, letter", false, 1, Qt::Key_A, "");
    row("compact, enter, first page", true, 2, Qt::Key_Enter, "NextPage");
    row("compact, enter, last page", true, 1, Qt::Key_Enter, "ExecuteMission");
    row("compact, return, first page", true, 2, Qt::Key_Return, "NextPage");
    row("compact, return, last page", true, 1, Qt::Key_Return, "ExecuteMission");
    row("compact, return, no page", true, 0, Qt::Key_Return, "");
    row("compact, escape", true, 1, Qt::Key_Escape, "CancelWizard", false);
    row("compact, letter", true, 1, Qt::Key_A, "");
}

void tst_Wizards::keysDoWhatEachWizardSays()
{
    QFETCH(bool, compact);
    QFETCH(int, pageCount);
    QFETCH(int, key);
    const Pages pages(pageCount);
    Mission mission(pages);
    mission.confirms = true;
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    QWidget *page = mission.CurrentPage();
    (page ? page : wizard.get())->setFocus(); // a button with the focus would be pressed
    type(wizard.get(), Qt::Key(key));
    QTEST(mission.calls.join(QLatin1Char(' ')), "calls");
    QTEST(wizard->isVisible(), "staysOpen");

    // Held down, a key acts once.
    mission.calls.clear();
    QVERIFY(show(wizard.get()));
    for (const QEvent::Type eventType : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(eventType, key, Qt::NoModifier, QString(), true);
        if (key != Qt::Key_Escape)
            QApplication::sendEvent(wizard.get(), &repeated);
    }
    QCOMPARE(mission.calls, QStringList());
}

void tst_Wizards::enterThatAnsweredAQuestionIsNotTakenTwice()
{
    const Pages pages(1);
    Mission mission(pages);
    COmWizard_Standard wizard;
    wizard.Set_Mission(&mission);
    QVERIFY(show(&wizard));
    whenOpen<OmMessageBox>([](OmMessageBox *box) {
        dialog_user::button(box, "&No")->setFocus();
        QTest::keyPress(box->windowHandle(), Qt::Key_Enter);
    });
    click(closeButton(&wizard));
    wizard.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    QTest::keyRelease(wizard.windowHandle(), Qt::Key_Enter);
    QCOMPARE(mission.calls, QStringList(QStringLiteral("CancelWizard")));
    type(&wizard, Qt::Key_Enter);
    QCOMPARE(mission.calls.size(), 2);
}

void tst_Wizards::titleAndIconAreTheMissionsOrTheWizards()
{
    QFETCH(bool, compact);
    const Pages pages(1);
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    QCOMPARE(wizard->windowModality(), Qt::WindowModal);
    wizard->Set_Mission(&mission);
    QCOMPARE(wizard->windowTitle(), QStringLiteral("Assistant"));
    QCOMPARE(wizard->windowTitleOnly(), QStringLiteral("Assistant"));
    QCOMPARE(wizard->windowIcon().cacheKey(), QApplication::windowIcon().cacheKey());
    mission.name = QStringLiteral("Add an account");
    mission.icon = QIcon(picture(16, 16));
    mission.DoOnChanged();
    QCOMPARE(wizard->windowTitle(), mission.name);
    QCOMPARE(wizard->windowTitleOnly(), mission.name);
    QCOMPARE(wizard->windowIcon().cacheKey(), mission.icon.cacheKey());
    mission.name.clear();
    mission.icon = QIcon();
    mission.DoOnChanged();
    QCOMPARE(wizard->windowTitleOnly(), QStringLiteral("Assistant"));
    QCOMPARE(wizard->windowIcon().cacheKey(), QApplication::windowIcon().cacheKey());
    QVERIFY(!wizard->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(wizard->palette().color(group, QPalette::Window), QColor(Qt::white));
    QVERIFY(wizard->autoFillBackground());
}

void tst_Wizards::textsAndPicturesFollowThePage()
{
    const Pages pages(2);
    Mission mission(pages);
    COmWizard_Standard wizard;
    wizard.Set_Mission(&mission);
    const auto texts = [&wizard] {
        QStringList list;
        const auto labels = wizard.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->text().isEmpty())
                list.append(label->text());
        }
        return list.join(QLatin1Char('|'));
    };
    QCOMPARE(texts(), QString());
    pages[1]->onActivate = [&mission] {
        mission.text = QStringLiteral("Your name");
        mission.description = QStringLiteral("How others see you.");
    };
    mission.NextPage();
    QCOMPARE(texts(), QStringLiteral("Your name|How others see you."));

    // The help button is there, but nobody sees it.
    const auto *help = wizard.findChild<QPushButton *>();
    QCOMPARE(help->text(), QStringLiteral("hilfe ich seh nix"));
    QVERIFY(help->isHidden() && !help->isEnabled());
}

void tst_Wizards::unchangedRefreshChangesNothing()
{
    QFETCH(bool, compact);
    const Pages pages(3);
    Mission mission(pages);
    new QLineEdit(pages[1]);
    mission.name = QStringLiteral("Name");
    mission.text = QStringLiteral("Text");
    mission.description = QStringLiteral("Description");
    mission.icon = QIcon(picture(16, 16));
    mission.sidebar = picture(100, 200);
    mission.picture = picture(48, 48);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    mission.NextPage();
    QTest::qWait(50);

    const QSignalSpy titles(wizard.get(), &QWidget::windowTitleChanged);
    const QSignalSpy icons(wizard.get(), &QWidget::windowIconChanged);
    Observer observer(wizard.get());
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

void tst_Wizards::languageChangeReachesTitleAndButtons()
{
    QFETCH(bool, compact);
    const Pages pages(3);
    Mission mission(pages);
    mission.possible = [](Action) { return true; };
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    const QString context = QLatin1String(compact ? "OmWizard_Standard2" : "COmWizard_Standard");
    {
        const dialog_user::TaggedLanguage language;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        QCOMPARE(wizard->windowTitleOnly(),
                 context
                         + QStringLiteral("|Assistant|windowtitle of a wizard who hasn't get one "
                                          "by the mission"));
        const std::pair<Action, const char *> texts[] = {
                {Previous, "|< &Previous|previous-button in standard-wizard"},
                {Next, "|&Next >|next-button in standard-wizard"},
                {Execute, "|&Complete|execute-button in standard-wizard"},
                {Cancel, "|&Cancel|cancel-button in standard-wizard"}};
        for (const auto &[action, text] : texts)
            QCOMPARE(button(wizard.get(), action)->text(), context + QLatin1String(text));
        mission.NextPage();
        mission.NextPage();
        click(button(wizard.get(), Execute));
        QCOMPARE(button(wizard.get(), Cancel)->text(),
                 context + QLatin1String("|&Exit|exit-button in standard-wizard"));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(button(wizard.get(), Cancel)->text(), QStringLiteral("&Exit"));
    QCOMPARE(wizard->windowTitleOnly(), QStringLiteral("Assistant"));
}

void tst_Wizards::tabOrderStartsOnThePage()
{
    QFETCH(bool, compact);
    const Pages pages(3);
    for (const int index : {0, 1}) {
        for (const char *name : {"first", "second"})
            (new QLineEdit(pages[index]))->setObjectName(QLatin1String(name));
        new QLabel(pages[index]);
    }
    Mission mission(pages);
    const auto wizard = makeWizard(compact);
    wizard->Set_Mission(&mission);
    QVERIFY(show(wizard.get()));
    if (compact)
        QVERIFY(pages[0]->hasFocus());
    else
        QCOMPARE(wizard->focusWidget()->objectName(), QStringLiteral("first"));
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
    QCOMPARE(nextStops(6), QStringLiteral("first second < &Previous &Next > &Cancel first"));
    mission.NextPage();
    pages[2]->setFocus();
    QCOMPARE(nextStops(3), QStringLiteral("< &Previous &Complete &Cancel"));
}

OMBRIN_TEST_MAIN(tst_Wizards)
#include "tst_wizards.moc"
