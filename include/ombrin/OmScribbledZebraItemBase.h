#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QVariant>

class QGraphicsItem;

/// Something that an OmScribbledZebraView shows in one of its lines, hung on one of its poles.
///
/// An item measures itself and makes the graphics item that the view shows for it. There are items
/// for texts and links; for other things derive from this class:
///
/// \code
/// class StatusDot : public OmScribbledZebraItemBase
/// {
/// public:
///     StatusDot(int column, int row) : OmScribbledZebraItemBase(column, row, true, nullptr)
///     {
///         DoOnChanged(); // measures it
///     }
///     QSize recalcSize() const override { return QSize(10, 10); }
///     QGraphicsItem *CreateGraphicsItem() override
///     {
///         return new QGraphicsEllipseItem(0, 0, 10, 10);
///     }
///     void AdjustGraphicsItem(QGraphicsItem *) override {}
/// };
/// \endcode
///
/// The list that an item is added to owns it; the view owns the graphics item. An item belongs into
/// one list, once. It may be deleted at any time; it then leaves its list.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraItemBase : public QObject
{
    Q_OBJECT

public:
    /// \a column is the index of a pole, \a row that of a line; see row() and column().
    OmScribbledZebraItemBase(int column, int row, bool isAlignedLeftOrRight, QObject *parent);
    ~OmScribbledZebraItemBase() override;

    /// The line that the item is in, from 0; an item with a negative row is hidden.
    int row() const;
    void setRow(int row);

    /// The index of the pole that the item hangs on; an item whose pole does not exist is hidden,
    /// but still counts for the height of its line.
    int column() const;
    void setColumn(int column);

    /// Whether the item starts at its pole and extends to the right, else it ends there.
    bool isAlignedLeftOrRight() const;
    void setIsAlignedLeftOrRight(bool isAlignedLeftOrRight);

    /// What recalcSize() answered when the item last changed, in pixels.
    QSize size() const;

    /// A value that means something to the host only; a change of it is not announced.
    QVariant data() const;
    void setData(const QVariant &data);

    /// Measures the item. The view uses the answer when the item changes, through size().
    virtual QSize recalcSize() const = 0;
    /// Makes the graphics item, which is in no scene and becomes the caller's. With null the item
    /// is not shown until it changes.
    virtual QGraphicsItem *CreateGraphicsItem() = 0;
    /// Copies what the item looks like to \a item, which CreateGraphicsItem() made. The view calls
    /// it whenever the item has changed and whenever it lays out all its items.
    virtual void AdjustGraphicsItem(QGraphicsItem *item) = 0;

Q_SIGNALS:
    /// Something was changed that may show.
    void signalOnChanged();

protected:
    /// Measures the item again and emits signalOnChanged(). For derived classes whose own values
    /// have changed. A slot may delete the item.
    void DoOnChanged();

private:
    QSize m_size = QSize(0, 0);
    int m_row;
    int m_column;
    QVariant m_data;
    bool m_isAlignedLeftOrRight;
};
