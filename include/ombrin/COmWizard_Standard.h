#pragma once

#include <ombrin/COmWizard_Base.h>

#include <QtCore/QSize>

#include <memory>
#include <optional>

class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace ombrin {
class EnterKeyWatcher;
}

/// A wizard with a header (title and description of the page, picture of the mission), a sidebar
/// picture, the current page and a row of buttons.
///
/// \code
/// AccountMission mission;
/// COmWizard_Standard wizard;
/// wizard.Set_Mission(&mission);
/// wizard.FixSize(true, QSize(500, 400));
/// wizard.exec();
/// \endcode
///
/// The dialog ends with QDialog::Accepted through "Exit", which "Cancel" is called once the mission
/// was executed successfully, and with QDialog::Rejected through a cancel that the mission
/// confirms, through Escape, which asks nothing, and through the mission's CloseWizard(). The close
/// button of the frame does what "Cancel" or "Exit" would. A mission that fails leaves the dialog
/// open.
///
/// The Enter key of the keypad executes the mission where it may, or else goes to the next page.
/// The Return key does neither, and none of the wizard's buttons is a default button; Space presses
/// the one that has the focus. An Enter key that is held counts once, and one that something else
/// took when it was pressed does not count: the list of a combo box, a text that takes line breaks,
/// another window. A push button on a page is a default button of the dialog unless it is told
/// otherwise: call its setAutoDefault(false).
///
/// That the mission was executed is remembered until it is executed again and fails, also when the
/// mission is replaced.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT COmWizard_Standard : public COmWizard_Base
{
    Q_OBJECT

public:
    COmWizard_Standard();
    ~COmWizard_Standard() override;

    /// With \a fix the dialog is exactly \a size, in logical pixels with its frame, whatever its
    /// pages need; without, the layout sizes it as it does at first. May be called before the
    /// wizard has a mission: it takes effect when it gets one.
    void FixSize(bool fix, QSize size);

    /// Shows or hides the header. May be called before the wizard has a mission.
    void Set_IsTitlebarVisible(bool visible);
    /// Whether the header is shown (default: true).
    bool IsTitlebarVisible();

protected:
    void keyReleaseEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void InitializeWidgets() override;
    void RefreshDialog() override;

private Q_SLOTS:
    void OnCancelButtonClicked();
    void OnExecuteButtonClicked();
    void OnNextButtonClicked();
    void OnPrevButtonClicked();
    void OnHelpButtonClicked();

private:
    void createPageArea();
    void createButtons();
    void createHeader();
    void connectButtons();
    void applySize();

    void refreshTitle();
    void refreshSidebar();
    void refreshPicture();
    void refreshPageText();
    void refreshPageDescription();
    void refreshButtons();
    void refreshPage();
    void refreshTabOrder();
    bool releaseOtherPages(const QWidget *page);

    QWidget *m_header = nullptr;
    QWidget *m_pageArea = nullptr;
    QWidget *m_buttonArea = nullptr;
    QFrame *m_sidebarFrame = nullptr;
    QWidget *m_pageHost = nullptr;
    QVBoxLayout *m_mainLayout = nullptr;
    QGridLayout *m_pageHostLayout = nullptr;
    QLabel *m_sidebarLabel = nullptr;
    QPushButton *m_helpButton = nullptr;
    QLabel *m_pictureLabel = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_descriptionLabel = nullptr;
    std::unique_ptr<ombrin::WizardButtons> m_buttons;
    std::unique_ptr<ombrin::EnterKeyWatcher> m_enterKey;
    std::optional<QSize> m_fixedSize;
    bool m_titlebarVisible = true;
};
