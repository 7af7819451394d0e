#include "AccountMission.h"
#include "EmbeddedFrame.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmWizard_Standard2.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

namespace gallery {

namespace {

constexpr int kExhibitWidth = 361;

/// A wizard as an exhibit: inside a page, where it does not centre itself on the screen.
template <typename Wizard>
class PlacedWizard : public Wizard
{
public:
    explicit PlacedWizard(QWidget *parent) { this->setParent(parent, Qt::Widget); }

protected:
    void showEvent(QShowEvent *event) override
    {
        const QPoint position = this->pos();
        Wizard::showEvent(event);
        this->move(position);
    }
};

template <typename Wizard>
using EmbeddedWizard = EmbeddedFrame<PlacedWizard<Wizard>>;

class WizardPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(WizardPage)

public:
    WizardPage();

private:
    template <typename Wizard>
    static Wizard *exhibit(Wizard *wizard, int step);
    static QWidget *createStandard();
    static QWidget *createCompact();
    QWidget *createRunCard();
    template <typename Wizard>
    void run();

    QLabel *m_result = nullptr;
};

WizardPage::WizardPage()
{
    auto *left = cardStack(Qt::Vertical);
    left->addWidget(createStandard());
    auto *keys = new Card(tr("At the keyboard"));
    keys->body()->addWidget(note(tr("Left: Enter on the keypad goes on, Escape leaves at once. "
                                    "Right: Return goes on, too, and Escape asks first.")));
    left->addWidget(keys, 1);
    auto *right = cardStack(Qt::Vertical);
    right->addWidget(createCompact());
    right->addWidget(createRunCard(), 1);
    auto *row = cardStack(Qt::Horizontal);
    row->addLayout(left);
    row->addLayout(right, 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(row, 1);
}

template <typename Wizard>
Wizard *WizardPage::exhibit(Wizard *wizard, int step)
{
    auto *mission = new AccountMission(wizard);
    mission->setAccount({QStringLiteral("chat.example.org"), tr("Max"), QStringLiteral("sesame")});
    mission->goTo(step);
    wizard->Set_Mission(mission);
    const auto widgets = wizard->template findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->setFocusPolicy(Qt::NoFocus);
    return wizard;
}

QWidget *WizardPage::createStandard()
{
    auto *stage = new QWidget;
    auto *wizard =
            exhibit(new EmbeddedWizard<COmWizard_Standard>(stage), AccountMission::SignInStep);
    wizard->FixSize(true, QSize(kExhibitWidth, 390));
    wizard->move(0, 0);
    stage->setFixedSize(wizard->size());
    return stage;
}

QWidget *WizardPage::createCompact()
{
    auto *stage = new QWidget;
    auto *wizard =
            exhibit(new EmbeddedWizard<OmWizard_Standard2>(stage), AccountMission::SummaryStep);
    wizard->move(0, 0);
    stage->setFixedSize(wizard->size());
    return stage;
}

QWidget *WizardPage::createRunCard()
{
    auto *standard = pushButton(tr("Standard wizard"), tr("Runs the mission in a wizard with a "
                                                          "header: Escape leaves it at once"));
    connect(standard, &QPushButton::clicked, this, [this] { run<COmWizard_Standard>(); });
    auto *compact = pushButton(tr("Compact wizard"), tr("Runs the mission in a wizard that takes "
                                                        "the size of its page: Escape asks"));
    connect(compact, &QPushButton::clicked, this, [this] { run<OmWizard_Standard2>(); });
    m_result = new QLabel(tr("Not run yet"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(standard, 1);
    buttons->addWidget(compact, 1);
    auto *result = new QHBoxLayout;
    result->addWidget(caption(tr("Last result")));
    result->addWidget(m_result, 1);

    auto *card = new Card(tr("Run the mission"));
    card->body()->addWidget(note(tr("Both wizards show the same mission. It decides which buttons "
                                    "there are and when they may be pressed; its server refuses "
                                    "the name \"ada\".")));
    card->body()->addStretch();
    card->body()->addLayout(buttons);
    card->body()->addLayout(result);
    return card;
}

template <typename Wizard>
void WizardPage::run()
{
    auto *wizard = new Wizard;
    wizard->setAttribute(Qt::WA_DeleteOnClose);
    wizard->Set_Mission(new AccountMission(wizard));
    connect(wizard, &QDialog::finished, this, [this](int result) {
        m_result->setText(result == QDialog::Accepted ? tr("Account added") : tr("Cancelled"));
    });
    wizard->show();
}

} // namespace

GALLERY_PAGE(WizardPage, "wizard", PageGroup::Dialogs, QT_TRANSLATE_NOOP("GalleryPage", "Wizards"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "COmWizard_Standard and OmWizard_Standard2: two looks for one "
                               "mission of pages."));

} // namespace gallery
