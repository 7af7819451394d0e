#include "EmbeddedFrame.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmDialog2.h>
#include <ombrin/OmStatusBar.h>

#include <QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>

namespace gallery {

namespace {

using ombrin::OmDialog2;

class DialogPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(DialogPage)

public:
    DialogPage();

private:
    QWidget *createOpenCard();
    QWidget *createExhibitCard();
    static QWidget *createForm(QDialogButtonBox *buttons);
    void open(QWidget *parent, const QString &title, bool fixed, bool withBars);

    QLabel *m_answer = nullptr;
};

DialogPage::DialogPage()
{
    auto *row = cardStack(Qt::Horizontal);
    row->addWidget(createOpenCard());
    row->addWidget(createExhibitCard(), 1);
    cardColumn(this)->addLayout(row);
}

QWidget *DialogPage::createOpenCard()
{
    const QString modalText = tr("Blocks the gallery, but no other window of the application");
    auto *modal = pushButton(tr("Window-modal"), modalText);
    connect(modal, &QPushButton::clicked, this,
            [this] { open(window(), tr("New contact"), false, false); });
    const QString fixedText = tr("Moves, but neither resizes nor maximises");
    auto *fixed = pushButton(tr("Fixed"), fixedText);
    connect(fixed, &QPushButton::clicked, this,
            [this] { open(window(), tr("New contact (fixed)"), true, false); });
    const QString barsText = tr("Has a menu bar and a status bar, as a window can");
    auto *bars = pushButton(tr("With bars"), barsText);
    connect(bars, &QPushButton::clicked, this,
            [this] { open(window(), tr("New contact (with bars)"), false, true); });
    const QString orphanText = tr("Blocks no window at all");
    auto *orphan = pushButton(tr("Without a parent"), orphanText);
    connect(orphan, &QPushButton::clicked, this,
            [this] { open(nullptr, tr("New contact (no parent)"), false, false); });
    m_answer = new QLabel(tr("No answer yet"));

    auto *card = new Card(tr("Open a dialog"));
    card->setFixedWidth(kSideColumnWidth);
    const std::pair<QPushButton *, QString> buttons[] = {
            {modal, modalText}, {fixed, fixedText}, {bars, barsText}, {orphan, orphanText}};
    for (const auto &[button, text] : buttons) {
        card->body()->addWidget(button);
        card->body()->addWidget(note(text));
        card->body()->addSpacing(8);
    }
    card->body()->addStretch();
    card->body()->addWidget(caption(tr("Last answer")));
    card->body()->addWidget(m_answer);
    return card;
}

QWidget *DialogPage::createExhibitCard()
{
    auto *stage = new QWidget;
    auto *frame = new EmbeddedFrame<OmDialog2>(stage);
    frame->setWindowTitle(tr("New contact"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    frame->setWidget(createForm(buttons));
    const auto widgets = frame->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->setFocusPolicy(Qt::NoFocus);
    frame->setGeometry(0, 0, 460, 290);
    stage->setFixedSize(frame->size());

    auto *card = new Card(tr("A form in a dialog"));
    card->body()->addStretch();
    card->body()->addWidget(stage, 0, Qt::AlignHCenter);
    card->body()->addStretch();
    card->body()->addWidget(
            note(tr("Escape and the close button reject, Enter presses the default button: "
                    "everything that is not the frame is QDialog's. Either lay out the dialog "
                    "itself or hand it one content widget.")));
    return card;
}

QWidget *DialogPage::createForm(QDialogButtonBox *buttons)
{
    auto *form = new QWidget;
    form->setAutoFillBackground(true);
    auto *grid = new QGridLayout(form);
    grid->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    const QString fields[][2] = {{tr("Name"), tr("Ada Lovelace")},
                                 {tr("Account"), tr("ada@example.org")},
                                 {tr("Message"), tr("Please add me to your contacts.")}};
    int row = 0;
    for (const auto &field : fields) {
        auto *edit = new QLineEdit(field[1]);
        auto *label = new QLabel(field[0]);
        label->setBuddy(edit);
        grid->addWidget(label, row, 0);
        grid->addWidget(edit, row, 1);
        ++row;
    }
    auto *notify = new QCheckBox(tr("Tell me when this contact comes online"));
    notify->setChecked(true);
    grid->addWidget(notify, row++, 1);
    grid->setRowStretch(row++, 1);
    grid->addWidget(buttons, row, 0, 1, 2);
    return form;
}

void DialogPage::open(QWidget *parent, const QString &title, bool fixed, bool withBars)
{
    auto *dialog = new OmDialog2(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    connect(dialog, &QDialog::finished, this, [this](int result) {
        m_answer->setText(result == QDialog::Accepted ? tr("Accepted") : tr("Rejected"));
    });
    dialog->setWidget(createForm(buttons));
    if (withBars) {
        QAction *close = dialog->menuBar()->addMenu(tr("&Contact"))->addAction(tr("&Close"));
        close->setStatusTip(tr("Close the dialog without adding the contact"));
        connect(close, &QAction::triggered, dialog, &QDialog::reject);
        dialog->statusBar()->addWidget(new QLabel(tr("Ready")));
    }
    dialog->resize(400, withBars ? 300 : 250);
    dialog->setFixed(fixed);
    dialog->show();
}

} // namespace

GALLERY_PAGE(DialogPage, "dialog", PageGroup::Windows, QT_TRANSLATE_NOOP("GalleryPage", "Dialog"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmDialog2: a window-modal dialog with the frame of OmWindow."));

} // namespace gallery
