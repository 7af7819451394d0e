#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QVBoxLayout>

#include <vector>

namespace ombrin {

/// The layout of the cards of a contact card list, of which there can be thousands.
///
/// It does what a QVBoxLayout does, except that the cards tell it when they become big or small.
/// Then it moves the cards behind them, up to where the changes even out, and touches no other.
class ColumnLayout : public QVBoxLayout
{
    Q_OBJECT

public:
    explicit ColumnLayout(QWidget *column);

    /// The layout in which \a card stands, or null if it stands elsewhere.
    static ColumnLayout *of(const QWidget *card);

    /// While it lives, the layout (which may be null) takes no note of changes of sizes; resized()
    /// tells of them.
    class Silence
    {
    public:
        explicit Silence(ColumnLayout *layout);
        ~Silence();
        Q_DISABLE_COPY(Silence)

    private:
        ColumnLayout *m_layout;
    };

    /// \a card has become big, or small, and by that \a growth pixels higher.
    void resized(QWidget *card, bool isBig, int growth);
    /// Takes note that \a card is big, as resized() does.
    void noteBig(QWidget *card);
    /// The cards that are big, and maybe others that have left.
    std::vector<QPointer<QWidget>> bigCards() const { return m_bigCards; }

    /// Moves the cards behind those that were resized. Whether their column has another height now.
    bool moveCards();

    void invalidate() override;
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;

Q_SIGNALS:
    void becameBig(QWidget *card);

private:
    struct Change
    {
        int index;
        int growth;
    };

    std::vector<Change> takeChanges();
    void forgetChanges();

    struct Resized
    {
        QPointer<QWidget> card;
        int growth;
    };

    std::vector<QPointer<QWidget>> m_bigCards;
    bool m_isSilent = false;
    // Whether every card stands where it belongs, but for the changes to come.
    bool m_isLaidOut = false;
    std::vector<Resized> m_resized;
    // Since QVBoxLayout has measured the cards: whether they have changed, and by how much
    // together.
    bool m_hasChanged = false;
    int m_growth = 0;
};

} // namespace ombrin
