#include "windows/ContactList.h"

#include "model/Session.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmFaderWidget.h>

#include <QtGui/QKeyEvent>
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
    OmContactCard *chosen = chosenCard();
    setUpdatesEnabled(false); // nobody needs to see them on their way
    for (const Contact &contact : sortedContacts()) {
        OmContactCard *card = cardOf(contact.id);
        card->setParent(nullptr);
        append(card);
        card->setBig(card == chosen);
        card->setHidden(!m_filter.accepts(contact));
    }
    if (chosen)
        choose(chosen);
    setUpdatesEnabled(true);
}

// A card that leaves the list loses its connections to it.
void ContactList::append(OmContactCard *card)
{
    const QString id = card->ombrinId();
    connect(card, &OmContactCard::avatarClicked, this, [this, id] { openPicture(id); });
    // Makes it the current card, too.
    connect(card, SIGNAL(clicked()), this, SLOT(slotClickedTimer()));
    addCard(card);
}

void ContactList::insertCard(const Contact &contact)
{
    auto *card = new OmContactCard;
    card->setOmbrinId(contact.id);
    m_cards.insert(contact.id, card);
    refresh(contact);
    append(card);
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

// The chosen card

OmContactCard *ContactList::chosenCard() const
{
    const auto isChosen = [](const OmContactCard *card) {
        return card->isBig() && !card->isHidden();
    };
    const auto found = std::find_if(m_cards.cbegin(), m_cards.cend(), isChosen);
    return found == m_cards.cend() ? nullptr : *found;
}

QString ContactList::currentContactId() const
{
    const OmContactCard *card = chosenCard();
    return card ? card->ombrinId() : QString();
}

// As a click on it does.
void ContactList::choose(OmContactCard *card)
{
    Q_EMIT card->clicked();
}

void ContactList::chooseNext(int steps)
{
    QVector<OmContactCard *> shown;
    for (int index = 0; index < size(); ++index) {
        if (!card(index)->isHidden())
            shown.append(card(index));
    }
    if (shown.isEmpty())
        return;
    const int last = static_cast<int>(shown.size()) - 1;
    const int from = qMax(0, static_cast<int>(shown.indexOf(chosenCard())));
    choose(shown.at(qBound(0, from + steps, last)));
}

void ContactList::takeKeys()
{
    setFocus(Qt::OtherFocusReason);
    if (!chosenCard())
        chooseNext(0);
}

void ContactList::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int key = isPlain ? event->key() : 0;
    const QString id = currentContactId();
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        chooseNext(key == Qt::Key_Up ? -1 : 1);
    else if (key == Qt::Key_Home || key == Qt::Key_End)
        chooseNext(key == Qt::Key_Home ? -size() : size());
    else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !id.isEmpty())
        Q_EMIT actionId(QStringLiteral("chat"), id);
    else if (key == Qt::Key_Delete && !id.isEmpty())
        Q_EMIT actionId(QStringLiteral("delete"), id);
    else
        OmContactCardList::keyPressEvent(event);
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
