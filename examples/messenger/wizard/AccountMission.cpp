#include "wizard/AccountMission.h"

#include "common/SkinPictures.h"
#include "wizard/AccountPages.h"

#include <QtCore/QRegularExpression>

namespace messenger {

namespace {

constexpr QSize kSidebarSize(112, 216);

QString stepName(AccountMission::Step step)
{
    switch (step) {
    case AccountMission::ServerStep:
        return AccountMission::tr("Server");
    case AccountMission::NameStep:
        return AccountMission::tr("Name");
    case AccountMission::PictureStep:
        return AccountMission::tr("Picture");
    case AccountMission::SummaryStep:
    case AccountMission::StepCount:
        break;
    }
    return AccountMission::tr("Summary");
}

} // namespace

bool isPossibleServer(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
            "\\A[A-Za-z0-9](?:[A-Za-z0-9.-]{0,251}[A-Za-z0-9])?(?::[0-9]{1,5})?\\z"));
    return pattern.match(text).hasMatch();
}

AccountMission::AccountMission(QObject *parent)
    : COmWizard_Mission_Base(parent)
    , m_server(QStringLiteral("chat.example.org"))
{
    m_pages = {new ServerPage, new NamePage, new PicturePage, new SummaryPage};
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

void AccountMission::setServer(const QString &server)
{
    m_server = server.trimmed();
    DoOnChanged();
}

void AccountMission::setName(const QString &name)
{
    m_name = name.simplified();
    DoOnChanged();
}

void AccountMission::setPicture(const QImage &picture)
{
    m_picture = picture;
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
    while (this->step() < step && NextPage())
        continue;
}

// Actions

bool AccountMission::IsNextPageAllowed()
{
    switch (step()) {
    case ServerStep:
        return isPossibleServer(m_server);
    case NameStep:
        return !m_name.isEmpty();
    case PictureStep:
        return true;
    case SummaryStep:
    case StepCount:
        break;
    }
    return false;
}

// What is done cannot be taken back, or done twice.
bool AccountMission::IsPrevPagePossible()
{
    return COmWizard_Mission_Base::IsPrevPagePossible() && !m_isDone;
}

bool AccountMission::IsExecuteMissionPossible()
{
    return COmWizard_Mission_Base::IsExecuteMissionPossible() && !m_isDone;
}

bool AccountMission::IsExecuteMissionAllowed()
{
    return COmWizard_Mission_Base::IsExecuteMissionAllowed() && !m_isDone;
}

bool AccountMission::ExecuteMission()
{
    m_isDone = true;
    Q_EMIT finished();
    DoOnChanged();
    return true;
}

// What there is to show

QString AccountMission::MissionName()
{
    return tr("Your Account");
}

QIcon AccountMission::MissionIcon()
{
    static const QIcon icon = example::skinIcon(QStringLiteral("chat-32"));
    return icon;
}

QPixmap AccountMission::MissionPicture()
{
    return example::skinPicture(QStringLiteral("addmulti-32"));
}

QPixmap AccountMission::MissionSidebar()
{
    // Kept, since a wizard tells pictures apart by their serial number.
    QPixmap &sidebar = m_sidebars[step()];
    if (sidebar.isNull()) {
        sidebar = example::stepSidebar({stepName(ServerStep), stepName(NameStep),
                                        stepName(PictureStep), stepName(SummaryStep)},
                                       step(), kSidebarSize);
    }
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
        return tr("Where your account lives. Nothing is sent there: this example finds other "
                  "running copies on "
                  "this machine.");
    case NameStep:
        return tr("What others call you. You can change it later by adding your account again.");
    case PictureStep:
        return tr("What others see of you. You may choose one later, too.");
    case SummaryStep:
    case StepCount:
        break;
    }
    return m_isDone ? tr("Your account is ready.") : tr("Please check what you entered.");
}

} // namespace messenger
