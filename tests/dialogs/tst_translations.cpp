#include "dialogs/DialogUser.h"
#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmCalendar.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmWindow.h>

#include <QtWidgets/QLabel>

using namespace wizard_parts;
using dialog_user::closeButton;
using dialog_user::whenOpen;

namespace {

QString german(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// What a German user reads.
class tst_Translations : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(flat_skin::registerSkin());
        QVERIFY(m_translator.load(QStringLiteral("ombringui_de"),
                                  QCoreApplication::applicationDirPath()
                                          + QStringLiteral("/translations")));
        QCoreApplication::installTranslator(&m_translator);
    }
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

    void everyTextOfTheWizardsIsTranslated_data() { forBothWizards(); }
    void everyTextOfTheWizardsIsTranslated()
    {
        QFETCH(bool, compact);
        const Pages pages(1);
        Mission mission(pages);
        const auto wizard = makeWizard(compact);
        wizard->Set_Mission(&mission);
        QCOMPARE(wizard->windowTitleOnly(), german("Assistent"));
        QCOMPARE(button(wizard.get(), Previous)->text(), german("< &Zurück"));
        QCOMPARE(button(wizard.get(), Next)->text(), german("&Weiter >"));
        QCOMPARE(button(wizard.get(), Execute)->text(), german("&Fertigstellen"));
        QCOMPARE(button(wizard.get(), Cancel)->text(), german("&Abbrechen"));
        button(wizard.get(), Execute)->click();
        QCOMPARE(button(wizard.get(), Cancel)->text(), german("&Beenden"));
    }

    void everyTextOfTheDialogsIsTranslated()
    {
        Mission mission;
        whenOpen<ombrin::OmMessageBox>([](ombrin::OmMessageBox *box) {
            QCOMPARE(box->windowTitle(), german("Frage"));
            QCOMPARE(box->findChildren<QLabel *>().value(1)->text(),
                     german("Möchten Sie diesen Assistenten wirklich abbrechen?"));
            QVERIFY(dialog_user::button(box, "&Ja"));
            QVERIFY(dialog_user::button(box, "&Nein"));
            QCOMPARE(closeButton(box)->toolTip(), german("Schließen"));
            box->reject();
        });
        mission.CancelWizard();
        QCOMPARE(closeButton(std::make_unique<ombrin::OmWindow>().get())->toolTip(),
                 german("Schließen"));
        QCOMPARE(ombrin::OmCalendar().windowTitle(), german("Datum auswählen"));
        whenOpen<ombrin::OmInputDialog>([](ombrin::OmInputDialog *dialog) {
            QVERIFY(dialog_user::button(dialog, "&Abbrechen"));
            dialog->reject();
        });
        ombrin::OmInputDialog::getText(nullptr, QString(), QString(), QLineEdit::Normal, QString(),
                                       nullptr);
    }

private:
    QTranslator m_translator;
};

OMBRIN_TEST_MAIN(tst_Translations)
#include "tst_translations.moc"
