#include "ContactSheet.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

constexpr int kLongestCountdown = 10;

class CountdownImagesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(CountdownImagesPage)

public:
    CountdownImagesPage();

private:
    static QWidget *createNumberCard();
    static QWidget *createButtonCard();
};

CountdownImagesPage::CountdownImagesPage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createNumberCard());
    column->addWidget(createButtonCard());
    column->addStretch();
}

QWidget *CountdownImagesPage::createNumberCard()
{
    constexpr int columns = 5;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(6);
    for (int seconds = 1; seconds <= kLongestCountdown; ++seconds) {
        const int index = seconds - 1;
        auto *tile = namedTile(QStringLiteral("countdown-%1-128.png").arg(seconds), QSize(128, 128),
                               Grounds::Split, 1);
        grid->addWidget(tile, index / columns, index % columns, Qt::AlignCenter);
        grid->setColumnStretch(index % columns, 1);
    }
    auto *card = new Card(tr("Seconds left"));
    card->body()->addLayout(grid);
    return card;
}

QWidget *CountdownImagesPage::createButtonCard()
{
    auto *card = new Card(tr("Capture button"));
    card->body()->addLayout(tileRows({"countdown-snap-64.png", "countdown-snap-hover-64.png",
                                      "countdown-snap-pressed-64.png"},
                                     3, QSize(80, 64), 1));
    return card;
}

} // namespace

GALLERY_PAGE(CountdownImagesPage, "countdown-images", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Images: countdown"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The countdown before a screenshot, which stands over anything: "
                               "light and dark meet below it."));

} // namespace gallery
