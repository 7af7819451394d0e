#include "BalloonPicture.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace gallery {

namespace {

using ombrin::MessageIcon;
using ombrin::OmBalloonTip;

constexpr int kDefaultTimeoutMs = 5000;
constexpr int kLongestTimeoutMs = 60000;

class BalloonTipPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(BalloonTipPage)

public:
    BalloonTipPage();

private:
    static QWidget *createPlacesCard();
    static QWidget *createContentsCard();
    QWidget *createLiveCard();
    void showBalloon(const QWidget *below) const;

    QLineEdit *m_title = nullptr;
    QLineEdit *m_message = nullptr;
    QComboBox *m_icon = nullptr;
    QSpinBox *m_timeout = nullptr;
    QCheckBox *m_arrow = nullptr;
    QCheckBox *m_closeButton = nullptr;
};

BalloonTipPage::BalloonTipPage()
{
    auto *left = cardStack(Qt::Vertical);
    left->addWidget(createPlacesCard(), 1);
    left->addWidget(createContentsCard(), 1);
    auto *row = cardStack(Qt::Horizontal);
    row->addLayout(left, 1);
    row->addWidget(createLiveCard());
    cardColumn(this)->addLayout(row);
}

QWidget *BalloonTipPage::createPlacesCard()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(kPageMargin);
    for (const bool atTop : {true, false}) {
        for (const bool atLeft : {true, false}) {
            BalloonContents contents;
            contents.message = tr("The arrow stands where\nthe balloon has room");
            contents.arrowAtTop = atTop;
            contents.arrowAtLeft = atLeft;
            grid->addWidget(balloonPicture(contents), atTop ? 0 : 1, atLeft ? 0 : 1,
                            Qt::AlignCenter);
        }
    }
    auto *card = new Card(tr("Near each corner of the screen"));
    card->body()->addStretch();
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *BalloonTipPage::createContentsCard()
{
    BalloonContents bare;
    bare.message = tr("Without an arrow");
    bare.showArrow = false;
    BalloonContents titled{ombrin::InformationMessageIcon, tr("Ada Lovelace"),
                           tr("I am back at my desk.")};
    BalloonContents closable{ombrin::WarningMessageIcon, tr("Connection lost"),
                             tr("Trying again in 30 seconds.")};
    closable.showCloseButton = true;
    BalloonContents critical{ombrin::CriticalMessageIcon, tr("Not sent"),
                             tr("Max has left the conversation.")};
    critical.arrowAtTop = false;

    auto *grid = new QGridLayout;
    grid->setSpacing(kPageMargin);
    int index = 0;
    for (const BalloonContents &contents : {bare, titled, closable, critical}) {
        grid->addWidget(balloonPicture(contents), index / 2, index % 2, Qt::AlignCenter);
        ++index;
    }
    auto *card = new Card(tr("What it can hold"));
    card->body()->addStretch();
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *BalloonTipPage::createLiveCard()
{
    m_title = new QLineEdit(tr("Ada Lovelace"));
    m_message = new QLineEdit(tr("I am back at my desk."));
    m_icon = new QComboBox;
    m_icon->addItem(tr("None"), int(ombrin::NoMessageIcon));
    m_icon->addItem(tr("Information"), int(ombrin::InformationMessageIcon));
    m_icon->addItem(tr("Warning"), int(ombrin::WarningMessageIcon));
    m_icon->addItem(tr("Critical"), int(ombrin::CriticalMessageIcon));
    m_icon->setCurrentIndex(1);
    m_timeout = new QSpinBox;
    m_timeout->setRange(0, kLongestTimeoutMs);
    m_timeout->setSingleStep(1000);
    m_timeout->setValue(kDefaultTimeoutMs);
    m_timeout->setSuffix(tr(" ms"));
    m_timeout->setSpecialValueText(tr("No time-out"));
    m_arrow = new QCheckBox(tr("Arrow"));
    m_arrow->setChecked(true);
    m_closeButton = new QCheckBox(tr("Close button"));
    auto *show = pushButton(tr("Show"), tr("Shows the balloon below this button"));
    connect(show, &QPushButton::clicked, this, [this, show] { showBalloon(show); });

    auto *card = new Card(tr("Try it"));
    card->setFixedWidth(kSideColumnWidth);
    const std::pair<QString, QWidget *> fields[] = {{tr("Title"), m_title},
                                                    {tr("Message"), m_message},
                                                    {tr("Icon"), m_icon},
                                                    {tr("Time-out"), m_timeout}};
    for (const auto &[name, field] : fields) {
        card->body()->addWidget(caption(name));
        card->body()->addWidget(field);
    }
    card->body()->addWidget(m_arrow);
    card->body()->addWidget(m_closeButton);
    card->body()->addWidget(show);
    card->body()->addStretch();
    card->body()->addWidget(note(tr("It closes when it is clicked, replaced or out of time; under "
                                    "the mouse it stays.")));
    return card;
}

void BalloonTipPage::showBalloon(const QWidget *below) const
{
    const QPoint position = below->mapToGlobal(QPoint(below->width() / 2, below->height()));
    OmBalloonTip::showBalloon(MessageIcon(m_icon->currentData().toInt()), m_title->text(),
                              m_message->text(), position, m_timeout->value(), m_arrow->isChecked(),
                              !m_title->text().isEmpty(), m_closeButton->isChecked());
}

} // namespace

GALLERY_PAGE(BalloonTipPage, "balloon-tip", PageGroup::EffectsAndPopups,
             QT_TRANSLATE_NOOP("GalleryPage", "Balloon tip"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmBalloonTip: a speech bubble that points at a place on the "
                               "screen."));

} // namespace gallery
