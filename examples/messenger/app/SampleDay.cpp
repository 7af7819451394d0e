#include "app/SampleDay.h"

#include "model/History.h"
#include "model/PictureFiles.h"
#include "model/SceneryPicture.h"
#include "model/Session.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace messenger {

namespace {

using From = Message::From;
using Kind = Message::Kind;

const QDate kDay(2026, 3, 14);

struct SampleDay
{
    Q_DECLARE_TR_FUNCTIONS(SampleDay)
};

QDateTime at(int days, int hour, int minute)
{
    return QDateTime(kDay.addDays(days), QTime(hour, minute));
}

void talkWithAnna(const History &history, const QString &picture)
{
    history.append({at(-1, 21, 4), From::Contact, Kind::Text,
                    SampleDay::tr("Will you come to the rehearsal tomorrow?")});
    history.append({at(-1, 21, 6), From::Me, Kind::Text,
                    SampleDay::tr("Of course! I will bring the new score :-)")});
    history.append({at(0, 9, 41), From::Contact, Kind::Text,
                    SampleDay::tr("Good morning! Look where I am:")});
    history.append({at(0, 9, 41), From::Contact, Kind::Picture, picture});
    history.append(
            {at(0, 9, 45), From::Me, Kind::Text,
             SampleDay::tr("How beautiful! Is that the hut from https://www.example.org/hut ?")});
    history.append({at(0, 9, 45), From::Me, Kind::Text, SampleDay::tr("I envy you ;-)")});
    history.append({at(0, 9, 46), From::Contact, Kind::Nudge, QString()});
    history.append(
            {at(0, 9, 47), From::Contact, Kind::Text,
             SampleDay::tr(
                     "It is. Write to anna@example.org if you want the key: I will post it.")});
}

} // namespace

QString sampleName()
{
    return SampleDay::tr("Mira Sandberg");
}

void livePartOfDay(Session *session, const ProfileFolder &folder)
{
    Account account = Account::create(sampleName(), QStringLiteral("chat.example.org"));
    account.id = QStringLiteral("mira");
    account.remark = SampleDay::tr("Off to the lake");
    session->setAccount(account);
    const QString portraits =
            QFileInfo(session->roster().contact(QStringLiteral("anna")).picture).path();
    session->setOwnPicture(readPicture(portraits + QStringLiteral("/me.png")));

    const QString picture = keepPicture(folder.pictureFolder(), pictureToData(sceneryPicture()));
    talkWithAnna(History(folder.historyFile(QStringLiteral("anna"))), picture);
    session->roster().setUnread(QStringLiteral("kofi"), 2);
    session->roster().setRating(QStringLiteral("hana"), 9);
}

} // namespace messenger
