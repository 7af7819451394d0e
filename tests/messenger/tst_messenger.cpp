// The messenger as its user has it: copies that chat, windows, and what is left after a kill.

#include "support/WidgetEvents.h"

#include "app/Client.h"
#include "model/ContactBook.h"
#include "model/History.h"
#include "model/ScriptedContact.h"
#include "model/Session.h"
#include "peers/PeerNetwork.h"
#include "windows/ChatHistory.h"
#include "windows/ChatWindow.h"
#include "windows/ContactList.h"
#include "windows/MainWindow.h"
#include "windows/MessageInput.h"

#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmMessageBox.h>

#include <algorithm>
#include <functional>

using namespace messenger;

namespace {

constexpr int kPatienceMs = 30000;

QString shippedBook()
{
    return QCoreApplication::applicationDirPath() + "/messenger/contacts.json"_q;
}

/// A user of the messenger, with a folder that lasts longer than the session.
class User
{
public:
    explicit User(const QString &id)
        : m_folder(std::make_unique<ProfileFolder>(m_temporary.path()))
        , m_id(id)
    {
        start();
        if (m_id.isEmpty())
            return;
        Account account = Account::create(m_id.toUpper(), "example.org"_q);
        account.id = m_id;
        session().setAccount(account);
    }

    /// Ends the session, if there is one, and begins another.
    void start()
    {
        m_session.reset();
        m_session = std::make_unique<Session>(*m_folder, ContactBook::load(shippedBook()));
    }
    void leave() { m_session.reset(); }

    Session &session() { return *m_session; }
    Contact contact(const QString &id) { return session().roster().contact(id); }
    QStringList heardFrom(const QString &id)
    {
        QStringList texts;
        for (const Message &message : session().messages(id, 1000)) {
            if (message.from == Message::From::Contact)
                texts.append(message.text);
        }
        return texts;
    }

private:
    QTemporaryDir m_temporary;
    std::unique_ptr<ProfileFolder> m_folder;
    QString m_id;
    std::unique_ptr<Session> m_session;
};

/// Does something to each modal dialog that opens until it is destroyed.
class DialogUser : public QObject
{
public:
    explicit DialogUser(std::function<void(QWidget *)> use)
        : m_use(std::move(use))
    {
        startTimer(20);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (QWidget *dialog = QApplication::activeModalWidget())
            m_use(dialog);
    }

private:
    std::function<void(QWidget *)> m_use;
};

void press(QWidget *dialog, const QString &text)
{
    for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
        if (button->isVisible() && button->isEnabled()
            && button->text().remove(QLatin1Char('&')).startsWith(text)) {
            // Not at once: what it opens is to be used by the same timer.
            QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
            return;
        }
    }
}

QByteArray helloOf(const QByteArray &id)
{
    return R"({"type":"hello","version":1,"name":"Eve","id":")" + id + "\"}\n";
}

/// Says one thing after the other for ever, and notes in a file what it has said.
int talkUntilKilled(const QString &path)
{
    ProfileFolder folder(path);
    Session session(folder, ContactBook::load(shippedBook()));
    QFile log(path + "/said"_q);
    if (!log.open(QIODevice::WriteOnly))
        return 1;
    for (int number = 0;; ++number) {
        session.sendText("anna"_q, QString::number(number));
        session.roster().setRating("anna"_q, number % 11);
        log.write(QByteArray::number(number) + '\n');
        log.flush();
    }
}

int lastSaid(const QString &path)
{
    QFile log(path + "/said"_q);
    if (!log.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = log.readAll().split('\n');
    return lines.size() < 2 ? -1 : lines.at(lines.size() - 2).toInt();
}

} // namespace

class tst_Messenger : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void copiesFindEachOtherAndChat()
    {
        const QTemporaryDir registry;
        User ann("ann"_q);
        User bob("bob"_q);
        const QImage face = ombrin::test::flatImage(QSize(40, 60), Qt::green);
        ann.session().setOwnPicture(face);
        ann.session().goOnline(registry.path());
        bob.session().goOnline(registry.path());
        const QString annForBob = "peer-ann"_q;
        const QString bobForAnn = "peer-bob"_q;
        QVERIFY(waitFor(
                [&] {
                    return bob.contact(annForBob).status == ombrin::Om::Online
                           && ann.contact(bobForAnn).status == ombrin::Om::Online
                           && !bob.contact(annForBob).picture.isEmpty();
                },
                kPatienceMs));
        QCOMPARE(bob.contact(annForBob).alias, "ANN"_q);
        QCOMPARE(QImage(bob.contact(annForBob).picture).size(), QSize(40, 40));

        QStringList happened;
        connect(&bob.session(), &Session::typingChanged, this,
                [&](const QString &id, bool on) { happened.append(id + (on ? u'+' : u'-')); });
        connect(&bob.session(), &Session::nudged, this,
                [&](const QString &id) { happened.append(id + u'!'); });
        ann.session().setTyping(bobForAnn, true);
        ann.session().sendText(bobForAnn, "<b>Hello</b>"_q);
        ann.session().sendPicture(bobForAnn, face);
        ann.session().sendNudge(bobForAnn);
        ann.session().sendNudge(bobForAnn); // once is enough
        ann.session().sendText(bobForAnn, "Bye"_q);
        QVERIFY(waitFor([&] { return bob.heardFrom(annForBob).contains("Bye"_q); }, kPatienceMs));
        const QStringList heard = bob.heardFrom(annForBob);
        QCOMPARE(heard.size(), 4);
        QCOMPARE(heard.first(), "<b>Hello</b>"_q);
        QCOMPARE(QImage(bob.session().pictureFile(heard.at(1))).size(), face.size());
        QCOMPARE(happened.count(annForBob + u'!'), 1);
        QCOMPARE(happened.first(), annForBob + u'+');
        QCOMPARE(bob.session().roster().unread(annForBob), 3);

        // Who was deleted and writes is a contact again.
        bob.session().roster().remove(annForBob);
        ann.session().sendText(bobForAnn, "Again"_q);
        QVERIFY(waitFor([&] { return bob.session().roster().contains(annForBob); }, kPatienceMs));
        QVERIFY(waitFor([&] { return bob.heardFrom(annForBob).contains("Again"_q); }, kPatienceMs));
        QVERIFY(!bob.contact(annForBob).picture.isEmpty());

        // Blocked peers are not heard; invisible ones are offline; who is gone has not got
        // anything.
        bob.session().roster().setBlocked(annForBob, true);
        ann.session().sendText(bobForAnn, "Not heard"_q);
        Account account = ann.session().account();
        account.status = ombrin::Om::Invisible;
        account.remark = "Hidden"_q;
        ann.session().setAccount(account);
        QVERIFY(waitFor([&] { return bob.contact(annForBob).statusText == "Hidden"_q; },
                        kPatienceMs));
        QCOMPARE(bob.contact(annForBob).status, ombrin::Om::Offline);
        QVERIFY(!bob.heardFrom(annForBob).contains("Not heard"_q));
        bob.leave();
        QVERIFY(waitFor([&] { return ann.contact(bobForAnn).status == ombrin::Om::Offline; },
                        kPatienceMs));
        ann.session().sendText(bobForAnn, "Still there?"_q);
        QCOMPARE(ann.session().messages(bobForAnn, 1).constLast().from, Message::From::Messenger);

        // Bob finds everything again.
        bob.start();
        QCOMPARE(bob.contact(annForBob).alias, "ANN"_q);
        QVERIFY(bob.contact(annForBob).isBlocked);
        QCOMPARE(bob.heardFrom(annForBob), heard + QStringList{"Again"_q});
    }

    void hostilePeersAreTurnedAway_data()
    {
        const auto row = columns<QByteArray, bool>("bytes", "isKnown");
        const QByteArray hello = helloOf("eve");
        row("garbage", "\xff\xfe GET / HTTP/1.1\r\n\r\n", false);
        row("text before hello", "{\"type\":\"text\",\"text\":\"x\"}\n", false);
        row("hello twice", hello + hello, true);
        row("endless line", QByteArray(kLongestLine + 2, 'x'), false);
        row("flood", hello + QByteArray("{\"type\":\"typing\"}\n").repeated(101), true);
        row("somebody else's id", helloOf("ann"), false);
    }
    void hostilePeersAreTurnedAway()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isKnown);
        const QTemporaryDir folder;
        PeerMessage self;
        self.id = "ann"_q;
        self.name = "Ann"_q;
        PeerNetwork network(folder.path());
        network.setSelf(self);
        const QStringList signs = QDir(folder.path()).entryList({"*.copy"_q});
        QCOMPARE(signs.size(), 1);
        PeerRegistry registry(folder.path());
        const QString server = registry.serverName(signs.first().section(QLatin1Char('.'), 0, 0));
        // Who is known by now is not heard when it comes back at once.
        for (const QByteArray &said : {bytes, isKnown ? helloOf("eve") : bytes}) {
            QLocalSocket eve;
            eve.connectToServer(server);
            QVERIFY(waitFor([&] { return eve.state() == QLocalSocket::ConnectedState; },
                            kPatienceMs));
            eve.write(said);
            QVERIFY(waitFor([&] { return eve.state() == QLocalSocket::UnconnectedState; },
                            kPatienceMs));
            QVERIFY(waitFor([&] { return network.size() == 0; }, kPatienceMs));
        }
    }

    void nothingIsLostWhenKilled()
    {
        const QTemporaryDir folder;
        QProcess talker;
        talker.start(QCoreApplication::applicationFilePath(), {"--talk"_q, folder.path()});
        QVERIFY(talker.waitForStarted(kPatienceMs));
        QVERIFY(waitFor([&] { return lastSaid(folder.path()) > 150; }, kPatienceMs));
        talker.kill();
        QVERIFY(talker.waitForFinished(kPatienceMs));

        const int last = lastSaid(folder.path());
        ProfileFolder profile(folder.path());
        QVERIFY(profile.lock());
        Session session(profile, ContactBook::load(shippedBook()));
        int number = 0;
        for (const Message &message : session.messages("anna"_q, 1000000)) {
            if (message.from == Message::From::Me)
                QCOMPARE(message.text, QString::number(number++));
        }
        QVERIFY2(number == last + 1 || number == last + 2, qPrintable(QString::number(number)));
        const int rating = session.roster().contact("anna"_q).rating;
        QVERIFY(rating == last % 11 || rating == (last + 1) % 11);
    }

    void firstStartAsksForAnAccount()
    {
        User user((QString()));
        user.session().script()->setPace(0);
        const DialogUser filling([](QWidget *dialog) {
            const auto fields = dialog->findChildren<QLineEdit *>();
            for (QLineEdit *field : fields) {
                if (field->isVisible() && field->text().isEmpty())
                    QTest::keyClicks(field, "Ada Berg"_q);
            }
            for (const char *button : {"Exit", "Complete", "Next"})
                press(dialog, QString::fromLatin1(button));
        });
        Client client(&user.session());
        QVERIFY(client.start());
        QVERIFY(client.mainWindow()->isVisible());
        QCOMPARE(client.mainWindow()->contacts()->shownCount(), 17);
        QVERIFY(waitFor([&] { return !user.heardFrom("guide"_q).isEmpty(); }, kPatienceMs));
        QVERIFY(user.heardFrom("guide"_q).first().contains("Ada Berg"_q));
        QVERIFY(isContactId(user.session().account().id));
    }

    void withoutAnAccountTheMessengerEnds()
    {
        User user((QString()));
        const DialogUser refusing([](QWidget *dialog) {
            if (qobject_cast<ombrin::OmMessageBox *>(dialog))
                press(dialog, "Yes"_q);
            else
                press(dialog, "Cancel"_q);
        });
        Client client(&user.session());
        QVERIFY(!client.start());
        QVERIFY(!user.session().account().exists());
    }

    void userChatsWithTheGuide()
    {
        User user("ada"_q);
        user.session().script()->setPace(0);
        Client client(&user.session());
        QVERIFY(client.start());
        client.perform("chat"_q, "guide"_q);
        ChatWindow *chat = client.openChat("guide"_q);
        QTest::keyClicks(chat->input(), "nudge html picture"_q);
        QTest::keyClick(chat->input(), Qt::Key_Return);
        QVERIFY(chat->input()->toPlainText().isEmpty());
        QVERIFY(waitFor([&] { return user.heardFrom("guide"_q).size() >= 2; }, kPatienceMs));
        chat->close();
    }

    void whatCannotBeStoredIsSaidToBeSo()
    {
        const QTemporaryDir folder;
        const ProfileFolder profile(folder.path());
        Session session(profile, ContactBook::load(shippedBook()));
        // Something else stands in the way of the conversation.
        QVERIFY(QDir().mkpath(profile.historyFile("guide"_q)));
        QVector<Message> shown;
        connect(&session, &Session::messageAdded, this,
                [&](const QString &, const Message &message) { shown.append(message); });
        session.sendText("guide"_q, "Hello"_q);
        QCOMPARE(shown.size(), 2);
        QCOMPARE(shown.at(0).text, "Hello"_q);
        QCOMPARE(shown.at(1).from, Message::From::Messenger);
    }

    void pictureThatCannotBeStoredIsSaidToBeSo()
    {
        User user("ada"_q);
        const QString anything = user.session().pictureFile("any.png"_q);
        QVERIFY(user.session().setOwnPicture(ombrin::test::flatImage(QSize(9, 9), Qt::red)));
        Client client(&user.session());
        QVERIFY(client.start());
        bool isTold = false;
        const DialogUser changing([&](QWidget *dialog) {
            // Something else stands where pictures are kept.
            QFile pictures(QFileInfo(anything).path());
            if (QDir(pictures.fileName()).removeRecursively())
                pictures.open(QIODevice::WriteOnly);
            isTold = isTold || qobject_cast<ombrin::OmMessageBox *>(dialog);
            for (const char *button : {"Ok", "Exit", "Complete", "Next"})
                press(dialog, QString::fromLatin1(button));
        });
        Q_EMIT client.mainWindow()->accountWanted();
        QVERIFY(isTold);
    }

    void noPartOfALongMessageIsLost()
    {
        User user("ada"_q);
        const QString smile = QString::fromUtf8("\xf0\x9f\x98\x80");
        const QString text = QLatin1Char('x') + smile.repeated(kLongestText);
        user.session().sendText("anna"_q, text);
        QString sent;
        for (const Message &message : user.session().messages("anna"_q, 100)) {
            if (message.from == Message::From::Me)
                sent += message.text;
        }
        QCOMPARE(sent, text);
    }

    void draftsAndPicturesFindTheirWay()
    {
        User user("ada"_q);
        const QString anna = "anna"_q;
        const auto pictureCount = [&] {
            const QVector<Message> messages = user.session().messages(anna, 100);
            return std::count_if(messages.begin(), messages.end(), [](const Message &message) {
                return message.kind == Message::Kind::Picture;
            });
        };
        const QImage picture = ombrin::test::flatImage(QSize(20, 10), Qt::blue);
        {
            Client client(&user.session());
            QVERIFY(client.start());
            ChatWindow *chat = client.openChat(anna);
            QTest::keyClicks(chat->input(), "Half a sent"_q);
            // What is dropped may be anything, also a list of files with none in it. The input
            // takes pictures as it takes what is pasted.
            QMimeData garbage;
            garbage.setData("text/uri-list"_q, "\n\xff");
            QMimeData dropped;
            dropped.setImageData(picture);
            ombrin::test::dropOn(chat, garbage);
            ombrin::test::dropOn(chat, dropped);
            QVERIFY(waitFor([&] { return pictureCount() == 1; }, kPatienceMs));
            ombrin::test::dropOn(chat->input()->viewport(), dropped);
            QVERIFY(waitFor([&] { return pictureCount() == 2; }, kPatienceMs));
            const QPointer<ChatWindow> open(chat);
            const auto shortcuts = chat->findChildren<QShortcut *>();
            for (QShortcut *shortcut : shortcuts) {
                if (shortcut->key() == QKeySequence(Qt::Key_Escape))
                    Q_EMIT shortcut->activated();
            }
            QVERIFY(waitFor([&] { return open.isNull(); }, kPatienceMs));
        }
        Client client(&user.session());
        QVERIFY(client.start());
        ChatWindow *chat = client.openChat(anna);
        QCOMPARE(chat->input()->toPlainText(), "Half a sent"_q);
        QTest::keyClick(chat->input(), Qt::Key_Return);
        chat->close();
        QVERIFY(user.session().draft(anna).isEmpty());
    }

    void timesStandInOneLine()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        User user(QStringLiteral("ada"));
        const QString anna = QStringLiteral("anna");
        user.session().sendText(anna, QStringLiteral("Half past"));
        Client client(&user.session());
        QVERIFY(client.start());
        const QTextDocument *history =
                client.openChat(anna)->findChild<ChatHistory *>()->document();
        QLocale::setDefault(before);
        QVERIFY(history->size().isValid()); // which lays it out
        int times = 0;
        for (QTextBlock block = history->begin(); block.isValid(); block = block.next()) {
            if (!block.text().endsWith(QLatin1Char('M')))
                continue;
            QCOMPARE(block.layout()->lineCount(), 1);
            ++times;
        }
        QCOMPARE(times, 1);
    }

    void conversationIsMirroredWithItsWindow()
    {
        User user("ada"_q);
        user.session().sendText("anna"_q, "Hello"_q);
        for (const Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            QGuiApplication::setLayoutDirection(direction);
            ChatHistory history(&user.session(), "anna"_q);
            history.add(user.session().messages("anna"_q, 9).constFirst());
            const QString text = history.document()->toRawText();
            const bool isFaceFirst =
                    text.indexOf(QChar::ObjectReplacementCharacter) < text.indexOf("Hello"_q);
            QCOMPARE(isFaceFirst, direction == Qt::LeftToRight);
        }
    }

    void largePicturesAreShownSmoothly()
    {
        User user("ada"_q);
        QImage stripes = ombrin::test::flatImage(QSize(560, 440), Qt::white);
        for (int pixel = 0; pixel < 560 * 440; pixel += 2)
            stripes.setPixel(pixel % 560, pixel / 560, qRgb(0, 0, 0));
        user.session().sendPicture("anna"_q, stripes);
        const QString name = user.session().messages("anna"_q, 9).constFirst().text;
        const QUrl address = QUrl::fromLocalFile(user.session().pictureFile(name));
        const ChatHistory history(&user.session(), "anna"_q);
        const QVariant shown = history.document()->resource(QTextDocument::ImageResource, address);
        const QImage image = shown.value<QPixmap>().toImage();
        QCOMPARE(image.size(), QSize(280, 220));
        const int gray = qGray(image.pixel(100, 100));
        QVERIFY2(gray > 100 && gray < 155, qPrintable(QString::number(gray)));
    }

    void contactsAreChosenByKey()
    {
        User user("ada"_q);
        Client client(&user.session());
        QVERIFY(client.start());
        ContactList *contacts = client.mainWindow()->contacts();
        QStringList actions;
        connect(contacts, &ContactList::actionId, this,
                [&](const QString &id, const QString &contact) { actions.append(id + contact); });
        QCOMPARE(contacts->currentContactId(), "guide"_q);
        QTest::keyClick(contacts, Qt::Key_Down);
        QCOMPARE(contacts->currentContactId(), "anna"_q);

        // A peer that comes changes the order, and nothing else.
        Contact peer;
        peer.id = contactIdOfPeer("bob"_q);
        peer.alias = "Bob"_q;
        peer.status = ombrin::Om::Online;
        user.session().roster().putPeer(peer);
        QCOMPARE(contacts->card(1)->alias(), "Bob"_q);
        QCOMPARE(contacts->currentContactId(), "anna"_q);
        QTest::keyClick(contacts, Qt::Key_Up);
        QCOMPARE(contacts->currentContactId(), peer.id);
        ombrin::OmContactCard *bela = contacts->cardOf("bela"_q);
        QVERIFY(waitFor([&] { return bela->findChild<ombrin::OmAvatarSmall *>() != nullptr; },
                        kPatienceMs));
        Q_EMIT bela->avatarClicked();
        QVERIFY(bela->findChild<ombrin::OmAvatar *>());

        // What the filter hides cannot be meant.
        ContactFilter filter;
        filter.words = "Lena"_q;
        contacts->setFilter(filter);
        QVERIFY(contacts->currentContactId().isEmpty());
        contacts->takeKeys();
        QTest::keyClick(contacts, Qt::Key_Return);
        QCOMPARE(actions, QStringList({"chatlena"_q}));
    }

    void messengerMayEndWhileADialogIsOpen()
    {
        User user("ada"_q);
        auto client = std::make_unique<Client>(&user.session());
        QVERIFY(client->start());
        const DialogUser ending([&](QWidget *) { client.reset(); });
        Q_EMIT client->mainWindow()->preferencesWanted();
        QVERIFY(!client);
    }

    void whatIsDoneToContactsIsRemembered()
    {
        User user("ada"_q);
        {
            Client client(&user.session());
            QVERIFY(client.start());
            const DialogUser confirming([](QWidget *dialog) { press(dialog, "Yes"_q); });
            client.perform("block"_q, "anna"_q);
            client.perform("unblock"_q, "petra"_q);
            client.openChat("emil"_q);
            client.perform("delete"_q, "emil"_q);
            QVERIFY(!client.mainWindow()->contacts()->cardOf("emil"_q));
            QVERIFY(client.mainWindow()->contacts()->cardOf("anna"_q)->isBlocked());
            user.session().sendText("anna"_q, "Hello?"_q);
            const QVector<Message> messages = user.session().messages("anna"_q, 10);
            QCOMPARE(messages.constLast().text, "Hello?"_q);
        }
        user.start();
        QVERIFY(user.contact("anna"_q).isBlocked);
        QVERIFY(!user.contact("petra"_q).isBlocked);
        QVERIFY(!user.session().roster().contains("emil"_q));
        user.session().roster().restore("emil"_q);
        QVERIFY(user.session().roster().contains("emil"_q));
    }

    void oneCopyHasAProfile()
    {
        const QTemporaryDir folder;
        ProfileFolder first(folder.path());
        ProfileFolder second(folder.path());
        QVERIFY(first.lock());
        QVERIFY(!second.lock());
    }

    void programPhotographsItsWindows()
    {
        const QTemporaryDir folder;
        QProcess program;
        program.start(QCoreApplication::applicationDirPath() + "/ombrin_messenger"_q,
                      {"--screenshots"_q, folder.path()});
        QVERIFY(program.waitForFinished(4 * kPatienceMs));
        QVERIFY2(program.exitCode() == 0, program.readAllStandardError().constData());
        const QStringList pictures = QDir(folder.path()).entryList(QDir::Files);
        QCOMPARE(pictures.size(), 18);
        const QImage chat(folder.filePath("messenger-chat.png"_q));
        QCOMPARE(QImage(folder.filePath("messenger-chat@2x.png"_q)).size(), 2 * chat.size());
    }
};

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--talk") == 0) {
        const QCoreApplication application(argc, argv);
        return talkUntilKilled(QString::fromLocal8Bit(argv[2]));
    }
    return ombrin::test::run<tst_Messenger>(argc, argv);
}
#include "tst_messenger.moc"
