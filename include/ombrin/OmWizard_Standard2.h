#pragma once

#include <ombrin/COmWizard_Base.h>

#include <QtCore/QPointer>

#include <memory>

class QLabel;
class QPushButton;

/// A compact wizard: the sidebar picture, the current page and a row of buttons, in a dialog that
/// takes the size of its page.
///
/// \code
/// AccountMission mission;
/// OmWizard_Standard2 wizard;
/// wizard.Set_Mission(&mission);
/// wizard.exec();
/// \endcode
///
/// It shows neither the title nor the description of a page, nor the picture of the mission. Each
/// page keeps the size it has: give a page its size, in logical pixels, before the mission shows
/// it. The page gets the keyboard focus when it is shown; make its first field its focus proxy.
///
/// The dialog ends as COmWizard_Standard does, but Escape asks the mission like "Cancel" does.
/// Return and Enter execute the mission where they may, or else go to the next page, and the button
/// that would do the same is drawn as the default one; over a button that has the focus they press
/// it. A key that is held counts once.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT OmWizard_Standard2 : public COmWizard_Base
{
    Q_OBJECT

public:
    OmWizard_Standard2();
    ~OmWizard_Standard2() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void InitializeWidgets() override;
    void RefreshDialog() override;

private Q_SLOTS:
    void slotOnCancelButtonClicked();
    void slotOnExecuteButtonClicked();
    void slotOnNextButtonClicked();
    void slotOnPrevButtonClicked();

private:
    void refreshTitle();
    void refreshPicture();
    void refreshButtons();
    void refreshPage();
    void refreshDefaultButton();
    void refreshTabOrder();
    bool replacePage(QWidget *page);
    void keepFocus();

    void resizeToCurrentPage();
    void refreshLayout();
    QSize pictureSize() const;
    bool isPageShown() const;

    QLabel *m_pictureLabel = nullptr;
    std::unique_ptr<ombrin::WizardButtons> m_buttons;
    QPointer<QWidget> m_shownPage;
    QPointer<QPushButton> m_defaultButton;
};
