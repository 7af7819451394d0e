#include "SampleContents.h"

#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmContactCardList.h>
#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>
#include <ombrin/OmTabBar.h>

namespace ombrin::designer {

void showSampleTabs(QWidget *tabBar)
{
    auto *const bar = static_cast<OmTabBar *>(tabBar);
    bar->addTab(QStringLiteral("Tab 1"));
    bar->addTab(QStringLiteral("Tab 2"));
}

void showSampleCards(QWidget *contactCardList)
{
    constexpr struct
    {
        const char *alias;
        Om::ContactStatus status;
    } kContacts[] = {{"Ada", Om::Online}, {"Grace", Om::Away}, {"Max", Om::Offline}};

    auto *const list = static_cast<OmContactCardList *>(contactCardList);
    for (const auto &contact : kContacts) {
        auto *const card = new OmContactCard;
        card->setAlias(QLatin1String(contact.alias));
        card->setStatus(contact.status);
        list->addCard(card);
    }
}

void showSampleCheckBoxes(QWidget *checkBoxAssortmentView)
{
    auto *const view = static_cast<OmCheckBoxAssortmentView *>(checkBoxAssortmentView);
    view->items().append(QStringLiteral("Item 1"), true, Qt::darkGreen, QVariant());
    view->items().append(QStringLiteral("Item 2"), false, Qt::darkBlue, QVariant());
    view->items().append(QStringLiteral("Item 3"), true, Qt::darkRed, QVariant());
}

void showSampleLines(QWidget *zebraView)
{
    constexpr int kLines = 3;
    auto *const view = static_cast<OmScribbledZebraView *>(zebraView);
    view->poles().append(60, true);
    view->poles().append(70, true);
    view->blockRefresh(true);
    for (int line = 0; line < kLines; ++line) {
        view->items().append(new OmScribbledZebraItemText(
                0, line, false, QStringLiteral("Text %1").arg(line + 1), nullptr));
        auto *const link = new OmScribbledZebraItemLink(
                1, line, true, QStringLiteral("Link %1").arg(line + 1), nullptr);
        link->setBrush(view->palette().link());
        view->items().append(link);
    }
    view->blockRefresh(false);
}

void releaseWidth(QWidget *toolBar)
{
    toolBar->setMinimumSize(0, 0);
}

} // namespace ombrin::designer
