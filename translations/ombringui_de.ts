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
    <name>ombrin::DesignerPlugin</name>
    <message>
        <source>A thumbnail of a user&apos;s picture</source>
        <translation>Das Bild eines Benutzers in klein</translation>
    </message>
    <message>
        <source>Shows a user&apos;s picture as a thumbnail in a frame, or a placeholder while there is none. A thumbnail with a picture acts as a link.</source>
        <translation>Zeigt das Bild eines Benutzers verkleinert in einem Rahmen, oder einen Platzhalter, solange es keines gibt. Mit einem Bild verhält es sich wie ein Link.</translation>
    </message>
    <message>
        <source>Coloured check boxes in a box that folds</source>
        <translation>Farbige Ankreuzfelder in einem Kasten, der sich zuklappen lässt</translation>
    </message>
    <message>
        <source>Shows coloured check boxes below a title bar, in which they can be folded away. The program fills it; the check boxes seen in the form are an example.</source>
        <translation>Zeigt farbige Ankreuzfelder unter einer Titelleiste, in die sie sich zuklappen lassen. Das Programm füllt den Kasten; die Ankreuzfelder im Formular sind ein Beispiel.</translation>
    </message>
    <message>
        <source>A contact: picture, alias and presence</source>
        <translation>Ein Kontakt: Bild, Name und Status</translation>
    </message>
    <message>
        <source>Shows a contact with picture, alias and presence. The client application, a number, decides which actions a big card and the context menu offer.</source>
        <translation>Zeigt einen Kontakt mit Bild, Name und Status. Die Nummer des Programms, mit dem er erreichbar ist, entscheidet, welche Aktionen eine große Karte und das Kontextmenü anbieten.</translation>
    </message>
    <message>
        <source>A scrolling list of contact cards</source>
        <translation>Eine Liste von Kontaktkarten mit Bildlauf</translation>
    </message>
    <message>
        <source>Shows contact cards one above the other. A click makes a card big and all others small. The program fills it; the cards seen in the form are an example.</source>
        <translation>Zeigt Kontaktkarten untereinander. Ein Klick macht eine Karte groß und alle anderen klein. Das Programm füllt die Liste; die Karten im Formular sind ein Beispiel.</translation>
    </message>
    <message>
        <source>A dialog with a skinned border and title</source>
        <translation>Ein Dialog mit gestaltetem Rand und Titel</translation>
    </message>
    <message>
        <source>A frameless dialog with a border, title and buttons from the skin. As the top level of a form it becomes a window-modal dialog.</source>
        <translation>Ein Dialog, dessen Rand, Titel und Knöpfe aus der Oberflächengestaltung kommen. Als oberste Ebene eines Formulars wird daraus ein Dialog, der sein Fenster sperrt.</translation>
    </message>
    <message>
        <source>A combo box for choosing among icons</source>
        <translation>Ein Auswahlfeld für Symbole</translation>
    </message>
    <message>
        <source>Shows its items as a grid of icons. Give each item an icon; a text is shown in the closed box only.</source>
        <translation>Zeigt seine Einträge als Raster von Symbolen. Jeder Eintrag braucht ein Symbol; sein Text erscheint nur im geschlossenen Feld.</translation>
    </message>
    <message>
        <source>A button that is nothing but a picture</source>
        <translation>Ein Knopf, der nur aus einem Bild besteht</translation>
    </message>
    <message>
        <source>Draws one of eight pictures and nothing else: for each state one of the normal and one of the selected set. It has no size of its own.</source>
        <translation>Zeichnet eines von acht Bildern und sonst nichts: für jeden Zustand eines aus dem normalen und eines aus dem gewählten Satz. Er hat keine eigene Größe.</translation>
    </message>
    <message>
        <source>A button in the shape of its picture</source>
        <translation>Ein Knopf in der Form seines Bildes</translation>
    </message>
    <message>
        <source>Shows a picture for each of its states and has its shape: what is fully transparent does not belong to the button.</source>
        <translation>Zeigt für jeden seiner Zustände ein Bild und hat dessen Form: Was ganz durchsichtig ist, gehört nicht zum Knopf.</translation>
    </message>
    <message>
        <source>A widget in the shape of its picture</source>
        <translation>Ein Bild, das für sich steht</translation>
    </message>
    <message>
        <source>Shows a picture and has its shape: what is fully transparent does not belong to the widget.</source>
        <translation>Zeigt ein Bild und hat dessen Form: Was ganz durchsichtig ist, gehört nicht dazu.</translation>
    </message>
    <message>
        <source>An icon that tells more under the mouse</source>
        <translation>Ein Symbol, das unter der Maus mehr erzählt</translation>
    </message>
    <message>
        <source>Fades in a yellow pop-up with a message, and if wanted a box with a notice, while the mouse is over the icon.</source>
        <translation>Blendet, solange die Maus über dem Symbol steht, ein gelbes Fenster mit einer Nachricht und auf Wunsch einem Notizfeld ein.</translation>
    </message>
    <message>
        <source>A label that shortens its text, or acts as a link</source>
        <translation>Ein Textfeld, das seinen Text kürzt oder sich wie ein Link verhält</translation>
    </message>
    <message>
        <source>A label that can shorten its text to the width it has, and can act as a link that is clicked.</source>
        <translation>Ein Textfeld, das seinen Text auf die vorhandene Breite kürzen und sich anklicken lassen kann wie ein Link.</translation>
    </message>
    <message>
        <source>A line edit with a hint</source>
        <translation>Ein Eingabefeld mit einem Hinweis</translation>
    </message>
    <message>
        <source>A line edit that says what belongs into it while it is empty and has no focus.</source>
        <translation>Ein Eingabefeld, das sagt, was hineingehört, solange es leer ist und keinen Eingabefokus hat.</translation>
    </message>
    <message>
        <source>A button that looks like a link</source>
        <translation>Ein Knopf, der wie ein Link aussieht</translation>
    </message>
    <message>
        <source>A button with an underlined text. With an arrow, which a checkable one has, it suits for folding something out.</source>
        <translation>Ein Knopf mit unterstrichenem Text. Mit dem Pfeil, den er zeigt, wenn er ankreuzbar ist, eignet er sich zum Aufklappen.</translation>
    </message>
    <message>
        <source>An entry of a menu made of widgets</source>
        <translation>Ein Eintrag eines Menüs aus Bedienelementen</translation>
    </message>
    <message>
        <source>A row with an icon and a text that darkens under the mouse. The icon is the path of a picture in the skin or in the program&apos;s resources.</source>
        <translation>Eine Zeile mit Symbol und Text, die unter der Maus dunkler wird. Das Symbol ist der Pfad eines Bildes in der Oberflächengestaltung oder in den Ressourcen des Programms.</translation>
    </message>
    <message>
        <source>A push button whose tool tip is a balloon</source>
        <translation>Ein Knopf, dessen Hinweis eine Sprechblase ist</translation>
    </message>
    <message>
        <source>A push button that shows its tool tip in a balloon at its bottom edge.</source>
        <translation>Ein Knopf, der seinen Hinweis in einer Sprechblase an seinem unteren Rand zeigt.</translation>
    </message>
    <message>
        <source>A rating of five stars</source>
        <translation>Eine Bewertung mit fünf Sternen</translation>
    </message>
    <message>
        <source>Shows a rating in half stars, from 0 to 10, and lets the user give one with the mouse.</source>
        <translation>Zeigt eine Bewertung in halben Sternen, von 0 bis 10, und lässt den Benutzer mit der Maus eine abgeben.</translation>
    </message>
    <message>
        <source>Texts and links on stripes</source>
        <translation>Texte und Links auf Streifen</translation>
    </message>
    <message>
        <source>Shows short texts and links in striped lines, hung on guides called poles. The program fills it; the lines seen in the form are an example.</source>
        <translation>Zeigt kurze Texte und Links in gestreiften Zeilen, aufgehängt an senkrechten Hilfslinien. Das Programm füllt die Ansicht; die Zeilen im Formular sind ein Beispiel.</translation>
    </message>
    <message>
        <source>A line edit for search words</source>
        <translation>Ein Eingabefeld für Suchwörter</translation>
    </message>
    <message>
        <source>A line edit with a magnifier, a hint while it is empty, and an icon that erases the text.</source>
        <translation>Ein Eingabefeld mit einer Lupe, einem Hinweis, solange es leer ist, und einem Symbol, das den Text löscht.</translation>
    </message>
    <message>
        <source>A list that chooses what is shown beside it</source>
        <translation>Eine Liste, die auswählt, was neben ihr erscheint</translation>
    </message>
    <message>
        <source>A list whose selected entry looks like a tab that opens to the right. Put it to the left of what it chooses.</source>
        <translation>Eine Liste, deren gewählter Eintrag wie eine Lasche aussieht, die sich nach rechts öffnet. Sie gehört links neben das, was sie auswählt.</translation>
    </message>
    <message>
        <source>A status bar on a gradient</source>
        <translation>Eine Statusleiste auf einem Farbverlauf</translation>
    </message>
    <message>
        <source>A status bar on a grey gradient. Skinned windows make one for themselves when they are asked for it.</source>
        <translation>Eine Statusleiste auf einem grauen Farbverlauf. Gestaltete Fenster legen sich selbst eine an, wenn man sie danach fragt.</translation>
    </message>
    <message>
        <source>Tabs that exchange places by drag and drop</source>
        <translation>Tabs, die durch Ziehen die Plätze tauschen</translation>
    </message>
    <message>
        <source>A tab bar whose tabs can be dragged onto each other and whose captions can be hidden. The program adds the tabs; those seen in the form are an example.</source>
        <translation>Eine Leiste, deren Tabs sich aufeinander ziehen und deren Beschriftungen sich verbergen lassen. Das Programm fügt die Tabs hinzu; die im Formular sind ein Beispiel.</translation>
    </message>
    <message>
        <source>Pages whose tabs can be dragged and closed</source>
        <translation>Seiten, deren Tabs sich ziehen und schließen lassen</translation>
    </message>
    <message>
        <source>A tab widget whose tabs can be dragged onto each other, with a button that closes the current page.</source>
        <translation>Seiten mit Tabs, die sich aufeinander ziehen lassen, und mit einem Knopf, der die aktuelle Seite schließt.</translation>
    </message>
    <message>
        <source>The history of a chat</source>
        <translation>Der Verlauf eines Chats</translation>
    </message>
    <message>
        <source>Shows a conversation, safely where strangers wrote it. Copying can be forbidden, and saving of pictures allowed.</source>
        <translation>Zeigt ein Gespräch, auch wenn Fremde es geschrieben haben, ohne Gefahr. Das Kopieren lässt sich verbieten, das Speichern von Bildern erlauben.</translation>
    </message>
    <message>
        <source>The input of a chat</source>
        <translation>Die Eingabe eines Chats</translation>
    </message>
    <message>
        <source>A text edit that reports Return, pastes plain text, limits what is typed and checks the spelling.</source>
        <translation>Ein Textfeld, das die Eingabetaste meldet, nur reinen Text einfügt, die Länge begrenzt und die Rechtschreibung prüft.</translation>
    </message>
    <message>
        <source>A tool bar that shows texts where they fit</source>
        <translation>Eine Werkzeugleiste, die Texte zeigt, wo sie Platz haben</translation>
    </message>
    <message>
        <source>A tool bar whose buttons show texts beside their icons where there is room. The program names the buttons for which this holds.</source>
        <translation>Eine Werkzeugleiste, deren Knöpfe neben den Symbolen auch Texte zeigen, wenn Platz ist. Das Programm nennt die Knöpfe, für die das gilt.</translation>
    </message>
    <message>
        <source>A tool button whose tool tip is a balloon</source>
        <translation>Ein Werkzeugknopf, dessen Hinweis eine Sprechblase ist</translation>
    </message>
    <message>
        <source>A tool button that shows its tool tip in a balloon at its bottom edge.</source>
        <translation>Ein Werkzeugknopf, der seinen Hinweis in einer Sprechblase an seinem unteren Rand zeigt.</translation>
    </message>
    <message>
        <source>A plain frame near the tray</source>
        <translation>Ein einfacher Rahmen beim Infobereich</translation>
    </message>
    <message>
        <source>A frame to be filled and shown near the tray. It is a class of its own, which style sheets can name.</source>
        <translation>Ein Rahmen, der gefüllt und beim Infobereich gezeigt wird. Er ist eine eigene Klasse, die Style-Sheets nennen können.</translation>
    </message>
    <message>
        <source>A window with a skinned border and title</source>
        <translation>Ein Fenster mit gestaltetem Rand und Titel</translation>
    </message>
    <message>
        <source>A frameless window with a border, title and buttons from the skin, to be used as the top level of a form.</source>
        <translation>Ein Fenster, dessen Rand, Titel und Knöpfe aus der Oberflächengestaltung kommen; gedacht als oberste Ebene eines Formulars.</translation>
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
        <translation>Startet einen Chat mit dem Kontakt</translation>
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
        <translation>Push-Nachricht speichern unter ...</translation>
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
        <translation>Bild speichern unter ...</translation>
    </message>
    <message>
        <source>Save Smiley as...</source>
        <translation>Smiley speichern unter ...</translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation>JPEG-Bild</translation>
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
