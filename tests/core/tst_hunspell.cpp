#include "support/SpellingFolder.h"
#include "support/TestCase.h"

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
        row("ISO8859-15", "c\xBDur", "cœur", "cœuur");
        row("KOI8-R", "\xD0\xD2\xC9\xD7\xC5\xD4", "привет", "привветт");
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

#ifdef OMBRIN_SYSTEM_DICTIONARIES
    void systemsDictionariesWork()
    {
        struct Case
        {
            const char *names, *right, *wrong, *suggested;
        };
        constexpr Case cases[] = {{"en_US", "london", "Londonn", "London"},
                                  {"en_US", "don’t", "dont’", "don’t"},
                                  {"de_DE", "donaudampfschifffahrt", "Strasse", "Straße"},
                                  {"de_DE", "STRASSE", "Rechtschreibunk", "Rechtschreibung"},
                                  {"en_US,de_DE", "Straße", "wheather", "weather"},
                                  {"de_DE,en_US", "weather", "Rechtschreibunk", "Rechtschreibung"}};
        for (const Case &test : cases) {
            m_spelling->setDict(text(test.names));
            QCOMPARE(m_spelling->dict(), text(test.names));
            QCOMPARE(m_spelling->checkWord(text(test.right)), 1);
            QCOMPARE(m_spelling->checkWord(text(test.wrong)), 0);
            const QStringList suggestions = m_spelling->suggestionList(text(test.wrong));
            QVERIFY2(suggestions.contains(text(test.suggested)), test.wrong);
        }
    }
#endif

private:
    OmSpelling *m_spelling = OmSpelling::instance();
    std::unique_ptr<SpellingFolder> m_folder;
};

OMBRIN_TEST_MAIN(tst_Hunspell)

#include "tst_hunspell.moc"
