#include <ombrin/OmContactCardList.h>

#include "contacts/AddContactBar.h"
#include "contacts/ColumnLayout.h"
#include "contacts/ContactColumn.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

namespace ombrin {

namespace {

constexpr int kClickDelayMs = 20;
// The row of the button that adds contacts, and the empty end.
constexpr int kItemsBehindCards = 2;

} // namespace

OmContactCardList::OmContactCardList(QWidget *parent)
    : QScrollArea(parent)
{
    auto *column = new ContactColumn([this](const QObject *child) { forget(child); });
    m_layout = static_cast<ColumnLayout *>(column->layout());
    connect(m_layout, &ColumnLayout::becameBig, this, &OmContactCardList::scrollTo);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setWidget(column);
    setWidgetResizable(true);
    setFrameStyle(QFrame::NoFrame);

    m_addContactBar = new AddContactBar(column);
    connect(m_addContactBar, &AddContactBar::clicked, this, &OmContactCardList::addContact);
    m_layout->addWidget(m_addContactBar);
    m_addContactBar->hide();
    m_layout->addItem(new QSpacerItem(1, 1, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

OmContactCardList::~OmContactCardList() = default;

void OmContactCardList::addCard(OmContactCard *card)
{
    // Most new cards come from elsewhere: then there is no need to look for them.
    if (!card || (card->parentWidget() == widget() && m_cards.contains(card)))
        return;
    card->setBig(m_cards.isEmpty());
    m_layout->insertWidget(m_layout->count() - kItemsBehindCards, card);
    // As slotClicked() and slotAction(), which would have to look for the sender among all cards.
    connect(card, &OmContactCard::clicked, this, [this, card] { makeOnlyBig(card); });
    connect(card, &OmContactCard::actionId, this,
            [this, card](const QString &id) { Q_EMIT actionId(id, card->ombrinId()); });
    m_cards.append(card);
    if (card->isBig())
        m_layout->noteBig(card);
    Q_EMIT added(card);
}

void OmContactCardList::removeCard(OmContactCard *card)
{
    const auto index = static_cast<int>(m_cards.indexOf(card));
    if (index < 0)
        return;
    const bool wasCurrent = card == currentCard();
    m_layout->removeWidget(card);
    m_cards.removeAt(index);
    if (m_currentCard == card)
        m_currentCard = nullptr;

    const QPointer<OmContactCardList> guard(this);
    delete card;
    if (!guard || !wasCurrent || m_cards.isEmpty())
        return;
    m_cards.at(qMin(index, size() - 1))->setBig(true);
}

int OmContactCardList::size() const
{
    return static_cast<int>(m_cards.size());
}

OmContactCard *OmContactCardList::card(int index) const
{
    return m_cards.value(index);
}

OmContactCard *OmContactCardList::currentCard() const
{
    return m_currentCard ? m_currentCard : card(0);
}

void OmContactCardList::enableAddContact(bool enable)
{
    m_addContactBar->setVisible(enable);
}

bool OmContactCardList::hasAddContact() const
{
    return !m_addContactBar->isHidden();
}

void OmContactCardList::slotClickedTimer()
{
    const QPointer<OmContactCard> card = sendingCard();
    if (!card)
        return;
    m_currentCard = card;
    QTimer::singleShot(kClickDelayMs, this, [this, card] {
        if (m_cards.contains(card))
            makeOnlyBig(card);
    });
}

void OmContactCardList::slotClicked()
{
    if (OmContactCard *const card = sendingCard())
        makeOnlyBig(card);
}

void OmContactCardList::slotAction(const QString &id)
{
    if (const OmContactCard *const card = sendingCard())
        Q_EMIT actionId(id, card->ombrinId());
}

OmContactCard *OmContactCardList::sendingCard() const
{
    auto *const card = qobject_cast<OmContactCard *>(sender());
    return card && card->parentWidget() == widget() ? card : nullptr;
}

void OmContactCardList::forget(const QObject *card)
{
    const auto gone = std::find(m_cards.begin(), m_cards.end(), card);
    if (gone == m_cards.end())
        return;
    m_cards.erase(gone);
    if (m_currentCard == card)
        m_currentCard = nullptr;
    disconnect(card, nullptr, this, nullptr);
}

// Asks the layout: most cards are small already, and nothing is to be done for those.
void OmContactCardList::makeOnlyBig(OmContactCard *card)
{
    const auto bigCards = m_layout->bigCards();
    for (const QPointer<QWidget> &big : bigCards) {
        auto *const other = qobject_cast<OmContactCard *>(big);
        if (other && other != card && other->isBig() && other->parentWidget() == widget())
            other->setBig(false);
    }
    card->setBig(true);
    scrollTo(card);
}

// Once there is room for the card.
void OmContactCardList::scrollTo(QWidget *card)
{
    const auto scroll = [this, guard = QPointer<QWidget>(card)] {
        QCoreApplication::sendPostedEvents(widget(), QEvent::LayoutRequest);
        QCoreApplication::sendPostedEvents(viewport(), QEvent::LayoutRequest);
        auto *const bigCard = qobject_cast<OmContactCard *>(guard.data());
        if (bigCard && bigCard->isBig() && bigCard->parentWidget() == widget())
            ensureWidgetVisible(bigCard, 0, 0);
    };
    QMetaObject::invokeMethod(this, scroll, Qt::QueuedConnection);
}

} // namespace ombrin
