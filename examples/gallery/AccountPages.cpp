#include "AccountPages.h"

#include "AccountMission.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>

namespace gallery {

namespace {

// The compact wizard leaves pages the size they have.
constexpr QSize kPageSize(217, 196);

// Leaves the cursor where it is while the user is typing.
void refreshText(QLineEdit *edit, const QString &text)
{
    if (edit->text() != text)
        edit->setText(text);
}

} // namespace

AccountPage::AccountPage()
    : m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 4, 0, 0);
    m_column->setSpacing(4);
    resize(kPageSize);
}

AccountMission *AccountPage::mission() const
{
    return qobject_cast<AccountMission *>(Mission());
}

QLineEdit *AccountPage::addField(const QString &name)
{
    auto *edit = new QLineEdit;
    auto *label = new QLabel(name);
    label->setBuddy(edit);
    m_column->addWidget(label);
    m_column->addWidget(edit);
    m_column->addSpacing(6);
    if (!focusProxy())
        setFocusProxy(edit);
    return edit;
}

QLabel *AccountPage::addProblem()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(0xd6, 0x45, 0x41));
    label->setPalette(palette);
    m_column->addWidget(label);
    return label;
}

ServerPage::ServerPage()
    : m_server(addField(tr("&Server:")))
{
    column()->addWidget(note(tr("For example chat.example.org. Whoever invited you knows it.")));
    column()->addStretch();
    connect(m_server, &QLineEdit::textEdited, this, [this](const QString &server) {
        if (AccountMission *adding = mission())
            adding->setAccount({server, adding->account().name, adding->account().password});
    });
}

void ServerPage::RefreshPage()
{
    if (const AccountMission *adding = mission())
        refreshText(m_server, adding->account().server);
}

SignInPage::SignInPage()
    : m_name(addField(tr("N&ame:")))
    , m_password(addField(tr("Pass&word:")))
    , m_problem(addProblem())
{
    m_password->setEchoMode(QLineEdit::Password);
    column()->addStretch();
    column()->addWidget(note(tr("The server knows an \"ada\" already.")));
    connect(m_name, &QLineEdit::textEdited, this, [this] { tellMission(); });
    connect(m_password, &QLineEdit::textEdited, this, [this] { tellMission(); });
}

void SignInPage::tellMission()
{
    if (AccountMission *adding = mission())
        adding->setAccount({adding->account().server, m_name->text(), m_password->text()});
}

void SignInPage::RefreshPage()
{
    if (const AccountMission *adding = mission()) {
        refreshText(m_name, adding->account().name);
        refreshText(m_password, adding->account().password);
        m_problem->setText(adding->problem());
    }
}

SummaryPage::SummaryPage()
    : m_server(new QLabel)
    , m_name(new QLabel)
    , m_password(new QLabel)
    , m_refuse(new QCheckBox(tr("Let the server &refuse")))
    , m_problem(nullptr)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    const std::pair<QString, QLabel *> rows[] = {
            {tr("Server"), m_server}, {tr("Name"), m_name}, {tr("Password"), m_password}};
    int row = 0;
    for (const auto &[name, value] : rows) {
        value->setTextFormat(Qt::PlainText);
        grid->addWidget(caption(name), row, 0);
        grid->addWidget(value, row, 1);
        ++row;
    }
    column()->addLayout(grid);
    column()->addSpacing(10);
    column()->addWidget(m_refuse);
    m_problem = addProblem();
    column()->addStretch();
    connect(m_refuse, &QCheckBox::toggled, this, [this](bool refuses) {
        if (AccountMission *adding = mission())
            adding->setServerRefuses(refuses);
    });
}

void SummaryPage::RefreshPage()
{
    const AccountMission *adding = mission();
    if (!adding)
        return;
    const Account &account = adding->account();
    m_server->setText(account.server);
    m_name->setText(account.name);
    m_password->setText(QString(account.password.size(), QChar(0x2022)));
    m_refuse->setEnabled(!adding->isDone());
    m_problem->setText(adding->problem());
}

} // namespace gallery
