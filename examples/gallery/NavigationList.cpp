#include "NavigationList.h"

#include "GalleryPage.h"

#include <memory>

namespace gallery {

namespace {

constexpr int kNameRole = Qt::UserRole;
constexpr int kRowHeight = 17;
constexpr int kHeadingHeight = 23;

} // namespace

NavigationList::NavigationList(QWidget *parent)
    : OmSmoothList(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Pages"));

    const GalleryPage *previous = nullptr;
    for (const GalleryPage *page : allPages()) {
        if (!previous || previous->group != page->group)
            addHeading(groupTitle(page->group));
        auto item = std::make_unique<QListWidgetItem>(page->titleText());
        item->setData(kNameRole, page->nameText());
        item->setStatusTip(page->summaryText());
        item->setSizeHint(QSize(0, kRowHeight));
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
    item->setSizeHint(QSize(0, kHeadingHeight));
    QFont bold = font();
    bold.setBold(true);
    item->setFont(bold);
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
