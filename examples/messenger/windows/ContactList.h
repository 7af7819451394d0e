#pragma once

#include "model/ContactFilter.h"

#include <ombrin/OmContactCardList.h>

#include <QtCore/QHash>
#include <QtCore/QVector>

namespace messenger {

class Session;

/// The contacts of a session, a card each, which follow what happens to the contacts.
class ContactList : public ombrin::OmContactCardList
{
    Q_OBJECT

public:
    /// \a session must outlive the list.
    explicit ContactList(Session *session, QWidget *parent = nullptr);
    ~ContactList() override;

    /// Shows the contacts that \a filter accepts.
    void setFilter(const ContactFilter &filter);
    int shownCount() const;

    /// Null if there is no such contact.
    ombrin::OmContactCard *cardOf(const QString &contactId) const
    {
        return m_cards.value(contactId);
    }
    /// The contact that the user has clicked last; empty if there is none.
    QString currentContactId() const;

Q_SIGNALS:
    void shownCountChanged();

private:
    void insertCard(const Contact &contact);
    QVector<Contact> sortedContacts() const;
    void sortCards();
    void refresh(const Contact &contact);
    void removeContact(const QString &contactId);
    static void showPicture(ombrin::OmContactCard *card, const Contact &contact);
    void openPicture(const QString &contactId);
    void setTyping(const QString &contactId, bool isTyping);

    Session *m_session;
    ContactFilter m_filter;
    QHash<QString, ombrin::OmContactCard *> m_cards;
};

} // namespace messenger
