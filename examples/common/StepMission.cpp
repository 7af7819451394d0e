#include "common/StepMission.h"

#include "common/SkinPictures.h"

namespace example {

StepMission::StepMission(QObject *parent)
    : COmWizard_Mission_Base(parent)
{}

StepMission::~StepMission()
{
    // But for the one that a wizard took along.
    for (const QPointer<QWidget> &page : m_pages)
        delete page;
}

void StepMission::setSteps(const std::vector<Step> &steps, const QSize &sidebarSize)
{
    QList<QWidget *> pages;
    for (const Step &step : steps) {
        m_names.append(step.name);
        m_pages.emplace_back(step.page);
        pages.append(step.page);
    }
    m_sidebars.resize(steps.size());
    m_sidebarSize = sidebarSize;
    UseStaticPages(pages);
}

int StepMission::step()
{
    for (std::size_t step = 0; step < m_pages.size(); ++step) {
        if (CurrentPage() == m_pages[step])
            return static_cast<int>(step);
    }
    return 0;
}

void StepMission::goTo(int step)
{
    while (this->step() < step && COmWizard_Mission_Base::NextPage())
        continue;
}

bool StepMission::IsPrevPagePossible()
{
    return COmWizard_Mission_Base::IsPrevPagePossible() && !m_isDone;
}

bool StepMission::IsExecuteMissionAllowed()
{
    return COmWizard_Mission_Base::IsExecuteMissionAllowed() && !m_isDone;
}

QIcon StepMission::MissionIcon()
{
    static const QIcon icon = skinIcon(QStringLiteral("chat-32"));
    return icon;
}

QPixmap StepMission::MissionPicture()
{
    return skinPicture(QStringLiteral("addmulti-32"));
}

QPixmap StepMission::MissionSidebar()
{
    if (m_sidebars.empty())
        return QPixmap();
    // Kept, since a wizard tells pictures apart by their serial number.
    QPixmap &sidebar = m_sidebars[static_cast<std::size_t>(step())];
    if (sidebar.isNull())
        sidebar = stepSidebar(m_names, step(), m_sidebarSize);
    return sidebar;
}

QString StepMission::PageText()
{
    return m_names.value(step());
}

} // namespace example
