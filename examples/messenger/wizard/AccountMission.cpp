#include "wizard/AccountMission.h"

#include "wizard/AccountPages.h"

#include <QtCore/QRegularExpression>

namespace messenger {

namespace {

constexpr QSize kSidebarSize(112, 216);

} // namespace

bool isPossibleServer(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
            "\\A[A-Za-z0-9](?:[A-Za-z0-9.-]{0,251}[A-Za-z0-9])?(?::[0-9]{1,5})?\\z"));
    return pattern.match(text).hasMatch();
}

AccountMission::AccountMission(QObject *parent)
    : StepMission(parent)
    , m_server(QStringLiteral("chat.example.org"))
{
    setSteps({{tr("Server"), new ServerPage},
              {tr("Name"), new NamePage},
              {tr("Picture"), new PicturePage},
              {tr("Summary"), new SummaryPage}},
             kSidebarSize);
}

AccountMission::~AccountMission() = default;

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
    default:
        return false;
    }
}

bool AccountMission::IsExecuteMissionPossible()
{
    return StepMission::IsExecuteMissionPossible() && !isDone();
}

bool AccountMission::ExecuteMission()
{
    setDone(true);
    Q_EMIT finished();
    DoOnChanged();
    return true;
}

// What there is to show

QString AccountMission::MissionName()
{
    return tr("Your Account");
}

QString AccountMission::PageDescription()
{
    switch (step()) {
    case ServerStep:
        return tr("Where your account lives. Nothing is sent there: this example finds other "
                  "running copies on this machine.");
    case NameStep:
        return tr("What others call you. You can change it later: Messenger > Account.");
    case PictureStep:
        return tr("What others see of you. You can choose one later, too.");
    default:
        break;
    }
    return isDone() ? tr("Your account is ready.") : tr("Please check what you entered.");
}

} // namespace messenger
