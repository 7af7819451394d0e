#include "windows/ContactList.h"

#include "model/Session.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmFaderWidget.h>

#include <QtGui/QMovie>

#include <algorithm>

namespace messenger {

namespace {

using ombrin::OmAvatarSmall;
using ombrin::OmContactCard;
namespace Om = ombrin::Om;

const char kPictureProperty[] = "messengerPicture";

bool comesBefore(const Contact &left, const Contact &right)
{
    if (left.answers != right.answers)
        return left.answers;
    // Who can answer stands above those who cannot.
    const bool isLeftHere = left.isPeer && left.status != Om::Offline;
    const bool isRightHere = right.isPeer && right.status != Om::Offline;
    if (isLeftHere != isRightHere)
        return isLeftHere;
    const int leftPresence = ContactFilter::presenceOf(left);
    const int rightPresence = ContactFilter::presenceOf(right);
    if (leftPresence != rightPresence)
        return leftPresence < rightPresence;
    return QString::localeAwareCompare(left.alias, right.alias) < 0;
}

// A card shows pictures; the host plays an animation by setting one after the other.
void playOn(OmContactCard *card, const QString &fileName)
{
    auto *movie = new QMovie(fileName, QByteArray(), card);
    movie->setCacheMode(QMovie::CacheAll);
    QObject::connect(movie, &QMovie::frameChanged, card, [card, movie] {
        if (card->isVisible())
            card->setAvatar(movie->currentPixmap(), false);
    });
    movie->start();
}

} // namespace

ContactList::ContactList(Session *session, QWidget *parent)
    : OmContactCardList(parent)
    , m_session(session)
{
    for (const Contact &contact : sortedContacts())
        insertCard(contact);
    enableAddContact(true);

    const Roster *roster = &session->roster();
    connect(roster, &Roster::added, this, [this](const Contact &contact) {
        insertCard(contact);
        sortCards();
    });
    connect(roster, &Roster::changed, this, &ContactList::refresh);
    connect(roster, &Roster::removedContact, this, &ContactList::removeContact);
    connect(session, &Session::typingChanged, this, &ContactList::setTyping);
}

ContactList::~ContactList() = default;

QVector<Contact> ContactList::sortedContacts() const
{
    QVector<Contact> contacts = m_session->roster().contacts();
    std::stable_sort(contacts.begin(), contacts.end(), comesBefore);
    return contacts;
}

// The list only ever appends: cards change places by leaving it and coming back.
void ContactList::sortCards()
{
    setUpdatesEnabled(false); // nobody needs to see them on their way
    for (const Contact &contact : sortedContacts()) {
        OmContactCard *card = cardOf(contact.id);
        const bool wasBig = card->isBig();
        card->setParent(nullptr);
        addCard(card);
        card->setBig(wasBig);
        card->setHidden(!m_filter.accepts(contact));
    }
    setUpdatesEnabled(true);
}

void ContactList::insertCard(const Contact &contact)
{
    auto *card = new OmContactCard;
    const QString id = contact.id;
    card->setOmbrinId(id);
    m_cards.insert(id, card);
    refresh(contact);
    connect(card, &OmContactCard::avatarClicked, this, [this, id] { openPicture(id); });
    addCard(card);
    Q_EMIT shownCountChanged();
}

void ContactList::refresh(const Contact &contact)
{
    OmContactCard *card = cardOf(contact.id);
    if (!card)
        return;
    const int unread = m_session->roster().unread(contact.id);
    card->setAlias(unread > 0 ? tr("%1 (%2)", "name and number of unread messages")
                                        .arg(contact.alias, QString::number(unread))
                              : contact.alias);
    const bool comesOrGoes =
            contact.isPeer && (card->status() == Om::Offline) != (contact.status == Om::Offline);
    card->setStatus(contact.status);
    card->setGeneralApp(static_cast<Om::ClientApplication>(contact.application));
    card->setBlocked(contact.isBlocked);
    card->setToolTip(asRichText(contact.statusText));
    showPicture(card, contact);
    card->setHidden(!m_filter.accepts(contact));
    if (comesOrGoes && card->parentWidget())
        sortCards();
    Q_EMIT shownCountChanged();
}

void ContactList::showPicture(OmContactCard *card, const Contact &contact)
{
    if (card->property(kPictureProperty).toString() == contact.picture)
        return;
    card->setProperty(kPictureProperty, contact.picture);
    qDeleteAll(card->findChildren<QMovie *>());
    card->setAvatar(portraitOf(contact), false);
    if (isMoving(contact))
        playOn(card, contact.picture);
}

void ContactList::removeContact(const QString &contactId)
{
    removeCard(m_cards.take(contactId));
    Q_EMIT shownCountChanged();
}

void ContactList::setFilter(const ContactFilter &filter)
{
    m_filter = filter;
    for (const Contact &contact : m_session->roster().contacts()) {
        if (OmContactCard *card = cardOf(contact.id))
            card->setHidden(!filter.accepts(contact));
    }
    Q_EMIT shownCountChanged();
}

int ContactList::shownCount() const
{
    return static_cast<int>(
            std::count_if(m_cards.cbegin(), m_cards.cend(),
                          [](const OmContactCard *card) { return !card->isHidden(); }));
}

QString ContactList::currentContactId() const
{
    const OmContactCard *card = currentCard();
    return card ? card->ombrinId() : QString();
}

void ContactList::openPicture(const QString &contactId)
{
    const Contact contact = m_session->roster().contact(contactId);
    auto *thumbnail = cardOf(contactId)->findChild<OmAvatarSmall *>();
    if (!thumbnail)
        return;
    if (!isMoving(contact)) {
        QMetaObject::invokeMethod(thumbnail, "slotAvatarTimer");
        return;
    }
    auto *avatar = new ombrin::OmAvatar(contact.picture, thumbnail);
    avatar->move(thumbnail->mapToGlobal(QPoint(0, 0)));
    (new ombrin::OmFaderWidget(avatar))->fadeIn();
    avatar->show();
}

void ContactList::setTyping(const QString &contactId, bool isTyping)
{
    if (OmContactCard *card = cardOf(contactId))
        card->setTyping(isTyping);
}

} // namespace messenger
