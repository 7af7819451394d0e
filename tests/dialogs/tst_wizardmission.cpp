#include "dialogs/DialogUser.h"
#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

#include <QtCore/QMetaMethod>
#include <QtWidgets/QLabel>

using namespace wizard_parts;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

/// A wizard that has nothing but a protocol.
class BareWizard : public COmWizard_Base
{
public:
    int initializations = 0;
    int refreshes = 0;

protected:
    void InitializeWidgets() override { ++initializations; }
    void RefreshDialog() override
    {
        if (Mission())
            ++refreshes;
    }
};

/// A mission that says nothing but what every mission says.
class PlainMission : public COmWizard_Mission_Base
{
public:
    using Base = COmWizard_Mission_Base;
    using Base::IsCancelWizardAllowed;
    using Base::IsCancelWizardPossible;
    using Base::IsExecuteMissionAllowed;
    using Base::IsExecuteMissionPossible;
    using Base::IsNextPageAllowed;
    using Base::IsNextPagePossible;
    using Base::IsPrevPageAllowed;
    using Base::IsPrevPagePossible;
    using Base::MissionIcon;
    using Base::MissionName;
    using Base::MissionPicture;
    using Base::MissionSidebar;
    using Base::NextPage;
    using Base::PageDescription;
    using Base::PageText;
    using Base::PrevPage;
    using Base::UseStaticPages;

    bool ExecuteMission() override { return true; }
};

/// Reads "previous next cancel execute", "possible" and "allowed" having to agree.
QString actions(PlainMission *mission)
{
    QStringList list;
    const auto add = [&list](bool possible, bool allowed, const char *name) {
        if (possible)
            list.append(QLatin1String(name));
        if (possible != allowed)
            list.append(QStringLiteral("?"));
    };
    add(mission->IsPrevPagePossible(), mission->IsPrevPageAllowed(), "previous");
    add(mission->IsNextPagePossible(), mission->IsNextPageAllowed(), "next");
    add(mission->IsCancelWizardPossible(), mission->IsCancelWizardAllowed(), "cancel");
    add(mission->IsExecuteMissionPossible(), mission->IsExecuteMissionAllowed(), "execute");
    return list.join(QLatin1Char(' '));
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(OmMessageBox *)>)

class tst_WizardMission : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void pageChangesComeInOrder();
    void missionIsKnownToItsCurrentPageOnly();
    void defaultAnswersFollowThePosition();
    void whatIsNoPageIsRefused();
    void deletedPagesLeaveTheSequence();
    void cancellingAsksTheUser_data();
    void cancellingAsksTheUser();

    void wizardFollowsItsMission();
    void wizardLeavesItsMissionAlone();
    void slotsAreThereForHostsThatKnowTheirNames();
};

void tst_WizardMission::pageChangesComeInOrder()
{
    QStringList log;
    const Pages pages(2, &log);
    Mission mission;
    connect(&mission, &Mission::OnChanged, this,
            [&log] { log.append(QStringLiteral("OnChanged")); });

    mission.UseStaticPages(pages.widgets());
    const QStringList activated = {QStringLiteral("A.Activate"), QStringLiteral("A.RefreshPage"),
                                   QStringLiteral("OnChanged"), QStringLiteral("A.RefreshPage")};
    QCOMPARE(log, activated);

    log.clear();
    QVERIFY(mission.NextPage());
    const QStringList changed = {QStringLiteral("A.Deactivate"), QStringLiteral("A.RefreshPage"),
                                 QStringLiteral("B.Activate"),   QStringLiteral("B.RefreshPage"),
                                 QStringLiteral("OnChanged"),    QStringLiteral("B.RefreshPage")};
    QCOMPARE(log, changed);

    log.clear();
    mission.Set_CurrentPage(pages[1]);
    mission.UseStaticPages({});
    QCOMPARE(log, QStringList());
    QCOMPARE(mission.CurrentPage(), pages[1]);

    mission.Set_CurrentPage(nullptr);
    const QStringList left = {QStringLiteral("B.Deactivate"), QStringLiteral("B.RefreshPage"),
                              QStringLiteral("OnChanged")};
    QCOMPARE(log, left);
    mission.DoOnChanged();
    QCOMPARE(log.size(), left.size() + 1); // no page to refresh

    mission.Set_CurrentPage(pages[0]);
    log.clear();
    {
        Mission brief(pages); // takes the page over
    }
    QCOMPARE(log.filter(QStringLiteral("A.Deactivate")).size(), 1);
    QVERIFY(!pages[0]->mission());
}

void tst_WizardMission::missionIsKnownToItsCurrentPageOnly()
{
    const Pages pages(2);
    QVERIFY(!pages[0]->mission());
    {
        Mission mission(pages);
        QCOMPARE(pages[0]->mission(), &mission);
        mission.NextPage();
        QVERIFY(!pages[0]->mission());
        QCOMPARE(pages[1]->mission(), &mission);

        struct Copied : COmWizard_Page_Base
        {
            using COmWizard_Page_Base::Mission;
            explicit Copied(const COmWizard_Page_Base &page)
                : COmWizard_Page_Base(page)
            {}
        };
        Copied copy(*pages[1]);
        QCOMPARE(copy.Mission(), &mission);
        copy = Copied(*pages[0]);
        QVERIFY(!copy.Mission());
    }
    QVERIFY(!pages[1]->mission());
}

void tst_WizardMission::defaultAnswersFollowThePosition()
{
    PlainMission mission;
    QCOMPARE(actions(&mission), QStringLiteral("cancel"));
    QVERIFY(mission.MissionName().isEmpty() && mission.PageText().isEmpty()
            && mission.PageDescription().isEmpty());
    QVERIFY(mission.MissionIcon().isNull() && mission.MissionPicture().isNull()
            && mission.MissionSidebar().isNull());
    QVERIFY(!mission.NextPage());
    QVERIFY(!mission.PrevPage());

    const Pages one(1);
    mission.UseStaticPages(one.widgets());
    QCOMPARE(actions(&mission), QStringLiteral("cancel execute"));

    const Pages three(3);
    mission.UseStaticPages(three.widgets());
    QVERIFY(!mission.PrevPage());
    QCOMPARE(actions(&mission), QStringLiteral("next cancel"));
    QVERIFY(mission.NextPage());
    QCOMPARE(actions(&mission), QStringLiteral("previous next cancel"));
    QVERIFY(mission.NextPage());
    QCOMPARE(actions(&mission), QStringLiteral("previous cancel execute"));
    QVERIFY(!mission.NextPage());
    QCOMPARE(actions(&mission), QStringLiteral("previous cancel execute"));
    QCOMPARE(three[2]->mission(), &mission);
    QVERIFY(mission.PrevPage());
    QCOMPARE(three[1]->mission(), &mission);

    mission.UseStaticPages(three.widgets()); // from the beginning
    QCOMPARE(three[0]->mission(), &mission);
    QCOMPARE(actions(&mission), QStringLiteral("next cancel"));
}

void tst_WizardMission::whatIsNoPageIsRefused()
{
    const Pages pages(2);
    QWidget stranger;
    Mission mission(pages);
    mission.NextPage();
    QSignalSpy changes(&mission, &Mission::OnChanged);
    mission.Set_CurrentPage(&stranger);
    mission.UseStaticPages({pages[0], &stranger});
    mission.UseStaticPages({nullptr});
    QCOMPARE(mission.CurrentPage(), pages[1]);
    QCOMPARE(changes.count(), 0);
    QVERIFY(!mission.IsNextPageAllowed());
}

void tst_WizardMission::deletedPagesLeaveTheSequence()
{
    const Pages pages(5);
    Mission mission(pages);
    mission.NextPage();
    mission.NextPage(); // C
    delete pages[0];
    delete pages[3];
    delete pages[2];
    QVERIFY(!mission.CurrentPage());
    QVERIFY(mission.NextPage());
    QCOMPARE(mission.CurrentPage(), pages[4]);
    QVERIFY(mission.IsExecuteMissionAllowed());
    QVERIFY(mission.PrevPage());
    QCOMPARE(mission.CurrentPage(), pages[1]);
    QVERIFY(!mission.IsPrevPageAllowed());
    delete pages[4];
    QVERIFY(!mission.NextPage());
    QVERIFY(mission.IsExecuteMissionAllowed());
}

void tst_WizardMission::cancellingAsksTheUser_data()
{
    QTest::addColumn<std::function<void(OmMessageBox *)>>("act");
    QTest::addColumn<bool>("confirmed");
    const auto row = [](const char *name, bool confirmed, std::function<void(OmMessageBox *)> act) {
        QTest::newRow(name) << std::move(act) << confirmed;
    };
    row("yes", true,
        [](OmMessageBox *box) { dialog_user::click(dialog_user::button(box, "&Yes")); });
    row("no", false,
        [](OmMessageBox *box) { dialog_user::click(dialog_user::button(box, "&No")); });
    row("closed", false,
        [](OmMessageBox *box) { dialog_user::click(dialog_user::closeButton(box)); });
    row("destroyed", false, [](OmMessageBox *box) { delete box; });
}

void tst_WizardMission::cancellingAsksTheUser()
{
    QFETCH(std::function<void(OmMessageBox *)>, act);
    Mission mission;
    whenOpen<OmMessageBox>([&](OmMessageBox *box) {
        QVERIFY(!box->parentWidget());
        QCOMPARE(box->windowTitle(), QStringLiteral("Question"));
        QCOMPARE(box->findChildren<QLabel *>().value(1)->text(),
                 QStringLiteral("Do you really want to cancel this wizard?"));
        act(box);
    });
    QTEST(mission.CancelWizard(), "confirmed");

    // The texts are the mission's, with comments for translators.
    const dialog_user::TaggedLanguage language;
    QString title;
    QString text;
    whenOpen<OmMessageBox>([&](OmMessageBox *box) {
        title = box->windowTitle();
        text = box->findChildren<QLabel *>().value(1)->text();
        box->reject();
    });
    QVERIFY(!mission.CancelWizard());
    QCOMPARE(title, QStringLiteral("COmWizard_Mission_Base|Question|title of question-dialog for "
                                   "standard-wizard"));
    QCOMPARE(text, QStringLiteral("COmWizard_Mission_Base|Do you really want to cancel this "
                                  "wizard?|question on cancel in standard-wizard"));
}

void tst_WizardMission::wizardFollowsItsMission()
{
    const Pages pages(2);
    const Pages others(1);
    Mission first(pages);
    auto second = std::make_unique<Mission>(others);
    BareWizard wizard;
    QVERIFY(!wizard.Mission());
    wizard.Set_Mission(nullptr);
    wizard.show();
    QCOMPARE(wizard.initializations + wizard.refreshes, 0);

    wizard.Set_Mission(&first);
    QCOMPARE(wizard.Mission(), &first);
    QCOMPARE(wizard.initializations, 1);
    QCOMPARE(wizard.refreshes, 1);
    wizard.Set_Mission(&first);
    QCOMPARE(wizard.refreshes, 1);
    first.NextPage();
    QCOMPARE(wizard.refreshes, 2);
    first.DoOnChanged();
    QCOMPARE(wizard.refreshes, 3);

    wizard.Set_Mission(second.get());
    QCOMPARE(wizard.initializations, 1);
    QCOMPARE(wizard.refreshes, 4);
    first.DoOnChanged();
    first.CloseWizard();
    QCOMPARE(wizard.refreshes, 4);
    QVERIFY(wizard.isVisible());

    second.reset();
    QVERIFY(!wizard.Mission());
    const int refreshes = wizard.refreshes;
    wizard.hide();
    wizard.show();
    QCOMPARE(wizard.refreshes, refreshes);

    wizard.Set_Mission(&first);
    QSignalSpy rejections(&wizard, &QDialog::rejected);
    first.CloseWizard();
    QCOMPARE(rejections.count(), 1);
    QVERIFY(!wizard.isVisible());
    QCOMPARE(wizard.result(), int(QDialog::Rejected));

    wizard.Set_Mission(nullptr);
    first.DoOnChanged();
    QCOMPARE(wizard.refreshes, refreshes + 1);
}

void tst_WizardMission::wizardLeavesItsMissionAlone()
{
    const Pages pages(1);
    Mission mission(pages);
    {
        BareWizard wizard;
        wizard.Set_Mission(&mission);
    }
    mission.DoOnChanged();
    QCOMPARE(mission.CurrentPage(), pages[0]);
}

void tst_WizardMission::slotsAreThereForHostsThatKnowTheirNames()
{
    const auto methods = [](const QMetaObject &metaObject) {
        QStringList names;
        for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
            names.append(QString::fromLatin1(metaObject.method(index).methodSignature()));
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(methods(COmWizard_Mission_Base::staticMetaObject),
             QStringLiteral("OnChanged() OnClosed()"));
    QCOMPARE(methods(COmWizard_Base::staticMetaObject),
             QStringLiteral("OnMissionChanged() OnMissionClosed()"));
    QCOMPARE(methods(COmWizard_Standard::staticMetaObject),
             QStringLiteral("OnCancelButtonClicked() OnExecuteButtonClicked() "
                            "OnNextButtonClicked() OnPrevButtonClicked() OnHelpButtonClicked()"));
    QCOMPARE(methods(OmWizard_Standard2::staticMetaObject),
             QStringLiteral("slotOnCancelButtonClicked() slotOnExecuteButtonClicked() "
                            "slotOnNextButtonClicked() slotOnPrevButtonClicked()"));
}

OMBRIN_TEST_MAIN(tst_WizardMission)
#include "tst_wizardmission.moc"
