#include "support/Files.h"
#include "support/SpellingFolder.h"
#include "support/TestCase.h"

#include "core/PersonalWords.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace ombrin;
using namespace ombrin::test;

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
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/spelling"_q;
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
        m_folder->add("aa"_q, {"hello", "Berlin", "NATO", "it's", "hall", "Hemd"});
        m_folder->add("bb"_q, {"hallo", "straße", "hall", "host"});
    }
    void tearDown() override { m_folder.reset(); }

private Q_SLOTS:
    void initTestCase() { QDir(personalFolder()).removeRecursively(); }

    void onlyInstalledDictionariesAreChosen()
    {
        const std::pair<QString, QString> choices[] = {
                {"aa"_q, "aa"_q},    {" bb ,, aa,bb"_q, "bb,aa"_q},
                {"zz,aa"_q, "aa"_q}, {""_q, ""_q},
                {"../aa"_q, ""_q},   {"AA"_q, ""_q}};
        for (const auto &[wanted, chosen] : choices) {
            m_spelling->setDict(wanted);
            QCOMPARE(m_spelling->dict(), chosen);
        }
    }

    void brokenDictionariesAreNotOffered()
    {
        m_folder->write("lone.dic"_q, "1\nhello\n");
        m_folder->write("other.aff"_q, "SET UTF-8\n");
        const QVector<QByteArray> broken = {
                "",          "hello\nworld\n", "-3\nhello\n", "0\n", "2000000000\na\n",
                "\177ELF\n", "\xEF\xBB\xBF"};
        for (int i = 0; i < broken.size(); ++i) {
            m_folder->write("broken%1.aff"_q.arg(i), "SET UTF-8\n");
            m_folder->write("broken%1.dic"_q.arg(i), broken.at(i));
        }
        m_folder->write("folder.aff"_q, "");
        QVERIFY(QDir(m_folder->filePath(QString())).mkdir("folder.dic"_q));
#ifdef Q_OS_UNIX
        m_folder->write("pipe.aff"_q, "");
        QCOMPARE(mkfifo(QFile::encodeName(m_folder->filePath("pipe.dic"_q)), 0600), 0);
#endif
        const QStringList offered = m_spelling->availDicts();
        QVERIFY(offered.contains("aa"_q) && offered.contains("bb"_q));
        const QStringList strange =
                offered.filter(QRegularExpression("^(lone|other|broken.*|folder|pipe)$"_q));
        QVERIFY2(strange.isEmpty(), qPrintable(strange.join(QLatin1Char(' '))));
    }

    void serviceWithoutBackendFindsEverythingCorrect()
    {
        ombrin::setSpellingBackendFactory({});
        QVERIFY(!m_spelling->isAvailable());
        QCOMPARE(m_spelling->availDicts(), QStringList());
        m_spelling->setDict("aa"_q);
        QCOMPARE(m_spelling->dict(), QString());
        QCOMPARE(m_spelling->checkWord("helo"_q), 1);
        QCOMPARE(m_spelling->suggestionList("helo"_q), QStringList());
        QVERIFY(m_spelling->prepareSuggestions("helo"_q));

        // A backend that loads nothing is one whose files are broken further down.
        ombrin::setSpellingBackendFactory([](const ombrin::SpellingFiles &) {
            return std::unique_ptr<ombrin::SpellingBackend>();
        });
        m_spelling->setDict("aa"_q);
        QCOMPARE(m_spelling->checkWord("helo"_q), 1);
        QCOMPARE(m_spelling->suggestionList("helo"_q), QStringList());
    }

    void wordIsJudged_data()
    {
        const auto add = columns<QString, bool, bool>("checked", "inItsCase", "inAnyCase");
        const auto row = [add](const char *checked, bool inItsCase, bool inAnyCase) {
            add(checked, checked, inItsCase, inAnyCase);
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
        row("STRAßE", false, true);
        row("\xF0\x9F\x98\x80", false, false);
        row("\xF0\x90\x90\x80\xF0\x90\x90\xA8", false, false);
        row("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", false, false);
        add("empty", "", true, true);
        add("99 letters", QString(99, QLatin1Char('h')), false, false);
        add("100 letters", QString(100, QLatin1Char('h')), true, true);
        add("NUL", QString(QChar(0)), true, true);
        add("NUL inside", "he\0lo"_q, true, true);
        add("line break", "he\nlo", true, true);
        add("half a pair", QString(QChar(0xd801)), false, false);
    }
    void wordIsJudged()
    {
        QFETCH(QString, checked);
        m_spelling->setDict("aa,bb"_q);
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
        for (const auto &[dict, verdict] :
             {std::pair("aa"_q, 0), {"zz"_q, 1}, {"aa"_q, 0}, {"bb,aa"_q, 1}}) {
            m_spelling->setDict(dict);
            QCOMPARE(m_spelling->checkWord("hallo"_q), verdict);
        }
    }

    void suggestionsTakeTurnsAndTheUsersChoiceComesFirst()
    {
        m_spelling->setDict("aa,bb"_q);
        const QString wrong = "hxy"_q;
        QCOMPARE(m_spelling->suggestionList(wrong),
                 QStringList({"hello"_q, "hallo"_q, "hall"_q, "Hemd"_q, "host"_q}));
        m_spelling->replaceWord(wrong, "host"_q);
        QCOMPARE(m_spelling->suggestionList(wrong).mid(0, 2), QStringList({"host"_q, "hello"_q}));
        m_spelling->replaceWord(wrong, "hugo & co"_q);
        m_spelling->replaceWord(wrong, QString());
        QCOMPARE(m_spelling->suggestionList(wrong).mid(0, 2),
                 QStringList({"hugo & co"_q, "hello"_q}));

        QCOMPARE(m_spelling->suggestionList("i\xE2\x80\x99"_q), QStringList("it\xE2\x80\x99s"_q));
        for (const QString &strange : {QString(), QString(QChar(0)), QString(100, u'h')})
            QCOMPARE(m_spelling->suggestionList(strange), QStringList());
    }

    void suggestionsAreFoundInTheBackground()
    {
        m_spelling->setDict("aa,bb"_q);
        QCoreApplication::processEvents(); // What earlier tests have left.
        QSignalSpy ready(m_spelling, &OmSpelling::suggestionsReady);
        WordListBackend::hold().lock();
        QCOMPARE(m_spelling->checkWord("bxx"_q), 0);
        QVERIFY(!m_spelling->prepareSuggestions("bxx"_q, 1));
        // Neither more work nor a thread that is busy holds up a check.
        for (int i = 0; i < 1000; ++i)
            QCOMPARE(m_spelling->checkWord("nxx%1"_q.arg(i)), 0);
        QVERIFY(!m_spelling->prepareSuggestions("sxx"_q));
        WordListBackend::hold().unlock();

        // What is asked for goes before what is only likely to be, but for a word already begun.
        QTRY_VERIFY_WITH_TIMEOUT(ready.contains({"sxx"_q}), 20000);
        const QList<QVariantList> before = ready.mid(0, ready.indexOf({"sxx"_q}));
        const auto inAdvance =
                std::count_if(before.begin(), before.end(), [](const QVariantList &told) {
                    return told.first().toString().startsWith("nxx"_q);
                });
        QVERIFY(inAdvance <= 1);
        QVERIFY(m_spelling->prepareSuggestions("bxx"_q, 20000));
        QCOMPARE(m_spelling->suggestionList("bxx"_q), QStringList("Berlin"_q));
    }

    void addedWordIsCorrectAndSuggestedForGood()
    {
        m_spelling->setDict("aa"_q);
        const QString name = "zwölf\xE2\x80\x99n"_q;
        QCOMPARE(m_spelling->checkWord(name), 0);
        for (const QString &added : {name, QString(), "x\ny"_q, QString(100, u'x')})
            m_spelling->addToDictionary(added);
        QCOMPARE(m_spelling->checkWord(name), 1);
        QCOMPARE(m_spelling->suggestionList("zw"_q), QStringList("zwölf'n"_q));
        m_spelling->setDict("bb"_q);
        QCOMPARE(m_spelling->checkWord(name), 1);
        QCOMPARE(m_spelling->suggestionList("zw"_q), QStringList("zwölf'n"_q));
        m_spelling->replaceWord("hxy"_q, "hall"_q);
        m_spelling->sync();

        const PersonalWords later(personalFolder());
        QVERIFY(later.contains(name, true));
        QVERIFY(!later.contains("x"_q, true));
        QCOMPARE(later.replacement("hxy"_q), "hall"_q);
    }

    void personalWordIsKnownInItsCapitalisations()
    {
        QTemporaryDir folder;
        PersonalWords words(folder.path());
        words.addWord("kilo"_q);
        words.addWord("iPhone"_q);
        for (const QString &known : {"kilo"_q, "Kilo"_q, "KILO"_q, "iPhone"_q})
            QVERIFY(words.contains(known, true));
        for (const QString &unknown : {"kILO"_q, "iphone"_q, "IPHONE"_q})
            QVERIFY(!words.contains(unknown, true) && words.contains(unknown, false));
    }

    void twoProgramsAddWithoutLoss()
    {
        QTemporaryDir folder;
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(),
                    {"--add"_q, folder.path(), "theirs"_q});
        QVERIFY(other.waitForStarted());
        addWords(folder.path(), "ours"_q);
        QVERIFY(other.waitForFinished(120'000));

        const PersonalWords words(folder.path());
        QCOMPARE(words.words().size(), 2 * kAdditions);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("personal.txt"_q));
    }

    void strangePersonalFilesAreLeftAlone()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("personal.txt"_q);
        const QByteArray strange = "\xEF\xBB\xBFgood\r\n\r\n\xFF\xFEz\nlast";
        writeFile(path, strange);
        PersonalWords words(folder.path());
        QVERIFY(words.contains("good"_q, true) && words.contains("last"_q, true));
        words.addWord("new"_q);
        words.addWord("good"_q);
        words.wordFile()->save();
        QCOMPARE(contentsOf(path), QByteArray("\xFF\xFEz\nlast\nnew\ngood\n"));

        // What cannot be read is not overwritten; the words last until the program ends.
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir(folder.path()).mkdir("personal.txt"_q));
        PersonalWords unreadable(folder.path());
        QCOMPARE(unreadable.words(), QStringList());
        unreadable.addWord("kept"_q);
        unreadable.wordFile()->save();
        QVERIFY(unreadable.contains("kept"_q, true));
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(QDir(folder.path()).rmdir("personal.txt"_q));
        unreadable.wordFile()->save();
        QVERIFY(PersonalWords(folder.path()).contains("kept"_q, true));
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
