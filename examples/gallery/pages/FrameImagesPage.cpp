#include "ContactSheet.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

constexpr const char *kActivations[] = {"active", "inactive"};
constexpr const char *kButtons[] = {"minimize_", "maximize_", "restore_", "close_"};
constexpr const char *kStates[] = {"up_", "hover_", "down_", "disabled_"};

struct Piece
{
    const char *name;
    int groundWidth;
};

constexpr Piece kPieces[] = {{"top_left_", 94},      {"top_center_", 40},  {"top_right_", 96},
                             {"left_", 40},          {"right_", 40},       {"bottom_left_", 40},
                             {"bottom_center_", 40}, {"bottom_right_", 40}};

class FrameImagesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(FrameImagesPage)

public:
    FrameImagesPage();

private:
    static QWidget *createFrameCard();
    static QWidget *createButtonCard();
};

FrameImagesPage::FrameImagesPage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createFrameCard());
    column->addWidget(createButtonCard(), 1);
}

QWidget *FrameImagesPage::createFrameCard()
{
    constexpr int groundHeight = 36;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(8);
    int row = 0;
    for (const char *activation : kActivations) {
        int column = 0;
        for (const Piece &piece : kPieces) {
            const QString piecePart = QString::fromLatin1(piece.name);
            const QString activationPart = QString::fromLatin1(activation);
            auto *tile = new PictureTile(piecePart + activationPart,
                                         QSize(piece.groundWidth, groundHeight), Grounds::Stacked,
                                         piecePart + QLatin1Char('\n') + activationPart);
            grid->addWidget(tile, row, column, Qt::AlignHCenter | Qt::AlignTop);
            grid->setColumnStretch(column, 1);
            ++column;
        }
        ++row;
    }
    auto *card = new Card(tr("Frame"));
    card->body()->addLayout(grid);
    return card;
}

QWidget *FrameImagesPage::createButtonCard()
{
    constexpr QSize ground(32, 27);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(0, 1);
    int column = 1;
    for (const char *activation : kActivations) {
        for (const char *state : kStates) {
            const QString statePart = QString::fromLatin1(state);
            const QString activationPart = QString::fromLatin1(activation);
            grid->addWidget(caption(statePart + QLatin1Char('\n') + activationPart,
                                    Qt::AlignHCenter | Qt::AlignBottom),
                            0, column);
            int row = 1;
            for (const char *button : kButtons) {
                auto *tile = new PictureTile(QLatin1String(button) + statePart + activationPart,
                                             ground, Grounds::SideBySide, QString());
                grid->addWidget(tile, row++, column, Qt::AlignCenter);
            }
            ++column;
        }
    }
    int row = 1;
    for (const char *button : kButtons)
        grid->addWidget(caption(QString::fromLatin1(button)), row++, 0);

    auto *card = new Card(tr("Title-bar buttons"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(FrameImagesPage, "frame-images", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Images: frame"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The pictures of window frames and their buttons, on light and on "
                               "dark ground."));

} // namespace gallery
