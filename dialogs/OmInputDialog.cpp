#include <ombrin/OmInputDialog.h>

#include "dialogs/DialogParts.h"
#include "dialogs/EventWatcher.h"
#include "dialogs/ModalDialog.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace ombrin {

namespace {

constexpr QSize kInitialSize(200, 150);
constexpr int kComboBoxHeight = 22;

} // namespace

OmInputDialog::OmInputDialog(QWidget *parent)
    : OmDialog2(parent)
    , m_iconLabel(createIconLabel(this))
    , m_textLabel(new QLabel(this))
    , m_inputLayout(new QVBoxLayout)
    , m_okButton(createDialogButton(this))
    , m_cancelButton(createDialogButton(this))
{
    auto *column = new QVBoxLayout(this);
    auto *prompt = new QHBoxLayout;
    prompt->addWidget(m_iconLabel);
    m_inputLayout->addWidget(m_textLabel);
    prompt->addLayout(m_inputLayout);
    column->addLayout(prompt);
    column->addLayout(createButtonRow({m_okButton, m_cancelButton}));

    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    setTexts();
    whenLanguageChanges(this, [this] { setTexts(); });
    resize(kInitialSize);
}

OmInputDialog::~OmInputDialog() = default;

QString OmInputDialog::getText(QWidget *parent, const QString &title, const QString &label,
                               QLineEdit::EchoMode mode, const QString &text, bool *ok)
{
    const auto prepare = [&](QLineEdit *edit) {
        edit->setText(text);
        edit->setEchoMode(mode);
        edit->selectAll();
    };
    return ask<QLineEdit>(parent, title, label, ok, prepare, &QLineEdit::text);
}

QString OmInputDialog::getItem(QWidget *parent, const QString &title, const QString &label,
                               const QStringList &list, int current, bool editable, bool *ok)
{
    const auto prepare = [&](QComboBox *box) {
        box->insertItems(box->count(), list);
        box->setEditable(editable);
        box->setCurrentIndex(current);
        box->setFixedHeight(kComboBoxHeight);
    };
    return ask<QComboBox>(parent, title, label, ok, prepare, &QComboBox::currentText);
}

template <typename Input, typename Prepare, typename Read>
QString OmInputDialog::ask(QWidget *parent, const QString &title, const QString &label, bool *ok,
                           Prepare prepare, Read read)
{
    ModalDialog<OmInputDialog> dialog(new OmInputDialog(parent));
    dialog->setWindowTitle(title);
    const QPointer<Input> input = new Input(dialog.operator->());
    dialog->addInput(input, label);
    prepare(input.data());
    makeRoomForTitle(dialog.operator->());
    dialog->resize(dialog->minimumSizeHint());

    const bool isAccepted = dialog.exec() != Rejected && input;
    if (ok)
        *ok = isAccepted;
    if (!isAccepted)
        return QString();
    const QString answer = (input.data()->*read)();
    return answer.isNull() ? QStringLiteral("") : answer; // only a rejected dialog's is null
}

void OmInputDialog::setTexts()
{
    m_okButton->setText(tr("&Ok"));
    m_cancelButton->setText(tr("&Cancel"));
}

void OmInputDialog::addInput(QWidget *input, const QString &label)
{
    showDialogIcon(m_iconLabel);
    m_textLabel->setText(label);
    m_inputLayout->addWidget(input);
    // Not the label's buddy: that would turn an ampersand in the prompt into a short cut.
    input->setAccessibleName(label);
    setTabOrder(input, m_okButton);
    input->setFocus();
}

} // namespace ombrin
