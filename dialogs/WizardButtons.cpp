#include "dialogs/WizardButtons.h"

#include <ombrin/COmWizard_Base.h>

#include <QtGui/QCloseEvent>
#include <QtWidgets/QPushButton>

namespace ombrin {

namespace {

constexpr QSize kMinimumSize(96, 28);

} // namespace

WizardButtons::WizardButtons(COmWizard_Base *wizard)
    : m_wizard(wizard)
{}

QPushButton *WizardButtons::createButton(QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setMinimumSize(kMinimumSize);
    return button;
}

QPushButton *WizardButtons::create(Action action, QWidget *parent)
{
    m_buttons[action] = createButton(parent);
    return m_buttons[action];
}

WizardButtons::Queries WizardButtons::queries(Action action)
{
    using Mission = COmWizard_Mission_Base;
    static constexpr Queries kQueries[ActionCount] = {
            {&Mission::IsPrevPagePossible, &Mission::IsPrevPageAllowed},
            {&Mission::IsNextPagePossible, &Mission::IsNextPageAllowed},
            {&Mission::IsExecuteMissionPossible, &Mission::IsExecuteMissionAllowed},
            {&Mission::IsCancelWizardPossible, &Mission::IsCancelWizardAllowed},
    };
    return kQueries[action];
}

bool WizardButtons::isPossibleAndAllowed(Action action) const
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    const QPointer<COmWizard_Mission_Base> mission(m_wizard->Mission());
    const Queries asked = queries(action);
    return mission && (mission.data()->*asked.isPossible)() && mission
           && (mission.data()->*asked.isAllowed)() && wizard && wizard->Mission();
}

// Looks

void WizardButtons::refresh(const Captions &captions)
{
    for (const Action action : {Cancel, Execute, Next, Previous}) {
        if (!refreshButton(action, captions))
            return;
    }
}

/// Returns false when mission or wizard are gone.
bool WizardButtons::refreshButton(Action action, const Captions &captions)
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    const QPointer<QPushButton> button(m_buttons[action]);
    const QPointer<COmWizard_Mission_Base> mission(m_wizard->Mission());
    const Queries asked = queries(action);
    if (!mission)
        return false;
    const bool isPossible = (mission.data()->*asked.isPossible)();
    if (!mission)
        return false;
    const bool isAllowed = (mission.data()->*asked.isAllowed)();
    if (!wizard)
        return false;

    // Qt's setters do nothing when nothing changes.
    if (button)
        button->setVisible(isPossible);
    if (button)
        button->setEnabled(isAllowed);
    if (button)
        button->setText(caption(action, captions));
    return wizard && mission;
}

const QString &WizardButtons::caption(Action action, const Captions &captions) const
{
    switch (action) {
    case Previous:
        return captions.previous;
    case Next:
        return captions.next;
    case Execute:
        return captions.execute;
    case Cancel:
    case ActionCount:
        break;
    }
    return m_isExecuted ? captions.exit : captions.cancel;
}

// Actions

void WizardButtons::run(Action action)
{
    switch (action) {
    case Previous:
    case Next:
        turnPage(action);
        break;
    case Execute:
        execute();
        break;
    case Cancel:
        cancel();
        break;
    case ActionCount:
        break;
    }
}

bool WizardButtons::executeOrGoOn()
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    for (const Action action : {Execute, Next}) {
        const bool mayRun = isPossibleAndAllowed(action);
        if (!wizard)
            return true;
        if (mayRun) {
            run(action);
            return true;
        }
    }
    return false;
}

QPushButton *WizardButtons::mainButton() const
{
    QPushButton *main = nullptr;
    for (QPushButton *button : {button(Next), button(Execute)}) {
        const bool isBetter = !main || !main->isEnabled() || (button && button->isEnabled());
        if (button && !button->isHidden() && isBetter)
            main = button;
    }
    return main;
}

void WizardButtons::turnPage(Action action)
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    if (m_isAtWork || !isPossibleAndAllowed(action))
        return;
    m_isAtWork = true;
    if (action == Next)
        m_wizard->Mission()->NextPage();
    else
        m_wizard->Mission()->PrevPage();
    if (!wizard)
        return;
    m_isAtWork = false;
    wizard->RefreshDialog();
}

void WizardButtons::execute()
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    if (m_isAtWork || !isPossibleAndAllowed(Execute))
        return;
    m_isAtWork = true;
    const bool isExecuted = m_wizard->Mission()->ExecuteMission();
    if (!wizard)
        return;
    m_isAtWork = false;
    m_isExecuted = isExecuted;
    wizard->RefreshDialog();
}

void WizardButtons::cancel()
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    // The question does not block the wizard: its buttons can be clicked meanwhile.
    if (m_isAsking || !isPossibleAndAllowed(Cancel))
        return;
    if (!m_isExecuted) {
        m_isAsking = true;
        const bool isConfirmed = m_wizard->Mission()->CancelWizard();
        if (!wizard)
            return;
        m_isAsking = false;
        if (!isConfirmed) {
            wizard->RefreshDialog();
            return;
        }
    }
    if (m_isExecuted)
        wizard->accept();
    else
        wizard->reject();
}

void WizardButtons::close(QCloseEvent *event)
{
    const QPointer<COmWizard_Base> wizard(m_wizard);
    event->ignore();
    cancel();
    // Qt does not do so for a dialog that ends inside a close event which it ignores.
    if (wizard && wizard->isHidden() && wizard->testAttribute(Qt::WA_DeleteOnClose))
        wizard->deleteLater();
}

} // namespace ombrin
