#include "GalleryPage.h"
#include "PageKit.h"
#include "Portrait.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmContactCardList.h>
#include <ombrin/OmFaderWidget.h>

#include <QtCore/QTimer>
#include <QtGui/QImageReader>
#include <QtGui/QMovie>
#include <QtWidgets/QBoxLayout>

namespace gallery {

namespace {

using ombrin::OmAvatar;
using ombrin::OmAvatarSmall;
using ombrin::OmContactCard;
using ombrin::OmContactCardList;
using ombrin::OmFaderWidget;
namespace Om = ombrin::Om;

constexpr int kRenewMs = 3000;
constexpr QSize kLargestPicture(4096, 4096);

enum class Picture { None, Still, Moving };
enum class Busy { No, Typing, Talking, Blocked, Mobile };

struct Contact
{
    const char *alias;
    Om::ContactStatus status;
    int application;
    Picture picture;
    Busy busy;
};

constexpr Contact kContacts[] = {
        {"Amélie Durand", Om::Online, 11, Picture::Still, Busy::No},
        {"Bastian Krüger", Om::Online, 11, Picture::Still, Busy::Typing},
        {"Chiara Lombardi", Om::Away, 3, Picture::Moving, Busy::No},
        {"Dmitri Volkov", Om::Online, 19, Picture::Still, Busy::Talking},
        {"Elin Sandberg", Om::Busy, 10, Picture::None, Busy::No},
        {"Farid Haddad", Om::DoNotDisturb, 2, Picture::Still, Busy::No},
        {"Grete Maria von der Hohenwarte-Lindenberg", Om::ExtendedAway, 11, Picture::Still,
         Busy::No},
        {"Hiroshi Tanaka", Om::Invisible, 1, Picture::Still, Busy::No},
        {"Ines Carvalho", Om::Offline, 11, Picture::None, Busy::Blocked},
        {"Jonas Weber", Om::Online, 11, Picture::Still, Busy::Mobile},
        {"Katarzyna Nowak", Om::Online, 3, Picture::Still, Busy::No},
        {"Lucas Moreau", Om::Away, 11, Picture::Still, Busy::No},
        {"Mei Lin", Om::Online, 15, Picture::Moving, Busy::No},
        {"Nikos Papadakis", Om::Offline, 4, Picture::None, Busy::No},
        {"Olga Petrova", Om::Online, 11, Picture::Still, Busy::Mobile},
        {"Pedro Alvarez", Om::Busy, 11, Picture::Still, Busy::No},
        {"Quinn Harper", Om::Offline, 5, Picture::None, Busy::No},
        {"Rosa Fischer", Om::Online, 12, Picture::Still, Busy::No},
        {"Sven Olsen", Om::InvisibleForEveryone, 13, Picture::Still, Busy::No},
        {"Tamara Horvat", Om::Online, 11, Picture::Still, Busy::No},
        {"Umberto Greco", Om::Away, 3, Picture::Still, Busy::No},
        {"Vera Lindqvist", Om::Online, 10, Picture::Still, Busy::No},
        {"Wim de Vries", Om::Offline, 11, Picture::None, Busy::Blocked},
        {"Xenia Adler", Om::Online, 11, Picture::Still, Busy::No},
        {"Yusuf Demir", Om::DoNotDisturb, 19, Picture::Still, Busy::No},
        {"Zoe Baker", Om::Online, 11, Picture::Moving, Busy::No},
        {"<b>Not bold</b> & friends", Om::Online, 3, Picture::None, Busy::No},
        {"Anton Berger", Om::Offline, 0, Picture::Still, Busy::No},
        {"Beatrix Holm", Om::Away, 11, Picture::Still, Busy::Mobile},
        {"Carlo Conti", Om::Offline, 11, Picture::None, Busy::No},
};

QString movingPicture()
{
    return QStringLiteral(":/gallery/blinking.gif");
}

// A card shows pictures; the host plays an animation by setting one after the other.
void playOn(OmContactCard *card)
{
    auto *movie = new QMovie(movingPicture(), QByteArray(), card);
    QObject::connect(movie, &QMovie::frameChanged, card,
                     [card, movie] { card->setAvatar(movie->currentPixmap(), false); });
    movie->start();
}

void openPicture(OmContactCard *card, Picture kind)
{
    auto *const thumbnail = card->findChild<OmAvatarSmall *>();
    if (kind == Picture::Still) {
        QMetaObject::invokeMethod(thumbnail, "slotAvatarTimer");
        return;
    }
    auto *avatar = new OmAvatar(movingPicture(), card);
    avatar->move(thumbnail->mapToGlobal(QPoint(0, 0)));
    (new OmFaderWidget(avatar))->fadeIn();
    avatar->show();
}

OmContactCard *createCard(const Contact &contact, int number)
{
    auto *card = new OmContactCard;
    card->setAlias(QString::fromUtf8(contact.alias));
    card->setOmbrinId(QStringLiteral("contact-%1").arg(number));
    card->setInternalId(number);
    card->setStatus(contact.status);
    card->setGeneralApp(static_cast<Om::ClientApplication>(contact.application));
    card->setBlocked(contact.busy == Busy::Blocked);
    card->setMobile(contact.busy == Busy::Mobile);
    if (contact.picture == Picture::Still)
        card->setAvatar(portrait(number, QSize(192, 192)), false);
    else if (contact.picture == Picture::Moving)
        playOn(card);
    QObject::connect(card, &OmContactCard::avatarClicked, card,
                     [card, kind = contact.picture] { openPicture(card, kind); });
    return card;
}

// Typing and talking end after five seconds unless they are reported again.
void keepReporting(OmContactCard *card, Busy busy)
{
    const auto report = [card, busy] {
        if (busy == Busy::Typing)
            card->setTyping(true);
        else if (busy == Busy::Talking)
            card->setTalking(true);
    };
    report();
    auto *timer = new QTimer(card);
    QObject::connect(timer, &QTimer::timeout, card, report);
    timer->start(kRenewMs);
}

// What users drop can be anything.
QPixmap readPicture(const QString &fileName)
{
    QImageReader reader(fileName);
    const QSize size = reader.size();
    if (size.isEmpty() || size.boundedTo(kLargestPicture) != size)
        return QPixmap();
    return QPixmap::fromImageReader(&reader);
}

class ContactListPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ContactListPage)

public:
    ContactListPage();

private:
    QWidget *createListCard();
    QWidget *createOwnCard();
    static QWidget *createStatesCard();
    void report(const QString &text);
    void takePicture(OmContactCard *card, const QStringList &fileNames);

    QLabel *m_log = nullptr;
};

ContactListPage::ContactListPage()
{
    m_log = note(tr("Click a card or its picture, choose an action, or open its context menu."));
    auto *log = new Card(tr("What the list reports"));
    log->body()->addWidget(m_log);
    log->body()->addStretch();

    auto *side = cardStack(Qt::Vertical);
    side->addWidget(createOwnCard());
    side->addWidget(createStatesCard());
    side->addWidget(log, 1);
    auto *row = cardStack(Qt::Horizontal);
    row->addWidget(createListCard(), 1);
    row->addLayout(side, 1);
    cardColumn(this)->addLayout(row, 1);
}

QWidget *ContactListPage::createListCard()
{
    auto *list = new OmContactCardList;
    int number = 0;
    for (const Contact &contact : kContacts) {
        OmContactCard *card = createCard(contact, number++);
        list->addCard(card);
        if (contact.busy == Busy::Typing || contact.busy == Busy::Talking)
            keepReporting(card, contact.busy);
    }
    list->enableAddContact(true);
    connect(list, &OmContactCardList::actionId, m_log,
            [this](const QString &id, const QString &ombrinId) {
                report(tr("actionId(\"%1\", \"%2\")").arg(id, ombrinId));
            });
    connect(list, &OmContactCardList::addContact, m_log, [this] { report(tr("addContact()")); });
    auto *card = new Card(tr("Contacts"));
    card->body()->addWidget(list, 1);
    return card;
}

QWidget *ContactListPage::createOwnCard()
{
    auto *own = new OmContactCard;
    own->setOwn(true);
    own->setAlias(tr("Your own account"));
    own->setStatus(Om::Online);
    own->setAvatar(portrait(3, QSize(192, 192)), false);
    connect(own, qOverload<>(&OmContactCard::newAvatar), m_log,
            [this] { report(tr("newAvatar(): you want to choose a picture")); });
    connect(own, qOverload<const QStringList &>(&OmContactCard::newAvatar), own,
            [this, own](const QStringList &fileNames) { takePicture(own, fileNames); });
    auto *card = new Card(tr("Drop a picture on your own card"));
    card->body()->addWidget(own);
    return card;
}

QWidget *ContactListPage::createStatesCard()
{
    auto *big = createCard({"Big", Om::Online, 11, Picture::Still, Busy::No}, 1);
    big->setBig(true);
    auto *blocked =
            createCard({"Big and blocked", Om::Offline, 10, Picture::None, Busy::Blocked}, 2);
    blocked->setBig(true);
    auto *card = new Card(tr("A big card has a tool bar"));
    for (OmContactCard *state : {big, blocked})
        card->body()->addWidget(state);
    return card;
}

void ContactListPage::report(const QString &text)
{
    m_log->setText(text);
}

void ContactListPage::takePicture(OmContactCard *card, const QStringList &fileNames)
{
    report(tr("newAvatar(): %1").arg(fileNames.join(QStringLiteral(", ")).left(200)));
    const QPixmap picture = readPicture(fileNames.value(0));
    if (!picture.isNull())
        card->setAvatar(picture, false);
}

} // namespace

GALLERY_PAGE(ContactListPage, "contact-list", PageGroup::Contacts,
             QT_TRANSLATE_NOOP("GalleryPage", "Contact cards"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmContactCardList and OmContactCard: the people you talk to, how "
                               "they can be reached, and your own account."));

} // namespace gallery
