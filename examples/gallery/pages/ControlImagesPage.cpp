#include "ContactSheet.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

/// One row of tiles, each with grounds that suit its picture.
struct Picture
{
    const char *name;
    QSize ground;
};

constexpr QSize kArrow(28, 28);
constexpr QSize kLying(56, 28);
constexpr QSize kUpright(28, 56);

constexpr Picture kScrollBars[] = {
        {"scrollbar_vertical_left_normal", kArrow},
        {"scrollbar_vertical_right_normal", kArrow},
        {"scrollbar_horizontal_up_normal", kArrow},
        {"scrollbar_horizontal_down_normal", kArrow},
        {"scrollbar_horizontal_trackbar_normal", kLying},
        {"scrollbar_vertical_trackbar_normal", kUpright},
        {"scrollbar_vertical_left_hover", kArrow},
        {"scrollbar_vertical_right_hover", kArrow},
        {"scrollbar_horizontal_up_hover", kArrow},
        {"scrollbar_horizontal_down_hover", kArrow},
        {"scrollbar_horizontal_trackbar_hover", kLying},
        {"scrollbar_vertical_trackbar_hover", kUpright},
};

class ControlImagesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ControlImagesPage)

public:
    ControlImagesPage();

private:
    static QWidget *createScrollBarCard();
    static QWidget *createArrowCard();
    static QWidget *createSnapshotCard();
};

ControlImagesPage::ControlImagesPage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createScrollBarCard());
    column->addWidget(createArrowCard());
    column->addWidget(createSnapshotCard());
    column->addStretch();
}

QWidget *ControlImagesPage::createScrollBarCard()
{
    constexpr int columns = 6;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(8);
    int index = 0;
    for (const Picture &picture : kScrollBars) {
        auto *tile = namedTile(QString::fromLatin1(picture.name), picture.ground,
                               Grounds::SideBySide, 2);
        grid->addWidget(tile, index / columns, index % columns, Qt::AlignHCenter | Qt::AlignBottom);
        grid->setColumnStretch(index % columns, 1);
        ++index;
    }
    auto *card = new Card(tr("Scroll bars"));
    card->body()->addLayout(grid);
    return card;
}

QWidget *ControlImagesPage::createArrowCard()
{
    auto *card = new Card(tr("Combo boxes, headers and trees"));
    card->body()->addLayout(
            tileRows({"combobox_arrow_normal", "combobox_arrow_hover", "combobox_arrow_clicked",
                      "combobox_arrow_disabled", "header_open", "header_closed", "treeview_open",
                      "treeview_closed"},
                     8, QSize(34, 34), 2));
    return card;
}

QWidget *ControlImagesPage::createSnapshotCard()
{
    auto *card = new Card(tr("Screenshot bar"));
    card->body()->addLayout(
            tileRows({"snapshot-snap-32.png", "snapshot-snap-hover-32.png",
                      "snapshot-snap-pressed-32.png", "snapshot-close-32.png",
                      "snapshot-close-hover-32.png", "snapshot-close-pressed-32.png"},
                     6, QSize(42, 42), 2));
    return card;
}

} // namespace

GALLERY_PAGE(ControlImagesPage, "control-images", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Images: controls"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The pictures of scroll bars, arrows and buttons, on light and on "
                               "dark ground."));

} // namespace gallery
