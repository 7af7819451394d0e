#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmStatusBar.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace gallery {

namespace {

using ombrin::OmStatusBar;

constexpr int kMessageMs = 2000;
constexpr int kBarHeight = 22;

OmStatusBar *statusBar()
{
    auto *bar = new OmStatusBar;
    bar->setFixedHeight(kBarHeight);
    bar->setSizeGripEnabled(false);
    return bar;
}

/// A status bar under the magnifying glass: each row of its pixels eight pixels high.
class MagnifiedBar : public QWidget
{
public:
    MagnifiedBar() { setFixedHeight(kBarHeight * kScale); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        OmStatusBar bar;
        bar.setSizeGripEnabled(false);
        bar.resize(8, kBarHeight);
        QImage picture(bar.size(), QImage::Format_RGB32);
        bar.render(&picture);
        QPainter(this).drawImage(rect(), picture);
    }

private:
    static constexpr int kScale = 6;
};

class StatusBarPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(StatusBarPage)

public:
    StatusBarPage();

private:
    static QWidget *createContentsCard();
    static QWidget *createGradientCard();
    static QWidget *createLiveCard();
};

StatusBarPage::StatusBarPage()
{
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createGradientCard(), 1);
    lower->addWidget(createLiveCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createContentsCard());
    column->addLayout(lower);
    column->addStretch();
}

QWidget *StatusBarPage::createContentsCard()
{
    OmStatusBar *message = statusBar();
    message->showMessage(tr("Ada has signed in"));

    OmStatusBar *widgets = statusBar();
    auto *presence = new QLabel(tr("Online"));
    presence->setContentsMargins(4, 0, 4, 0);
    widgets->addWidget(presence);
    widgets->addWidget(new QLabel(tr("3 conversations")));
    widgets->addPermanentWidget(new QLabel(tr("12 of 40 contacts online ")));

    OmStatusBar *progress = statusBar();
    progress->addWidget(new QLabel(tr(" Sending holiday.jpg")));
    auto *transfer = new QProgressBar;
    transfer->setFixedSize(160, 14);
    transfer->setValue(65);
    progress->addPermanentWidget(transfer);

    OmStatusBar *grip = statusBar();
    grip->addWidget(new QLabel(tr(" A size grip at the end")));
    grip->setSizeGripEnabled(true);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kPageMargin);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(1, 1);
    const std::pair<QString, OmStatusBar *> rows[] = {{tr("Message"), message},
                                                      {tr("Widgets"), widgets},
                                                      {tr("Progress"), progress},
                                                      {tr("Size grip"), grip}};
    int row = 0;
    for (const auto &[text, bar] : rows) {
        grid->addWidget(new QLabel(text), row, 0);
        grid->addWidget(bar, row, 1);
        ++row;
    }
    auto *card = new Card(tr("What it can hold"));
    card->body()->addLayout(grid);
    return card;
}

QWidget *StatusBarPage::createGradientCard()
{
    const QColor stops[] = {{183, 183, 182}, {207, 207, 207}, {228, 228, 228}, {232, 232, 232}};
    const QString places[] = {tr("top row"), tr("5 % below"), tr("middle"), tr("bottom row")};

    auto *row = new QHBoxLayout;
    row->setSpacing(kPageMargin);
    row->addWidget(new MagnifiedBar, 1);
    auto *legend = new QVBoxLayout;
    for (int index = 0; index < 4; ++index) {
        const QString name = stops[index].name();
        legend->addWidget(caption(tr("%1  %2").arg(name, places[index])));
        if (index < 3)
            legend->addStretch(index == 0 ? 1 : 4);
    }
    row->addLayout(legend);

    auto *card = new Card(tr("The gradient, enlarged"));
    card->body()->addLayout(row);
    card->body()->addStretch();
    return card;
}

QWidget *StatusBarPage::createLiveCard()
{
    auto *bar = new OmStatusBar;
    bar->setSizeGripEnabled(false);
    auto *edit = new QLineEdit(tr("Max is typing a message"));
    auto *show = pushButton(tr("Show"), tr("Shows the message for two seconds"));
    const auto showMessage = [bar, edit] { bar->showMessage(edit->text(), kMessageMs); };
    connect(show, &QPushButton::clicked, bar, showMessage);
    connect(edit, &QLineEdit::returnPressed, bar, showMessage);
    auto *idle = new QLabel(tr("Idle"));
    idle->setContentsMargins(4, 0, 0, 0);
    bar->addWidget(idle);

    auto *input = new QHBoxLayout;
    input->addWidget(edit, 1);
    input->addWidget(show);
    auto *card = new Card(tr("Try it"));
    card->body()->addLayout(input);
    card->body()->addWidget(bar);
    card->body()->addWidget(note(tr("A message covers the widgets on the left and goes after its "
                                    "time; status tips work the same way: point at a button.")));
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(StatusBarPage, "status-bar", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Status bar"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmStatusBar: messages and widgets on the skin's grey gradient."));

} // namespace gallery
