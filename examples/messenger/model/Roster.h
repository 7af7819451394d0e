#pragma once

#include "model/Contact.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace messenger {

class StateFile;

/// The contacts as the user has them: those of the contact book and the peers met so far, without
/// those that the user has deleted.
///
/// What the user does to a contact is remembered in the state file.
class Roster : public QObject
{
    Q_OBJECT

public:
    /// \a state must outlive the roster.
    Roster(const QVector<Contact> &book, StateFile *state, QObject *parent = nullptr);
    ~Roster() override;

    const QVector<Contact> &contacts() const { return m_contacts; }
    /// The contact \a id, or an empty one if there is none.
    Contact contact(const QString &id) const;
    bool contains(const QString &id) const { return indexOf(id) >= 0; }
    QStringList groups() const;

    /// A peer as it presents itself now; it is added if it is new and there are not too many.
    void putPeer(const Contact &peer);
    void setStatus(const QString &id, ombrin::Om::ContactStatus status);
    void setBlocked(const QString &id, bool isBlocked);
    void setRating(const QString &id, int rating);
    void setUnread(const QString &id, int count);
    int unread(const QString &id) const;

    void remove(const QString &id);
    /// Contacts of the book that were removed.
    QVector<Contact> removed() const;
    void restore(const QString &id);

Q_SIGNALS:
    void added(const messenger::Contact &contact);
    void changed(const messenger::Contact &contact);
    void removedContact(const QString &id);

private:
    int indexOf(const QString &id) const;
    void remember(const QString &id, QLatin1String key, const QJsonValue &value);
    QJsonValue remembered(const QString &id, QLatin1String key) const;
    void applyMemory(Contact *contact) const;
    void addKnownPeers();
    template <typename Value>
    void change(const QString &id, Value Contact::*member, const Value &value);

    StateFile *m_state;
    QVector<Contact> m_book;
    QVector<Contact> m_contacts;
};

} // namespace messenger
