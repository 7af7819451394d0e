#include <ombrin/COmWizard_Base.h>

#include "dialogs/EventWatcher.h"
#include "dialogs/WizardWidgets.h"

#include <ombrin/OmDesktop.h>

#include <QtWidgets/QApplication>

COmWizard_Base::COmWizard_Base()
    : OmDialog2(nullptr)
{
    ombrin::whenLanguageChanges(this, [this] { OnMissionChanged(); });
}

COmWizard_Base::~COmWizard_Base()
{
    // Before the page, a child of the dialog, is destroyed: it may tell the mission of a change.
    Set_Mission(nullptr);
}

void COmWizard_Base::Set_Mission(COmWizard_Mission_Base *mission)
{
    if (mission == m_mission)
        return;
    if (m_mission) {
        disconnect(m_mission, &COmWizard_Mission_Base::OnChanged, this,
                   &COmWizard_Base::OnMissionChanged);
        disconnect(m_mission, &COmWizard_Mission_Base::OnClosed, this,
                   &COmWizard_Base::OnMissionClosed);
    }
    m_mission = mission;
    if (!mission)
        return;

    connect(mission, &COmWizard_Mission_Base::OnChanged, this, &COmWizard_Base::OnMissionChanged);
    connect(mission, &COmWizard_Mission_Base::OnClosed, this, &COmWizard_Base::OnMissionClosed);
    if (!m_widgetsInitialized) {
        m_widgetsInitialized = true;
        InitializeWidgets();
    }
    RefreshDialog();
}

COmWizard_Mission_Base *COmWizard_Base::Mission()
{
    return m_mission;
}

void COmWizard_Base::showEvent(QShowEvent *event)
{
    const QPointer<COmWizard_Base> self(this);
    ombrin::settleLayouts(this);
    ombrin::OmDesktop::setCentered(this);
    const QSize centredSize = size();
    if (m_mission)
        RefreshDialog();
    if (!self)
        return;
    ombrin::settleLayouts(this);
    if (size() != centredSize)
        ombrin::OmDesktop::setCentered(this);
    OmDialog2::showEvent(event);
}

void COmWizard_Base::refreshWindowIcon()
{
    if (!m_mission)
        return;
    const QPointer<COmWizard_Base> self(this);
    QIcon icon = m_mission->MissionIcon();
    if (icon.isNull())
        icon = QApplication::windowIcon();
    if (self && icon.cacheKey() != windowIcon().cacheKey())
        setWindowIcon(icon);
}

void COmWizard_Base::refreshWindowTitle(const QString &fallback)
{
    if (!m_mission)
        return;
    const QPointer<COmWizard_Base> self(this);
    QString title = m_mission->MissionName();
    if (title.isEmpty())
        title = fallback;
    if (self && title != windowTitle())
        setWindowTitle(title);
}

void COmWizard_Base::OnMissionChanged()
{
    if (m_mission)
        RefreshDialog();
}

void COmWizard_Base::OnMissionClosed()
{
    reject();
}
