<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>COmWizard_Mission_Base</name>
    <message>
        <source>Question</source>
        <comment>title of question-dialog for standard-wizard</comment>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Do you really want to cancel this wizard?</source>
        <comment>question on cancel in standard-wizard</comment>
        <translation>Möchten Sie diesen Assistenten wirklich abbrechen?</translation>
    </message>
</context>
<context>
    <name>COmWizard_Standard</name>
    <message>
        <source>Assistant</source>
        <comment>windowtitle of a wizard who hasn&apos;t get one by the mission</comment>
        <translation>Assistent</translation>
    </message>
    <message>
        <source>&lt; &amp;Previous</source>
        <comment>previous-button in standard-wizard</comment>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <comment>next-button in standard-wizard</comment>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <comment>execute-button in standard-wizard</comment>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <comment>cancel-button in standard-wizard</comment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <comment>exit-button in standard-wizard</comment>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>OmScreenShooter_FullscreenCutter</name>
    <message>
        <source>Please select the area on the screen that you want as an image by pressing the left mouse button and dragging your mouse.</source>
        <comment>hint if user doesn&apos;t select anything</comment>
        <translation>Bitte wählen Sie den Bereich des Bildschirms, den Sie als Bild haben möchten: Drücken Sie dazu die linke Maustaste und ziehen Sie die Maus.</translation>
    </message>
</context>
<context>
    <name>OmWizard_Standard2</name>
    <message>
        <source>Assistant</source>
        <comment>windowtitle of a wizard who hasn&apos;t get one by the mission</comment>
        <translation>Assistent</translation>
    </message>
    <message>
        <source>&lt; &amp;Previous</source>
        <comment>previous-button in standard-wizard</comment>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <comment>next-button in standard-wizard</comment>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <comment>execute-button in standard-wizard</comment>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <comment>cancel-button in standard-wizard</comment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <comment>exit-button in standard-wizard</comment>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>ombrin::OmBalloonTip</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Closes the balloon</source>
        <translation>Schließt die Sprechblase</translation>
    </message>
</context>
<context>
    <name>ombrin::OmCalendar</name>
    <message>
        <source>Choose a Date</source>
        <translation>Datum auswählen</translation>
    </message>
</context>
<context>
    <name>ombrin::OmCheckBoxAssortmentView</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Aufklappen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Zuklappen</translation>
    </message>
</context>
<context>
    <name>ombrin::OmContactCard</name>
    <message>
        <source>Kick Contact</source>
        <translation>Kontakt hinauswerfen</translation>
    </message>
    <message>
        <source>Kick contact</source>
        <translation>Wirft den Kontakt hinaus</translation>
    </message>
    <message>
        <source>Chat with Contact</source>
        <translation>Mit Kontakt chatten</translation>
    </message>
    <message>
        <source>Chat with contact</source>
        <translation>Chattet mit dem Kontakt</translation>
    </message>
    <message>
        <source>Call Contact</source>
        <translation>Kontakt anrufen</translation>
    </message>
    <message>
        <source>Call contact</source>
        <translation>Ruft den Kontakt an</translation>
    </message>
    <message>
        <source>Send File</source>
        <translation>Datei senden</translation>
    </message>
    <message>
        <source>Send file</source>
        <translation>Sendet eine Datei</translation>
    </message>
    <message>
        <source>Open Web Folder</source>
        <translation>Webordner öffnen</translation>
    </message>
    <message>
        <source>Open web folder</source>
        <translation>Öffnet den Webordner</translation>
    </message>
    <message>
        <source>Show Profile</source>
        <translation>Profil anzeigen</translation>
    </message>
    <message>
        <source>Show profile</source>
        <translation>Zeigt das Profil an</translation>
    </message>
    <message>
        <source>Block Contact</source>
        <translation>Kontakt sperren</translation>
    </message>
    <message>
        <source>Block contact</source>
        <translation>Sperrt den Kontakt</translation>
    </message>
    <message>
        <source>Authenticate Contact</source>
        <translation>Kontakt bestätigen</translation>
    </message>
    <message>
        <source>Authenticate contact</source>
        <translation>Bestätigt den Kontakt</translation>
    </message>
    <message>
        <source>Unblock Contact</source>
        <translation>Kontakt entsperren</translation>
    </message>
    <message>
        <source>Unblock contact</source>
        <translation>Entsperrt den Kontakt</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Länger abwesend</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Bitte nicht stören</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>Invisible for everyone</source>
        <translation>Für alle unsichtbar</translation>
    </message>
    <message>
        <source>Change My User Picture...</source>
        <translation>Mein Bild ändern ...</translation>
    </message>
    <message>
        <source>Save User Picture...</source>
        <translation>Bild des Kontakts speichern ...</translation>
    </message>
    <message>
        <source>Save User Picture as...</source>
        <translation>Bild des Kontakts speichern unter ...</translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation>JPEG-Bild</translation>
    </message>
</context>
<context>
    <name>ombrin::OmContactCardList</name>
    <message>
        <source>Add Contact(s)</source>
        <translation>Kontakt(e) hinzufügen</translation>
    </message>
</context>
<context>
    <name>ombrin::OmDialog2</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>80%</source>
        <translation>80&#xa0;%</translation>
    </message>
    <message>
        <source>60%</source>
        <translation>60&#xa0;%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50&#xa0;%</translation>
    </message>
    <message>
        <source>40%</source>
        <translation>40&#xa0;%</translation>
    </message>
    <message>
        <source>20%</source>
        <translation>20&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ombrin::OmInputDialog</name>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Ok</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>ombrin::OmMessageBox</name>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Ok</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>ombrin::OmTabWidget</name>
    <message>
        <source>Close tab</source>
        <translation>Tab schließen</translation>
    </message>
</context>
<context>
    <name>ombrin::OmTextBrowser</name>
    <message>
        <source>Open %1 in your web browser.</source>
        <translation>%1 im Webbrowser öffnen.</translation>
    </message>
    <message>
        <source>Write e-mail to %1.</source>
        <translation>E-Mail an %1 schreiben.</translation>
    </message>
    <message>
        <source>Call %1 with ombrin Phone.</source>
        <translation>%1 mit ombrin Phone anrufen.</translation>
    </message>
    <message>
        <source>Play Push Message</source>
        <translation>Push-Nachricht abspielen</translation>
    </message>
    <message>
        <source>Save Push Message as...</source>
        <translation>Push-Nachricht speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Add Smiley</source>
        <translation>Smiley hinzufügen</translation>
    </message>
    <message>
        <source>Save Image as...</source>
        <translation>Bild speichern unter...</translation>
    </message>
    <message>
        <source>Save Smiley as...</source>
        <translation>Smiley speichern unter...</translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation>Joint Photographic Experts Group</translation>
    </message>
</context>
<context>
    <name>ombrin::OmTextEdit</name>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibung</translation>
    </message>
    <message>
        <source>Add to Dictionary</source>
        <translation>Zum Wörterbuch hinzufügen</translation>
    </message>
    <message>
        <source>Looking for Suggestions...</source>
        <translation>Vorschläge werden gesucht ...</translation>
    </message>
    <message>
        <source>No Suggestions Found</source>
        <translation>Keine Vorschläge gefunden</translation>
    </message>
</context>
<context>
    <name>ombrin::OmWindow</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>80%</source>
        <translation>80&#xa0;%</translation>
    </message>
    <message>
        <source>60%</source>
        <translation>60&#xa0;%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50&#xa0;%</translation>
    </message>
    <message>
        <source>40%</source>
        <translation>40&#xa0;%</translation>
    </message>
    <message>
        <source>20%</source>
        <translation>20&#xa0;%</translation>
    </message>
</context>
</TS>
