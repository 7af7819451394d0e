#pragma once

#include <ombrin/COmWizard_Mission_Base.h>

#include <QtCore/QPointer>
#include <QtCore/QString>

class COmWizard_Base;
class QCloseEvent;
class QPushButton;
class QWidget;

namespace ombrin {

/// The buttons of a wizard and what they do, which is the same in all wizards.
///
/// Every function may run code of the host's that destroys mission, page or wizard, and with the
/// wizard this object.
class WizardButtons
{
public:
    enum Action { Previous, Next, Execute, Cancel, ActionCount };

    /// The texts of the buttons in the language and translation context of the wizard.
    struct Captions
    {
        QString previous;
        QString next;
        QString execute;
        QString cancel;
        QString exit; ///< of the cancel button, once the mission has been executed
    };

    explicit WizardButtons(COmWizard_Base *wizard);
    Q_DISABLE_COPY(WizardButtons)

    /// A button without a text that belongs to \a parent. Also for buttons without an action.
    static QPushButton *createButton(QWidget *parent);
    /// Makes the button of \a action; each one is made once.
    QPushButton *create(Action action, QWidget *parent);
    QPushButton *button(Action action) const { return m_buttons[action]; }

    /// Shows what is possible, enables what is allowed, and sets the texts.
    void refresh(const Captions &captions);

    /// Runs an action that is possible and allowed, and refreshes the wizard.
    void run(Action action);
    /// Executes the mission where that is possible and allowed, or else goes to the next page where
    /// that is. Returns whether one of them was.
    bool executeOrGoOn();
    /// The button of what executeOrGoOn() does, or would do if it were allowed; null for none. As
    /// of the last refresh.
    QPushButton *mainButton() const;
    /// Lets a wizard that is asked to close do what its cancel button would.
    void close(QCloseEvent *event);

private:
    using Query = bool (COmWizard_Mission_Base::*)();

    /// What the mission is asked about an action.
    struct Queries
    {
        Query isPossible;
        Query isAllowed;
    };

    static Queries queries(Action action);
    bool isPossibleAndAllowed(Action action) const;
    const QString &caption(Action action, const Captions &captions) const;
    bool refreshButton(Action action, const Captions &captions);
    void turnPage(Action action);
    void execute();
    void cancel();

    COmWizard_Base *m_wizard;
    QPointer<QPushButton> m_buttons[ActionCount];
    bool m_isExecuted = false;
    // The mission turns a page or is executed. The user may click again while one that takes its
    // time lets the event loop run; all but cancelling is left alone then.
    bool m_isAtWork = false;
    bool m_isAsking = false;
};

} // namespace ombrin
