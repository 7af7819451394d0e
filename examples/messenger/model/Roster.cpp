#include "model/Roster.h"

#include "model/StateFile.h"

#include <algorithm>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

// Nobody knows more people on one machine.
constexpr int kMostPeers = 200;

QString stateKey()
{
    return QStringLiteral("contacts");
}

QString blockedKey()
{
    return QStringLiteral("blocked");
}

QString removedKey()
{
    return QStringLiteral("removed");
}

QString ratingKey()
{
    return QStringLiteral("rating");
}

QString unreadKey()
{
    return QStringLiteral("unread");
}

QString peerNameKey()
{
    return QStringLiteral("peer");
}

QString peerPictureKey()
{
    return QStringLiteral("picture");
}

} // namespace

Roster::Roster(const QVector<Contact> &book, StateFile *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_book(book)
{
    for (Contact contact : book) {
        if (remembered(contact.id, removedKey()).toBool())
            continue;
        applyMemory(&contact);
        m_contacts.append(contact);
    }
    addKnownPeers();
}

Roster::~Roster() = default;

void Roster::addKnownPeers()
{
    const QJsonObject contacts = m_state->value(stateKey()).toObject();
    for (auto entry = contacts.begin(); entry != contacts.end(); ++entry) {
        const QJsonObject values = entry.value().toObject();
        const QString name = values.value(peerNameKey()).toString();
        if (name.isEmpty() || !isContactId(entry.key()) || contains(entry.key())
            || values.value(removedKey()).toBool())
            continue;
        Contact peer;
        peer.id = entry.key();
        peer.alias = name;
        peer.isPeer = true;
        peer.picture = values.value(peerPictureKey()).toString();
        applyMemory(&peer);
        m_contacts.append(peer);
    }
}

void Roster::applyMemory(Contact *contact) const
{
    contact->isBlocked = remembered(contact->id, blockedKey()).toBool(contact->isBlocked);
    contact->rating = remembered(contact->id, ratingKey()).toInt();
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
    remember(peer.id, peerNameKey(), peer.alias);
    remember(peer.id, peerPictureKey(), peer.picture);
    remember(peer.id, removedKey(), false);
    Contact contact = peer;
    contact.isPeer = true;
    applyMemory(&contact);
    const int index = indexOf(peer.id);
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
    remember(id, blockedKey(), isBlocked);
    change(id, &Contact::isBlocked, isBlocked);
}

void Roster::setRating(const QString &id, int rating)
{
    remember(id, ratingKey(), rating);
    change(id, &Contact::rating, rating);
}

void Roster::setUnread(const QString &id, int count)
{
    if (unread(id) == count || !contains(id))
        return;
    remember(id, unreadKey(), count);
    Q_EMIT changed(contact(id));
}

int Roster::unread(const QString &id) const
{
    return remembered(id, unreadKey()).toInt();
}

void Roster::remove(const QString &id)
{
    const int index = indexOf(id);
    if (index < 0)
        return;
    remember(id, removedKey(), true);
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
        remember(id, removedKey(), false);
        applyMemory(&contact);
        m_contacts.append(contact);
        Q_EMIT added(contact);
        return;
    }
}

// Memory

QJsonValue Roster::remembered(const QString &id, const QString &key) const
{
    return m_state->value(stateKey()).toObject().value(id).toObject().value(key);
}

void Roster::remember(const QString &id, const QString &key, const QJsonValue &value)
{
    QJsonObject contacts = m_state->value(stateKey()).toObject();
    QJsonObject contact = contacts.value(id).toObject();
    contact.insert(key, value);
    contacts.insert(id, contact);
    m_state->setValue(stateKey(), contacts);
}

} // namespace messenger
