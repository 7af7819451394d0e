#include "support/SpellingFolder.h"
#include "support/TestCase.h"

#include <random>

using ombrin::OmSpelling;
using ombrin::test::SpellingFolder;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_Hunspell : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override { m_folder = std::make_unique<SpellingFolder>(); }
    void tearDown() override { m_folder.reset(); }

private Q_SLOTS:
    void everyEncodingIsUnderstood_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QString>("wrong");
        const auto row = [](const char *encoding, const char *written, const char *right,
                            const char *wrong) {
            QTest::newRow(encoding)
                    << QByteArray(encoding) << QByteArray(written) << text(right) << text(wrong);
        };
        row("UTF-8", "gr\xC3\xBCn", "grün", "grüün");
        row("ISO8859-1", "na\xEFvet\xE9", "naïveté", "naïvetéé");
        row("ISO8859-2", "\xBElu\xBBou\xE8k\xFD", "žluťoučký", "žluťoučkký");
        row("ISO8859-7", "\xEA\xE1\xEB\xE7\xEC\xDD\xF1\xE1", "καλημέρα", "καλλημέρα");
        row("ISO8859-13",
            "\xE0\xFE"
            "uolas",
            "ąžuolas", "ąžuollas");
        row("ISO8859-15", "c\xBDur", "cœur", "cœuur");
        row("KOI8-R", "\xD0\xD2\xC9\xD7\xC5\xD4", "привет", "привветт");
        row("KOI8-U", "\xA7\xD6\xC1\xCB", "їжак", "їжакк");
        row("microsoft-cp1251", "\xE1\xFA\xEB\xE3\xE0\xF0\xE8\xFF", "българия", "българрия");
    }
    void everyEncodingIsUnderstood()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, written);
        QFETCH(QString, right);
        QFETCH(QString, wrong);
        m_folder->add(text("aa"), {written, "plain"}, encoding);
        m_spelling->setDict(text("aa"));
        QCOMPARE(m_spelling->checkWord(right), 1);
        QCOMPARE(m_spelling->checkWord(right.toUpper()), 1);
        QCOMPARE(m_spelling->checkWord(wrong), 0);
        QCOMPARE(m_spelling->suggestionList(wrong).value(0), right);
        // Letters that the encoding lacks are no reason to guess.
        QCOMPARE(m_spelling->checkWord(text("plain\xE6\x97\xA5")), 0);
        QCOMPARE(m_spelling->checkWord(text("\xF0\x9F\x98\x80")), 0);
    }

    void brokenDictionaryIsHarmless_data()
    {
        QTest::addColumn<QByteArray>("affixes");
        QTest::addColumn<QByteArray>("words");
        std::mt19937 random(3);
        QByteArray noise;
        for (int i = 0; i < 20'000; ++i)
            noise += char(random());
        QTest::newRow("encoding") << QByteArray("SET KLINGON-1\n") << QByteArray("1\nhello\n");
        QTest::newRow("noise") << noise << QByteArray("1000\n" + noise);
        QTest::newRow("affixes cut off") << QByteArray("SET UTF-8\nSFX A Y 40\nSFX A 0 s")
                                         << QByteArray("2\nhello/A\nx/A\n");
        QTest::newRow("numbers too large")
                << QByteArray("SET UTF-8\nFLAG num\nSFX 99999999 Y 200000\nREP 200000\n"
                              "MAP -1\nCOMPOUNDMIN -5\nAF 200000\n")
                << QByteArray("2\nhello/99999999999\nx/-1\n");
        QTest::newRow("letters of another encoding")
                << QByteArray("SET UTF-8\n") << QByteArray("2\nhall\xF6\n\xFF\xFE\xC3\n");
        QTest::newRow("empty") << QByteArray() << QByteArray("1\n");
    }
    void brokenDictionaryIsHarmless()
    {
        QFETCH(QByteArray, affixes);
        QFETCH(QByteArray, words);
        m_folder->write(text("aa.aff"), affixes);
        m_folder->write(text("aa.dic"), words);
        m_spelling->setDict(text("aa"));
        const QStringList hostile = {
                text("helo"), text("größe"),  QString(99, u'x'),      QString(QChar(0xd800)),
                text("a/b"),  text("-- .,;"), QString(49, u'\u0130'), text("ﬁ\u200d\u0301")};
        for (const QString &word : hostile) {
            m_spelling->checkWord(word);
            QVERIFY(!m_spelling->suggestionList(word).contains(word + word));
        }
    }

#ifdef OMBRIN_SYSTEM_DICTIONARIES
    void systemsDictionariesWork_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QString>("wrong");
        QTest::addColumn<QString>("suggested");
        const auto row = [](const char *name, const char *names, const char *right,
                            const char *wrong, const char *suggested) {
            QTest::newRow(name) << text(names) << text(right) << text(wrong) << text(suggested);
        };
        row("English", "en_US", "hello", "helo", "hello");
        row("English name in lower case", "en_US", "london", "Londonn", "London");
        row("English, apostrophe", "en_US", "don\xE2\x80\x99t", "dont\xE2\x80\x99",
            "don\xE2\x80\x99t");
        row("German", "de_DE", "donaudampfschifffahrt", "Strasse", "Straße");
        row("German in capitals", "de_DE", "STRASSE", "Rechtschreibunk", "Rechtschreibung");
        row("both", "en_US,de_DE", "Straße", "wheather", "weather");
        row("both, the other first", "de_DE,en_US", "weather", "Rechtschreibunk",
            "Rechtschreibung");
    }
    void systemsDictionariesWork()
    {
        QFETCH(QString, names);
        QFETCH(QString, right);
        QFETCH(QString, wrong);
        QFETCH(QString, suggested);
        QVERIFY(m_spelling->isAvailable());
        m_spelling->setDict(names);
        QCOMPARE(m_spelling->dict(), names);
        QCOMPARE(m_spelling->checkWord(right), 1);
        QCOMPARE(m_spelling->checkWord(wrong), 0);
        const QStringList suggestions = m_spelling->suggestionList(wrong);
        QVERIFY2(suggestions.contains(suggested, Qt::CaseInsensitive),
                 qPrintable(suggestions.join(QLatin1Char(' '))));
    }
#endif

private:
    OmSpelling *m_spelling = OmSpelling::instance();
    std::unique_ptr<SpellingFolder> m_folder;
};

OMBRIN_TEST_MAIN(tst_Hunspell)

#include "tst_hunspell.moc"
