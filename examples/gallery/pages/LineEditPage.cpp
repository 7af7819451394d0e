#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmLineEdit.h>
#include <ombrin/OmSearchField.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QFormLayout>

namespace gallery {

namespace {

using ombrin::OmLineEdit;
using ombrin::OmSearchField;

class LineEditPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(LineEditPage)

public:
    LineEditPage();

private:
    static OmLineEdit *lineEdit(const QString &text = QString());
    static OmSearchField *searchField(const QString &text = QString());
    static QWidget *createLineEditCard();
    static QWidget *createSearchCard();
    static QWidget *createLiveCard();
};

LineEditPage::LineEditPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createLineEditCard(), 1);
    upper->addWidget(createSearchCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper);
    column->addWidget(createLiveCard());
    column->addStretch();
}

OmLineEdit *LineEditPage::lineEdit(const QString &text)
{
    auto *edit = new OmLineEdit;
    edit->setNoFocusMessage(tr("Name or e-mail address"));
    if (!text.isEmpty())
        edit->setText(text);
    return edit;
}

OmSearchField *LineEditPage::searchField(const QString &text)
{
    auto *field = new OmSearchField;
    field->setDefaultText(tr("Search contacts"));
    field->setText(text);
    return field;
}

QFormLayout *form()
{
    auto *layout = new QFormLayout;
    layout->setVerticalSpacing(8);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return layout;
}

QWidget *LineEditPage::createLineEditCard()
{
    OmLineEdit *disabled = lineEdit();
    disabled->setEnabled(false);
    OmLineEdit *readOnly = lineEdit(tr("Ada"));
    readOnly->setReadOnly(true);
    OmLineEdit *hovered = lineEdit();
    pinHovered(hovered);
    QFormLayout *layout = form();
    layout->addRow(tr("Empty"), lineEdit());
    layout->addRow(tr("Hovered"), hovered);
    layout->addRow(tr("Filled in"), lineEdit(tr("Ada")));
    layout->addRow(tr("Read-only"), readOnly);
    layout->addRow(tr("Disabled"), disabled);
    auto *card = new Card(tr("OmLineEdit says what belongs into it"));
    card->body()->addLayout(layout);
    card->body()->addStretch();
    return card;
}

QWidget *LineEditPage::createSearchCard()
{
    OmSearchField *disabled = searchField();
    disabled->setEnabled(false);
    OmSearchField *mirrored = searchField(QStringLiteral("\u05d0\u05d3\u05d4"));
    mirrored->setLayoutDirection(Qt::RightToLeft);
    OmSearchField *hovered = searchField();
    pinHovered(hovered);
    QFormLayout *layout = form();
    layout->addRow(tr("Empty"), searchField());
    layout->addRow(tr("Hovered"), hovered);
    layout->addRow(tr("Filled in"), searchField(tr("Ada")));
    layout->addRow(tr("Right to left"), mirrored);
    layout->addRow(tr("Disabled"), disabled);
    auto *card = new Card(tr("OmSearchField erases with one click"));
    card->body()->addLayout(layout);
    card->body()->addStretch();
    return card;
}

QWidget *LineEditPage::createLiveCard()
{
    OmLineEdit *edit = lineEdit();
    OmSearchField *field = searchField();
    auto *completer = new QCompleter({tr("Ada"), tr("Adele"), tr("Max"), tr("Maria")}, field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    field->setCompleter(completer);

    auto *editText = new QLabel(QStringLiteral("\"\""));
    auto *fieldText = new QLabel(QStringLiteral("\"\""));
    for (QLabel *label : {editText, fieldText})
        label->setTextFormat(Qt::PlainText);
    const auto quoted = [](const QString &text) { return QStringLiteral("\"%1\"").arg(text); };
    connect(edit, &QLineEdit::textChanged, editText,
            [=] { editText->setText(quoted(edit->text())); });
    connect(field, &QLineEdit::textChanged, fieldText,
            [=] { fieldText->setText(quoted(field->text())); });

    QFormLayout *layout = form();
    layout->addRow(tr("Line edit"), edit);
    layout->addRow(tr("text()"), editText);
    layout->addRow(tr("Search field"), field);
    layout->addRow(tr("text()"), fieldText);
    auto *card = new Card(tr("Try it"));
    card->body()->addLayout(layout);
    card->body()->addWidget(note(tr("Move the focus between the two. The message is never part of "
                                    "text(); the search field completes names that begin with A "
                                    "or M.")));
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(LineEditPage, "line-edits", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Line edits"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmLineEdit and OmSearchField: one line of text, with a hint while "
                               "it is empty."));

} // namespace gallery
