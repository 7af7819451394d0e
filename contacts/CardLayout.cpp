#include "contacts/CardLayout.h"

#include "contacts/ColumnLayout.h"

namespace ombrin {

CardLayout::CardLayout(QWidget *card)
    : QHBoxLayout(card)
{}

void CardLayout::layOut()
{
    m_isSettled = false;
    invalidate();
    activate();
    m_isSettled = true;
    m_settledCount = count();
}

void CardLayout::invalidate()
{
    // The host may have added something of its own.
    const bool isSettled = m_isSettled && count() == m_settledCount;
    if (!isSettled || !ColumnLayout::of(parentWidget()))
        QHBoxLayout::invalidate();
}

} // namespace ombrin
