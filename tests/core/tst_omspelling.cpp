#include "support/SpellingFolder.h"
#include "support/TestCase.h"

#include "core/PersonalWords.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtTest/QSignalSpy>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using ombrin::OmSpelling;
using ombrin::PersonalWords;
using ombrin::test::SpellingFolder;
using ombrin::test::WordListBackend;

namespace {

constexpr int kAdditions = 40;

// What another program does at the same time.
int addWords(const QString &folder, const QString &prefix)
{
    PersonalWords words(folder);
    for (int i = 0; i < kAdditions; ++i) {
        words.addWord(prefix + QString::number(i));
        words.wordFile()->save();
    }
    for (int i = 0; i < kAdditions; ++i) // What found the file locked for long is tried again.
        words.wordFile()->save();
    return 0;
}

QString personalFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/spelling");
}

QString word(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_OmSpelling : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        SpellingFolder::useWordLists();
        m_folder = std::make_unique<SpellingFolder>();
        m_folder->add(QStringLiteral("aa"), {"hello", "Berlin", "NATO", "it's", "hall", "Hemd"});
        m_folder->add(QStringLiteral("bb"), {"hallo",
                                             "stra\xC3\x9F"
                                             "e",
                                             "hall", "host"});
    }
    void tearDown() override { m_folder.reset(); }

private Q_SLOTS:
    void initTestCase() { QDir(personalFolder()).removeRecursively(); }

    void onlyInstalledDictionariesAreChosen()
    {
        const QVector<QPair<const char *, const char *>> choices = {
                {"aa", "aa"}, {" bb ,, aa,bb", "bb,aa"}, {"zz,aa", "aa"}, {"", ""}, {"../aa", ""},
                {"AA", ""}};
        for (const auto &choice : choices) {
            m_spelling->setDict(word(choice.first));
            QCOMPARE(m_spelling->dict(), word(choice.second));
        }
    }

    void brokenDictionariesAreNotOffered()
    {
        m_folder->write(word("lone.dic"), "1\nhello\n");
        m_folder->write(word("other.aff"), "SET UTF-8\n");
        const QVector<QByteArray> broken = {"",
                                            "hello\nworld\n",
                                            "-3\nhello\n",
                                            "0\n",
                                            "2000000000\na\n",
                                            "\x7f"
                                            "ELF\n",
                                            "\xEF\xBB\xBF"};
        for (int i = 0; i < broken.size(); ++i) {
            m_folder->write(word("broken%1.aff").arg(i), "SET UTF-8\n");
            m_folder->write(word("broken%1.dic").arg(i), broken.at(i));
        }
        m_folder->write(word("folder.aff"), "");
        QVERIFY(QDir(m_folder->filePath(QString())).mkdir(word("folder.dic")));
#ifdef Q_OS_UNIX
        m_folder->write(word("pipe.aff"), "");
        QCOMPARE(mkfifo(QFile::encodeName(m_folder->filePath(word("pipe.dic"))), 0600), 0);
#endif
        const QStringList offered = m_spelling->availDicts();
        QVERIFY(offered.contains(word("aa")) && offered.contains(word("bb")));
        const QStringList strange =
                offered.filter(QRegularExpression(word("^(lone|other|broken.*|folder|pipe)$")));
        QVERIFY2(strange.isEmpty(), qPrintable(strange.join(QLatin1Char(' '))));
    }

    void serviceWithoutBackendFindsEverythingCorrect()
    {
        ombrin::setSpellingBackendFactory({});
        QVERIFY(!m_spelling->isAvailable());
        QCOMPARE(m_spelling->availDicts(), QStringList());
        m_spelling->setDict(word("aa"));
        QCOMPARE(m_spelling->dict(), QString());
        QCOMPARE(m_spelling->checkWord(word("helo")), 1);
        QCOMPARE(m_spelling->suggestionList(word("helo")), QStringList());
        QVERIFY(m_spelling->prepareSuggestions(word("helo")));

        // A backend that loads nothing is one whose files are broken further down.
        ombrin::setSpellingBackendFactory([](const ombrin::SpellingFiles &) {
            return std::unique_ptr<ombrin::SpellingBackend>();
        });
        m_spelling->setDict(word("aa"));
        QCOMPARE(m_spelling->checkWord(word("helo")), 1);
        QCOMPARE(m_spelling->suggestionList(word("helo")), QStringList());
    }

    void wordIsJudged_data()
    {
        QTest::addColumn<QString>("checked");
        QTest::addColumn<bool>("inItsCase");
        QTest::addColumn<bool>("inAnyCase");
        const auto row = [](const char *checked, bool inItsCase, bool inAnyCase) {
            QTest::newRow(checked) << word(checked) << inItsCase << inAnyCase;
        };
        row("hello", true, true);
        row("HELLO", false, true);
        row("hELLo", false, true);
        row("berlin", false, true);
        row("BERLIN", false, true);
        row("nato", false, true);
        row("helo", false, false);
        row("it's", true, true);
        row("it\xE2\x80\x99s", true, true);
        row("IT\xE2\x80\x99S", false, true);
        row("hallo", true, true); // of the second dictionary
        row("STRA\xC3\x9F"
            "E",
            false, true);
        row("\xF0\x9F\x98\x80", false, false);
        row("\xF0\x90\x90\x80\xF0\x90\x90\xA8", false, false);
        row("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", false, false);
        QTest::newRow("empty") << QString() << true << true;
        QTest::newRow("99 letters") << QString(99, QLatin1Char('h')) << false << false;
        QTest::newRow("100 letters") << QString(100, QLatin1Char('h')) << true << true;
        QTest::newRow("NUL") << QString(QChar(0)) << true << true;
        QTest::newRow("NUL inside") << word("he") + QChar(0) + word("lo") << true << true;
        QTest::newRow("line break") << word("he\nlo") << true << true;
        QTest::newRow("half a pair") << QString(QChar(0xd801)) << false << false;
    }
    void wordIsJudged()
    {
        QFETCH(QString, checked);
        m_spelling->setDict(word("aa,bb"));
        // The second answer comes from memory, which a changed rule empties.
        for (int i = 0; i < 2; ++i) {
            m_spelling->setRegardCase(true);
            for (int repetition = 0; repetition < 2; ++repetition)
                QTEST(m_spelling->checkWord(checked) != 0, "inItsCase");
            m_spelling->setRegardCase(false);
            for (int repetition = 0; repetition < 2; ++repetition)
                QTEST(m_spelling->checkWord(checked) != 0, "inAnyCase");
        }
        m_spelling->setEnabled(false);
        QCOMPARE(m_spelling->checkWord(checked), 1);
        m_spelling->setEnabled(true);
        QTEST(m_spelling->checkWord(checked) != 0, "inAnyCase");
    }

    void verdictsFollowTheDictionary()
    {
        const QVector<QPair<const char *, int>> choices = {
                {"aa", 0}, {"zz", 1}, {"aa", 0}, {"bb,aa", 1}};
        for (const auto &choice : choices) {
            m_spelling->setDict(word(choice.first));
            QCOMPARE(m_spelling->checkWord(word("hallo")), choice.second);
        }
    }

    void suggestionsTakeTurnsAndTheUsersChoiceComesFirst()
    {
        m_spelling->setDict(word("aa,bb"));
        const QString wrong = word("hxy");
        QCOMPARE(m_spelling->suggestionList(wrong),
                 QStringList(
                         {word("hello"), word("hallo"), word("hall"), word("Hemd"), word("host")}));
        m_spelling->replaceWord(wrong, word("host"));
        QCOMPARE(m_spelling->suggestionList(wrong).mid(0, 2),
                 QStringList({word("host"), word("hello")}));
        m_spelling->replaceWord(wrong, word("hugo & co"));
        m_spelling->replaceWord(wrong, QString());
        QCOMPARE(m_spelling->suggestionList(wrong).mid(0, 2),
                 QStringList({word("hugo & co"), word("hello")}));

        QCOMPARE(m_spelling->suggestionList(word("i\xE2\x80\x99")),
                 QStringList(word("it\xE2\x80\x99s")));
        for (const QString &strange : {QString(), QString(QChar(0)), QString(100, u'h')})
            QCOMPARE(m_spelling->suggestionList(strange), QStringList());
    }

    void suggestionsAreFoundInTheBackground()
    {
        m_spelling->setDict(word("aa,bb"));
        QCoreApplication::processEvents(); // What earlier tests have left.
        QSignalSpy ready(m_spelling, &OmSpelling::suggestionsReady);
        WordListBackend::hold().lock();
        QCOMPARE(m_spelling->checkWord(word("bxx")), 0);
        QVERIFY(!m_spelling->prepareSuggestions(word("bxx"), 1));
        // Neither more work nor a thread that is busy holds up a check.
        for (int i = 0; i < 1000; ++i)
            QCOMPARE(m_spelling->checkWord(word("nxx%1").arg(i)), 0);
        QVERIFY(!m_spelling->prepareSuggestions(word("sxx")));
        WordListBackend::hold().unlock();

        // What is asked for goes before what was begun in advance.
        QTRY_VERIFY_WITH_TIMEOUT(ready.contains({word("sxx")}), 20000);
        QVERIFY(ready.indexOf({word("sxx")}) <= 1);
        QVERIFY(m_spelling->prepareSuggestions(word("bxx"), 5000));
        QCOMPARE(m_spelling->suggestionList(word("bxx")), QStringList(word("Berlin")));
    }

    void addedWordIsCorrectAndSuggestedForGood()
    {
        m_spelling->setDict(word("aa"));
        const QString name = word("zwölf\xE2\x80\x99n");
        QCOMPARE(m_spelling->checkWord(name), 0);
        for (const QString &added : {name, QString(), word("x\ny"), QString(100, u'x')})
            m_spelling->addToDictionary(added);
        QCOMPARE(m_spelling->checkWord(name), 1);
        QCOMPARE(m_spelling->suggestionList(word("zw")), QStringList(word("zwölf'n")));
        m_spelling->setDict(word("bb"));
        QCOMPARE(m_spelling->checkWord(name), 1);
        QCOMPARE(m_spelling->suggestionList(word("zw")), QStringList(word("zwölf'n")));
        m_spelling->replaceWord(word("hxy"), word("hall"));
        m_spelling->sync();

        const PersonalWords later(personalFolder());
        QVERIFY(later.contains(name, true));
        QVERIFY(!later.contains(word("x"), true));
        QCOMPARE(later.replacement(word("hxy")), word("hall"));
    }

    void personalWordIsKnownInItsCapitalisations()
    {
        QTemporaryDir folder;
        PersonalWords words(folder.path());
        words.addWord(word("kilo"));
        words.addWord(word("iPhone"));
        for (const char *known : {"kilo", "Kilo", "KILO", "iPhone"})
            QVERIFY(words.contains(word(known), true));
        for (const char *unknown : {"kILO", "iphone", "IPHONE"}) {
            QVERIFY(!words.contains(word(unknown), true));
            QVERIFY(words.contains(word(unknown), false));
        }
    }

    void twoProgramsAddWithoutLoss()
    {
        QTemporaryDir folder;
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--add"), folder.path(), QStringLiteral("theirs")});
        QVERIFY(other.waitForStarted());
        addWords(folder.path(), QStringLiteral("ours"));
        QVERIFY(other.waitForFinished(120'000));

        const PersonalWords words(folder.path());
        QCOMPARE(words.words().size(), 2 * kAdditions);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(word("personal.txt")));
    }

    void strangePersonalFilesAreLeftAlone()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("personal.txt"));
        const QByteArray strange = "\xEF\xBB\xBFgood\r\n\r\n\xFF\xFEz\nlast";
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(strange);
        file.close();
        PersonalWords words(folder.path());
        QVERIFY(words.contains(word("good"), true) && words.contains(word("last"), true));
        words.addWord(word("new"));
        words.addWord(word("good"));
        words.wordFile()->save();
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("\xFF\xFEz\nlast\nnew\ngood\n"));
        file.close();

        // What cannot be read is not overwritten; the words last until the program ends.
        QVERIFY(file.remove());
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("personal.txt")));
        PersonalWords unreadable(folder.path());
        QCOMPARE(unreadable.words(), QStringList());
        unreadable.addWord(word("kept"));
        unreadable.wordFile()->save();
        QVERIFY(unreadable.contains(word("kept"), true));
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(QDir(folder.path()).rmdir(QStringLiteral("personal.txt")));
        unreadable.wordFile()->save();
        QVERIFY(PersonalWords(folder.path()).contains(word("kept"), true));
    }

private:
    OmSpelling *m_spelling = OmSpelling::instance();
    std::unique_ptr<SpellingFolder> m_folder;
};

int main(int argc, char *argv[])
{
    if (argc == 4 && qstrcmp(argv[1], "--add") == 0)
        return addWords(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    return ombrin::test::run<tst_OmSpelling>(argc, argv);
}

#include "tst_omspelling.moc"
