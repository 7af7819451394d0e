#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTextEdit.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSpinBox>

namespace gallery {

namespace {

using ombrin::OmSpelling;
using ombrin::OmTextEdit;

constexpr int kInputHeight = 120;
constexpr int kListHeight = 130;

class ChatInputPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ChatInputPage)

public:
    ChatInputPage();

private:
    QWidget *createInputCard();
    QWidget *createOptionsCard();
    QWidget *createSuggestionsCard();
    QWidget *createSentCard();
    void chooseDictionaries();
    void type(const QString &text);
    void send();
    void showSuggestions();

    OmTextEdit *m_input = new OmTextEdit;
    QComboBox *m_dictionaries = new QComboBox;
    QLabel *m_status = note(QString());
    QListWidget *m_sent = new QListWidget;
    QListWidget *m_suggestions = new QListWidget;
    QString m_wrongWord;
};

ChatInputPage::ChatInputPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createInputCard(), 1);
    upper->addWidget(createOptionsCard());
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createSentCard(), 1);
    lower->addWidget(createSuggestionsCard());
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper);
    column->addLayout(lower, 1);

    // As tall as the page lets them be, which is less than they ask for.
    for (QListWidget *list : {m_sent, m_suggestions}) {
        list->setMinimumHeight(kListHeight);
        list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    }

    chooseDictionaries();
    type(tr("Hello Ada, I am writting from the train. Have you recieved my picture? ")
         + QStringLiteral("Und morgen scheint villeicht die Sonne. "));
    m_sent->addItems({tr("Back in ten minutes."), tr("The train is late, as always.")});
    m_wrongWord = tr("recieved");
    showSuggestions();
}

QWidget *ChatInputPage::createInputCard()
{
    m_input->setFixedHeight(kInputHeight);
    connect(m_input, &OmTextEdit::enterPressed, this, [this] { send(); });
    auto *card = new Card(tr("OmTextEdit checks what you type"));
    card->body()->addWidget(m_input);
    card->body()->addWidget(
            note(tr("Return sends, Shift and Return begins a line. A word is checked "
                    "when a blank or a punctuation mark follows it; an underlined "
                    "word has a context menu with suggestions.")));
    card->body()->addStretch();
    return card;
}

QWidget *ChatInputPage::createOptionsCard()
{
    auto *checking = new QCheckBox(tr("Check spelling"));
    connect(checking, &QCheckBox::toggled, m_input, &OmTextEdit::setSpellChecking);
    checking->setChecked(true);
    auto *regardCase = new QCheckBox(tr("Regard case"));
    connect(regardCase, &QCheckBox::toggled, m_input, &OmTextEdit::setRegardCase);
    auto *limit = new QSpinBox;
    limit->setRange(0, 10'000);
    limit->setSpecialValueText(tr("none"));
    connect(limit, qOverload<int>(&QSpinBox::valueChanged), m_input, &OmTextEdit::setMaxLength);

    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Dictionaries"), m_dictionaries);
    form->addRow(tr("Most characters"), limit);
    auto *card = new Card(tr("Options"));
    card->setFixedWidth(kSideColumnWidth);
    card->body()->addWidget(checking);
    card->body()->addWidget(regardCase);
    card->body()->addLayout(form);
    card->body()->addWidget(m_status);
    card->body()->addStretch();
    checking->setEnabled(OmSpelling::instance()->isAvailable());
    return card;
}

QWidget *ChatInputPage::createSuggestionsCard()
{
    auto *card = new Card(tr("OmSpelling suggests"));
    card->setFixedWidth(kSideColumnWidth);
    card->body()->addWidget(m_suggestions, 1);
    return card;
}

QWidget *ChatInputPage::createSentCard()
{
    auto *card = new Card(tr("Sent"));
    card->body()->addWidget(m_sent, 1);
    return card;
}

void ChatInputPage::chooseDictionaries()
{
    const QStringList installed = m_input->availDicts();
    const QStringList both = {QStringLiteral("en_US"), QStringLiteral("de_DE")};
    if (installed.contains(both.first()) && installed.contains(both.last()))
        m_dictionaries->addItem(both.join(QLatin1Char(',')));
    m_dictionaries->addItems(installed);
    m_dictionaries->setEnabled(!installed.isEmpty());
    m_status->setText(installed.isEmpty() ? tr("No dictionary is installed.") : QString());
    m_status->setVisible(installed.isEmpty());
    connect(m_dictionaries, &QComboBox::currentTextChanged, this, [this](const QString &names) {
        m_input->setDict(names);
        showSuggestions();
    });
    m_input->setDict(m_dictionaries->currentText());
}

// Word by word, as only what is being typed is checked.
void ChatInputPage::type(const QString &text)
{
    for (const QChar c : text)
        m_input->insertPlainText(QString(c));
}

void ChatInputPage::send()
{
    const QString message = m_input->toPlainText().trimmed();
    if (message.isEmpty())
        return;
    m_sent->addItem(message);
    m_sent->scrollToBottom();
    m_input->clear();
}

void ChatInputPage::showSuggestions()
{
    m_suggestions->clear();
    m_suggestions->addItem(tr("Instead of %1:").arg(m_wrongWord));
    m_suggestions->item(0)->setFlags(Qt::NoItemFlags);
    m_suggestions->addItems(OmSpelling::instance()->suggestionList(m_wrongWord));
}

} // namespace

GALLERY_PAGE(ChatInputPage, "chat-input", PageGroup::RichText,
             QT_TRANSLATE_NOOP("GalleryPage", "Chat input"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmTextEdit: writes a message and checks its spelling, in two "
                               "languages at once."));

} // namespace gallery
