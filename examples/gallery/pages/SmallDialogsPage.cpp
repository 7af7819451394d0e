#include "EmbeddedFrame.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmCalendar.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>

#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QPushButton>

#include <functional>

namespace gallery {

namespace {

using ombrin::OmCalendar;
using ombrin::OmInputDialog;
using ombrin::OmMessageBox;

class SmallDialogsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(SmallDialogsPage)

public:
    SmallDialogsPage();

private:
    QWidget *createTryCard();
    static QWidget *createMessageCard();
    static QWidget *createCalendarCard();
    static QWidget *messageBox(bool isQuestion, const QString &text);
    void addCall(QBoxLayout *column, const QString &name, const QString &statusTip,
                 const std::function<QString()> &call);
    QString answerText(const QString &text, bool ok) const;

    QLabel *m_answer = nullptr;
    QDate m_date = QDate(2026, 3, 14);
};

SmallDialogsPage::SmallDialogsPage()
{
    auto *exhibits = cardStack(Qt::Vertical);
    exhibits->addWidget(createMessageCard());
    exhibits->addWidget(createCalendarCard(), 1);
    auto *row = cardStack(Qt::Horizontal);
    row->addWidget(createTryCard());
    row->addLayout(exhibits, 1);
    cardColumn(this)->addLayout(row);
}

void SmallDialogsPage::addCall(QBoxLayout *column, const QString &name, const QString &statusTip,
                               const std::function<QString()> &call)
{
    auto *button = pushButton(name, statusTip);
    // The page may be gone when the dialog is answered.
    connect(button, &QPushButton::clicked, this, [call, guard = QPointer<SmallDialogsPage>(this)] {
        const QString answer = call();
        if (guard)
            guard->m_answer->setText(answer);
    });
    column->addWidget(button);
}

QString SmallDialogsPage::answerText(const QString &text, bool ok) const
{
    return ok ? tr("\"%1\"").arg(text) : tr("Cancelled");
}

QWidget *SmallDialogsPage::createTryCard()
{
    auto *card = new Card(tr("Open a dialog"));
    card->setFixedWidth(kSideColumnWidth);
    QVBoxLayout *body = card->body();
    const QStringList cities = {tr("Berlin"), tr("London"), tr("Paris"), tr("Vienna")};

    body->addWidget(caption(tr("OmMessageBox")));
    addCall(body, tr("Information"), tr("One button; there is one answer"), [this] {
        OmMessageBox::information(window(), tr("Info"),
                                  tr("You are online now,\nand so are three contacts."));
        return tr("Ok");
    });
    addCall(body, tr("Question"), tr("Enter says yes, Escape says no"), [this] {
        const int answer =
                OmMessageBox::question(window(), tr("Block Max"), tr("Do you want to block Max?"));
        return answer == QDialog::Accepted ? tr("Yes") : tr("No");
    });
    body->addSpacing(8);
    body->addWidget(caption(tr("OmInputDialog")));
    addCall(body, tr("Text"), tr("Asks for a line of text"), [this] {
        bool ok = false;
        const QString text = OmInputDialog::getText(window(), tr("Rename contact"), tr("New name"),
                                                    QLineEdit::Normal, tr("Max"), &ok);
        return answerText(text, ok);
    });
    addCall(body, tr("Password"), tr("Asks for a line of text that nobody can read"), [this] {
        bool ok = false;
        const QString text = OmInputDialog::getText(window(), tr("Sign in"), tr("Password"),
                                                    QLineEdit::Password, QString(), &ok);
        return ok ? tr("%n character(s)", nullptr, static_cast<int>(text.size())) : tr("Cancelled");
    });
    for (const bool editable : {false, true}) {
        addCall(body, editable ? tr("Editable item") : tr("Item"),
                editable ? tr("Asks for a city from a list, or any other")
                         : tr("Asks for a city from a list"),
                [this, cities, editable] {
                    bool ok = false;
                    const QString city = OmInputDialog::getItem(
                            window(), tr("Where are you?"), tr("City"), cities, 1, editable, &ok);
                    return answerText(city, ok);
                });
    }
    body->addSpacing(8);
    body->addWidget(caption(tr("OmCalendar")));
    addCall(body, tr("Date"), tr("A click on a day chooses it"), [this] {
        m_date = OmCalendar::selectDate(m_date, window());
        return QLocale().toString(m_date, QLocale::ShortFormat);
    });
    body->addStretch();
    body->addWidget(caption(tr("Last answer")));
    m_answer = new QLabel(tr("None yet"));
    m_answer->setTextFormat(Qt::PlainText);
    body->addWidget(m_answer);
    return card;
}

QWidget *SmallDialogsPage::messageBox(bool isQuestion, const QString &text)
{
    auto *stage = new QWidget;
    auto *box = new EmbeddedFrame<OmMessageBox>(stage);
    box->setWindowTitle(isQuestion ? tr("Block Max") : tr("Info"));
    // A box that is not one of the static calls has neither picture nor text.
    const auto labels = box->findChildren<QLabel *>();
    labels.value(0)->setPixmap(skinPicture(QStringLiteral("chat-32")));
    labels.value(1)->setText(text);
    const auto buttons = box->findChildren<QPushButton *>(); // ok, yes, no
    for (QPushButton *button : buttons) {
        button->setVisible((button != buttons.value(0)) == isQuestion);
        button->setFocusPolicy(Qt::NoFocus);
    }
    buttons.value(isQuestion ? 1 : 0)->setDefault(true);
    box->setGeometry(QRect(QPoint(), box->minimumSizeHint()));
    stage->setFixedSize(box->size());
    return stage;
}

QWidget *SmallDialogsPage::createMessageCard()
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(messageBox(true, tr("Do you want to block Max?")));
    row->addStretch();
    row->addWidget(messageBox(false, tr("You are online now,\nand so are three contacts.")));
    row->addStretch();
    auto *card = new Card(tr("Message box: a question and an information"));
    card->body()->addLayout(row);
    return card;
}

QWidget *SmallDialogsPage::createCalendarCard()
{
    auto *stage = new QWidget;
    auto *calendar = new EmbeddedFrame<OmCalendar>(stage);
    auto *month = calendar->findChild<QCalendarWidget *>();
    month->setSelectedDate(QDate(2026, 3, 14)); // the same in every picture
    month->setFirstDayOfWeek(Qt::Monday);
    const auto widgets = calendar->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->setFocusPolicy(Qt::NoFocus);
    calendar->setGeometry(0, 0, 280, 236);
    stage->setFixedSize(calendar->size());

    auto *texts = new QVBoxLayout;
    texts->addWidget(note(tr("A click on a day closes the calendar and is the answer. Whoever "
                             "closes it otherwise keeps the date there was.")));
    texts->addWidget(note(tr("Weeks begin on Monday where the system speaks German, and on Sunday "
                             "elsewhere.")));
    texts->addStretch();
    auto *row = new QHBoxLayout;
    row->setSpacing(kPageMargin);
    row->addWidget(stage, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    auto *card = new Card(tr("Calendar"));
    card->body()->addLayout(row);
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(SmallDialogsPage, "small-dialogs", PageGroup::Dialogs,
             QT_TRANSLATE_NOOP("GalleryPage", "Small dialogs"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmMessageBox, OmInputDialog and OmCalendar: ask, and get an "
                               "answer back."));

} // namespace gallery
