#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmMessageBox.h>

using namespace wizard_parts;
using dialog_user::click;
using dialog_user::whenOpen;
using ombrin::OmMessageBox;

namespace {

/// A wizard on the heap that shows the second of three pages, and a log that hears of everything.
struct Scene
{
    explicit Scene(bool compact)
        : mission(new Mission(pages, &log))
        , wizard(makeWizard(compact, nullptr).release())
    {
        mission->confirms = false;
        mission->NextPage();
        wizard->Set_Mission(mission);
        const auto hear = [this](const char *what) {
            return [this, what = QLatin1String(what)] { log.tell(what); };
        };
        QObject::connect(mission, &Mission::OnChanged, &log, hear("OnChanged"));
        QObject::connect(mission, &Mission::OnClosed, &log, hear("OnClosed"));
        QObject::connect(wizard, &QWidget::windowTitleChanged, &log, hear("title"));
        QObject::connect(wizard, &QWidget::windowIconChanged, &log, hear("icon"));
        QObject::connect(wizard, &QDialog::finished, &log, hear("finished"));
    }
    ~Scene()
    {
        log.heard = nullptr;
        delete wizard;
        delete mission;
    }
    Q_DISABLE_COPY(Scene)

    void press(Action action) const
    {
        if (wizard)
            button(wizard, action)->click();
    }
    void killMission()
    {
        Mission *dying = mission;
        mission.clear();
        delete dying; // its last act is to leave its page
    }
    /// The user and the host do everything there is to do.
    void play()
    {
        const std::function<void()> steps[] = {
                [&] {
                    mission->name += "x"_q;
                    mission->DoOnChanged();
                },
                [&] { press(Next); },
                [&] { press(Previous); },
                [&] { mission->Set_CurrentPage(pages[0]); },
                [&] {
                    mission->icon = QIcon(picture({9, 9}));
                    mission->sidebar = picture({9, 9});
                },
                [&] { press(Next); },
                [&] { mission->Set_CurrentPage(nullptr); },
                [&] { mission->UseStaticPages(pages.widgets()); },
                [&] {
                    mission->allowed = mission->possible = 15;
                    mission->DoOnChanged();
                },
                [&] { press(Cancel); },
                [&] { wizard->close(); },
                [&] { QTest::keyClick(wizard.data(), Qt::Key_Enter); },
                [&] { press(Execute); },
                [&] { mission->CloseWizard(); },
        };
        for (const auto &step : steps) {
            if (mission && wizard)
                step();
        }
    }

    Log log;
    Pages pages{3, &log};
    QPointer<Mission> mission;
    QPointer<COmWizard_Base> wizard;
};

using Act = std::function<void(Scene &)>;

// What is tried at every moment elsewhere is tried at some of them where windows are slow to make.
#ifdef Q_OS_WIN
constexpr int kMomentStep = 4;
#else
constexpr int kMomentStep = 1;
#endif

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_WizardLifetimes : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void anythingMayHappenAtAnyTime_data()
    {
        columns<bool, Act, bool>("compact", "act", "kills");
        const auto row = [](const char *name, bool kills, const Act &act) {
            for (const bool compact : {false, true})
                QTest::addRow("%s, %s", name, compact ? "compact" : "standard")
                        << compact << act << kills;
        };
        row("mission deleted", true, [](Scene &scene) { scene.killMission(); });
        row("wizard deleted", true, [](Scene &scene) { delete scene.wizard; });
        row("both deleted", true, [](Scene &scene) {
            scene.killMission();
            delete scene.wizard;
        });
        row("current page deleted", true,
            [](Scene &scene) { delete scene.mission->CurrentPage(); });
        row("other pages deleted", true, [](Scene &scene) {
            for (int index = 0; index < 3; ++index) {
                if (scene.pages[index] != scene.mission->CurrentPage())
                    delete scene.pages[index];
            }
        });
        row("change", false, [](Scene &scene) { scene.mission->DoOnChanged(); });
        row("other page", false,
            [](Scene &scene) { scene.mission->Set_CurrentPage(scene.pages[2]); });
        row("no page", false, [](Scene &scene) { scene.mission->Set_CurrentPage(nullptr); });
        row("closed", false, [](Scene &scene) { scene.mission->CloseWizard(); });
        row("no mission", false, [](Scene &scene) { scene.wizard->Set_Mission(nullptr); });
        row("other wizard", true, [](Scene &scene) {
            delete makeWizard(true, scene.mission).release(); // takes the page along
        });
    }

    /// Lets everything happen again and again, and \a act at the first moment anything is heard of,
    /// at a later one, and so on.
    void anythingMayHappenAtAnyTime()
    {
        QFETCH(bool, compact);
        QFETCH(Act, act);
        QFETCH(bool, kills);
        bool happened = true;
        for (int moment = 0; happened; moment += kMomentStep) {
            Scene scene(compact);
            scene.wizard->setAttribute(Qt::WA_DontShowOnScreen);
            scene.wizard->show();
            happened = false;
            int heard = 0;
            scene.log.heard = [&](const QString &what) {
                // Qt itself does not survive a widget that dies of what it is told of itself.
                if ((kills && what.contains("event"_q)) || !scene.mission || !scene.wizard)
                    return;
                if (heard++ != moment)
                    return;
                happened = true;
                act(scene);
            };
            scene.play();
            if (!scene.wizard || !scene.mission)
                continue;
            // What is left works.
            scene.log.heard = nullptr;
            scene.wizard->Set_Mission(nullptr);
            scene.wizard->Set_Mission(scene.mission);
            const QPointer<Page> last(scene.pages[2]);
            scene.mission->Set_CurrentPage(last);
            QVERIFY(!last || scene.wizard->isAncestorOf(last));
        }
    }

    void anythingMayDieWhileTheQuestionIsOpen_data() { forBothWizards(); }
    void anythingMayDieWhileTheQuestionIsOpen()
    {
        QFETCH(bool, compact);
        for (const bool byFrame : {false, true}) {
            for (int victims = 0; victims < 8; ++victims) {
                Scene scene(compact);
                scene.mission->confirms.reset();
                QVERIFY(activate(scene.wizard));
                whenOpen<OmMessageBox>([&](OmMessageBox *box) {
                    if (victims & 1)
                        scene.killMission();
                    if (victims & 2)
                        delete scene.wizard;
                    if (victims & 4)
                        delete box;
                    else
                        box->accept();
                });
                if (byFrame)
                    click(dialog_user::closeButton(scene.wizard));
                else
                    scene.press(Cancel);
                QCOMPARE(scene.wizard && scene.wizard->isVisible(),
                         (victims & 2) == 0 && victims >= 4);
            }
        }
    }

    void pagesGoFromWizardToWizard_data() { forBothWizards(); }
    void pagesGoFromWizardToWizard()
    {
        QFETCH(bool, compact);
        for (const bool secondIsCompact : {false, true}) {
            Scene scene(compact);
            QVERIFY(activate(scene.wizard));
            // One mission in two wizards: the page is in the one that was refreshed last.
            auto second = makeWizard(secondIsCompact, scene.mission);
            QVERIFY(activate(second.get()));
            QVERIFY(second->isAncestorOf(scene.pages[1]));
            click(button(second.get(), Next));
            QVERIFY(second->isAncestorOf(scene.pages[2]));
            QVERIFY(scene.pages[2]->isVisible() && !scene.pages[1]->parentWidget());
            second.reset(); // takes the page along, and no other one
            QVERIFY(!scene.mission->CurrentPage());
            click(button(scene.wizard, Previous));
            QVERIFY(scene.pages[1]->isVisible() && scene.wizard->isAncestorOf(scene.pages[1]));

            // Two missions in one wizard: the replaced one keeps its page.
            const Pages others(1);
            Mission other(others);
            scene.wizard->Set_Mission(&other);
            QVERIFY(others[0]->isVisible() && !scene.pages[1]->parentWidget());
            QCOMPARE(scene.pages[1]->mission(), scene.mission.data());
            scene.mission->PrevPage(); // of no consequence here
            QVERIFY(others[0]->isVisible());
            scene.wizard->Set_Mission(scene.mission);
            QVERIFY(scene.pages[0]->isVisible() && !others[0]->parentWidget());
        }
    }

    void wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds_data() { forBothWizards(); }
    void wizardThatDeletesItselfOnCloseDoesSoHoweverItEnds()
    {
        QFETCH(bool, compact);
        const std::function<void(Scene &)> ends[] = {
                [](Scene &scene) { scene.press(Cancel); },
                [](Scene &scene) { click(dialog_user::closeButton(scene.wizard)); },
                [](Scene &scene) { dialog_user::type(scene.wizard, Qt::Key_Escape); },
                [](Scene &scene) { scene.mission->CloseWizard(); }};
        for (const auto &end : ends) {
            Scene scene(compact);
            scene.wizard->setAttribute(Qt::WA_DeleteOnClose);
            QVERIFY(activate(scene.wizard));
            click(dialog_user::closeButton(scene.wizard)); // not confirmed
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(scene.wizard);
            scene.mission->confirms = true;
            end(scene);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!scene.wizard);
        }
    }
};

OMBRIN_TEST_MAIN(tst_WizardLifetimes)
#include "tst_wizardlifetimes.moc"
