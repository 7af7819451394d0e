#include "model/Roster.h"

#include "model/StateFile.h"

#include <algorithm>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

// Nobody knows more people on one machine.
constexpr int kMostPeers = 200;

const QLatin1String kStateKey("contacts");
const QLatin1String kBlockedKey("blocked");
const QLatin1String kRemovedKey("removed");
const QLatin1String kRatingKey("rating");
const QLatin1String kUnreadKey("unread");
const QLatin1String kPeerNameKey("peer");
const QLatin1String kPeerPictureKey("picture");

} // namespace

Roster::Roster(const QVector<Contact> &book, StateFile *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_book(book)
{
    for (Contact contact : book) {
        if (remembered(contact.id, kRemovedKey).toBool())
            continue;
        applyMemory(&contact);
        m_contacts.append(contact);
    }
    addKnownPeers();
}

Roster::~Roster() = default;

void Roster::addKnownPeers()
{
    const QJsonObject contacts = m_state->value(kStateKey).toObject();
    for (auto entry = contacts.begin(); entry != contacts.end(); ++entry) {
        const QJsonObject values = entry.value().toObject();
        const QString name = values.value(kPeerNameKey).toString();
        if (name.isEmpty() || !isContactId(entry.key()) || contains(entry.key())
            || values.value(kRemovedKey).toBool())
            continue;
        Contact peer;
        peer.id = entry.key();
        peer.alias = name;
        peer.isPeer = true;
        peer.picture = values.value(kPeerPictureKey).toString();
        applyMemory(&peer);
        m_contacts.append(peer);
    }
}

void Roster::applyMemory(Contact *contact) const
{
    contact->isBlocked = remembered(contact->id, kBlockedKey).toBool(contact->isBlocked);
    contact->rating = remembered(contact->id, kRatingKey).toInt();
    if (contact->isPeer) {
        contact->application = kPeerApplication;
        contact->group = peerGroup();
    }
}

int Roster::indexOf(const QString &id) const
{
    const auto found = std::find_if(m_contacts.cbegin(), m_contacts.cend(),
                                    [&id](const Contact &contact) { return contact.id == id; });
    return found == m_contacts.cend() ? -1 : static_cast<int>(found - m_contacts.cbegin());
}

Contact Roster::contact(const QString &id) const
{
    return m_contacts.value(indexOf(id));
}

QStringList Roster::groups() const
{
    QStringList groups;
    for (const Contact &contact : m_contacts) {
        if (!contact.group.isEmpty() && !groups.contains(contact.group))
            groups.append(contact.group);
    }
    groups.sort();
    return groups;
}

// What the user and peers change

template <typename Value>
void Roster::change(const QString &id, Value Contact::*member, const Value &value)
{
    const int index = indexOf(id);
    if (index < 0 || m_contacts.at(index).*member == value)
        return;
    m_contacts[index].*member = value;
    Q_EMIT changed(Contact(m_contacts.at(index)));
}

void Roster::putPeer(const Contact &peer)
{
    if (!contains(peer.id) && m_contacts.size() >= m_book.size() + kMostPeers)
        return;
    const int index = indexOf(peer.id);
    Contact contact = peer;
    if (index < 0 && peer.picture.isEmpty()) // as it was before the user deleted it
        contact.picture = remembered(peer.id, kPeerPictureKey).toString();
    remember(peer.id, kPeerNameKey, peer.alias);
    remember(peer.id, kPeerPictureKey, contact.picture);
    remember(peer.id, kRemovedKey, false);
    contact.isPeer = true;
    applyMemory(&contact);
    if (index >= 0) {
        m_contacts[index] = contact;
        Q_EMIT changed(contact);
        return;
    }
    m_contacts.append(contact);
    Q_EMIT added(contact);
}

void Roster::setStatus(const QString &id, Om::ContactStatus status)
{
    change(id, &Contact::status, status);
}

void Roster::setBlocked(const QString &id, bool isBlocked)
{
    remember(id, kBlockedKey, isBlocked);
    change(id, &Contact::isBlocked, isBlocked);
}

void Roster::setRating(const QString &id, int rating)
{
    remember(id, kRatingKey, rating);
    change(id, &Contact::rating, rating);
}

void Roster::setUnread(const QString &id, int count)
{
    if (unread(id) == count || !contains(id))
        return;
    remember(id, kUnreadKey, count);
    Q_EMIT changed(contact(id));
}

int Roster::unread(const QString &id) const
{
    return remembered(id, kUnreadKey).toInt();
}

void Roster::remove(const QString &id)
{
    const int index = indexOf(id);
    if (index < 0)
        return;
    remember(id, kRemovedKey, true);
    m_contacts.remove(index);
    Q_EMIT removedContact(id);
}

QVector<Contact> Roster::removed() const
{
    QVector<Contact> contacts;
    for (const Contact &contact : m_book) {
        if (!contains(contact.id))
            contacts.append(contact);
    }
    return contacts;
}

void Roster::restore(const QString &id)
{
    for (Contact contact : removed()) {
        if (contact.id != id)
            continue;
        remember(id, kRemovedKey, false);
        applyMemory(&contact);
        m_contacts.append(contact);
        Q_EMIT added(contact);
        return;
    }
}

// Memory

QJsonValue Roster::remembered(const QString &id, QLatin1String key) const
{
    return m_state->value(kStateKey).toObject().value(id).toObject().value(key);
}

void Roster::remember(const QString &id, QLatin1String key, const QJsonValue &value)
{
    QJsonObject contacts = m_state->value(kStateKey).toObject();
    QJsonObject contact = contacts.value(id).toObject();
    contact.insert(key, value);
    contacts.insert(id, contact);
    m_state->setValue(kStateKey, contacts);
}

} // namespace messenger
