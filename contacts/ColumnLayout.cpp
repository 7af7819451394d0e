#include "contacts/ColumnLayout.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ombrin {

ColumnLayout::ColumnLayout(QWidget *column)
    : QVBoxLayout(column)
{}

ColumnLayout *ColumnLayout::of(const QWidget *card)
{
    const QWidget *const column = card->parentWidget();
    return column ? qobject_cast<ColumnLayout *>(column->layout()) : nullptr;
}

ColumnLayout::Silence::Silence(ColumnLayout *layout)
    : m_layout(layout && !layout->m_isSilent ? layout : nullptr)
{
    if (m_layout)
        m_layout->m_isSilent = true;
}

ColumnLayout::Silence::~Silence()
{
    if (m_layout)
        m_layout->m_isSilent = false;
}

void ColumnLayout::resized(QWidget *card, bool isBig, int growth)
{
    if (isBig) {
        noteBig(card);
        Q_EMIT becameBig(card);
    } else {
        m_bigCards.erase(std::remove(m_bigCards.begin(), m_bigCards.end(), card), m_bigCards.end());
    }
    // Otherwise it is about to be laid out anyway.
    if (!m_isLaidOut || card->isHidden())
        return;
    m_resized.push_back({card, growth});
    m_growth += growth;
    m_hasChanged = true;
    QCoreApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutRequest));
}

void ColumnLayout::noteBig(QWidget *card)
{
    m_bigCards.erase(std::remove(m_bigCards.begin(), m_bigCards.end(), nullptr), m_bigCards.end());
    if (std::find(m_bigCards.begin(), m_bigCards.end(), card) == m_bigCards.end())
        m_bigCards.emplace_back(card);
}

bool ColumnLayout::moveCards()
{
    const std::vector<Change> changes = takeChanges();
    auto change = changes.begin();
    int growth = 0;
    for (int index = changes.empty() ? count() : change->index; index < count(); ++index) {
        QWidget *const card = itemAt(index)->widget();
        if (growth != 0 && card && !card->isHidden())
            card->move(card->x(), card->y() + growth);
        for (; change != changes.end() && change->index == index; ++change)
            growth += change->growth;
        if (growth == 0 && change == changes.end())
            break;
    }
    return growth != 0;
}

void ColumnLayout::invalidate()
{
    if (m_isSilent)
        return;
    m_isLaidOut = false;
    forgetChanges();
    QVBoxLayout::invalidate();
}

void ColumnLayout::setGeometry(const QRect &rect)
{
    const QRect previous = geometry();
    const bool isAsWide = rect.width() == previous.width() && rect.topLeft() == previous.topLeft();
    const bool hasRoom = rect.height() >= minimumSize().height();
    if (m_isLaidOut && isAsWide && hasRoom) {
        QLayout::setGeometry(rect);
        return;
    }
    if (m_hasChanged) {
        forgetChanges();
        QVBoxLayout::invalidate();
    }
    QVBoxLayout::setGeometry(rect);
    // Else the cards are squeezed until the column has grown.
    m_isLaidOut = hasRoom;
}

QSize ColumnLayout::sizeHint() const
{
    return QVBoxLayout::sizeHint() + QSize(0, m_growth);
}

QSize ColumnLayout::minimumSize() const
{
    return QVBoxLayout::minimumSize() + QSize(0, m_growth);
}

std::vector<ColumnLayout::Change> ColumnLayout::takeChanges()
{
    std::vector<Change> changes;
    for (const Resized &resized : m_resized) {
        const int index = resized.card ? indexOf(resized.card) : -1;
        if (index >= 0)
            changes.push_back({index, resized.growth});
    }
    m_resized.clear();
    std::sort(changes.begin(), changes.end(),
              [](const Change &a, const Change &b) { return a.index < b.index; });
    return changes;
}

void ColumnLayout::forgetChanges()
{
    m_resized.clear();
    m_hasChanged = false;
    m_growth = 0;
}

} // namespace ombrin
