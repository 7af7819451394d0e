#include <ombrin/OmWizard_Standard2.h>

#include "dialogs/EventWatcher.h"
#include "dialogs/WizardButtons.h"
#include "dialogs/WizardWidgets.h"

#include <ombrin/OmDesktop.h>

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <algorithm>

using ombrin::WizardButtons;

namespace {

constexpr int kMargin = 10;
constexpr int kButtonGap = 5;
constexpr int kButtonRowHeight = 38; // a button and the margin below it
constexpr QSize kButtonSize(96, 28);

void place(QWidget *widget, const QRect &geometry)
{
    if (widget->geometry() != geometry)
        widget->setGeometry(geometry);
}

} // namespace

OmWizard_Standard2::OmWizard_Standard2()
    : m_buttons(std::make_unique<WizardButtons>(this))
{
    setWindowModality(Qt::WindowModal);
    new ombrin::EventWatcher(this, [this](const QEvent *event) {
        if (event->type() == QEvent::LayoutDirectionChange)
            refreshLayout();
    });
}

OmWizard_Standard2::~OmWizard_Standard2() = default;

void OmWizard_Standard2::InitializeWidgets()
{
    m_pictureLabel = new QLabel(this);
    for (const auto action : {WizardButtons::Previous, WizardButtons::Next, WizardButtons::Cancel,
                              WizardButtons::Execute})
        m_buttons->create(action, this);

    const auto onClick = [this](WizardButtons::Action action, void (OmWizard_Standard2::*slot)()) {
        connect(m_buttons->button(action), &QPushButton::clicked, this, slot);
    };
    onClick(WizardButtons::Previous, &OmWizard_Standard2::slotOnPrevButtonClicked);
    onClick(WizardButtons::Next, &OmWizard_Standard2::slotOnNextButtonClicked);
    onClick(WizardButtons::Execute, &OmWizard_Standard2::slotOnExecuteButtonClicked);
    onClick(WizardButtons::Cancel, &OmWizard_Standard2::slotOnCancelButtonClicked);

    ombrin::setWhiteBackground(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

// Refresh

void OmWizard_Standard2::RefreshDialog()
{
    ombrin::refreshStepByStep<OmWizard_Standard2>(
            this, {&OmWizard_Standard2::refreshWindowIcon, &OmWizard_Standard2::refreshTitle,
                   &OmWizard_Standard2::refreshPicture, &OmWizard_Standard2::refreshButtons,
                   &OmWizard_Standard2::refreshPage, &OmWizard_Standard2::refreshDefaultButton,
                   &OmWizard_Standard2::refreshTabOrder, &OmWizard_Standard2::refreshLayout});
}

void OmWizard_Standard2::refreshTitle()
{
    refreshWindowTitle(
            tr("Assistant", "windowtitle of a wizard who hasn't get one by the mission"));
}

void OmWizard_Standard2::refreshPicture()
{
    const QPointer<OmWizard_Standard2> self(this);
    const QPixmap sidebar = Mission()->MissionSidebar();
    if (!self)
        return;
    ombrin::refreshPixmap(m_pictureLabel, sidebar);
    m_pictureLabel->setVisible(!sidebar.isNull());
}

void OmWizard_Standard2::refreshButtons()
{
    m_buttons->refresh({tr("< &Previous", "previous-button in standard-wizard"),
                        tr("&Next >", "next-button in standard-wizard"),
                        tr("&Complete", "execute-button in standard-wizard"),
                        tr("&Cancel", "cancel-button in standard-wizard"),
                        tr("&Exit", "exit-button in standard-wizard")});
}

void OmWizard_Standard2::refreshPage()
{
    // Another wizard with the same mission may have taken the page.
    if (m_shownPage && m_shownPage->parentWidget() != this)
        m_shownPage = nullptr;
    QWidget *page = Mission()->CurrentPage();
    if (page != m_shownPage && replacePage(page))
        resizeToCurrentPage();
}

/// Returns false when the wizard is gone.
bool OmWizard_Standard2::replacePage(QWidget *page)
{
    const QPointer<OmWizard_Standard2> self(this);
    const QPointer<QWidget> newPage(page);
    if (m_shownPage)
        ombrin::releasePage(m_shownPage);
    if (newPage)
        newPage->hide();
    if (!self)
        return false;
    // From now on, so that what the page does when it is shown finds it in its place.
    m_shownPage = newPage;
    if (newPage)
        newPage->setParent(this);
    if (newPage)
        newPage->show();
    if (newPage)
        newPage->setFocus(Qt::OtherFocusReason);
    return self;
}

// What Return does is decided when it is pressed; this only shows it.
void OmWizard_Standard2::refreshDefaultButton()
{
    QPushButton *button = m_buttons->mainButton();
    if (button == m_defaultButton)
        return;
    if (m_defaultButton)
        m_defaultButton->setDefault(false);
    if (button)
        button->setDefault(true);
    m_defaultButton = button;
}

void OmWizard_Standard2::refreshTabOrder()
{
    ombrin::refreshPageTabOrder(m_shownPage, {m_buttons->button(WizardButtons::Previous),
                                              m_buttons->button(WizardButtons::Next),
                                              m_buttons->button(WizardButtons::Execute),
                                              m_buttons->button(WizardButtons::Cancel)});
}

// Layout

QSize OmWizard_Standard2::pictureSize() const
{
    return m_pictureLabel && !m_pictureLabel->isHidden() ? ombrin::pixmapSize(m_pictureLabel)
                                                         : QSize();
}

bool OmWizard_Standard2::isPageShown() const
{
    return m_shownPage && !m_shownPage->isHidden();
}

void OmWizard_Standard2::resizeToCurrentPage()
{
    if (!m_shownPage)
        return;
    int contentsWidth = kMargin;
    int contentsHeight = kMargin;
    const QSize picture = pictureSize();
    if (picture.isValid())
        contentsWidth = picture.width() + 2 * kMargin;
    if (isPageShown()) {
        contentsWidth += m_shownPage->width() + kMargin;
        contentsHeight = std::max(m_shownPage->height(), picture.height()) + 2 * kMargin;
    }
    const QMargins margins = contentsMargins();
    const QSize target(contentsWidth + margins.left() + margins.right(),
                       contentsHeight + kButtonRowHeight + margins.top() + margins.bottom());
    if (size() != target)
        resize(target);
}

// By hand, as if from left to right; mirrored where the language is written the other way.
void OmWizard_Standard2::refreshLayout()
{
    const QRect contents = contentsRect();
    const auto placeMirrored = [this, &contents](QWidget *widget, const QRect &geometry) {
        place(widget, QStyle::visualRect(layoutDirection(), contents, geometry));
    };

    QPoint corner = contents.topLeft() + QPoint(kMargin, kMargin);
    const QSize picture = pictureSize();
    if (picture.isValid()) {
        placeMirrored(m_pictureLabel, QRect(corner, picture));
        corner.rx() += picture.width() + kMargin;
    }
    if (isPageShown())
        placeMirrored(m_shownPage, QRect(corner, m_shownPage->size()));

    const int y = contents.bottom() - kButtonRowHeight;
    int x = contents.right() - kMargin - kButtonSize.width();
    for (const auto action : {WizardButtons::Cancel, WizardButtons::Execute, WizardButtons::Next,
                              WizardButtons::Previous}) {
        QPushButton *button = m_buttons->button(action);
        if (!button || button->isHidden())
            continue;
        placeMirrored(button, QRect(QPoint(x, y), kButtonSize));
        x -= kButtonSize.width() + kButtonGap;
    }
}

// Events

void OmWizard_Standard2::keyPressEvent(QKeyEvent *event)
{
    if (!Mission()) {
        QDialog::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        close();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (!event->isAutoRepeat())
            m_buttons->executeOrGoOn();
        return;
    default:
        event->ignore();
        QDialog::keyPressEvent(event);
    }
}

void OmWizard_Standard2::resizeEvent(QResizeEvent *event)
{
    refreshLayout();
    OmDialog2::resizeEvent(event);
}

void OmWizard_Standard2::closeEvent(QCloseEvent *event)
{
    m_buttons->close(event);
}

void OmWizard_Standard2::showEvent(QShowEvent *event)
{
    const QPointer<OmWizard_Standard2> self(this);
    RefreshDialog();
    if (!self)
        return;
    resizeToCurrentPage();
    ombrin::OmDesktop::setCentered(this);
    keepFocus();
    QDialog::showEvent(event);
}

/// QDialog, when it has been shown, moves the focus from a page that takes none of its own to the
/// default button.
void OmWizard_Standard2::keepFocus()
{
    QTimer::singleShot(0, this, [this, focus = QPointer<QWidget>(focusWidget())] {
        if (focus && focus == m_shownPage && focusWidget() == m_defaultButton)
            focus->setFocus(Qt::OtherFocusReason);
    });
}

// Slots

void OmWizard_Standard2::slotOnCancelButtonClicked()
{
    m_buttons->run(WizardButtons::Cancel);
}

void OmWizard_Standard2::slotOnExecuteButtonClicked()
{
    m_buttons->run(WizardButtons::Execute);
}

void OmWizard_Standard2::slotOnNextButtonClicked()
{
    m_buttons->run(WizardButtons::Next);
}

void OmWizard_Standard2::slotOnPrevButtonClicked()
{
    m_buttons->run(WizardButtons::Previous);
}
