#include "support/TestCase.h"

#include <QtCore/QTranslator>

/// Whether a German user reads German. That the widgets ask for these texts is tested with each.
class tst_Translations : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dialogsSpeakGerman_data();
    void dialogsSpeakGerman();
};

void tst_Translations::dialogsSpeakGerman_data()
{
    QTest::addColumn<QStringList>("contexts");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("german");
    const auto row = [](const char *text, const char *contexts, const char *german,
                        const char *comment = "") {
        QTest::newRow(text) << ombrin::test::words(contexts) << QString::fromUtf8(comment)
                            << QString::fromUtf8(german);
    };
    constexpr const char *kWizards = "COmWizard_Standard OmWizard_Standard2";
    row("Assistant", kWizards, "Assistent",
        "windowtitle of a wizard who hasn't get one by the mission");
    row("< &Previous", kWizards, "< &Zurück", "previous-button in standard-wizard");
    row("&Next >", kWizards, "&Weiter >", "next-button in standard-wizard");
    row("&Complete", kWizards, "&Fertigstellen", "execute-button in standard-wizard");
    row("&Cancel", kWizards, "&Abbrechen", "cancel-button in standard-wizard");
    row("&Exit", kWizards, "&Beenden", "exit-button in standard-wizard");
    row("Question", "COmWizard_Mission_Base", "Frage",
        "title of question-dialog for standard-wizard");
    row("Do you really want to cancel this wizard?", "COmWizard_Mission_Base",
        "Möchten Sie diesen Assistenten wirklich abbrechen?",
        "question on cancel in standard-wizard");
    row("&Yes", "ombrin::OmMessageBox", "&Ja");
    row("&No", "ombrin::OmMessageBox", "&Nein");
    row("&Cancel", "ombrin::OmInputDialog", "&Abbrechen");
    row("Please select the area on the screen that you want as an image by pressing the left mouse "
        "button and dragging your mouse.",
        "OmScreenShooter_FullscreenCutter",
        "Bitte wählen Sie den Bereich des Bildschirms, den Sie als Bild haben möchten: Drücken Sie "
        "dazu die linke Maustaste und ziehen Sie die Maus.",
        "hint if user doesn't select anything");
    row("Choose a Date", "ombrin::OmCalendar", "Datum auswählen");
}

void tst_Translations::dialogsSpeakGerman()
{
    QFETCH(QStringList, contexts);
    QFETCH(QString, comment);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral("ombringui_de"),
                            QCoreApplication::applicationDirPath()
                                    + QStringLiteral("/translations")));
    for (const QString &context : std::as_const(contexts))
        QTEST(translator.translate(qPrintable(context), QTest::currentDataTag(),
                                   qPrintable(comment)),
              "german");
}

OMBRIN_TEST_MAIN(tst_Translations)
#include "tst_translations.moc"
