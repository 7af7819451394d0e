#include "support/SpellingFolder.h"
#include "support/TestCase.h"

using ombrin::OmSpelling;
using namespace ombrin::test;

class tst_Hunspell : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override { m_folder = std::make_unique<SpellingFolder>(); }
    void tearDown() override { m_folder.reset(); }

private Q_SLOTS:
    void everyEncodingIsUnderstood_data()
    {
        const auto row = columns<QByteArray, QString, QString>("written", "right", "wrong");
        row("UTF-8", "gr\xC3\xBCn", "grün", "grüün");
        row("ISO8859-1", "na\xEFvet\xE9", "naïveté", "naïvetéé");
        row("ISO8859-2", "\xBElu\xBBou\xE8k\xFD", "žluťoučký", "žluťoučkký");
        row("ISO8859-7", "\xEA\xE1\xEB\xE7\xEC\xDD\xF1\xE1", "καλημέρα", "καλλημέρα");
        row("ISO8859-15", "c\xBDur", "cœur", "cœuur");
        row("KOI8-R", "\xD0\xD2\xC9\xD7\xC5\xD4", "привет", "привветт");
        row("microsoft-cp1251", "\xE1\xFA\xEB\xE3\xE0\xF0\xE8\xFF", "българия", "българрия");
    }
    void everyEncodingIsUnderstood()
    {
        QFETCH(QByteArray, written);
        QFETCH(QString, right);
        QFETCH(QString, wrong);
        m_folder->add("aa"_q, {written, "plain"}, QTest::currentDataTag());
        m_spelling->setDict("aa"_q);
        QCOMPARE(m_spelling->checkWord(right), 1);
        QCOMPARE(m_spelling->checkWord(right.toUpper()), 1);
        QCOMPARE(m_spelling->checkWord(wrong), 0);
        QCOMPARE(m_spelling->suggestionList(wrong).value(0), right);
        // Letters that the encoding lacks are no reason to guess.
        QCOMPARE(m_spelling->checkWord("plain\xE6\x97\xA5"_q), 0);
        QCOMPARE(m_spelling->checkWord("\xF0\x9F\x98\x80"_q), 0);
    }

#ifdef OMBRIN_SYSTEM_DICTIONARIES
    void systemsDictionariesWork()
    {
        const struct
        {
            QString names, right, wrong, suggested;
        } cases[] = {{"en_US"_q, "london"_q, "Londonn"_q, "London"_q},
                     {"en_US"_q, "don’t"_q, "dont’"_q, "don’t"_q},
                     {"de_DE"_q, "donaudampfschifffahrt"_q, "Strasse"_q, "Straße"_q},
                     {"de_DE"_q, "STRASSE"_q, "Rechtschreibunk"_q, "Rechtschreibung"_q},
                     {"en_US,de_DE"_q, "Straße"_q, "wheather"_q, "weather"_q},
                     {"de_DE,en_US"_q, "weather"_q, "Rechtschreibunk"_q, "Rechtschreibung"_q}};
        for (const auto &[names, right, wrong, suggested] : cases) {
            m_spelling->setDict(names);
            QCOMPARE(m_spelling->dict(), names);
            QCOMPARE(m_spelling->checkWord(right), 1);
            QCOMPARE(m_spelling->checkWord(wrong), 0);
            QVERIFY2(m_spelling->suggestionList(wrong).contains(suggested), qPrintable(wrong));
        }
    }
#endif

private:
    OmSpelling *m_spelling = OmSpelling::instance();
    std::unique_ptr<SpellingFolder> m_folder;
};

OMBRIN_TEST_MAIN(tst_Hunspell)

#include "tst_hunspell.moc"
