#include <ombrin/COmWizard_Page_Base.h>

COmWizard_Page_Base::COmWizard_Page_Base() = default;

COmWizard_Page_Base::COmWizard_Page_Base(const COmWizard_Page_Base &other) = default;

COmWizard_Page_Base &COmWizard_Page_Base::operator=(const COmWizard_Page_Base &other) = default;

COmWizard_Page_Base::~COmWizard_Page_Base() = default;

COmWizard_Mission_Base *COmWizard_Page_Base::Mission() const
{
    return m_mission;
}

void COmWizard_Page_Base::Activate()
{
    RefreshPage();
}

void COmWizard_Page_Base::Deactivate()
{
    RefreshPage();
}

void COmWizard_Page_Base::RefreshPage() {}
