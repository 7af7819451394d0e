#pragma once

#include "common/StepMission.h"

namespace gallery {

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
class AccountMission : public example::StepMission
{
    Q_OBJECT

public:
    /// The steps in their order.
    enum { ServerStep, SignInStep, SummaryStep };

    explicit AccountMission(QObject *parent = nullptr);
    ~AccountMission() override;

    const Account &account() const { return m_account; }
    void setAccount(const Account &account);
    /// What went wrong the last time; empty if nothing did.
    QString problem() const { return m_problem; }
    /// Makes the server refuse the account at the end.
    void setServerRefuses(bool refuses) { m_serverRefuses = refuses; }

protected:
    bool IsNextPageAllowed() override;
    bool NextPage() override;
    bool ExecuteMission() override;
    QString MissionName() override;
    QString PageDescription() override;

private:
    void setProblem(const QString &problem);

    Account m_account;
    QString m_problem;
    bool m_serverRefuses = false;
};

} // namespace gallery
