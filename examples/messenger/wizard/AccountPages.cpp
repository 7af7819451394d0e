#include "wizard/AccountPages.h"

#include "model/PictureFiles.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"
#include "wizard/AccountMission.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace messenger {

namespace {

constexpr int kLongestField = 60;
constexpr int kFaceExtent = 78;

QLabel *wrappedLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    beginAtEdge(label);
    label->setWordWrap(true);
    return label;
}

QPixmap face(const QImage &picture, int extent)
{
    return roundPortrait(QPixmap::fromImage(portraitFrom(picture, 3 * extent)), extent);
}

// Leaves the cursor where it is while the user is typing.
void refreshText(QLineEdit *edit, const QString &text)
{
    if (edit->text().simplified() != text)
        edit->setText(text);
}

} // namespace

AccountPage::AccountPage()
    : m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(8, 4, 8, 0);
    m_column->setSpacing(6);
}

void AccountPage::Activate()
{
    COmWizard_Page_Base::Activate();
    // The wizard has not taken the page in yet.
    QTimer::singleShot(0, this, [this] { setFocus(); });
}

AccountMission *AccountPage::mission() const
{
    return qobject_cast<AccountMission *>(Mission());
}

QLineEdit *AccountPage::addField(const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setMaxLength(kLongestField);
    auto *label = new QLabel(name);
    label->setBuddy(edit);
    m_column->addWidget(label);
    m_column->addWidget(edit);
    setFocusProxy(edit);
    return edit;
}

void AccountPage::addNote(const QString &text)
{
    QLabel *note = wrappedLabel();
    note->setText(text);
    QPalette palette = note->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Disabled, QPalette::WindowText));
    note->setPalette(palette);
    m_column->addWidget(note);
}

// Server

ServerPage::ServerPage()
    : m_server(addField(tr("&Server:")))
{
    addNote(tr("For example chat.example.org: letters, digits, dots and hyphens, and a port if "
               "need be."));
    column()->addStretch();
    connect(m_server, &QLineEdit::textEdited, this, [this](const QString &server) {
        if (AccountMission *adding = mission())
            adding->setServer(server);
    });
}

void ServerPage::RefreshPage()
{
    if (const AccountMission *adding = mission())
        refreshText(m_server, adding->server());
}

// Name

NamePage::NamePage()
    : m_name(addField(tr("N&ame:")))
{
    addNote(tr("Your contacts see this on your card."));
    column()->addStretch();
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString &name) {
        if (AccountMission *adding = mission())
            adding->setName(name);
    });
}

void NamePage::RefreshPage()
{
    if (const AccountMission *adding = mission())
        refreshText(m_name, adding->name());
}

// Picture

PicturePage::PicturePage()
    : m_face(new QLabel)
    , m_problem(wrappedLabel())
{
    setAcceptDrops(true);
    auto *choosing = new QPushButton(tr("C&hoose a picture..."));
    choosing->setAutoDefault(false);
    connect(choosing, &QPushButton::clicked, this, &PicturePage::choose);
    auto *none = new QPushButton(tr("N&o picture"));
    none->setAutoDefault(false);
    connect(none, &QPushButton::clicked, this, [this] {
        if (AccountMission *adding = mission())
            adding->setPicture(QImage());
    });
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    buttons->addWidget(choosing);
    buttons->addWidget(none);
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_face, 0, Qt::AlignTop);
    row->addLayout(buttons);
    row->addStretch();
    column()->addLayout(row);
    addNote(tr("You can also drop a picture here."));
    column()->addWidget(m_problem);
    column()->addStretch(1);
}

void PicturePage::RefreshPage()
{
    if (const AccountMission *adding = mission())
        m_face->setPixmap(face(adding->picture(), kFaceExtent));
}

void PicturePage::choose()
{
    const QPointer<PicturePage> guard(this);
    const QString fileName = choosePictureFile(window(), tr("Choose Your Picture"));
    if (guard && !fileName.isEmpty())
        take(readPicture(fileName));
}

void PicturePage::take(const QImage &picture)
{
    m_problem->setText(picture.isNull() ? tr("This is not a picture, or it is too large.")
                                        : QString());
    AccountMission *adding = mission();
    if (adding && !picture.isNull())
        adding->setPicture(picture);
}

void PicturePage::dragEnterEvent(QDragEnterEvent *event)
{
    if (holdsPictures(event->mimeData()))
        event->acceptProposedAction();
}

void PicturePage::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    take(picturesIn(event->mimeData()).value(0));
}

// Summary

SummaryPage::SummaryPage()
    : m_face(new QLabel)
    , m_name(wrappedLabel())
    , m_server(wrappedLabel())
    , m_done(wrappedLabel())
{
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addWidget(m_server);
    texts->addStretch();
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_face);
    row->addLayout(texts, 1);
    column()->addLayout(row);
    column()->addSpacing(6);
    column()->addWidget(m_done);
    column()->addStretch(1);
}

void SummaryPage::RefreshPage()
{
    const AccountMission *adding = mission();
    if (!adding)
        return;
    m_face->setPixmap(face(adding->picture(), kFaceExtent));
    m_name->setText(adding->name());
    m_server->setText(adding->server());
    m_done->setText(adding->isDone() ? tr("Done. \"Exit\" takes you to your contacts.")
                                     : tr("\"Complete\" saves the account."));
}

} // namespace messenger
