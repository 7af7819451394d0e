#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace gallery {

namespace {

class StylePrimitivesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(StylePrimitivesPage)

public:
    StylePrimitivesPage();

private:
    static QWidget *createLineEditCard();
    static QWidget *createCheckBoxCard();
    static QWidget *createBranchCard();
    static QWidget *createFrameCard();
    static QWidget *createMenuBarCard();
    static QWidget *createToolButtonCard();
};

StylePrimitivesPage::StylePrimitivesPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createLineEditCard(), 1);
    upper->addWidget(createCheckBoxCard(), 1);
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createBranchCard(), 1);
    lower->addWidget(createFrameCard(), 1);
    auto *last = cardStack(Qt::Horizontal);
    last->addWidget(createMenuBarCard(), 1);
    last->addWidget(createToolButtonCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper, 1);
    column->addLayout(lower, 1);
    column->addLayout(last);
}

QWidget *StylePrimitivesPage::createLineEditCard()
{
    auto *normal = new QLineEdit(tr("Ada Lovelace"));
    auto *hovered = new QLineEdit(tr("Ada Lovelace"));
    pinHovered(hovered);
    auto *disabled = new QLineEdit(tr("Ada Lovelace"));
    disabled->setEnabled(false);
    auto *empty = new QLineEdit;
    empty->setPlaceholderText(tr("Type a name"));

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kPageMargin);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    const std::pair<QString, QLineEdit *> rows[] = {{tr("Normal"), normal},
                                                    {tr("Hovered"), hovered},
                                                    {tr("Disabled"), disabled},
                                                    {tr("Empty"), empty}};
    int row = 0;
    for (const auto &[text, edit] : rows) {
        grid->addWidget(caption(text), row, 0);
        grid->addWidget(edit, row, 1);
        ++row;
    }
    auto *card = new Card(tr("Line edits"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *StylePrimitivesPage::createCheckBoxCard()
{
    struct Column
    {
        QString text;
        void (*pin)(QCheckBox *);
    };
    const Column columns[] = {
            {tr("Normal"), [](QCheckBox *) {}},
            {tr("Hovered"), [](QCheckBox *box) { pinHovered(box); }},
            {tr("Pressed"),
             [](QCheckBox *box) {
                 pinState(box);
                 box->setDown(true);
             }},
            {tr("Disabled"), [](QCheckBox *box) { box->setEnabled(false); }},
    };
    const std::pair<QString, Qt::CheckState> rows[] = {{tr("Unchecked"), Qt::Unchecked},
                                                       {tr("Checked"), Qt::Checked},
                                                       {tr("Partial"), Qt::PartiallyChecked}};

    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(16);
    for (int column = 0; column < 4; ++column) {
        grid->addWidget(caption(columns[column].text, Qt::AlignCenter), 0, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
    int row = 1;
    for (const auto &[text, checkState] : rows) {
        grid->addWidget(caption(text), row, 0);
        for (int column = 0; column < 4; ++column) {
            auto *box = new QCheckBox;
            box->setAccessibleName(text);
            box->setTristate(checkState == Qt::PartiallyChecked);
            box->setCheckState(checkState);
            columns[column].pin(box);
            box->setFixedSize(box->sizeHint() + QSize(2, 2)); // room for the hovered outline
            grid->addWidget(box, row, column + 1, Qt::AlignCenter);
        }
        ++row;
    }
    auto *card = new Card(tr("Check boxes"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *StylePrimitivesPage::createBranchCard()
{
    auto *tree = new QTreeWidget;
    tree->header()->hide();
    tree->setFocusPolicy(Qt::NoFocus);
    auto *friends = new QTreeWidgetItem(tree, {tr("Friends")});
    for (const QString &name : {tr("Ada"), tr("Grace"), tr("Max")})
        new QTreeWidgetItem(friends, {name});
    auto *family = new QTreeWidgetItem(tree, {tr("Family")});
    new QTreeWidgetItem(family, {tr("Emmy")});
    new QTreeWidgetItem(new QTreeWidgetItem(tree, {tr("Colleagues")}), {tr("Alan")});
    friends->setExpanded(true);
    family->setExpanded(true);

    auto *card = new Card(tr("Tree branches"));
    card->body()->addWidget(tree);
    return card;
}

QWidget *StylePrimitivesPage::createFrameCard()
{
    struct Sample
    {
        QString text;
        QFrame::Shape shape;
        QFrame::Shadow shadow;
    };
    const Sample samples[] = {
            {tr("StyledPanel"), QFrame::StyledPanel, QFrame::Plain},
            {tr("StyledPanel, sunken"), QFrame::StyledPanel, QFrame::Sunken},
            {tr("StyledPanel, raised"), QFrame::StyledPanel, QFrame::Raised},
            {tr("Box"), QFrame::Box, QFrame::Plain},
            {tr("Panel, sunken"), QFrame::Panel, QFrame::Sunken},
            {tr("Panel, raised"), QFrame::Panel, QFrame::Raised},
    };
    auto *grid = new QGridLayout;
    grid->setSpacing(10);
    int index = 0;
    for (const auto &[text, shape, shadow] : samples) {
        auto *frame = new QLabel(text);
        frame->setFrameShape(shape);
        frame->setFrameShadow(shadow);
        frame->setAlignment(Qt::AlignCenter);
        frame->setMinimumHeight(38);
        frame->setAutoFillBackground(true);
        grid->addWidget(frame, index / 2, index % 2);
        ++index;
    }
    auto *card = new Card(tr("Frames"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *StylePrimitivesPage::createMenuBarCard()
{
    auto *bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    bar->setAutoFillBackground(true); // the style draws the edges alone
    for (const QString &title : {tr("&Chat"), tr("C&ontacts"), tr("Vie&w"), tr("&Help")}) {
        QMenu *menu = bar->addMenu(title);
        menu->addAction(tr("An entry"));
        menu->addAction(tr("Another entry"));
    }
    auto *card = new Card(tr("Menu bar"));
    card->body()->addWidget(bar);
    card->body()->addStretch();
    return card;
}

QWidget *StylePrimitivesPage::createToolButtonCard()
{
    struct Sample
    {
        const char *icon;
        QString toolTip;
        bool autoRaise;
        void (*pin)(QToolButton *);
    };
    const Sample samples[] = {
            {"chat-16", tr("Plain"), false, [](QToolButton *) {}},
            {"phone-16", tr("Hovered"), false, [](QToolButton *button) { pinHovered(button); }},
            {"filetransfer-16", tr("Pressed"), false,
             [](QToolButton *button) {
                 pinState(button);
                 button->setDown(true);
             }},
            {"addsmiley-16", tr("Checked"), false,
             [](QToolButton *button) {
                 button->setCheckable(true);
                 button->setChecked(true);
             }},
            {"save-16", tr("Disabled"), false,
             [](QToolButton *button) { button->setEnabled(false); }},
            {"profile-16", tr("Flat"), true, [](QToolButton *) {}},
    };
    auto *row = new QHBoxLayout;
    for (const Sample &sample : samples) {
        auto *button = new QToolButton;
        button->setIcon(skinIcon(QLatin1String(sample.icon)));
        button->setIconSize(QSize(16, 16));
        button->setFixedSize(28, 26);
        button->setToolTip(sample.toolTip);
        button->setAutoRaise(sample.autoRaise);
        sample.pin(button);
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addWidget(button, 0, Qt::AlignHCenter);
        column->addWidget(caption(sample.toolTip, Qt::AlignCenter));
        row->addLayout(column);
    }
    auto *card = new Card(tr("Tool buttons"));
    card->body()->addLayout(row);
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(StylePrimitivesPage, "style-primitives", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Style primitives"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmStyle2: frames, indicators and panels of Qt's own widgets."));

} // namespace gallery
