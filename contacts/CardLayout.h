#pragma once

#include <QtWidgets/QHBoxLayout>

namespace ombrin {

/// The main layout of a contact card.
///
/// Where the parts of a card stand depends on the size of the card and on its parts, but not on
/// what these show. In a list of cards, all of one width, a new text or picture therefore causes no
/// layout, neither of the card nor, what would be worse, of the thousands around it.
class CardLayout : public QHBoxLayout
{
    Q_OBJECT

public:
    explicit CardLayout(QWidget *card);

    /// Lays out the card at once, after a change of its parts or their sizes.
    void layOut();
    void invalidate() override;

private:
    bool m_isSettled = false;
    int m_settledCount = 0;
};

} // namespace ombrin
