#pragma once

#include <ombrin/COmWizard_Mission_Base.h>

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtGui/QPixmap>

#include <vector>

namespace gallery {

class AccountPage;

/// What the mission collects.
struct Account
{
    QString server;
    QString name;
    QString password;
};

/// A mission as a messenger has it: adds an account in three steps, server, sign-in and summary.
///
/// Before the summary the server is asked whether it knows the name already, and in the end it may
/// refuse the account; in the gallery the server is made up.
class AccountMission : public COmWizard_Mission_Base
{
    Q_OBJECT

public:
    /// Steps are the pages in their order.
    enum Step { ServerStep, SignInStep, SummaryStep, StepCount };

    explicit AccountMission(QObject *parent = nullptr);
    ~AccountMission() override;

    const Account &account() const { return m_account; }
    void setAccount(const Account &account);
    /// What went wrong the last time; empty if nothing did.
    QString problem() const { return m_problem; }
    /// Whether the server has taken the account.
    bool isDone() const { return m_isDone; }
    /// Makes the server refuse the account at the end.
    void setServerRefuses(bool refuses) { m_serverRefuses = refuses; }
    /// Goes to \a step as if the user had come there.
    void goTo(Step step);

protected:
    bool IsNextPageAllowed() override;
    bool IsPrevPagePossible() override;
    bool IsExecuteMissionAllowed() override;
    bool NextPage() override;
    bool ExecuteMission() override;
    QString MissionName() override;
    QIcon MissionIcon() override;
    QPixmap MissionPicture() override;
    QPixmap MissionSidebar() override;
    QString PageText() override;
    QString PageDescription() override;

private:
    Step step();
    void setProblem(const QString &problem);

    std::vector<QPointer<AccountPage>> m_pages;
    QMap<Step, QPixmap> m_sidebars;
    Account m_account;
    QString m_problem;
    bool m_serverRefuses = false;
    bool m_isDone = false;
};

} // namespace gallery
