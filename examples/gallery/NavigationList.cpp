#include "NavigationList.h"

#include "GalleryPage.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyledItemDelegate>

#include <memory>

namespace gallery {

namespace {

constexpr int kNameRole = Qt::UserRole;
constexpr int kRowHeight = 28;
constexpr int kHeadingHeight = 34;
constexpr int kTextIndent = 18;
constexpr int kMarkWidth = 3;
constexpr QColor kSelectedGround(0xe3, 0xef, 0xfa);
constexpr QColor kAccent(0xff, 0xc1, 0x30);

/// Draws headings as quiet bold text, and the page on show on a pale ground with the accent mark.
class NavigationDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const QRect row = option.rect;
        const bool isHeading = !index.data(kNameRole).isValid();
        painter->save();
        QFont font = option.font;
        font.setBold(isHeading);
        painter->setFont(font);
        if (option.state & QStyle::State_Selected) {
            painter->fillRect(row, kSelectedGround);
            painter->fillRect(QRect(row.topLeft(), QSize(kMarkWidth, row.height())), kAccent);
        }
        const auto group = isHeading ? QPalette::Disabled : QPalette::Active;
        painter->setPen(option.palette.color(group, QPalette::WindowText));
        const int flags = static_cast<int>(Qt::AlignLeft)
                          | static_cast<int>(isHeading ? Qt::AlignBottom : Qt::AlignVCenter);
        const int indent = isHeading ? kTextIndent - 6 : kTextIndent;
        painter->drawText(row.adjusted(indent, 0, -4, isHeading ? -6 : 0), flags,
                          index.data().toString());
        const QStyle::State keyboardFocus =
                QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        if ((option.state & keyboardFocus) == keyboardFocus) {
            painter->setPen(option.palette.color(QPalette::Active, QPalette::Highlight));
            painter->drawRect(row.adjusted(0, 0, -1, -1));
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool isHeading = !index.data(kNameRole).isValid();
        return QSize(QStyledItemDelegate::sizeHint(option, index).width(),
                     isHeading ? kHeadingHeight : kRowHeight);
    }
};

} // namespace

NavigationList::NavigationList(QWidget *parent)
    : QListWidget(parent)
{
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new NavigationDelegate(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Pages"));

    const GalleryPage *previous = nullptr;
    for (const GalleryPage *page : allPages()) {
        if (!previous || previous->group != page->group)
            addHeading(groupTitle(page->group));
        auto item = std::make_unique<QListWidgetItem>(page->titleText());
        item->setData(kNameRole, page->nameText());
        item->setStatusTip(page->summaryText());
        addItem(item.release());
        previous = page;
    }
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            Q_EMIT pageChosen(item->data(kNameRole).toString());
    });
}

void NavigationList::addHeading(const QString &text)
{
    auto item = std::make_unique<QListWidgetItem>(text);
    item->setFlags(Qt::NoItemFlags);
    addItem(item.release());
}

void NavigationList::choose(const QString &name)
{
    if (name.isEmpty())
        return; // as the headings are
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(kNameRole).toString() == name)
            setCurrentRow(row);
    }
}

} // namespace gallery
