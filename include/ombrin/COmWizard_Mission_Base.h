#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class COmWizard_Page_Base;

namespace ombrin {
class WizardButtons;
}

/// What a wizard does, apart from how it looks: a sequence of pages, the current one, texts and
/// pictures, and what the wizard's buttons may do.
///
/// Derive from it, hand it the pages and implement ExecuteMission(). A wizard dialog,
/// COmWizard_Standard or OmWizard_Standard2, shows the mission:
///
/// \code
/// class AccountMission : public COmWizard_Mission_Base
/// {
/// public:
///     AccountMission() { UseStaticPages({m_server, m_name, m_summary}); }
///
/// protected:
///     bool IsNextPageAllowed() override
///     {
///         return COmWizard_Mission_Base::IsNextPageAllowed() && !m_name->text().isEmpty();
///     }
///     bool ExecuteMission() override { return m_accounts->add(m_name->text()); }
///     QString MissionName() override { return tr("Add an account"); }
/// };
///
/// AccountMission mission;
/// COmWizard_Standard wizard;
/// wizard.Set_Mission(&mission);
/// wizard.exec();
/// \endcode
///
/// Call DoOnChanged() whenever an answer of the mission may have changed, in the example when the
/// name was edited. docs/writing-a-mission.md holds a complete mission.
///
/// **Actions.** There are four: previous page, next page, cancel and execute. `Is...Possible()`
/// decides whether the wizard shows the button of an action, `Is...Allowed()` whether it is
/// enabled; an action runs only if both hold.
///
/// **Pages.** A page is a QWidget that is also a COmWizard_Page_Base. A widget that is not one is
/// refused: the call that brings it changes nothing. The mission does not own its pages, but the
/// wizard that shows the current page is that page's parent and takes it along when it is
/// destroyed; the others are left to whoever made them. A page that is deleted leaves the sequence,
/// the current one when the mission steps off it.
///
/// **Lifetime.** A mission belongs to the host. It may be deleted at any time, even in its own
/// functions and while a wizard shows it; the wizard then does nothing until it gets another one. A
/// mission may be shown by several wizards; the page is in the one that was refreshed last.
///
/// To be used from the GUI thread.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT COmWizard_Mission_Base : public QObject
{
    Q_OBJECT

public:
    explicit COmWizard_Mission_Base(QObject *parent = nullptr);
    /// Deactivates the current page.
    ~COmWizard_Mission_Base() override;

    /// Closes every wizard that shows this mission with the result QDialog::Rejected.
    void CloseWizard();

Q_SIGNALS:
    /// An answer of the mission may have changed. A wizard that shows the mission has refreshed
    /// itself when the signal's emission is over.
    void OnChanged();
    /// The wizards are to close.
    void OnClosed();

protected:
    /// True unless the first page is current.
    virtual bool IsPrevPageAllowed();
    /// True unless the last page is current.
    virtual bool IsNextPageAllowed();
    /// True.
    virtual bool IsCancelWizardAllowed();
    /// True while the last page is current.
    virtual bool IsExecuteMissionAllowed();
    /// True unless the first page is current.
    virtual bool IsPrevPagePossible();
    /// True unless the last page is current.
    virtual bool IsNextPagePossible();
    /// True.
    virtual bool IsCancelWizardPossible();
    /// True while the last page is current.
    virtual bool IsExecuteMissionPossible();

    /// Makes the page before the current one current. Returns false, and changes nothing, on the
    /// first page.
    virtual bool PrevPage();
    /// Makes the page after the current one current. Returns false, and changes nothing, on the
    /// last page.
    virtual bool NextPage();
    /// Asks the user whether to cancel and returns whether the answer was yes.
    virtual bool CancelWizard();
    /// Does the mission's work and returns whether it succeeded. It may take its time in an event
    /// loop of its own; the wizard does not call it again before it has returned.
    virtual bool ExecuteMission() = 0;

    /// The title of the wizard; if empty the wizard has one of its own.
    virtual QString MissionName();
    /// The icon of the wizard; if null the wizard has the application's.
    virtual QIcon MissionIcon();
    /// A picture for the wizard's header, where it has one; null for none. Its logical size is the
    /// size it takes up.
    virtual QPixmap MissionPicture();
    /// A picture for the left side of the wizard; null for none. Its logical size is the size it
    /// takes up.
    virtual QPixmap MissionSidebar();
    /// The title of the current page, one line.
    virtual QString PageText();
    /// What the current page is about, up to three lines.
    virtual QString PageDescription();

    /// Replaces the sequence of pages and makes the first of \a pages current. Nothing changes if
    /// \a pages is empty or holds anything that is not a page.
    void UseStaticPages(const QList<QWidget *> &pages);

    /// Makes \a page, which may be null, current, whether or not it is in the sequence of pages:
    ///
    /// 1. Deactivate() of the old page, which then forgets its mission,
    /// 2. Activate() of \a page, which knows its mission by then,
    /// 3. DoOnChanged().
    ///
    /// Nothing happens if \a page is current already or is a widget that is not a page.
    void Set_CurrentPage(QWidget *page);

    /// The current page or null.
    QWidget *CurrentPage();

    /// Emits OnChanged(), then calls RefreshPage() of the current page.
    void DoOnChanged();

private:
    // The wizards ask what a mission answers.
    friend class COmWizard_Base;
    friend class COmWizard_Standard;
    friend class OmWizard_Standard2;
    friend class ombrin::WizardButtons;

    bool isFirstPage() const;
    bool isLastPage() const;
    bool goTo(int index);
    bool leaveCurrentPage();
    void watchPages(bool watch);
    void forgetPage(const QObject *page);
    void dropDeletedPages();

    QList<QPointer<QWidget>> m_pages;
    int m_currentIndex = 0;
    QPointer<QWidget> m_currentPage;
    QPointer<QWidget> m_pageBeingLeft;
};
