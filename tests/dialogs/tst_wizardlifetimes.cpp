#include "dialogs/DialogUser.h"
#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

using namespace wizard_parts;
using dialog_user::click;
using dialog_user::closeButton;
using dialog_user::type;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

/// A wizard on the heap that shows the second of three pages.
struct Scene
{
    explicit Scene(bool isCompact)
        : compact(isCompact)
        , mission(new Mission(pages))
        , wizard(makeWizard(isCompact).release())
    {
        mission->confirms = true;
        mission->NextPage();
        wizard->Set_Mission(mission);
    }
    ~Scene()
    {
        delete wizard;
        delete mission;
    }
    Q_DISABLE_COPY(Scene)

    void press(Action action) const { click(button(wizard, action)); }
    void goToTheLastPage() const { mission->Set_CurrentPage(pages[2]); }
    /// Lets the mission be executed on whatever page.
    void allowAll() const
    {
        mission->possible = [](Action) { return true; };
        mission->allowed = [](Action) { return true; };
        mission->DoOnChanged();
    }
    void killWizard() const { delete wizard.data(); }
    void killMission()
    {
        // Its last act is to leave its page, which may call this again.
        Mission *dying = mission;
        mission.clear();
        delete dying;
    }

    bool compact;
    Pages pages{3};
    QPointer<Mission> mission;
    QPointer<COmWizard_Base> wizard;
};

using Act = std::function<void(Scene &)>;

/// A page that tells its mission of changes at bad times.
class Restless : public Page
{
public:
    explicit Restless(wizard_parts::Mission *mission)
        : m_mission(mission)
    {}
    ~Restless() override { tell(); }

protected:
    void showEvent(QShowEvent *) override { tell(); }
    void hideEvent(QHideEvent *) override { tell(); }

private:
    void tell() const
    {
        if (m_mission)
            m_mission->DoOnChanged();
    }

    QPointer<wizard_parts::Mission> m_mission;
};

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_WizardLifetimes : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void anythingMayDieAtAnyTime_data();
    void anythingMayDieAtAnyTime();
    void missionMayCloseTheWizardWhileAPageIsActivated_data() { forBothWizards(); }
    void missionMayCloseTheWizardWhileAPageIsActivated();
    void replacedMissionGetsItsPageBack_data() { forBothWizards(); }
    void replacedMissionGetsItsPageBack();
    void twoWizardsMayShowOneMission_data();
    void twoWizardsMayShowOneMission();
    void onlyTheCurrentPageGoesWithTheWizard_data() { forBothWizards(); }
    void onlyTheCurrentPageGoesWithTheWizard();
    void wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds_data();
    void wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds();
    void pageMayTellOfChangesAtAnyTime_data() { forBothWizards(); }
    void pageMayTellOfChangesAtAnyTime();
};

void tst_WizardLifetimes::anythingMayDieAtAnyTime_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<Act>("act");
    QTest::addColumn<bool>("wizardLives");
    QTest::addColumn<bool>("missionLives");
    const auto row = [](const char *name, bool wizardLives, bool missionLives, const Act &act) {
        for (const bool compact : {false, true})
            QTest::addRow("%s, %s", name, compact ? "compact" : "standard")
                    << compact << act << wizardLives << missionLives;
    };

    row("mission, while it is shown", true, false, [](Scene &scene) {
        scene.killMission();
        scene.press(Next);
        scene.press(Cancel);
        type(scene.wizard, Qt::Key_Enter);
    });
    row("mission, when it is executed", true, false, [](Scene &scene) {
        scene.allowAll();
        scene.mission->onExecute = [&] { scene.killMission(); };
        scene.press(Execute);
    });
    row("mission, when a page is turned", true, false, [](Scene &scene) {
        scene.mission->onStep = [&] { scene.killMission(); };
        scene.press(Next);
    });
    row("mission, when it is asked", true, false, [](Scene &scene) {
        scene.mission->possible = [&](Action) {
            scene.killMission();
            return true;
        };
        scene.press(Next);
    });
    row("mission, while the question is open", true, false, [](Scene &scene) {
        scene.mission->confirms.reset();
        whenOpen<OmMessageBox>([&](OmMessageBox *box) {
            scene.killMission();
            box->reject();
        });
        scene.press(Cancel);
    });
    row("mission, when a page is left", true, false, [](Scene &scene) {
        scene.pages[1]->onDeactivate = [&] { scene.killMission(); };
        scene.press(Next);
    });
    row("mission, when a page is entered", true, false, [](Scene &scene) {
        scene.pages[2]->onActivate = [&] { scene.killMission(); };
        scene.press(Next);
    });
    row("mission, when a page is refreshed", true, false, [](Scene &scene) {
        scene.pages[2]->onRefresh = [&] { scene.killMission(); };
        scene.press(Next);
    });
    row("mission, in a slot of its signal", true, false, [](Scene &scene) {
        QObject::connect(scene.mission, &Mission::OnChanged, scene.wizard,
                         [&] { scene.killMission(); });
        scene.press(Next);
    });

    row("page, while it is shown", true, true, [](Scene &scene) {
        delete scene.pages[1];
        scene.mission->DoOnChanged();
        scene.press(Next);
        QVERIFY(scene.pages[2]->isVisible());
        scene.press(Previous);
        QVERIFY(scene.pages[0]->isVisible());
    });
    row("page, when it is left", true, true, [](Scene &scene) {
        scene.pages[1]->onDeactivate = [&] { delete scene.pages[1]; };
        scene.press(Next);
        QVERIFY(scene.pages[2]->isVisible());
    });
    row("page, when the one before it is left", true, true, [](Scene &scene) {
        scene.pages[1]->onDeactivate = [&] { delete scene.pages[2]; };
        scene.press(Next);
        QVERIFY(!scene.mission->CurrentPage());
    });
    row("page, when it is entered", true, true, [](Scene &scene) {
        scene.pages[2]->onActivate = [&] { delete scene.pages[2]; };
        scene.press(Next);
        scene.press(Previous);
        QVERIFY(scene.pages[1]->isVisible());
    });

    row("wizard, in a slot of the mission's signal", false, true, [](Scene &scene) {
        QObject::connect(scene.mission, &Mission::OnChanged, scene.mission,
                         [&] { scene.killWizard(); });
        scene.mission->NextPage();
    });
    row("wizard, when its button turns a page", false, true, [](Scene &scene) {
        scene.pages[2]->onActivate = [&] { scene.killWizard(); };
        scene.press(Next);
    });
    row("wizard, when the mission is executed", false, true, [](Scene &scene) {
        scene.allowAll();
        scene.mission->onExecute = [&] { scene.killWizard(); };
        scene.press(Execute);
    });
    row("wizard, when the mission is asked", false, true, [](Scene &scene) {
        scene.mission->allowed = [&](Action) {
            scene.killWizard();
            return true;
        };
        scene.press(Next);
    });
    row("wizard, while the question is open", false, true, [](Scene &scene) {
        scene.mission->confirms.reset();
        whenOpen<OmMessageBox>([&](OmMessageBox *box) {
            scene.killWizard();
            box->accept();
        });
        click(closeButton(scene.wizard));
    });
    row("wizard, when it is told of a new title", false, true, [](Scene &scene) {
        QObject::connect(scene.wizard, &QWidget::windowTitleChanged, scene.mission,
                         [&] { scene.killWizard(); });
        scene.mission->name = QStringLiteral("New");
        scene.mission->DoOnChanged();
    });
    row("wizard, when it ends", false, true, [](Scene &scene) {
        QObject::connect(scene.wizard, &QDialog::finished, scene.mission,
                         [&] { scene.killWizard(); });
        click(closeButton(scene.wizard));
    });
    row("wizard, when a key is pressed", false, true, [](Scene &scene) {
        scene.pages[1]->setFocus();
        scene.mission->onStep = [&] { scene.killWizard(); };
        type(scene.wizard, Qt::Key_Enter);
    });
    row("both, when the mission is executed", false, false, [](Scene &scene) {
        scene.allowAll();
        scene.mission->onExecute = [&] {
            scene.killWizard();
            scene.killMission();
        };
        scene.press(Execute);
    });
}

void tst_WizardLifetimes::anythingMayDieAtAnyTime()
{
    QFETCH(bool, compact);
    QFETCH(Act, act);
    Scene scene(compact);
    QVERIFY(show(scene.wizard));
    act(scene);
    QCoreApplication::processEvents();
    QTEST(!scene.wizard.isNull(), "wizardLives");
    QTEST(!scene.mission.isNull(), "missionLives");
}

void tst_WizardLifetimes::missionMayCloseTheWizardWhileAPageIsActivated()
{
    QFETCH(bool, compact);
    Scene scene(compact);
    scene.pages[2]->onActivate = [&] { scene.mission->CloseWizard(); };
    whenOpen<COmWizard_Base>([&](COmWizard_Base *) { scene.press(Next); });
    scene.wizard->setResult(QDialog::Accepted);
    QCOMPARE(scene.wizard->exec(), int(QDialog::Rejected));
    QCOMPARE(scene.mission->CurrentPage(), scene.pages[2]);
    QCOMPARE(scene.pages[2]->window(), scene.wizard);
}

void tst_WizardLifetimes::replacedMissionGetsItsPageBack()
{
    QFETCH(bool, compact);
    Scene scene(compact);
    QVERIFY(show(scene.wizard));
    const Pages others(1);
    Mission second(others);
    scene.wizard->Set_Mission(&second);
    QVERIFY(others[0]->isVisible());
    QVERIFY(!scene.pages[1]->isVisible());
    QVERIFY(!scene.pages[1]->parentWidget());
    QCOMPARE(scene.pages[1]->mission(), scene.mission.data());
    scene.mission->NextPage(); // of no consequence here
    QVERIFY(others[0]->isVisible());
    scene.wizard->Set_Mission(scene.mission);
    QVERIFY(scene.pages[2]->isVisible());
    QVERIFY(!others[0]->parentWidget());
}

void tst_WizardLifetimes::twoWizardsMayShowOneMission_data()
{
    QTest::addColumn<bool>("firstIsCompact");
    QTest::addColumn<bool>("secondIsCompact");
    for (const bool first : {false, true}) {
        for (const bool second : {false, true})
            QTest::addRow("%s and %s", first ? "compact" : "standard",
                          second ? "compact" : "standard")
                    << first << second;
    }
}

void tst_WizardLifetimes::twoWizardsMayShowOneMission()
{
    QFETCH(bool, firstIsCompact);
    QFETCH(bool, secondIsCompact);
    Scene scene(firstIsCompact);
    QVERIFY(show(scene.wizard));
    auto second = makeWizard(secondIsCompact);
    second->Set_Mission(scene.mission);
    QVERIFY(show(second.get()));
    QVERIFY(second->isAncestorOf(scene.pages[1]));
    click(button(second.get(), Next));
    QCOMPARE(caption(scene.wizard, Cancel), QStringLiteral("Cancel"));
    QVERIFY(second->isAncestorOf(scene.pages[2]));
    QVERIFY(scene.pages[2]->isVisible());
    QVERIFY(!scene.pages[1]->parentWidget());

    second.reset(); // takes the page along
    QVERIFY(!scene.mission->CurrentPage());
    click(button(scene.wizard, Previous));
    QVERIFY(scene.pages[1]->isVisible());
    QVERIFY(scene.wizard->isAncestorOf(scene.pages[1]));
    scene.mission->CloseWizard();
    QVERIFY(!scene.wizard->isVisible());
}

void tst_WizardLifetimes::onlyTheCurrentPageGoesWithTheWizard()
{
    QFETCH(bool, compact);
    Scene scene(compact);
    QVERIFY(show(scene.wizard));
    scene.press(Previous);
    const QPointer<Page> page[] = {scene.pages[0], scene.pages[1], scene.pages[2]};
    scene.killWizard();
    QVERIFY(!page[0]);
    QVERIFY(page[1] && page[2]);
    QVERIFY(!page[1]->parentWidget());
    QVERIFY(!scene.mission->CurrentPage());
    QVERIFY(scene.mission->NextPage());
    QCOMPARE(scene.mission->CurrentPage(), page[1].data());
}

void tst_WizardLifetimes::wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<Act>("act");
    QTest::addColumn<bool>("ends");
    const auto row = [](const char *name, const Act &act, bool ends = true) {
        for (const bool compact : {false, true})
            QTest::addRow("%s, %s", name, compact ? "compact" : "standard")
                    << compact << act << ends;
    };
    row("button", [](Scene &scene) { scene.press(Cancel); });
    row("frame", [](Scene &scene) { click(closeButton(scene.wizard)); });
    row("escape", [](Scene &scene) { type(scene.wizard, Qt::Key_Escape); });
    row("mission", [](Scene &scene) { scene.mission->CloseWizard(); });
    row(
            "frame, not confirmed",
            [](Scene &scene) {
                scene.mission->confirms = false;
                click(closeButton(scene.wizard));
            },
            false);
}

void tst_WizardLifetimes::wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds()
{
    QFETCH(bool, compact);
    QFETCH(Act, act);
    QFETCH(bool, ends);
    Scene scene(compact);
    scene.wizard->setAttribute(Qt::WA_DeleteOnClose);
    QVERIFY(show(scene.wizard));
    act(scene);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(scene.wizard.isNull(), ends);
}

void tst_WizardLifetimes::pageMayTellOfChangesAtAnyTime()
{
    QFETCH(bool, compact);
    Scene scene(compact);
    const QPointer<Restless> restless = new Restless(scene.mission);
    QVERIFY(show(scene.wizard));
    for (int round = 0; round < 2; ++round) {
        scene.mission->Set_CurrentPage(restless);
        QVERIFY(restless->isVisible());
        scene.mission->Set_CurrentPage(scene.pages[0]);
        QVERIFY(scene.pages[0]->isVisible());
    }
    scene.mission->Set_CurrentPage(restless);
    scene.killWizard();
    QVERIFY(!restless);
}

OMBRIN_TEST_MAIN(tst_WizardLifetimes)
#include "tst_wizardlifetimes.moc"
