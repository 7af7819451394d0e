// The messenger without its windows: what it reads, and what it makes of what is broken or hostile.

#include "support/Files.h"
#include "support/WidgetEvents.h"

#include "model/ContactBook.h"
#include "model/ContactFilter.h"
#include "model/History.h"
#include "model/MessageHtml.h"
#include "model/PictureFiles.h"
#include "model/StateFile.h"
#include "peers/PeerProtocol.h"

using namespace messenger;

namespace {

/// \a text with double quotes in the place of single ones.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

QString writeFile(const QTemporaryDir &folder, const QByteArray &contents)
{
    const QString name = folder.filePath("file"_q);
    ombrin::test::writeFile(name, contents);
    return name;
}

QStringList textsOf(const QVector<Message> &messages)
{
    QStringList texts;
    for (const Message &message : messages)
        texts.append(message.text);
    return texts;
}

Message said(const QString &text)
{
    return {QDateTime::currentDateTime(), Message::From::Contact, Message::Kind::Text, text};
}

} // namespace

Q_DECLARE_METATYPE(messenger::Verdict)

class tst_MessengerModel : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void brokenContactBooksCostWhatIsBroken_data()
    {
        const auto row = columns<QByteArray, QStringList, int>("json", "ids", "problemCount");

        const QByteArray ann = json("{'id': 'ann', 'alias': 'Ann'}");
        const QStringList onlyAnn = {"ann"_q};
        row("no JSON", "hello", {}, 1);
        row("cut off", json("{'contacts': [{'id': 'ann'"), {}, 1);
        row("not a list", json("{'contacts': 7}"), {}, 0);
        row("no objects", json("{'contacts': [1, null, 'x', ") + ann + "]}", onlyAnn, 3);
        row("no alias", json("{'contacts': [{'id': 'x'}, ") + ann + "]}", onlyAnn, 1);
        row("an id that leads out of the folder",
            json("{'contacts': [{'id': '../x', 'alias': 'X'}, ") + ann + "]}", onlyAnn, 1);
        row("an id of a peer", json("{'contacts': [{'id': 'peer-x', 'alias': 'X'}, ") + ann + "]}",
            onlyAnn, 1);
        row("twice", json("{'contacts': [") + ann + "," + ann + "]}", onlyAnn, 1);
        row("values of other types",
            json("{'contacts': [{'id': 'ann', 'alias': 'Ann', 'status': 7, 'application': 'x', "
                 "'birthday': [], 'picture': {}, 'web': false}]}"),
            onlyAnn, 0);
    }
    void brokenContactBooksCostWhatIsBroken()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, problemCount);
        const QTemporaryDir folder;
        const ContactBook book = ContactBook::load(writeFile(folder, json));
        QStringList read;
        for (const Contact &contact : book.contacts())
            read.append(contact.id);
        QTEST(read, "ids");
        QCOMPARE(book.problems().size(), problemCount);
    }

    void picturesAndAddressesOfABookStayWhereTheyBelong()
    {
        const QTemporaryDir folder;
        const QByteArray entries =
                json("{'id': 'a', 'alias': 'A', 'picture': 'p/a.png', 'web': "
                     "'https://example.org/a'},")
                + json("{'id': 'b', 'alias': 'B', 'picture': 'p/../../b.png', 'web': "
                       "'file:///etc/x'},")
                + json("{'id': 'c', 'alias': 'C\\n\\u202ED', 'picture': '/etc/c.png'}");
        const ContactBook book =
                ContactBook::load(writeFile(folder, "{\"contacts\": [" + entries + "]}"));
        QCOMPARE(book.contacts().size(), 3);
        QCOMPARE(book.contacts().at(0).picture, folder.filePath("p/a.png"_q));
        QVERIFY(book.contacts().at(0).web.isValid());
        QVERIFY(book.contacts().at(1).picture.isEmpty() && book.contacts().at(1).web.isEmpty());
        QVERIFY(book.contacts().at(2).picture.isEmpty());
        QCOMPARE(book.contacts().at(2).alias, "C D"_q);
    }

    void tornLineCostsNoOtherMessage_data()
    {
        const auto row = columns<QByteArray>("damage");
        row("half a line", json("{'at': '2026-01-01T10:00"));
        row("zeros", QByteArray(100, '\0'));
        row("no JSON, and an empty line", "\xff\xfe{]\n\n");
        row("of another kind", json("{'at': 7, 'from': 'nobody'}"));
    }
    void tornLineCostsNoOtherMessage()
    {
        QFETCH(QByteArray, damage);
        const QTemporaryDir folder;
        const QString name = folder.filePath("history"_q);
        const History history(name);
        QVERIFY(history.newest(10).isEmpty());
        QVERIFY(history.append(said("one"_q)));
        QFile file(name);
        QVERIFY(file.open(QIODevice::Append) && file.write(damage) == damage.size());
        file.close();
        QVERIFY(history.append(said("two\nlines"_q)));
        QVERIFY(history.append(said("three"_q)));
        QCOMPARE(textsOf(history.newest(10)), QStringList({"one"_q, "two\nlines"_q, "three"_q}));
        QCOMPARE(textsOf(history.newest(1)), QStringList({"three"_q}));
    }

    void longHistoryIsReadFromItsEnd()
    {
        const QTemporaryDir folder;
        const History history(folder.filePath("history"_q));
        const QString padding(50000, QLatin1Char('x'));
        for (int number = 0; number < 60; ++number)
            QVERIFY(history.append(said(QString::number(number) + padding)));
        const QVector<Message> messages = history.newest(1000);
        QVERIFY(messages.size() > 30 && messages.size() < 60);
        QVERIFY(messages.constLast().text.startsWith("59x"_q));
    }

    void damagedStateIsKeptAsideAndStartsAnew()
    {
        const QTemporaryDir folder;
        const QString name = writeFile(folder, json("{'account': {'id':"));
        StateFile state(name);
        QVERIFY(state.value("account"_q).isUndefined());
        QVERIFY(QFile::exists(name + ".damaged"_q));
        state.setValue("key"_q, 7);
        QCOMPARE(StateFile(name).value("key"_q).toInt(), 7);
    }

    void stateThatCannotBeReadOrWrittenIsNotLost()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("later/state"_q);
        StateFile state(name);
        state.setValue("first"_q, 1);
        // There is a folder now, but for something else, which stays.
        QVERIFY(QDir().mkpath(name));
        state.setValue("second"_q, 2);
        StateFile other(name);
        QVERIFY(QFile::exists(name + ".damaged"_q));
        state.setValue("second"_q, 2); // once more: it is not in the file yet
        StateFile written(name);
        QCOMPARE(written.value("first"_q).toInt(), 1);
        QCOMPARE(written.value("second"_q).toInt(), 2);
    }

    void filterShowsWhatTheUserAsksFor_data()
    {
        const auto row = columns<QString, int, QString, bool>("words", "hiddenPresence",
                                                              "hiddenGroup", "isShown");

        row("everything", QString(), -1, QString(), true);
        row("parts of words", " BERG  lunch"_q, -1, QString(), true);
        row("one word is not there", "anna emil"_q, -1, QString(), false);
        row("its presence", QString(), int(ContactFilter::Away), QString(), false);
        row("another presence", QString(), int(ContactFilter::Busy), QString(), true);
        row("its group", QString(), -1, "Work"_q, false);
    }
    void filterShowsWhatTheUserAsksFor()
    {
        QFETCH(QString, words);
        QFETCH(int, hiddenPresence);
        QFETCH(QString, hiddenGroup);
        Contact contact;
        contact.alias = "Anna Bergström"_q;
        contact.statusText = "Lunch"_q;
        contact.group = "Work"_q;
        contact.status = ombrin::Om::ExtendedAway;
        ContactFilter filter;
        if (hiddenPresence >= 0)
            filter.hiddenPresences.append(static_cast<ContactFilter::Presence>(hiddenPresence));
        filter.hiddenGroups.append(hiddenGroup);
        ContactFilter kept = ContactFilter::fromJson(filter.toJson());
        kept.words = words;
        QTEST(kept.accepts(contact), "isShown");
    }

    void messagesBecomeSafeHtml_data()
    {
        const auto row = columns<QString>("expected");
        row("see https://a.org/x?y=1&z.", "<a href=\"https://a.org/x?y=1&amp;z\">");
        row("to ann@example.org!", "<a href=\"mailto:ann@example.org\">ann@example.org</a>!");
        row("<b>x</b>", "&lt;b&gt;x");
        row("javascript://x", "javascript://x");
        row("https://\"onclick=\"x", "https://\"onclick=\"x");
        row("well :-)", "<img src=\"smiley:0\"");
        row("a:-)b", "a:-)b");
    }
    void messagesBecomeSafeHtml()
    {
        QFETCH(QString, expected);
        const QString html = messageToHtml(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY2(html.contains(expected), qPrintable(html));
        const bool isLink = expected.startsWith("<a "_q);
        QCOMPARE(html.contains("<a "_q), isLink);
        QVERIFY(!html.contains("<b>"_q));
    }

    void whatPeersSayIsWeighed_data()
    {
        const auto row = columns<QByteArray, Verdict>("line", "verdict");
        row("nothing", "", Verdict::Hostile);
        row("garbage", "\xff\xfe\0\x01 GET / HTTP/1.1", Verdict::Hostile);
        row("a list", "[1, 2]", Verdict::Hostile);
        row("deep", QByteArray(100000, '['), Verdict::Hostile);
        row("no type", json("{'text': 'x'}"), Verdict::Hostile);
        row("type of a later version", json("{'type': 'video', 'x': 1}"), Verdict::Unknown);
        row("nudge with more", json("{'type': 'nudge', 'later': true}"), Verdict::Understood);
        row("text", json("{'type': 'text', 'text': 'x'}"), Verdict::Understood);
        row("text that is none", json("{'type': 'text', 'text': {'x': 1}}"), Verdict::Hostile);
        row("long text", json("{'type': 'text', 'text': '") + QByteArray(20001, 'x') + json("'}"),
            Verdict::Hostile);
        row("hello without a name", json("{'type': 'hello', 'version': 1, 'id': 'a'}"),
            Verdict::Hostile);
        row("hello with a path", json("{'type': 'hello', 'version': 1, 'id': '../a', 'name': 'A'}"),
            Verdict::Hostile);
        row("name in two lines", json("{'type': 'presence', 'name': 'A\\nB'}"),
            Verdict::Understood);
        row("hello of no version", json("{'type': 'hello', 'id': 'a', 'name': 'A'}"),
            Verdict::Hostile);
        row("picture that is a number", json("{'type': 'picture', 'data': 7}"), Verdict::Hostile);
        row("large picture",
            json("{'type': 'picture', 'data': '") + QByteArray(kLargestPicture + 1, 'x').toBase64()
                    + json("'}"),
            Verdict::Hostile);
    }
    void whatPeersSayIsWeighed()
    {
        QFETCH(QByteArray, line);
        PeerMessage message;
        QTEST(decode(line, &message), "verdict");
        QCOMPARE(message.name, message.name.simplified());
    }

    void linesAreFoundHoweverTheBytesArrive()
    {
        const QByteArray bytes = "one\ntwo\n\nthree\n";
        for (int chunk = 1; chunk <= bytes.size(); ++chunk) {
            LineReader reader;
            QList<QByteArray> lines;
            for (int start = 0; start < bytes.size(); start += chunk) {
                QVERIFY(reader.feed(bytes.mid(start, chunk)));
                while (const std::optional<QByteArray> line = reader.nextLine())
                    lines.append(*line);
            }
            QCOMPARE(lines, QList<QByteArray>({"one", "two", "", "three"}));
        }
        LineReader reader;
        QVERIFY(reader.feed(QByteArray(kLongestLine, 'x')));
        QVERIFY(!reader.feed("x"));
    }

    void picturesOfStrangersAreBounded()
    {
        QVERIFY(pictureFromData(QByteArray()).isNull());
        QVERIFY(pictureFromData("<svg xmlns='http://www.w3.org/2000/svg'/>").isNull());
        const QImage large = ombrin::test::flatImage(QSize(5000, 10), Qt::red);
        const QByteArray sent = pictureToData(large); // made smaller before it is sent
        QCOMPARE(pictureFromData(sent).width(), 4096);
        QImage noise(900, 900, QImage::Format_RGB32);
        for (int i = 0; i < 900 * 900; ++i)
            noise.setPixel(i % 900, i / 900, QRandomGenerator::global()->generate());
        const QByteArray fitting = pictureToData(noise, 100000);
        QVERIFY(!fitting.isEmpty() && fitting.size() <= 100000);
        QVERIFY(!pictureFromData(fitting).isNull());
        QCOMPARE(portraitFrom(large, 320).size(), QSize(10, 10));
    }
};

OMBRIN_TEST_MAIN(tst_MessengerModel)
#include "tst_messengermodel.moc"
