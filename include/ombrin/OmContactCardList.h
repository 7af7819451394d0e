#pragma once

#include <ombrin/OmContactCard.h>
#include <ombrin/OmGlobal.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtWidgets/QScrollArea>

namespace ombrin {

class AddContactBar;
class ColumnLayout;

/// A list of contact cards, one above the other, which scrolls.
///
/// A click makes a card big and all others small. The list scrolls to a card that becomes big, also
/// when the host makes it so, for example because of a key. What the user chooses on
/// a card is reported together with the account id of the card. Below the cards there can be a
/// button that adds contacts.
///
/// \code
/// auto *list = new ombrin::OmContactCardList(this);
/// for (const Contact &contact : contacts)
///     list->addCard(createCard(contact)); // see OmContactCard
/// list->enableAddContact(true);
/// connect(list, &ombrin::OmContactCardList::actionId, this, &Client::performAction);
/// connect(list, &ombrin::OmContactCardList::addContact, this, &Client::addContact);
/// \endcode
///
/// The list owns its cards from addCard() on. It forgets a card that the host deletes, closes or
/// gives another parent; no other card becomes big for it. The list and any of its cards may be
/// deleted in a slot of any of their signals.
///
/// Cards make their parts when they come into sight: thousands of them are filled in quickly.
///
/// \ingroup contacts
class OMBRIN_GUI_EXPORT OmContactCardList : public QScrollArea
{
    Q_OBJECT

    /// Whether there is a button below the cards that adds contacts. False by default.
    Q_PROPERTY(bool addContactButton READ hasAddContact WRITE enableAddContact)

public:
    explicit OmContactCardList(QWidget *parent = nullptr);
    ~OmContactCardList() override;

    /// Appends \a card, big if it is the only one and else small. Null, or a card that is in the
    /// list already, is ignored; one of another list moves to this one.
    void addCard(OmContactCard *card);
    /// Deletes \a card. If it was the current card, the one that takes its place becomes big, or,
    /// behind the end, the one before. Null, or a card that is not in the list, is ignored.
    void removeCard(OmContactCard *card);

    /// How many cards there are.
    int size() const;
    /// The card at \a index, counted from 0, or null if there is none.
    OmContactCard *card(int index) const;
    /// The card recorded last by slotClickedTimer(), else the first one, else null.
    OmContactCard *currentCard() const;

    /// Shows or hides the button that adds contacts.
    void enableAddContact(bool enable);
    bool hasAddContact() const;

Q_SIGNALS:
    /// The user chose the action \a id (see OmContactCard::actionId()) on the card of \a ombrinId.
    void actionId(const QString &id, const QString &ombrinId);
    /// The button that adds contacts was clicked.
    void addContact();
    /// addCard() has appended \a card.
    void added(OmContactCard *card);

private Q_SLOTS:
    // For signals of a card. The first records it as the current card, and makes it big shortly
    // afterwards; the host may connect to it by name.
    void slotClickedTimer();
    void slotClicked();
    void slotAction(const QString &id);

private:
    OmContactCard *sendingCard() const;
    void forget(const QObject *card);
    void makeOnlyBig(OmContactCard *card);
    void scrollTo(QWidget *card);

    QList<OmContactCard *> m_cards;
    ColumnLayout *m_layout;
    AddContactBar *m_addContactBar;
    OmContactCard *m_currentCard = nullptr;
};

} // namespace ombrin
