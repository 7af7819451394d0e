#include "GalleryPage.h"
#include "PageKit.h"
#include "Portrait.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmRatingLabel.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

using ombrin::OmAvatar;
using ombrin::OmAvatarSmall;
using ombrin::OmRatingLabel;

OmAvatarSmall *thumbnail(const QPixmap &picture, int size, bool hovered)
{
    auto *avatar = new OmAvatarSmall;
    avatar->setFixedSize(size, size);
    avatar->resize(size, size);
    avatar->setAvatar(picture, hovered);
    return avatar;
}

void moveMouseTo(QWidget *widget, const QPoint &position)
{
    const QPoint global = widget->mapToGlobal(position);
    QEnterEvent enter(position, position, global);
    QCoreApplication::sendEvent(widget, &enter);
    QMouseEvent move(QEvent::MouseMove, position, global, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

OmRatingLabel *ratingLabel(int rating, int height)
{
    auto *label = new OmRatingLabel;
    label->setFixedSize(5 * (height - 1) + 1, height);
    label->setRating(rating);
    return label;
}

class AvatarPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(AvatarPage)

public:
    AvatarPage();

private:
    static QWidget *createThumbnailCard();
    static QWidget *createLargeCard();
    static QWidget *createRatingCard();
    static QWidget *createLiveCard();
};

AvatarPage::AvatarPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createThumbnailCard(), 3);
    upper->addWidget(createLargeCard(), 2);
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createRatingCard(), 3);
    lower->addWidget(createLiveCard(), 2);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper, 1);
    column->addLayout(lower, 1);
}

QWidget *AvatarPage::createThumbnailCard()
{
    const struct
    {
        QString text;
        QPixmap picture;
        bool hovered;
    } columns[] = {
            {tr("No picture"), QPixmap(), false},
            {tr("Square"), portrait(0, QSize(256, 256)), false},
            {tr("Wide"), portrait(1, QSize(320, 180)), false},
            {tr("High"), portrait(2, QSize(160, 280)), false},
            {tr("Hovered"), portrait(0, QSize(256, 256)), true},
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    int place = 0;
    for (const auto &column : columns) {
        grid->addWidget(caption(column.text, Qt::AlignCenter), 0, place);
        int line = 1;
        for (const int size : {78, 50, 32}) {
            OmAvatarSmall *avatar = thumbnail(column.picture, size, column.hovered);
            pinState(avatar);
            grid->addWidget(avatar, line++, place, Qt::AlignCenter);
        }
        ++place;
    }
    auto *card = new Card(tr("A thumbnail of a picture, in any size"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *AvatarPage::createLargeCard()
{
    OmAvatar avatar(portrait(0, QSize(150, 150)), nullptr);
    auto *picture = new QLabel;
    picture->setPixmap(avatar.grab());
    auto *card = new Card(tr("The picture at its natural size"));
    card->body()->addStretch();
    card->body()->addWidget(picture, 0, Qt::AlignCenter);
    card->body()->addStretch();
    return card;
}

QWidget *AvatarPage::createRatingCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    int line = 0;
    for (const int rating : {0, 7, 10}) {
        int column = 0;
        grid->addWidget(caption(tr("Rating %1").arg(rating)), line, column++);
        for (const int height : {34, 22}) {
            OmRatingLabel *label = ratingLabel(rating, height);
            pinState(label);
            grid->addWidget(label, line, column++, Qt::AlignLeft | Qt::AlignVCenter);
        }
        ++line;
    }
    grid->addWidget(caption(tr("Mouse over it")), line, 0);
    const QPoint pointers[] = {{85, 17}, {52, 11}};
    int column = 1;
    for (const int height : {34, 22}) {
        OmRatingLabel *label = ratingLabel(7, height);
        moveMouseTo(label, pointers[column - 1]);
        pinState(label);
        grid->addWidget(label, line, column++, Qt::AlignLeft | Qt::AlignVCenter);
    }
    grid->setColumnStretch(2, 1);
    auto *card = new Card(tr("A rating in half stars"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *AvatarPage::createLiveCard()
{
    auto *row = new QHBoxLayout;
    for (const int person : {3, 4, 5}) {
        OmAvatarSmall *avatar = thumbnail(portrait(person, QSize(240, 240)), 50, false);
        connect(avatar, SIGNAL(clicked()), avatar, SLOT(slotAvatarTimer()));
        row->addWidget(avatar);
    }
    row->addStretch();
    OmRatingLabel *rating = ratingLabel(3, 34);
    QLabel *log = note(tr("Click a picture, or give a rating."));
    connect(rating, &OmRatingLabel::ratingChanged, log,
            [log](int value) { log->setText(tr("ratingChanged(%1)").arg(value)); });
    auto *card = new Card(tr("Try it"));
    card->body()->addLayout(row);
    card->body()->addWidget(rating);
    card->body()->addStretch();
    card->body()->addWidget(log);
    return card;
}

} // namespace

GALLERY_PAGE(AvatarPage, "avatars", PageGroup::Contacts,
             QT_TRANSLATE_NOOP("GalleryPage", "Avatars and rating"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmAvatarSmall, OmAvatar and OmRatingLabel: pictures of people, and "
                               "what users think of something."));

} // namespace gallery
