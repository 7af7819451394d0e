#include "windows/ProfileWindow.h"

#include "model/Session.h"
#include "windows/ClosingKeys.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmRatingLabel.h>
#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>
#include <ombrin/vhutilities.h>

#include <QtCore/QLocale>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace messenger {

namespace {

using ombrin::OmAvatarSmall;

constexpr int kMargin = 12;
constexpr int kFaceExtent = 78;
constexpr int kStars = 5;
constexpr int kStarHeight = 22;
constexpr int kLineHeight = 26;
constexpr int kLabelPole = 108;
constexpr int kValuePole = 120;
constexpr int kActionPole = 12;

enum Column { LabelColumn, ValueColumn, ActionColumn };

const QColor kLabelColor(0x5f, 0x66, 0x6e);

} // namespace

ProfileWindow::ProfileWindow(Session *session, const QString &contactId)
    : m_session(session)
    , m_contactId(contactId)
    , m_view(new OmScribbledZebraView)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_view->setMinimumLineHeight(kLineHeight);
    m_view->setFrameShape(QFrame::StyledPanel);
    const bool isLeft = !isRightToLeft();
    m_view->poles().append(kLabelPole, isLeft);
    m_view->poles().append(kValuePole, isLeft);
    m_view->poles().append(kActionPole, !isLeft);

    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(createHead());
    column->addWidget(m_view, 1);
    setWidget(contents);

    connect(&session->roster(), &Roster::changed, this, [this](const Contact &contact) {
        if (contact.id == m_contactId)
            refresh(contact);
    });
    refresh(session->roster().contact(contactId));
    m_view->setFocus();
    addClosingKeys(this);
}

ProfileWindow::~ProfileWindow() = default;

QWidget *ProfileWindow::createHead()
{
    m_face = new OmAvatarSmall;
    m_face->setFixedSize(kFaceExtent, kFaceExtent);
    // The thumbnail shows its large picture in slots of its own.
    connect(m_face, SIGNAL(clicked()), m_face, SLOT(slotAvatarTimer()));
    m_name = plainBoldLabel();
    QFont font = m_name->font();
    font.setPixelSize(20);
    m_name->setFont(font);
    m_remark = plainLabel();
    m_presence = new QLabel;
    m_rating = new ombrin::OmRatingLabel;
    m_rating->setFocusPolicy(Qt::StrongFocus);
    m_rating->setFixedSize(kStars * (kStarHeight - 1) + 1, kStarHeight);
    m_rating->setAccessibleName(tr("Your rating"));
    m_rating->setToolTip(tr("What you think of this contact. Nobody else sees it."));
    connect(m_rating, &ombrin::OmRatingLabel::ratingChanged, this,
            [this](int rating) { m_session->roster().setRating(m_contactId, rating); });

    auto *head = new QWidget;
    auto *grid = new QGridLayout(head);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(4);
    grid->addWidget(m_face, 0, 0, 3, 1);
    grid->addWidget(m_name, 0, 1, Qt::AlignBottom);
    auto *presence = new QHBoxLayout;
    presence->setSpacing(6);
    presence->addWidget(m_presence);
    presence->addWidget(m_remark, 1);
    grid->addLayout(presence, 1, 1);
    grid->addWidget(m_rating, 2, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return head;
}

void ProfileWindow::refresh(const Contact &contact)
{
    setWindowTitle(tr("Profile of %1").arg(contact.alias));
    setWindowIcon(QIcon(roundPortrait(portraitOf(contact), 32)));
    m_face->setAvatar(portraitOf(contact), true);
    m_name->setText(contact.alias);
    m_presence->setPixmap(presenceIcon(contact.status).pixmap(12));
    m_remark->setText(contact.statusText.isEmpty() ? presenceName(contact.status)
                                                   : contact.statusText);
    m_rating->setRating(contact.rating);
    fillView(contact);
}

void ProfileWindow::fillView(const Contact &contact)
{
    m_view->blockRefresh(true);
    while (!m_view->items().isEmpty())
        delete m_view->items().takeLast();
    int row = 0;
    addText(row++, tr("Group"), contact.group);
    if (!contact.city.isEmpty())
        addText(row++, tr("City"), contact.city);
    if (contact.birthday.isValid()) {
        const QString day = QLocale().toString(
                contact.birthday, tr("d MMMM yyyy", "as QLocale::toString() takes it"));
        addText(row++, tr("Birthday"),
                tr("%1 (%2 years)")
                        .arg(day)
                        .arg(ombrin::vhutilities::AgeInYears(contact.birthday)));
    }
    if (!contact.phone.isEmpty())
        addLink(row++, tr("Phone"), contact.phone, QStringLiteral("voip"), tr("Call"));
    if (hasMail(contact))
        addLink(row++, tr("E-mail"), contact.email, QStringLiteral("mail"), tr("Write"));
    if (contact.web.isValid())
        addLink(row++, tr("Web folder"), contact.web.toDisplayString(), QStringLiteral("webfolder"),
                tr("Open"));
    addLink(row++, tr("Messages"), tr("Chat with %1").arg(contact.alias), QStringLiteral("chat"),
            QString());
    addLink(row, tr("Blocked"), contact.isBlocked ? tr("Yes") : tr("No"),
            contact.isBlocked ? QStringLiteral("unblock") : QStringLiteral("block"),
            contact.isBlocked ? tr("Unblock") : tr("Block"));
    m_view->blockRefresh(false);
}

void ProfileWindow::addLabel(int row, const QString &label)
{
    auto *item = new OmScribbledZebraItemText(LabelColumn, row, isRightToLeft(), label, nullptr);
    item->setBrush(kLabelColor);
    m_view->items() << item;
}

void ProfileWindow::addText(int row, const QString &label, const QString &value)
{
    addLabel(row, label);
    m_view->items() << new OmScribbledZebraItemText(ValueColumn, row, !isRightToLeft(), value,
                                                    nullptr);
}

void ProfileWindow::addLink(int row, const QString &label, const QString &value,
                            const QString &action, const QString &actionText)
{
    // Without a link at the end of the line the value is the link.
    const bool isValueLink = actionText.isEmpty();
    if (isValueLink)
        addLabel(row, label);
    else
        addText(row, label, value);
    auto *link = new OmScribbledZebraItemLink(isValueLink ? ValueColumn : ActionColumn, row,
                                              isValueLink != isRightToLeft(),
                                              isValueLink ? value : actionText, nullptr);
    link->setBrush(palette().link());
    connect(link, &OmScribbledZebraItemLink::signalOnLinkActivated, this,
            [this, action] { Q_EMIT actionId(action, m_contactId); });
    m_view->items() << link;
}

} // namespace messenger
