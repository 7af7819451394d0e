#include "AccountMission.h"

#include "AccountPages.h"

namespace gallery {

namespace {

constexpr QSize kSidebarSize(104, 196);

} // namespace

AccountMission::AccountMission(QObject *parent)
    : StepMission(parent)
    , m_account{QStringLiteral("chat.example.org"), QString(), QString()}
{
    setSteps({{tr("Server"), new ServerPage},
              {tr("Sign in"), new SignInPage},
              {tr("Summary"), new SummaryPage}},
             kSidebarSize);
}

AccountMission::~AccountMission() = default;

void AccountMission::setAccount(const Account &account)
{
    m_account = account;
    setProblem(QString());
}

void AccountMission::setProblem(const QString &problem)
{
    m_problem = problem;
    DoOnChanged();
}

// Actions

bool AccountMission::IsNextPageAllowed()
{
    if (step() == ServerStep)
        return !m_account.server.isEmpty();
    return !m_account.name.isEmpty() && !m_account.password.isEmpty();
}

bool AccountMission::NextPage()
{
    const bool isTaken = m_account.name.compare(QLatin1String("ada"), Qt::CaseInsensitive) == 0;
    if (step() == SignInStep && isTaken) {
        setProblem(tr("The name \"%1\" is taken.").arg(m_account.name));
        return false;
    }
    m_problem.clear();
    return StepMission::NextPage();
}

bool AccountMission::ExecuteMission()
{
    setDone(!m_serverRefuses);
    setProblem(isDone() ? QString() : tr("The server is busy. Please try again."));
    return isDone();
}

// What there is to show

QString AccountMission::MissionName()
{
    return tr("Add an account");
}

QString AccountMission::PageDescription()
{
    switch (step()) {
    case ServerStep:
        return tr("Where your account lives. Ask whoever runs the server for its name.");
    case SignInStep:
        return tr("How others find you, and what only you know.");
    default:
        break;
    }
    return isDone() ? tr("Your account is ready.") : tr("Please check what you entered.");
}

} // namespace gallery
