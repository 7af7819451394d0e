#include <ombrin/OmIconComboBoxDelegate.h>

#include <QtGui/QIcon>
#include <QtGui/QPainter>

namespace ombrin {

namespace {

constexpr QSize kCellSize(22, 22);
constexpr int kIconMargin = 2;

} // namespace

OmIconComboBoxDelegate::OmIconComboBoxDelegate(QObject *parent)
    : QAbstractItemDelegate(parent)
{}

OmIconComboBoxDelegate::~OmIconComboBoxDelegate() = default;

void OmIconComboBoxDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    if (!painter)
        return;
    if (option.state & QStyle::State_HasFocus)
        painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    icon.paint(painter, option.rect.adjusted(kIconMargin, kIconMargin, -kIconMargin, -kIconMargin));
}

QSize OmIconComboBoxDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return kCellSize;
}

} // namespace ombrin
