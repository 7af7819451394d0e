#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmSmoothList.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QStackedWidget>

namespace gallery {

namespace {

using ombrin::OmCheckBoxAssortmentItem;
using ombrin::OmCheckBoxAssortmentList;
using ombrin::OmCheckBoxAssortmentView;
using ombrin::OmSmoothList;

constexpr int kAssortmentWidth = 210;
constexpr int kSmoothWidth = 130;
constexpr int kSmoothHeight = 190;

OmCheckBoxAssortmentView *assortment(const QString &text, bool hasAddButton)
{
    auto *view = new OmCheckBoxAssortmentView(nullptr);
    view->setText(text);
    view->setIsAddButtonVisible(hasAddButton);
    view->setFixedWidth(kAssortmentWidth);
    return view;
}

OmSmoothList *smoothList(const QStringList &entries)
{
    auto *list = new OmSmoothList;
    list->setFixedSize(kSmoothWidth, kSmoothHeight);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->addItems(entries);
    list->setCurrentRow(1);
    return list;
}

/// Brings \a list into the state it has with the mouse over the text of \a row, and pins it there.
void pinMouseOver(OmSmoothList *list, int row)
{
    const QPoint place = list->visualItemRect(list->item(row)).topLeft() + QPoint(12, 10);
    QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list->viewport(), &move);
    pinState(list);
}

class ChoiceListsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ChoiceListsPage)

public:
    ChoiceListsPage();

private:
    static QWidget *createAssortmentCard();
    static QWidget *createSmoothCard();
    static QWidget *createStack(const OmSmoothList *list);
};

ChoiceListsPage::ChoiceListsPage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createAssortmentCard());
    column->addWidget(createSmoothCard());
    column->addStretch();
}

QWidget *ChoiceListsPage::createAssortmentCard()
{
    auto *card = new Card(tr("Check boxes in a box that folds"));
    QLabel *log = note(tr("Check something, add something, or fold a box by its button."));

    OmCheckBoxAssortmentView *groups = assortment(tr("Groups"), true);
    groups->setFixedHeight(150);
    OmCheckBoxAssortmentList &items = groups->items();
    items.append(tr("Friends"), true, QColor(0x21, 0xa1, 0x21), QVariant());
    items.append(tr("Family"), true, QColor(0xd6, 0x45, 0x41), QVariant());
    items.append(tr("Colleagues"), false, QColor(0x3a, 0x8d, 0xdb), QVariant());
    items.append(tr("Football"), true, QColor(0xc7, 0x77, 0x00), QVariant());
    OmCheckBoxAssortmentView *folded = assortment(tr("Folded"), false);
    folded->items().append(tr("Hidden"), true, Qt::black, QVariant());
    folded->setIsRetracted(true);
    OmCheckBoxAssortmentView *narrow =
            assortment(tr("A caption that is too long for its title bar"), false);
    narrow->setFixedHeight(90);
    narrow->items().append(tr("One"), true, Qt::black, QVariant());
    narrow->items().append(tr("Two"), false, Qt::black, QVariant());

    connect(groups, &OmCheckBoxAssortmentView::signalOnAddClicked, groups,
            [groups] { groups->items().append(tr("New group"), false, Qt::black, QVariant()); });
    connect(groups, &OmCheckBoxAssortmentView::signalOnItemCheckChanged, log,
            [log](const OmCheckBoxAssortmentItem *item) {
                log->setText(QStringLiteral("signalOnItemCheckChanged(%1)").arg(item->text()));
            });

    auto *row = new QHBoxLayout;
    row->setSpacing(2 * kCardGap);
    for (OmCheckBoxAssortmentView *view : {groups, narrow, folded}) {
        auto *column = new QVBoxLayout;
        column->addWidget(view);
        column->addStretch();
        row->addLayout(column);
    }
    row->addStretch();
    card->body()->addLayout(row);
    card->body()->addWidget(log);
    return card;
}

QWidget *ChoiceListsPage::createSmoothCard()
{
    const QStringList entries{tr("General"), tr("Sounds"), tr("Contacts"), tr("Privacy"),
                              tr("Network")};
    auto *card = new Card(tr("Tabs of a list that open into what they show; at the right the "
                             "mouse is over an entry"));
    OmSmoothList *live = smoothList(entries);
    OmSmoothList *hovered = smoothList(entries);
    pinMouseOver(hovered, 3);

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(live);
    row->addWidget(createStack(live), 1);
    row->addSpacing(2 * kCardGap);
    row->addWidget(hovered);
    row->addWidget(createStack(hovered), 1);
    card->body()->addLayout(row);
    return card;
}

QWidget *ChoiceListsPage::createStack(const OmSmoothList *list)
{
    auto *stack = new QStackedWidget;
    stack->setAutoFillBackground(true);
    for (int row = 0; row < list->count(); ++row)
        stack->addWidget(caption(list->item(row)->text(), Qt::AlignCenter));
    stack->setCurrentIndex(list->currentRow());
    connect(list, &QListWidget::currentRowChanged, stack, &QStackedWidget::setCurrentIndex);
    return stack;
}

} // namespace

GALLERY_PAGE(ChoiceListsPage, "choice-lists", PageGroup::ListsAndViews,
             QT_TRANSLATE_NOOP("GalleryPage", "Lists to choose from"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmCheckBoxAssortmentView and OmSmoothList: check boxes in a box "
                               "that folds, and a list whose entries are tabs."));

} // namespace gallery
