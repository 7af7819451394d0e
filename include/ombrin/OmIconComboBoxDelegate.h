#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QAbstractItemDelegate>

namespace ombrin {

/// Paints the items of a view as cells of 22 x 22 pixels that show the item's icon and nothing
/// else.
///
/// The icon, the item's \c Qt::DecorationRole, is centred with 2 pixels of air around it; the cell
/// that has the keyboard focus is filled with the highlight colour. Made by OmIconComboBox, but of
/// use in any view:
///
/// \code
/// view->setItemDelegate(new ombrin::OmIconComboBoxDelegate(view));
/// \endcode
///
/// An item whose decoration is not a QIcon is an empty cell.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmIconComboBoxDelegate : public QAbstractItemDelegate
{
    Q_OBJECT

public:
    explicit OmIconComboBoxDelegate(QObject *parent = nullptr);
    ~OmIconComboBoxDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// 22 x 22, whatever the item.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace ombrin
