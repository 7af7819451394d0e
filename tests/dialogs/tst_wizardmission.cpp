#include "dialogs/WizardParts.h"
#include "support/TaggedLanguage.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

using namespace wizard_parts;
using dialog_user::click;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

/// A wizard that has nothing but a protocol.
class BareWizard : public COmWizard_Base
{
public:
    QString log;

protected:
    void InitializeWidgets() override { log += QLatin1Char('i'); }
    void RefreshDialog() override { log += QLatin1Char(Mission() ? 'r' : '-'); }
};

/// A mission that says nothing but what every mission says.
class PlainMission : public COmWizard_Mission_Base
{
public:
    using Base = COmWizard_Mission_Base;
    using Base::CurrentPage;
    using Base::NextPage;
    using Base::PrevPage;
    using Base::UseStaticPages;

    bool ExecuteMission() override { return true; }
    bool saysNothing()
    {
        return MissionName().isEmpty() && MissionIcon().isNull() && MissionPicture().isNull()
               && MissionSidebar().isNull() && PageText().isEmpty() && PageDescription().isEmpty();
    }
    /// The names of the actions, provided that "possible" and "allowed" agree.
    QString actions()
    {
        const std::tuple<const char *, bool, bool> list[] = {
                {"previous ", IsPrevPagePossible(), IsPrevPageAllowed()},
                {"next ", IsNextPagePossible(), IsNextPageAllowed()},
                {"cancel ", IsCancelWizardPossible(), IsCancelWizardAllowed()},
                {"execute ", IsExecuteMissionPossible(), IsExecuteMissionAllowed()}};
        QString names;
        for (const auto &[name, possible, allowed] : list)
            names += QLatin1String(possible != allowed ? "? " : possible ? name : "");
        return names.trimmed();
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(OmMessageBox *)>)

class tst_WizardMission : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void pageChangesComeInOrder()
    {
        Log log;
        const Pages pages(2, &log);
        {
            Mission mission;
            connect(&mission, &Mission::OnChanged, &log, [&] { log.tell("OnChanged"_q); });
            mission.UseStaticPages(pages.widgets());
            QCOMPARE(log.take(), "A.Activate A.RefreshPage OnChanged A.RefreshPage"_q);
            QCOMPARE(pages[0]->mission(), &mission);

            QVERIFY(mission.NextPage());
            QCOMPARE(log.take(), "A.Deactivate A.RefreshPage B.Activate B.RefreshPage OnChanged "
                                 "B.RefreshPage"_q);
            QVERIFY(!pages[0]->mission());
            QCOMPARE(pages[1]->mission(), &mission);

            mission.Set_CurrentPage(pages[1]);
            mission.UseStaticPages({});
            QCOMPARE(log.take(), QString());

            mission.Set_CurrentPage(nullptr);
            QCOMPARE(log.take(), "B.Deactivate B.RefreshPage OnChanged"_q);
            mission.DoOnChanged();
            QCOMPARE(log.take(), "OnChanged"_q);
            mission.Set_CurrentPage(pages[0]);
            log.take();
        }
        QCOMPARE(log.take(), "A.Deactivate A.RefreshPage OnChanged"_q);
        QVERIFY(!pages[0]->mission());
    }

    void defaultAnswersFollowThePosition()
    {
        PlainMission mission;
        QVERIFY(mission.saysNothing());
        QCOMPARE(mission.actions(), "cancel"_q);
        QVERIFY(!mission.NextPage());
        QVERIFY(!mission.PrevPage());

        const Pages one(1);
        mission.UseStaticPages(one.widgets());
        QCOMPARE(mission.actions(), "cancel execute"_q);

        const Pages three(3);
        mission.UseStaticPages(three.widgets());
        const std::tuple<bool (PlainMission::*)(), bool, int, const char *> steps[] = {
                {&PlainMission::PrevPage, false, 0, "next cancel"},
                {&PlainMission::NextPage, true, 1, "previous next cancel"},
                {&PlainMission::NextPage, true, 2, "previous cancel execute"},
                {&PlainMission::NextPage, false, 2, "previous cancel execute"},
                {&PlainMission::PrevPage, true, 1, "previous next cancel"}};
        for (const auto &[step, result, page, actions] : steps) {
            QCOMPARE((mission.*step)(), result);
            QCOMPARE(mission.CurrentPage(), three[page]);
            QCOMPARE(mission.actions(), QLatin1String(actions));
        }
        mission.UseStaticPages(three.widgets()); // from the beginning
        QCOMPARE(mission.CurrentPage(), three[0]);
    }

    void whatIsNoPageIsRefused()
    {
        const Pages pages(2);
        QWidget stranger;
        Mission mission(pages);
        mission.NextPage();
        const QSignalSpy changes(&mission, &Mission::OnChanged);
        mission.Set_CurrentPage(&stranger);
        mission.UseStaticPages({pages[0], &stranger});
        mission.UseStaticPages({nullptr});
        QCOMPARE(mission.CurrentPage(), pages[1]);
        QCOMPARE(changes.count(), 0);
        QVERIFY(!mission.IsNextPageAllowed());
    }

    void deletedPagesLeaveTheSequence()
    {
        const Pages pages(5);
        Mission mission(pages);
        mission.NextPage();
        mission.NextPage(); // C
        for (const int index : {0, 3, 2})
            delete pages[index];
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

    void cancellingAsksTheUser_data()
    {
        const auto row = columns<bool, std::function<void(OmMessageBox *)>>("confirmed", "act");
        row("yes", true, [](OmMessageBox *box) { click(dialog_user::button(box, "&Yes")); });
        row("no", false, [](OmMessageBox *box) { click(dialog_user::button(box, "&No")); });
        row("closed", false, [](OmMessageBox *box) { click(dialog_user::closeButton(box)); });
        row("destroyed", false, [](OmMessageBox *box) { delete box; });
    }

    void cancellingAsksTheUser()
    {
        QFETCH(std::function<void(OmMessageBox *)>, act);
        QString texts;
        const auto note = [&](OmMessageBox *box) {
            QVERIFY(!box->parentWidget());
            texts = box->windowTitle() + "; "_q + box->findChildren<QLabel *>().value(1)->text();
            act(box);
        };
        Mission mission;
        whenOpen<OmMessageBox>(note);
        QTEST(mission.CancelWizard(), "confirmed");
        QCOMPARE(texts, "Question; Do you really want to cancel this wizard?"_q);
        const ombrin::test::TaggedLanguage language; // the texts are the mission's, with comments
        act = [](OmMessageBox *box) { box->reject(); };
        whenOpen<OmMessageBox>(note);
        QVERIFY(!mission.CancelWizard());
        QCOMPARE(texts, "COmWizard_Mission_Base|Question|title of question-dialog for "
                        "standard-wizard; COmWizard_Mission_Base|Do you really want to cancel this "
                        "wizard?|question on cancel in standard-wizard"_q);
    }

    void wizardFollowsItsMission()
    {
        const Pages pages(2);
        Mission first(pages);
        auto second = std::make_unique<Mission>();
        {
            BareWizard wizard;
            const QSignalSpy rejections(&wizard, &QDialog::rejected);
            wizard.Set_Mission(nullptr);
            wizard.show();
            wizard.hide();
            QCOMPARE(wizard.log, QString());
            const std::pair<std::function<void()>, const char *> steps[] = {
                    {[&] { wizard.Set_Mission(&first); }, "ir"},
                    {[&] { wizard.Set_Mission(&first); }, ""},
                    {[&] { wizard.show(); }, "r"},
                    {[&] { first.NextPage(); }, "r"},
                    {[&] { first.DoOnChanged(); }, "r"},
                    {[&] { wizard.Set_Mission(second.get()); }, "r"},
                    {[&] { first.DoOnChanged(); }, ""},
                    {[&] { first.CloseWizard(); }, ""},
                    {[&] { second.reset(); }, ""},
                    {[&] { wizard.Set_Mission(&first); }, "r"},
            };
            for (const auto &[step, log] : steps) {
                wizard.log.clear();
                step();
                QCOMPARE(wizard.log, QLatin1String(log));
            }
            QVERIFY(wizard.isVisible());
            first.CloseWizard();
            QCOMPARE(rejections.count(), 1);
            QVERIFY(!wizard.isVisible());
            wizard.Set_Mission(nullptr);
            first.DoOnChanged();
            QCOMPARE(wizard.log, "r"_q);
        }
        QCOMPARE(first.CurrentPage(), pages[1]); // the wizard leaves its mission alone
    }

    void slotsAreThereForHostsThatKnowTheirNames()
    {
        using ombrin::test::methodsOf;
        using ombrin::test::words;
        QCOMPARE(methodsOf(COmWizard_Mission_Base::staticMetaObject),
                 words("OnChanged() OnClosed()"));
        QCOMPARE(methodsOf(COmWizard_Base::staticMetaObject),
                 words("OnMissionChanged() OnMissionClosed()"));
        QCOMPARE(methodsOf(COmWizard_Standard::staticMetaObject),
                 words("OnCancelButtonClicked() OnExecuteButtonClicked() OnNextButtonClicked() "
                       "OnPrevButtonClicked() OnHelpButtonClicked()"));
        QCOMPARE(methodsOf(OmWizard_Standard2::staticMetaObject),
                 words("slotOnCancelButtonClicked() slotOnExecuteButtonClicked() "
                       "slotOnNextButtonClicked() slotOnPrevButtonClicked()"));
        QCOMPARE(methodsOf(ombrin::OmMessageBox::staticMetaObject), QStringList());
    }
};

OMBRIN_TEST_MAIN(tst_WizardMission)
#include "tst_wizardmission.moc"
