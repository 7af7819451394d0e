#include "ContactSheet.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

class IconsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(IconsPage)

public:
    IconsPage();

private:
    static QWidget *createSmallCard();
    static QWidget *createLargeCard();
    static QWidget *createStarCard();
    static QWidget *createPlaceholderCard();
};

IconsPage::IconsPage()
{
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createLargeCard(), 2);
    lower->addWidget(createStarCard(), 3);
    lower->addWidget(createPlaceholderCard(), 2);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createSmallCard());
    column->addLayout(lower);
    column->addStretch();
}

QWidget *IconsPage::createSmallCard()
{
    auto *card = new Card(tr("Small icons"));
    card->body()->addLayout(tileRows(
            {"chat-16", "phone-16", "filetransfer-16", "webfolder-16", "profile-16",
             "authorization-16", "block-16", "exit-16", "save-16", "delete-16", "close-16",
             "addsmiley-16", "is_typing-16", "is_talking-16", "search-14", "erase-left-14"},
            8, QSize(38, 44), 1));
    return card;
}

QWidget *IconsPage::createLargeCard()
{
    auto *card = new Card(tr("Large icons"));
    card->body()->addLayout(
            tileRows({"chat-32", "addmulti-32", "unblock-32", "zoom+-24"}, 2, QSize(42, 52), 1));
    card->body()->addStretch();
    return card;
}

QWidget *IconsPage::createStarCard()
{
    auto *card = new Card(tr("Stars"));
    card->body()->addLayout(
            tileRows({"star_empty-32", "star_half-32", "star_full-32", "star_empty_hover-32",
                      "star_half_hover-32", "star_full_hover-32"},
                     3, QSize(42, 52), 2));
    card->body()->addStretch();
    return card;
}

QWidget *IconsPage::createPlaceholderCard()
{
    auto *card = new Card(tr("Placeholder"));
    card->body()->addLayout(tileRows({"no_userpic-78"}, 1, QSize(86, 86), 1));
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(IconsPage, "icons", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Images: icons"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "Icons, rating stars and the placeholder for missing user pictures, "
                               "on light and on dark ground."));

} // namespace gallery
