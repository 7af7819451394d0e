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
    /// The contact whose card is big, as the one that the user has chosen last is; empty if there
    /// is none, or if the filter hides it.
    QString currentContactId() const;

    /// Has the keyboard choose a contact from now on: arrows, Home, End, Return for a chat, Delete.
    void takeKeys();

Q_SIGNALS:
    void shownCountChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void insertCard(const Contact &contact);
    QVector<Contact> sortedContacts() const;
    void sortCards();
    void append(ombrin::OmContactCard *card);
    ombrin::OmContactCard *chosenCard() const;
    static void choose(ombrin::OmContactCard *card);
    void chooseNext(int steps);
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
