#include "AccountMission.h"

#include "AccountPages.h"
#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

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

/// The list of steps with the current one marked, white on blue.
QPixmap paintSidebar(AccountMission::Step current)
{
    constexpr int lineHeight = 30;
    constexpr int firstLine = 66;
    constexpr int dotDiameter = 18;
    const qreal density = qApp->devicePixelRatio();
    QPixmap sidebar(kSidebarSize * density);
    sidebar.setDevicePixelRatio(density);
    sidebar.fill(Qt::transparent);

    QPainter painter(&sidebar);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 0, 0, kSidebarSize.height());
    gradient.setColorAt(0, QColor(0x5f, 0xa8, 0xea));
    gradient.setColorAt(1, QColor(0x2a, 0x6f, 0xbb));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(kSidebarSize)), 4, 4);
    painter.drawPixmap(QPoint((kSidebarSize.width() - 32) / 2, 18),
                       skinPicture(QStringLiteral("chat-32")));

    QFont font = QApplication::font();
    for (int step = 0; step < AccountMission::StepCount; ++step) {
        const bool isCurrent = step == current;
        const int y = firstLine + step * lineHeight;
        const QRectF dot(10, y + (lineHeight - dotDiameter) / 2.0, dotDiameter, dotDiameter);
        font.setBold(isCurrent);
        painter.setFont(font);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, isCurrent ? 255 : 70));
        painter.drawEllipse(dot);
        painter.setPen(isCurrent ? QColor(0x2a, 0x6f, 0xbb) : QColor(Qt::white));
        painter.drawText(dot, Qt::AlignCenter, QString::number(step + 1));
        painter.setPen(QColor(255, 255, 255, isCurrent ? 255 : 200));
        painter.drawText(QRectF(dot.right() + 7, y, kSidebarSize.width() - 38, lineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         stepName(static_cast<AccountMission::Step>(step)));
    }
    return sidebar;
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
        sidebar = paintSidebar(step());
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
