#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmTabBar.h>
#include <ombrin/OmTabWidget.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QTextEdit>

namespace gallery {

namespace {

using ombrin::OmTabBar;
using ombrin::OmTabWidget;

/// Tabs "A" to "E", of which the dragged one is current.
OmTabBar *letterBar(const QString &letters, QChar dragged)
{
    auto *bar = new OmTabBar;
    bar->setExpanding(false);
    bar->setDrawBase(false);
    for (const QChar letter : letters)
        bar->addTab(QString(letter));
    bar->setCurrentIndex(static_cast<int>(letters.indexOf(dragged)));
    pinState(bar);
    return bar;
}

class TabsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(TabsPage)

public:
    TabsPage();

private:
    static OmTabWidget *conversations();
    static void addConversation(OmTabWidget *tabs, const QString &name, const QString &icon,
                                const QString &text);
    static QWidget *createLiveCard();
    static QBoxLayout *createSwitches(OmTabWidget *tabs);
    static QLabel *createLog(OmTabWidget *tabs);
    static QWidget *createIconsCard();
    static QWidget *createExchangeCard();
};

TabsPage::TabsPage()
{
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createIconsCard(), 1);
    lower->addWidget(createExchangeCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createLiveCard(), 1);
    column->addLayout(lower);
}

OmTabWidget *TabsPage::conversations()
{
    auto *tabs = new OmTabWidget;
    addConversation(tabs, tr("Contacts"), QStringLiteral("profile-16"),
                    tr("This tab is special: it cannot be closed."));
    addConversation(tabs, tr("Ada"), QStringLiteral("chat-16"), tr("Drag my tab onto another."));
    addConversation(tabs, tr("Max"), QStringLiteral("phone-16"), tr("The pages follow the tabs."));
    addConversation(tabs, tr("holiday.jpg"), QStringLiteral("filetransfer-16"),
                    tr("Close me with the button in the corner."));
    tabs->addSpecialWidget(tabs->widget(0));
    return tabs;
}

void TabsPage::addConversation(OmTabWidget *tabs, const QString &name, const QString &icon,
                               const QString &text)
{
    auto *page = new QTextEdit;
    page->setFrameShape(QFrame::NoFrame);
    page->setPlainText(text);
    const int index = tabs->addTab(page, skinIcon(icon), name);
    tabs->setTabToolTip(index, name);
}

QWidget *TabsPage::createLiveCard()
{
    OmTabWidget *tabs = conversations();
    tabs->enableDragableTabs(true);
    tabs->enableCloseTabButton(true);
    tabs->setCurrentIndex(1);
    connect(tabs, &OmTabWidget::tabRemoved, tabs, [](QWidget *page) { delete page; });

    auto *card = new Card(tr("Try it"));
    card->body()->addWidget(tabs, 1);
    auto *below = createSwitches(tabs);
    below->addStretch();
    below->addWidget(createLog(tabs));
    card->body()->addLayout(below);
    return card;
}

QBoxLayout *TabsPage::createSwitches(OmTabWidget *tabs)
{
    const struct
    {
        QString text;
        void (OmTabWidget::*enable)(bool);
    } switches[] = {{tr("Dragable"), &OmTabWidget::enableDragableTabs},
                    {tr("Captions"), &OmTabWidget::enableTabText},
                    {tr("Tab bar"), &OmTabWidget::enableTabBar},
                    {tr("Close button"), &OmTabWidget::enableCloseTabButton}};
    auto *row = cardStack(Qt::Horizontal);
    for (const auto &entry : switches) {
        auto *box = new QCheckBox(entry.text);
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, tabs, entry.enable);
        row->addWidget(box);
    }
    return row;
}

QLabel *TabsPage::createLog(OmTabWidget *tabs)
{
    QLabel *log = caption(tr("No signal yet"), Qt::AlignRight | Qt::AlignVCenter);
    auto *bar = tabs->findChild<OmTabBar *>();
    connect(bar, &OmTabBar::tabsExchanged, log, [log](int first, int second) {
        log->setText(QStringLiteral("tabsExchanged(%1, %2)").arg(first).arg(second));
    });
    connect(tabs, &OmTabWidget::tabRemoved, log,
            [log](QWidget *page) { log->setText(page ? tr("tabRemoved") : tr("No tab left")); });
    return log;
}

QWidget *TabsPage::createIconsCard()
{
    OmTabWidget *tabs = conversations();
    tabs->enableTabText(false);
    tabs->enableCloseTabButton(true);
    tabs->setCurrentIndex(0);
    tabs->setMaximumHeight(150);
    auto *card = new Card(tr("Without captions, a special tab"));
    card->body()->addWidget(tabs, 1);
    return card;
}

QWidget *TabsPage::createExchangeCard()
{
    const struct
    {
        QString where;
        QString letters;
    } rows[] = {{tr("Before"), QStringLiteral("ABCDE")},
                {tr("Right half of D"), QStringLiteral("ADCBE")},
                {tr("Left half of D"), QStringLiteral("ACBDE")},
                {tr("Left half of A"), QStringLiteral("BACDE")}};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kPageMargin);
    grid->setColumnStretch(1, 1);
    int line = 0;
    for (const auto &row : rows) {
        grid->addWidget(new QLabel(row.where), line, 0);
        grid->addWidget(letterBar(row.letters, QLatin1Char('B')), line, 1, Qt::AlignLeft);
        ++line;
    }
    auto *card = new Card(tr("Where B goes when it is dropped"));
    card->body()->addLayout(grid);
    card->body()->addWidget(caption(tr("While B is dragged, a marker shows where it would go.")));
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(TabsPage, "tabs", PageGroup::BasicWidgets, QT_TRANSLATE_NOOP("GalleryPage", "Tabs"),
             QT_TRANSLATE_NOOP("GalleryPage", "OmTabBar and OmTabWidget: tabs that exchange places "
                                              "by drag and drop, and a button that closes them."));

} // namespace gallery
