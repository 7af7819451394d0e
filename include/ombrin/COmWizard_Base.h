#pragma once

#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/OmDialog2.h>

#include <QtCore/QPointer>

namespace ombrin {
class WizardButtons;
}

/// Base of the dialogs that show a wizard mission.
///
/// Listens to the mission and asks its derived class to refresh itself. Hosts use one of the two
/// wizards there are:
///
/// \code
/// COmWizard_Standard wizard;
/// wizard.Set_Mission(&mission);
/// if (wizard.exec() == QDialog::Accepted)
///     showNewAccount();
/// \endcode
///
/// The wizard does not own its mission. When a mission is destroyed it leaves its page, and the
/// wizard shows no page, a title of its own and none of the mission's texts and pictures any more.
/// Its buttons do nothing then; Escape still closes it.
///
/// A wizard is a top-level window, centred on the primary screen whenever it is shown. Its texts,
/// and with them the mission's, are asked for again when the application's language changes.
///
/// The wizard may be destroyed in a slot of any signal and in any function of its mission and
/// pages.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT COmWizard_Base : public ombrin::OmDialog2
{
    Q_OBJECT

public:
    COmWizard_Base();
    /// Leaves the mission alone. The current page, a child of the dialog, is destroyed with it.
    ~COmWizard_Base() override;

    /// Shows \a mission. With null, the dialog keeps showing what it showed, but follows no changes
    /// any more, and its buttons do nothing.
    void Set_Mission(COmWizard_Mission_Base *mission);
    /// The mission or null.
    COmWizard_Mission_Base *Mission();

protected:
    void showEvent(QShowEvent *event) override;

    /// Builds the dialog's widgets. Called once, when the dialog gets its first mission.
    virtual void InitializeWidgets() = 0;
    /// Brings every widget in line with the mission, and changes nothing that is in line. Does
    /// nothing without a mission.
    virtual void RefreshDialog() = 0;

    /// Takes the mission's icon, or else the application's.
    void refreshWindowIcon();
    /// Takes the mission's name for the title, or else \a fallback.
    void refreshWindowTitle(const QString &fallback);

private Q_SLOTS:
    void OnMissionChanged();
    void OnMissionClosed();

private:
    friend class ombrin::WizardButtons;

    bool m_widgetsInitialized = false;
    QPointer<COmWizard_Mission_Base> m_mission;
};
