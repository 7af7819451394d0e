#pragma once

#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/OmGlobal.h>

#include <QtCore/QPointer>

/// What makes a QWidget a page of a wizard mission: it is told when it becomes the current page and
/// when it no longer is.
///
/// A mix-in beside QWidget or a class derived from it:
///
/// \code
/// class NamePage : public QWidget, public COmWizard_Page_Base
/// {
/// protected:
///     void RefreshPage() override
///     {
///         if (auto *mission = qobject_cast<AccountMission *>(Mission()))
///             m_name->setText(mission->account().name);
///     }
/// };
/// \endcode
///
/// The mission calls Activate() and Deactivate() around the time in which the page is the current
/// one, and RefreshPage() at every change. Copies of a page know the same mission as the original.
///
/// Inherit publicly: a widget whose page the mission cannot reach is refused by it.
///
/// A page may be deleted at any time, even in one of its own functions here; the mission then goes
/// on without it.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT COmWizard_Page_Base
{
public:
    /// A page without a mission.
    COmWizard_Page_Base();
    /// A page that knows the mission of \a other.
    COmWizard_Page_Base(const COmWizard_Page_Base &other);
    COmWizard_Page_Base &operator=(const COmWizard_Page_Base &other);

protected:
    /// The page has become the current one. Calls RefreshPage().
    virtual void Activate();
    /// The page is about to stop being the current one; Mission() is still set. Calls
    /// RefreshPage().
    virtual void Deactivate();
    /// Something has changed: brings the page in line with its mission. Does nothing.
    virtual void RefreshPage();

public:
    virtual ~COmWizard_Page_Base();

protected:
    /// The mission whose current page this is; null while it is not the current page of one.
    COmWizard_Mission_Base *Mission() const;

private:
    friend class COmWizard_Mission_Base;

    QPointer<COmWizard_Mission_Base> m_mission;
};
