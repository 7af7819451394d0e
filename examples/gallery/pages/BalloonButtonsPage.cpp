#include "BalloonPicture.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmPushButton.h>
#include <ombrin/OmToolBar.h>
#include <ombrin/OmToolButton.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QSlider>

namespace gallery {

namespace {

using ombrin::OmPushButton;
using ombrin::OmToolBar;
using ombrin::OmToolButton;

constexpr int kBarHeight = 36;
constexpr int kNarrowBar = 130;
constexpr int kWideBar = 420;

class BalloonButtonsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(BalloonButtonsPage)

public:
    BalloonButtonsPage();

private:
    static QWidget *createToolTipCard();
    static QWidget *createButtonsCard();
    static QWidget *createBarsCard();
    static OmToolButton *toolButton(const QString &icon, const QString &text,
                                    const QString &toolTip);
    static QWidget *toolBar(int width);
};

BalloonButtonsPage::BalloonButtonsPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createToolTipCard(), 1);
    upper->addWidget(createButtonsCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper);
    column->addWidget(createBarsCard());
    column->addStretch();
}

OmToolButton *BalloonButtonsPage::toolButton(const QString &icon, const QString &text,
                                             const QString &toolTip)
{
    auto *button = new OmToolButton;
    button->setIcon(skinIcon(icon));
    button->setIconSize(QSize(16, 16));
    button->setText(text);
    button->setToolTip(toolTip);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    return button;
}

QWidget *BalloonButtonsPage::createToolTipCard()
{
    auto *button = new OmPushButton;
    button->setText(tr("Call"));
    pinHovered(button);
    BalloonContents contents;
    contents.message = tr("Call Ada on her mobile phone");
    QWidget *balloon = balloonPicture(contents);

    // The arrow's tip, 18 pixels from the balloon's left, is at the middle of the button's bottom.
    auto *stage = new QWidget;
    constexpr int arrow = 18;
    button->setParent(stage);
    balloon->setParent(stage);
    button->resize(button->sizeHint());
    button->move(8, 4);
    balloon->move(button->x() + button->width() / 2 - arrow, button->geometry().bottom() + 1);
    stage->setMinimumSize(balloon->geometry().right() + 8, balloon->geometry().bottom() + 8);

    auto *card = new Card(tr("The tool tip is a balloon"));
    card->body()->addWidget(stage);
    card->body()->addStretch();
    card->body()->addWidget(
            note(tr("It points at the middle of the bottom edge, goes after two seconds or when "
                    "the mouse leaves, and shows its text as it stands.")));
    return card;
}

QWidget *BalloonButtonsPage::createButtonsCard()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(kCardGap);
    grid->addWidget(caption(tr("Push buttons")), 0, 0);
    grid->addWidget(caption(tr("Tool buttons")), 0, 1);
    for (int row = 1; row <= 3; ++row) {
        auto *push = new OmPushButton;
        push->setText(row == 1 ? tr("Send") : row == 2 ? tr("Save as...") : tr("Block"));
        push->setToolTip(tr("Plain text: <b>R&D</b> & more"));
        auto *tool = row == 1   ? toolButton(QStringLiteral("chat-16"), tr("Chat"),
                                             tr("Starts a conversation"))
                     : row == 2 ? toolButton(QStringLiteral("save-16"), tr("Save"),
                                             tr("Saves the picture\nin your picture folder"))
                                : toolButton(QStringLiteral("block-16"), tr("Block"),
                                             tr("A disabled button shows no tip"));
        tool->setAutoRaise(false);
        tool->setEnabled(row != 3);
        push->setEnabled(row != 3);
        grid->addWidget(push, row, 0);
        grid->addWidget(tool, row, 1);
    }
    auto *card = new Card(tr("Point at them"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

// A bar of a width of its own, whatever the page's layout.
QWidget *BalloonButtonsPage::toolBar(int width)
{
    auto *place = new QWidget;
    auto *bar = new OmToolBar(place);
    bar->setIconSize(QSize(16, 16));
    QList<QToolButton *> buttons = {
            toolButton(QStringLiteral("chat-16"), tr("Chat"), tr("Starts a conversation")),
            toolButton(QStringLiteral("phone-16"), tr("Call"), tr("Calls the contact")),
            toolButton(QStringLiteral("filetransfer-16"), tr("Send file"), tr("Sends a file")),
            toolButton(QStringLiteral("block-16"), tr("Block"), tr("Blocks the contact"))};
    for (QToolButton *button : std::as_const(buttons))
        bar->addWidget(button);
    bar->setButtonList(buttons);
    bar->ensurePolished();
    bar->resize(width, kBarHeight);
    place->setFixedHeight(kBarHeight);
    return place;
}

QWidget *BalloonButtonsPage::createBarsCard()
{
    QWidget *live = toolBar(kWideBar);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(kNarrowBar, kWideBar + 200);
    slider->setValue(kWideBar);
    slider->setAccessibleName(tr("Width of the tool bar"));
    auto *bar = live->findChild<OmToolBar *>();
    connect(slider, &QSlider::valueChanged, bar,
            [bar](int width) { bar->resize(width, kBarHeight); });

    auto *card = new Card(tr("A tool bar shows texts where there is room for them"));
    card->body()->addWidget(caption(tr("30 pixels wider than its buttons, or less")));
    card->body()->addWidget(toolBar(kNarrowBar));
    card->body()->addWidget(caption(tr("Wider; drag the slider")));
    card->body()->addWidget(live);
    card->body()->addWidget(slider);
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(BalloonButtonsPage, "buttons", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Buttons and tool bar"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmPushButton, OmToolButton and OmToolBar: tool tips in balloons, "
                               "and texts where they fit."));

} // namespace gallery
