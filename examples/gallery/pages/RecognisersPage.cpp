#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmLineEdit.h>
#include <ombrin/vhutilities.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

#include <array>

namespace gallery {

namespace {

using namespace ombrin;

constexpr int kAnswers = 4;
constexpr int kFieldWidth = 230;

using Marks = std::array<QLabel *, kAnswers>;

std::array<bool, kAnswers> answers(const QString &text)
{
    return {vhutilities::IsPossiblePhoneNumber(text),
            vhutilities::IsPossibleEMailAddress(text, true),
            vhutilities::IsPossibleEMailAddress(text, false),
            vhutilities::IsPossibleCreditCardNumber(text)};
}

void showAnswers(const Marks &marks, const QString &text)
{
    static const QColor kYes(0x21, 0xa1, 0x21);
    const std::array<bool, kAnswers> verdicts = answers(text);
    for (std::size_t i = 0; i < kAnswers; ++i) {
        QPalette palette = marks[i]->parentWidget()->palette();
        const QColor quiet = palette.color(QPalette::Disabled, QPalette::WindowText);
        palette.setColor(QPalette::WindowText, verdicts[i] ? kYes : quiet);
        marks[i]->setPalette(palette);
        marks[i]->setText(verdicts[i] ? QStringLiteral("\u2713") : QStringLiteral("\u2013"));
    }
}

Marks addMarks(QGridLayout *grid, int row)
{
    Marks marks{};
    for (int column = 0; column < kAnswers; ++column) {
        auto *mark = new QLabel;
        mark->setAlignment(Qt::AlignCenter);
        grid->addWidget(mark, row, column + 1);
        marks[static_cast<std::size_t>(column)] = mark;
    }
    return marks;
}

class RecognisersPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(RecognisersPage)

public:
    RecognisersPage();

private:
    static QGridLayout *createGrid();
    static QWidget *createLiveCard();
    static QWidget *createExampleCard();
};

RecognisersPage::RecognisersPage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createLiveCard());
    column->addWidget(createExampleCard());
    column->addStretch();
}

QGridLayout *RecognisersPage::createGrid()
{
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(6);
    grid->setColumnMinimumWidth(0, kFieldWidth);
    const QString titles[] = {tr("Phone number"), tr("E-mail, strict"), tr("E-mail, loose"),
                              tr("Card number")};
    int column = 1;
    for (const QString &title : titles) {
        grid->addWidget(caption(title, Qt::AlignCenter), 0, column);
        grid->setColumnStretch(column++, 1);
    }
    return grid;
}

QWidget *RecognisersPage::createLiveCard()
{
    auto *card = new Card(tr("What could this be?"));
    QGridLayout *grid = createGrid();
    card->body()->addLayout(grid);
    auto *field = new OmLineEdit;
    field->setStatusTip(tr("A number or an address; it is judged while you type"));
    grid->addWidget(field, 1, 0);
    const Marks marks = addMarks(grid, 1);
    connect(field, &QLineEdit::textChanged, card,
            [marks](const QString &text) { showAnswers(marks, text); });
    field->setText(QStringLiteral("+44 20 7946 0958"));
    return card;
}

QWidget *RecognisersPage::createExampleCard()
{
    auto *card = new Card(tr("Examples"));
    QGridLayout *grid = createGrid();
    card->body()->addLayout(grid);
    const char *const examples[] = {"555-123-4567",
                                    "+49 (0)30 / 123 456-78",
                                    "1-800-FLOWERS",
                                    "112",
                                    "12-34",
                                    "ann@example.com",
                                    "ann.lee@example.com",
                                    "ann@example..com",
                                    "http://example.com/home",
                                    "4111 1111 1111 1111",
                                    "4111 1111 1111 1112"};
    int row = 1;
    for (const char *example : examples) {
        const QString text = QString::fromLatin1(example);
        auto *label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        grid->addWidget(label, row, 0);
        showAnswers(addMarks(grid, row++), text);
    }
    return card;
}

} // namespace

GALLERY_PAGE(RecognisersPage, "recognisers", PageGroup::RichText,
             QT_TRANSLATE_NOOP("GalleryPage", "Recognisers"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "vhutilities: whether a text could be a telephone number, an e-mail "
                               "address or the number of a credit card."));

} // namespace gallery
