#include <ombrin/COmWizard_Standard.h>

#include "dialogs/EnterKeyWatcher.h"
#include "dialogs/EventWatcher.h"
#include "dialogs/WizardButtons.h"
#include "dialogs/WizardWidgets.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using ombrin::WizardButtons;

namespace {

constexpr int kHeaderHeight = 75;
constexpr int kButtonAreaHeight = 56;
constexpr int kGap = 10;
constexpr int kButtonGap = 2;
constexpr int kTextGap = 5;
constexpr int kDescriptionIndent = 25;
constexpr int kDescriptionLines = 3;
constexpr QSize kUnlimited(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

template <typename Layout>
Layout *plainLayout(Layout *layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

template <typename Layout>
Layout *plainLayout(Layout *layout, QLayout::SizeConstraint constraint)
{
    plainLayout(layout)->setSizeConstraint(constraint);
    return layout;
}

QLabel *textLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

// Makes room for one line of title and three of description; in large fonts the header is higher.
void fitHeader(QWidget *header, QLabel *title, QLabel *description)
{
    title->setFixedHeight(title->fontMetrics().height());
    description->setFixedHeight(kDescriptionLines * description->fontMetrics().height());
    header->layout()->activate();
    header->setFixedHeight(header->layout()->minimumSize().height());
}

} // namespace

COmWizard_Standard::COmWizard_Standard()
    : m_buttons(std::make_unique<WizardButtons>(this))
    , m_enterKey(std::make_unique<ombrin::EnterKeyWatcher>(this))
{}

COmWizard_Standard::~COmWizard_Standard() = default;

// Widgets

void COmWizard_Standard::InitializeWidgets()
{
    m_header = new QWidget(this);
    // At once: what is set after a widget was polished is lost when the style sheet changes.
    ombrin::setWhiteBackground(m_header);
    m_pageArea = new QWidget(this);
    m_pageArea->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_buttonArea = new QWidget(this);
    m_buttonArea->setFixedHeight(kButtonAreaHeight);

    m_mainLayout = plainLayout(new QVBoxLayout(this), QLayout::SetMinAndMaxSize);
    m_mainLayout->addWidget(m_header);
    m_mainLayout->addSpacing(kGap);
    m_mainLayout->addWidget(m_pageArea);
    m_mainLayout->addWidget(m_buttonArea);

    createPageArea();
    createButtons();
    createHeader();
    ombrin::setWhiteBackground(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connectButtons();

    if (m_fixedSize)
        applySize();
    if (!m_titlebarVisible)
        m_header->hide();
}

void COmWizard_Standard::createPageArea()
{
    m_sidebarFrame = new QFrame(m_pageArea);
    m_sidebarFrame->setFrameShadow(QFrame::Plain);
    m_sidebarFrame->setFrameShape(QFrame::NoFrame);
    m_sidebarFrame->setLineWidth(1);
    m_sidebarFrame->setMidLineWidth(0);
    m_pageHost = new QWidget(m_pageArea);

    auto *row = plainLayout(new QHBoxLayout(m_pageArea), QLayout::SetMinAndMaxSize);
    row->addSpacing(kGap);
    row->addWidget(m_sidebarFrame);
    row->addSpacing(kGap);
    row->addWidget(m_pageHost);
    row->addSpacing(kGap);

    m_sidebarLabel = new QLabel(m_sidebarFrame);
    auto *sidebar = plainLayout(new QGridLayout(m_sidebarFrame), QLayout::SetMinAndMaxSize);
    sidebar->addWidget(m_sidebarLabel, 0, 0);
    m_pageHostLayout = plainLayout(new QGridLayout(m_pageHost), QLayout::SetMinAndMaxSize);
}

void COmWizard_Standard::createButtons()
{
    m_helpButton = WizardButtons::createButton(m_buttonArea);
    m_helpButton->setAutoDefault(false);
    auto *row = plainLayout(new QHBoxLayout(m_buttonArea));
    row->addSpacing(kGap);
    row->addWidget(m_helpButton);
    row->addStretch();
    for (const auto action : {WizardButtons::Previous, WizardButtons::Next, WizardButtons::Execute,
                              WizardButtons::Cancel}) {
        QPushButton *button = m_buttons->create(action, m_buttonArea);
        // Return would press the button that has the focus, and Enter would act twice.
        button->setAutoDefault(false);
        if (action != WizardButtons::Previous)
            row->addSpacing(kButtonGap);
        row->addWidget(button);
    }
    row->addSpacing(kGap);
}

void COmWizard_Standard::createHeader()
{
    m_pictureLabel = new QLabel(m_header);
    m_titleLabel = textLabel(m_header);
    QFont bold; // in everything else the label goes on following the dialog
    bold.setWeight(QFont::Bold);
    m_titleLabel->setFont(bold);
    m_descriptionLabel = textLabel(m_header);
    m_descriptionLabel->setWordWrap(true);

    auto *description = plainLayout(new QHBoxLayout, QLayout::SetMinimumSize);
    description->addSpacing(kDescriptionIndent);
    description->addWidget(m_descriptionLabel);

    auto *texts = plainLayout(new QVBoxLayout, QLayout::SetMinimumSize);
    texts->addSpacing(kTextGap);
    texts->addWidget(m_titleLabel);
    texts->addSpacing(kTextGap);
    texts->addLayout(description);
    texts->addSpacing(kTextGap);
    texts->addStretch();

    auto *row = plainLayout(new QHBoxLayout(m_header), QLayout::SetMinimumSize);
    row->addStrut(kHeaderHeight); // the layout sets the minimum height, in small fonts to less
    row->addSpacing(kGap);
    row->addLayout(texts);
    row->addSpacing(kTextGap);
    row->addWidget(m_pictureLabel);
    row->addSpacing(kGap);

    const auto fit = [header = m_header, title = m_titleLabel, description = m_descriptionLabel] {
        fitHeader(header, title, description);
    };
    fit();
    new ombrin::EventWatcher(m_descriptionLabel, [fit](const QEvent *event) {
        if (event->type() == QEvent::FontChange)
            fit();
    });
}

void COmWizard_Standard::connectButtons()
{
    const auto onClick = [this](QPushButton *button, void (COmWizard_Standard::*slot)()) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    onClick(m_buttons->button(WizardButtons::Cancel), &COmWizard_Standard::OnCancelButtonClicked);
    onClick(m_buttons->button(WizardButtons::Execute), &COmWizard_Standard::OnExecuteButtonClicked);
    onClick(m_buttons->button(WizardButtons::Next), &COmWizard_Standard::OnNextButtonClicked);
    onClick(m_buttons->button(WizardButtons::Previous), &COmWizard_Standard::OnPrevButtonClicked);
    onClick(m_helpButton, &COmWizard_Standard::OnHelpButtonClicked);
}

void COmWizard_Standard::FixSize(bool fix, QSize size)
{
    if (fix)
        m_fixedSize = size;
    else
        m_fixedSize.reset();
    if (m_mainLayout)
        applySize();
}

void COmWizard_Standard::applySize()
{
    if (m_fixedSize) {
        setFixedSize(*m_fixedSize);
        m_mainLayout->setSizeConstraint(QLayout::SetNoConstraint);
        return;
    }
    setMinimumSize(0, 0);
    setMaximumSize(kUnlimited);
    m_mainLayout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    m_mainLayout->activate(); // Qt 6 would wait for the next change of the layout
}

void COmWizard_Standard::Set_IsTitlebarVisible(bool visible)
{
    if (visible == m_titlebarVisible)
        return;
    m_titlebarVisible = visible;
    if (m_header)
        m_header->setVisible(visible);
}

bool COmWizard_Standard::IsTitlebarVisible()
{
    return m_titlebarVisible;
}

// Refresh. Qt's setters do nothing when nothing changes, but for those of pixmaps, titles and
// icons.

void COmWizard_Standard::RefreshDialog()
{
    ombrin::refreshStepByStep<COmWizard_Standard>(
            this, {&COmWizard_Standard::refreshWindowIcon, &COmWizard_Standard::refreshTitle,
                   &COmWizard_Standard::refreshSidebar, &COmWizard_Standard::refreshPicture,
                   &COmWizard_Standard::refreshPageText,
                   &COmWizard_Standard::refreshPageDescription, &COmWizard_Standard::refreshButtons,
                   &COmWizard_Standard::refreshPage, &COmWizard_Standard::refreshTabOrder});
}

void COmWizard_Standard::refreshTitle()
{
    refreshWindowTitle(
            tr("Assistant", "windowtitle of a wizard who hasn't get one by the mission"));
}

void COmWizard_Standard::refreshSidebar()
{
    const QPointer<COmWizard_Standard> self(this);
    const QPixmap sidebar = Mission()->MissionSidebar();
    if (!self)
        return;
    ombrin::refreshPixmap(m_sidebarLabel, sidebar);
    m_sidebarFrame->setVisible(!sidebar.isNull());
    if (sidebar.isNull())
        m_sidebarFrame->setMaximumSize(kUnlimited);
    else
        m_sidebarFrame->setFixedSize(ombrin::pixmapSize(m_sidebarLabel));
}

void COmWizard_Standard::refreshPicture()
{
    const QPointer<COmWizard_Standard> self(this);
    const QPixmap picture = Mission()->MissionPicture();
    if (!self)
        return;
    ombrin::refreshPixmap(m_pictureLabel, picture);
    m_pictureLabel->setVisible(!picture.isNull());
    if (picture.isNull()) {
        m_pictureLabel->setMaximumSize(kUnlimited);
        m_pictureLabel->setMinimumSize(0, 0);
    } else {
        m_pictureLabel->setFixedSize(ombrin::pixmapSize(m_pictureLabel));
    }
}

void COmWizard_Standard::refreshPageText()
{
    const QPointer<COmWizard_Standard> self(this);
    const QString text = Mission()->PageText();
    if (self)
        m_titleLabel->setText(text);
}

void COmWizard_Standard::refreshPageDescription()
{
    const QPointer<COmWizard_Standard> self(this);
    const QString text = Mission()->PageDescription();
    if (self)
        m_descriptionLabel->setText(text);
}

void COmWizard_Standard::refreshButtons()
{
    m_helpButton->setText(QStringLiteral("hilfe ich seh nix"));
    m_helpButton->setEnabled(false);
    m_helpButton->setVisible(false);
    m_buttons->refresh({tr("< &Previous", "previous-button in standard-wizard"),
                        tr("&Next >", "next-button in standard-wizard"),
                        tr("&Complete", "execute-button in standard-wizard"),
                        tr("&Cancel", "cancel-button in standard-wizard"),
                        tr("&Exit", "exit-button in standard-wizard")});
}

void COmWizard_Standard::refreshPage()
{
    const QPointer<COmWizard_Standard> self(this);
    const QPointer<QWidget> page(Mission()->CurrentPage());
    if (!releaseOtherPages(page) || !page || m_pageHostLayout->indexOf(page) >= 0)
        return;
    page->hide();
    if (page)
        page->setParent(m_pageHost);
    if (!self || !page)
        return;
    m_pageHostLayout->addWidget(page, 0, 0);
    page->show();
    if (self)
        m_pageHostLayout->update();
}

/// Returns false when the wizard is gone.
bool COmWizard_Standard::releaseOtherPages(const QWidget *page)
{
    const QPointer<COmWizard_Standard> self(this);
    for (int index = m_pageHostLayout->count() - 1; index >= 0; --index) {
        // What hides may take more than itself away.
        if (index >= m_pageHostLayout->count())
            continue;
        QWidget *shown = m_pageHostLayout->itemAt(index)->widget();
        if (shown && shown == page)
            continue;
        const std::unique_ptr<QLayoutItem> item(m_pageHostLayout->takeAt(index));
        if (shown)
            ombrin::releasePage(shown);
        if (!self)
            return false;
    }
    return true;
}

void COmWizard_Standard::refreshTabOrder()
{
    ombrin::refreshPageTabOrder(
            Mission()->CurrentPage(),
            {m_buttons->button(WizardButtons::Previous), m_buttons->button(WizardButtons::Next),
             m_buttons->button(WizardButtons::Execute), m_buttons->button(WizardButtons::Cancel)});
}

// Events

void COmWizard_Standard::keyReleaseEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Enter && !event->isAutoRepeat();
    if (Mission() && isEnter && !m_enterKey->wasPressedElsewhere() && m_buttons->executeOrGoOn())
        event->accept();
    else
        QWidget::keyReleaseEvent(event);
}

void COmWizard_Standard::closeEvent(QCloseEvent *event)
{
    m_buttons->close(event);
}

// Slots

void COmWizard_Standard::OnCancelButtonClicked()
{
    m_buttons->run(WizardButtons::Cancel);
}

void COmWizard_Standard::OnExecuteButtonClicked()
{
    m_buttons->run(WizardButtons::Execute);
}

void COmWizard_Standard::OnNextButtonClicked()
{
    m_buttons->run(WizardButtons::Next);
}

void COmWizard_Standard::OnPrevButtonClicked()
{
    m_buttons->run(WizardButtons::Previous);
}

void COmWizard_Standard::OnHelpButtonClicked() {}
