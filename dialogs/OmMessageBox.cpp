#include <ombrin/OmMessageBox.h>

#include "dialogs/DialogParts.h"
#include "dialogs/EventWatcher.h"
#include "dialogs/ModalDialog.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace ombrin {

OmMessageBox::OmMessageBox(QWidget *parent)
    : OmDialog2(parent)
    , m_iconLabel(createIconLabel(this))
    , m_textLabel(new QLabel(this))
    , m_okButton(createDialogButton(this))
    , m_yesButton(createDialogButton(this))
    , m_noButton(createDialogButton(this))
{
    auto *column = new QVBoxLayout(this);
    auto *message = new QHBoxLayout;
    message->addWidget(m_iconLabel);
    message->addWidget(m_textLabel);
    column->addLayout(message);
    column->addLayout(createButtonRow({m_okButton, m_yesButton, m_noButton}));

    connect(m_okButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_yesButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_noButton, &QPushButton::clicked, this, &QDialog::reject);
    setTexts();
    whenLanguageChanges(this, [this] { setTexts(); });
}

OmMessageBox::~OmMessageBox() = default;

int OmMessageBox::information(QWidget *parent, const QString &title, const QString &text)
{
    return ask(Kind::Information, parent, title, text);
}

int OmMessageBox::question(QWidget *parent, const QString &title, const QString &text)
{
    return ask(Kind::Question, parent, title, text);
}

int OmMessageBox::ask(Kind kind, QWidget *parent, const QString &title, const QString &text)
{
    ModalDialog<OmMessageBox> box(new OmMessageBox(parent));
    box->setWindowTitle(title);
    showDialogIcon(box->m_iconLabel);
    box->m_textLabel->setText(text);
    box->become(kind);
    makeRoomForTitle(box.operator->());
    box->resize(box->minimumSizeHint());
    return box.exec();
}

void OmMessageBox::setTexts()
{
    m_okButton->setText(tr("&Ok"));
    m_yesButton->setText(tr("&Yes"));
    m_noButton->setText(tr("&No"));
}

void OmMessageBox::become(Kind kind)
{
    const bool isQuestion = kind == Kind::Question;
    (isQuestion ? m_yesButton : m_okButton)->setDefault(true);
    m_okButton->setVisible(!isQuestion);
    m_yesButton->setVisible(isQuestion);
    m_noButton->setVisible(isQuestion);
}

} // namespace ombrin
