#include "GalleryPage.h"
#include "PageKit.h"
#include "Portrait.h"

#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmShakeWidget.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

#include <memory>

namespace gallery {

namespace {

using ombrin::OmFaderWidget;
using ombrin::OmInfoPopup;
using ombrin::OmShakeWidget;

constexpr int kSampleSize = 96;

QLabel *sample(int person)
{
    auto *label = new QLabel;
    label->setPixmap(portrait(person, QSize(kSampleSize, kSampleSize)));
    label->setFixedSize(kSampleSize, kSampleSize);
    return label;
}

/// What \a fade shows of a widget in each of its first \a count paints.
QVector<QPixmap> paintsOf(void (OmFaderWidget::*fade)(), const QColor &color, int count)
{
    const std::unique_ptr<QLabel> widget(sample(1));
    auto *fader = new OmFaderWidget(widget.get());
    fader->setFadeColor(color);
    (fader->*fade)();
    QVector<QPixmap> paints;
    for (int paint = 0; paint < count; ++paint)
        paints.append(widget->grab());
    return paints;
}

class EffectsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(EffectsPage)

public:
    EffectsPage();

private:
    static QWidget *createPaintsCard();
    QWidget *createFaderCard();
    QWidget *createShakeCard();
    static QWidget *createInfoCard();
};

EffectsPage::EffectsPage()
{
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createFaderCard(), 1);
    lower->addWidget(createShakeCard(), 1);
    lower->addWidget(createInfoCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createPaintsCard());
    column->addLayout(lower, 1);
}

QWidget *EffectsPage::createPaintsCard()
{
    constexpr int paintCount = 11;
    const QVector<QPixmap> paints =
            paintsOf(&OmFaderWidget::fadeOut, QColor(0xef, 0xef, 0xf0), paintCount);
    auto *row = new QHBoxLayout;
    for (int paint = 0; paint < paintCount; paint += 2) {
        auto *picture = new QLabel;
        picture->setPixmap(paints.at(paint));
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addWidget(picture, 0, Qt::AlignHCenter);
        column->addWidget(caption(tr("paint %1").arg(paint + 1), Qt::AlignCenter));
        row->addLayout(column);
    }
    auto *card = new Card(tr("A fade-out takes eleven paints"));
    card->body()->addLayout(row);
    return card;
}

QWidget *EffectsPage::createFaderCard()
{
    QLabel *target = sample(2);
    QLabel *log = note(tr("done() tells the direction of the fade."));
    auto *row = new QHBoxLayout;
    const auto addButton = [&](const QString &text, const QString &tip, bool out) {
        QPushButton *button = pushButton(text, tip);
        connect(button, &QPushButton::clicked, target, [target, log, out] {
            auto *fader = new OmFaderWidget(target);
            connect(fader, &OmFaderWidget::done, log, [log](bool fadeOut) {
                log->setText(fadeOut ? tr("done(true)") : tr("done(false)"));
            });
            if (out)
                fader->fadeOut();
            else
                fader->fadeIn();
        });
        row->addWidget(button);
    };
    addButton(tr("Fade in"), tr("Shows the picture coming out of the window's colour"), false);
    addButton(tr("Fade out"), tr("Shows the picture vanishing into the window's colour"), true);
    auto *card = new Card(tr("Fader"));
    card->body()->addWidget(target, 0, Qt::AlignHCenter);
    card->body()->addLayout(row);
    card->body()->addStretch();
    card->body()->addWidget(log);
    return card;
}

QWidget *EffectsPage::createShakeCard()
{
    QLabel *target = sample(3);
    auto *shaker = new OmShakeWidget(target);
    QPushButton *picture = pushButton(tr("Shake the picture"), tr("Shakes the picture above"));
    connect(picture, &QPushButton::clicked, shaker, &OmShakeWidget::shakeWidget);
    QPushButton *all = pushButton(tr("Shake the window"), tr("Shakes the whole gallery"));
    connect(all, &QPushButton::clicked, this, [this] {
        auto *windowShaker = window()->findChild<OmShakeWidget *>(QStringLiteral("windowShaker"));
        if (!windowShaker) {
            windowShaker = new OmShakeWidget(window());
            windowShaker->setObjectName(QStringLiteral("windowShaker"));
        }
        windowShaker->shakeWidget();
    });
    auto *card = new Card(tr("Shaker"));
    card->body()->addWidget(target, 0, Qt::AlignHCenter);
    card->body()->addWidget(picture);
    card->body()->addWidget(all);
    card->body()->addStretch();
    return card;
}

QWidget *EffectsPage::createInfoCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setColumnStretch(1, 1);
    const auto addIcon = [grid](const QString &text, bool withNotice) {
        auto *icon = new OmInfoPopup;
        icon->setPopupMessage(tr("Ada is writing a message to you."));
        icon->setNotice(tr("See you at eight!"));
        icon->enableNoticeInput(withNotice);
        const int line = grid->rowCount();
        grid->addWidget(icon, line, 0);
        grid->addWidget(new QLabel(text), line, 1);
    };
    addIcon(tr("Message"), false);
    addIcon(tr("Message and notice"), true);
    auto *card = new Card(tr("Info pop-up"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    card->body()->addWidget(
            note(tr("Move the mouse over an icon: its pop-up fades in, and out when "
                    "the mouse has left it.")));
    return card;
}

} // namespace

GALLERY_PAGE(EffectsPage, "effects", PageGroup::EffectsAndPopups,
             QT_TRANSLATE_NOOP("GalleryPage", "Effects"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmFaderWidget, OmShakeWidget and OmInfoPopup: fading, shaking, and "
                               "an icon that tells more."));

} // namespace gallery
