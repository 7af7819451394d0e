#include "support/Files.h"
#include "support/TestCase.h"

#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmTabWidget.h>
#include <ombrin/OmTranslation.h>
#include <ombrin/OmWindow.h>

using ombrin::OmTranslation;

namespace {

QString yesInThisLanguage()
{
    return ombrin::OmMessageBox::tr("&Yes");
}

/// A host's own translation of Qt's texts.
class HostTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOurs =
                qstrcmp(context, "QWidgetTextControl") == 0 && qstrcmp(source, "&Copy") == 0;
        return isOurs ? "host"_q : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Whether a German user reads German, and everybody else the language that was chosen.
class tst_Translations : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void setUp() override { QVERIFY(OmTranslation::load(QLocale(QLocale::English))); }
    void tearDown() override { OmTranslation::load(QLocale(QLocale::English)); }

    void languageFollowsTheLocale_data()
    {
        const auto row = columns<QString, bool, QString>("locale", "known", "fromGerman");
        const QString german = "&Ja"_q;
        const QString english = "&Yes"_q;
        row("German", "de", true, german);
        row("a variant of German", "de_AT", true, german);
        row("English", "en_GB", true, english);
        row("no language", "C", true, english);
        row("a language without a file", "sw_KE", false, german);
    }
    void languageFollowsTheLocale()
    {
        QFETCH(QString, locale);
        // Twice, so that one of the two would be left if the second did not replace the first.
        QVERIFY(OmTranslation::load(QLocale(QLocale::German)));
        QVERIFY(OmTranslation::load(QLocale(QLocale::German)));
        QTEST(OmTranslation::load(QLocale(locale)), "known");
        QTEST(yesInThisLanguage(), "fromGerman");
    }

    void languagesAreListed()
    {
        const QStringList languages = OmTranslation::languages();
        QVERIFY(languages.contains("de"_q));
        QVERIFY(languages.contains("en"_q));
    }

    void unusableFileChangesNothing()
    {
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                          + "/ombrin/translations"_q);
        QVERIFY(folder.mkpath("."_q));
        const QString file = folder.filePath("ombringui_sw.qm"_q);
        ombrin::test::writeFile(file, "no translation");
        QVERIFY(OmTranslation::load(QLocale(QLocale::German)));
        QVERIFY(!OmTranslation::load(QLocale(QLocale::Swahili)));
        QCOMPARE(yesInThisLanguage(), "&Ja"_q);
        QVERIFY(QFile::remove(file));
    }

    void openWidgetsChangeTheirLanguage()
    {
        using namespace ombrin;
        OmWindow window;
        auto *const content = new QWidget;
        window.setWidget(content);
        auto *const tabs = new OmTabWidget(content);
        tabs->enableCloseTabButton(true);
        auto *const card = new OmContactCard(content);
        card->setStatus(Om::Away);
        auto *const checkBoxes = new OmCheckBoxAssortmentView(content);
        checkBoxes->setIsRetracted(true);

        const auto names = [&window] {
            QStringList found;
            const auto widgets = window.findChildren<QWidget *>();
            for (QWidget *const widget : widgets)
                found.append(widget->accessibleName());
            return found;
        };
        const auto speaks = [&](const char *texts) {
            const QStringList expected = QString::fromUtf8(texts).split(QLatin1Char('|'));
            // With the comment that tells it apart.
            const QString next =
                    COmWizard_Standard::tr("&Next >", "next-button in standard-wizard");
            const QStringList found = names() << card->statusName() << next;
            return std::all_of(expected.begin(), expected.end(),
                               [&found](const QString &text) { return found.contains(text); });
        };
        const char *const english = "Minimize|Close|Close tab|Add|Unfold|Away|&Next >";
        const char *const german =
                "Minimieren|Schließen|Tab schließen|Hinzufügen|Aufklappen|Abwesend|"
                "&Weiter >";
        QVERIFY(speaks(english));
        QVERIFY(OmTranslation::load(QLocale(QLocale::German)));
        QTRY_VERIFY_WITH_TIMEOUT(speaks(german), 10000);
        QVERIFY(OmTranslation::load(QLocale(QLocale::English)));
        QTRY_VERIFY_WITH_TIMEOUT(speaks(english), 10000);
    }

    void hostKeepsItsOwnTranslationOfQt()
    {
        HostTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QVERIFY(OmTranslation::load(QLocale(QLocale::German)));
        QCOMPARE(QCoreApplication::translate("QWidgetTextControl", "&Copy"), "host"_q);
        QCOMPARE(yesInThisLanguage(), "&Ja"_q);
    }
};

OMBRIN_TEST_MAIN(tst_Translations)
#include "tst_translations.moc"
