#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmStatusBar.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace gallery {

namespace {

using ombrin::OmStatusBar;

constexpr int kMessageMs = 2000;
constexpr int kBarHeight = 24;

OmStatusBar *statusBar()
{
    auto *bar = new OmStatusBar;
    bar->setFixedHeight(kBarHeight);
    bar->setSizeGripEnabled(false);
    return bar;
}

QLabel *text(const QString &words)
{
    auto *label = new QLabel(words);
    label->setContentsMargins(4, 0, 4, 0);
    return label;
}

struct GradientStop
{
    double place; // from the bottom
    QColor color;
};

constexpr GradientStop kGradientStops[] = {{1.0, {183, 183, 182}},
                                           {0.95, {207, 207, 207}},
                                           {0.5, {228, 228, 228}},
                                           {0.0, {232, 232, 232}}};

/// A status bar drawn ten times as high, with the colours of its gradient.
class GradientFigure : public QWidget
{
public:
    GradientFigure() { setMinimumHeight(150); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int labelWidth = 76;
        constexpr int lineHeight = 20;
        const int barWidth = width() - labelWidth;
        QPainter painter(this);
        painter.drawImage(QRect(0, 0, barWidth, height()), barPicture(height()));

        const QColor quiet = palette().color(QPalette::Disabled, QPalette::WindowText);
        int lowestText = lineHeight / 2;
        for (const GradientStop &stop : kGradientStops) {
            const int y = qRound((1.0 - stop.place) * (height() - 1));
            const int textY = qBound(lowestText, y, height() - lineHeight / 2);
            painter.setPen(palette().color(QPalette::Dark));
            painter.drawLine(barWidth, y, barWidth + 6, y);
            painter.drawLine(barWidth + 6, y, barWidth + 14, textY);
            painter.setPen(quiet);
            painter.drawText(barWidth + 20, textY - lineHeight / 2, labelWidth - 20, lineHeight,
                             Qt::AlignLeft | Qt::AlignVCenter, stop.color.name());
            lowestText = textY + lineHeight;
        }
    }

private:
    static QImage barPicture(int height)
    {
        OmStatusBar bar;
        bar.setSizeGripEnabled(false);
        bar.resize(8, height);
        QImage picture(bar.size(), QImage::Format_RGB32);
        bar.render(&picture);
        return picture;
    }
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
    column->addLayout(lower, 1);
}

QWidget *StatusBarPage::createContentsCard()
{
    OmStatusBar *message = statusBar();
    message->showMessage(tr("Ada has signed in"));

    OmStatusBar *widgets = statusBar();
    widgets->addWidget(text(tr("Online")));
    widgets->addWidget(text(tr("3 conversations")));
    widgets->addPermanentWidget(text(tr("12 of 40 contacts online")));

    OmStatusBar *progress = statusBar();
    progress->addWidget(text(tr("Sending holiday.jpg")));
    auto *transfer = new QProgressBar;
    transfer->setFixedSize(160, 14);
    transfer->setValue(65);
    transfer->setTextVisible(false);
    progress->addPermanentWidget(transfer);

    OmStatusBar *buttons = statusBar();
    buttons->addWidget(text(tr("Conversation with Ada")));
    for (const char *icon : {"phone-16", "filetransfer-16", "profile-16"}) {
        auto *button = new QToolButton;
        button->setIcon(skinIcon(QLatin1String(icon)));
        button->setIconSize(QSize(16, 16));
        button->setAutoRaise(true);
        buttons->addPermanentWidget(button);
    }

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kPageMargin);
    grid->setVerticalSpacing(18);
    grid->setColumnStretch(1, 1);
    const std::pair<QString, OmStatusBar *> rows[] = {{tr("Message"), message},
                                                      {tr("Widgets"), widgets},
                                                      {tr("Progress"), progress},
                                                      {tr("Buttons"), buttons}};
    int row = 0;
    for (const auto &[name, bar] : rows) {
        grid->addWidget(new QLabel(name), row, 0);
        grid->addWidget(bar, row, 1);
        ++row;
    }
    auto *card = new Card(tr("What it can hold"));
    card->body()->addLayout(grid);
    return card;
}

QWidget *StatusBarPage::createGradientCard()
{
    auto *card = new Card(tr("The gradient, enlarged"));
    card->body()->addWidget(new GradientFigure, 1);
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
    bar->addWidget(text(tr("Idle")));

    auto *input = new QHBoxLayout;
    input->addWidget(edit, 1);
    input->addWidget(show);
    auto *tips = new QHBoxLayout;
    tips->addWidget(pushButton(tr("Call"), tr("Call Ada")));
    tips->addWidget(pushButton(tr("Send a file"), tr("Choose a file and offer it to Ada")));
    tips->addWidget(pushButton(tr("Block"), tr("Take no more messages from Ada")));

    auto *card = new Card(tr("Try it"));
    card->body()->addLayout(input);
    card->body()->addWidget(bar);
    card->body()->addWidget(note(tr("A message covers the widgets on the left and goes after its "
                                    "time; status tips work the same way: point at a button.")));
    card->body()->addStretch();
    card->body()->addLayout(tips);
    return card;
}

} // namespace

GALLERY_PAGE(StatusBarPage, "status-bar", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Status bar"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmStatusBar: messages and widgets on the skin's grey gradient."));

} // namespace gallery
