#include "AccountMission.h"

#include "AccountPages.h"
#include "PageKit.h"

namespace gallery {

namespace {

constexpr QSize kSidebarSize(104, 196);

QString stepName(AccountMission::Step step)
{
    switch (step) {
    case AccountMission::ServerStep:
        return AccountMission::tr("Server");
    case AccountMission::SignInStep:
        return AccountMission::tr("Sign in");
    case AccountMission::SummaryStep:
    case AccountMission::StepCount:
        break;
    }
    return AccountMission::tr("Summary");
}

} // namespace

AccountMission::AccountMission(QObject *parent)
    : COmWizard_Mission_Base(parent)
    , m_account{QStringLiteral("chat.example.org"), QString(), QString()}
{
    m_pages = {new ServerPage, new SignInPage, new SummaryPage};
    QList<QWidget *> pages;
    for (const QPointer<AccountPage> &page : m_pages)
        pages.append(page);
    UseStaticPages(pages);
}

AccountMission::~AccountMission()
{
    // But for the one that a wizard took along.
    for (const QPointer<AccountPage> &page : m_pages)
        delete page;
}

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

AccountMission::Step AccountMission::step()
{
    for (int step = 0; step < StepCount; ++step) {
        if (CurrentPage() == m_pages[static_cast<std::size_t>(step)])
            return static_cast<Step>(step);
    }
    return ServerStep;
}

void AccountMission::goTo(Step step)
{
    while (this->step() < step && COmWizard_Mission_Base::NextPage())
        continue;
}

// Actions

bool AccountMission::IsNextPageAllowed()
{
    if (step() == ServerStep)
        return !m_account.server.isEmpty();
    return !m_account.name.isEmpty() && !m_account.password.isEmpty();
}

bool AccountMission::IsPrevPagePossible()
{
    return COmWizard_Mission_Base::IsPrevPagePossible() && !m_isDone;
}

bool AccountMission::IsExecuteMissionAllowed()
{
    return COmWizard_Mission_Base::IsExecuteMissionAllowed() && !m_isDone;
}

bool AccountMission::NextPage()
{
    const bool isTaken = m_account.name.compare(QLatin1String("ada"), Qt::CaseInsensitive) == 0;
    if (step() == SignInStep && isTaken) {
        setProblem(tr("The name \"%1\" is taken.").arg(m_account.name));
        return false;
    }
    m_problem.clear();
    return COmWizard_Mission_Base::NextPage();
}

bool AccountMission::ExecuteMission()
{
    m_isDone = !m_serverRefuses;
    setProblem(m_isDone ? QString() : tr("The server is busy. Please try again."));
    return m_isDone;
}

// What there is to show

QString AccountMission::MissionName()
{
    return tr("Add an account");
}

QIcon AccountMission::MissionIcon()
{
    static const QIcon icon = skinIcon(QStringLiteral("chat-32"));
    return icon;
}

QPixmap AccountMission::MissionPicture()
{
    return skinPicture(QStringLiteral("addmulti-32"));
}

QPixmap AccountMission::MissionSidebar()
{
    // Kept, since a wizard tells pictures apart by their serial number.
    QPixmap &sidebar = m_sidebars[step()];
    if (sidebar.isNull())
        sidebar = example::stepSidebar(
                {stepName(ServerStep), stepName(SignInStep), stepName(SummaryStep)}, step(),
                kSidebarSize);
    return sidebar;
}

QString AccountMission::PageText()
{
    return stepName(step());
}

QString AccountMission::PageDescription()
{
    switch (step()) {
    case ServerStep:
        return tr("Where your account lives. Ask whoever runs the server for its name.");
    case SignInStep:
        return tr("How others find you, and what only you know.");
    case SummaryStep:
    case StepCount:
        break;
    }
    return m_isDone ? tr("Your account is ready.") : tr("Please check what you entered.");
}

} // namespace gallery
