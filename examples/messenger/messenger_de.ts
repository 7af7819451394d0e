<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Camera</name>
    <message>
        <source>I have recieved it, thank you! </source>
        <translation>Ich habe es erhallten, vielen Dank! </translation>
    </message>
    <message>
        <source>Shall we meet at the station?</source>
        <translation>Treffen wir uns am Bahnhof?</translation>
    </message>
    <message>
        <source>The picture &apos;%1&apos; cannot be saved.</source>
        <translation>Das Bild „%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The window does not become active.</source>
        <translation>Das Fenster wird nicht aktiv.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Speak this language, for example &quot;de&quot;.</source>
        <translation>Diese Sprache sprechen, zum Beispiel „de“.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Save pictures of the windows in this folder, at density 1 and 2.</source>
        <translation>Bilder der Fenster in diesem Ordner speichern, in einfacher und doppelter Dichte.</translation>
    </message>
    <message>
        <source>A small messenger built with ombrin gui. Start it twice and chat.</source>
        <translation>Ein kleiner Messenger, gebaut mit ombrin gui. Starten Sie ihn zweimal und plaudern Sie.</translation>
    </message>
    <message>
        <source>The name of a profile has letters a to z, digits and hyphens.</source>
        <translation>Der Name eines Profils besteht aus Buchstaben von a bis z, Ziffern und Bindestrichen.</translation>
    </message>
    <message>
        <source>This profile cannot be used: another copy has it, or its folder cannot be written to.</source>
        <translation>Dieses Profil kann nicht verwendet werden: Ein anderes laufendes Programm hat es, oder sein Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Use a profile of your own: account, contacts and conversations are kept under this name. Without it the first copy uses &quot;main&quot;, the second &quot;guest-2&quot; and so on.</source>
        <translation>Ein eigenes Profil verwenden: Konto, Kontakte und Gespräche werden unter diesem Namen aufbewahrt. Ohne ihn verwendet das erste laufende Programm „main“, das zweite „guest-2“ und so weiter.</translation>
    </message>
</context>
<context>
    <name>Contact</name>
    <message>
        <source>On this machine</source>
        <translation>Auf diesem Rechner</translation>
    </message>
</context>
<context>
    <name>ContactBook</name>
    <message>
        <source>The contact book &apos;%1&apos; cannot be read.</source>
        <translation>Das Kontaktbuch „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The contact book is damaged at byte %1: %2</source>
        <translation>Das Kontaktbuch ist bei Byte %1 beschädigt: %2</translation>
    </message>
    <message>
        <source>A contact without a usable id and alias was left out.</source>
        <translation>Ein Kontakt ohne brauchbare Kennung und Namen wurde ausgelassen.</translation>
    </message>
    <message>
        <source>There are two contacts &apos;%1&apos;; the second was left out.</source>
        <translation>Den Kontakt „%1“ gibt es zweimal; der zweite wurde ausgelassen.</translation>
    </message>
</context>
<context>
    <name>NamePage</name>
    <message>
        <source>N&amp;ame:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Your contacts see this on your card.</source>
        <translation>Das sehen Ihre Kontakte auf Ihrer Karte.</translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>C&amp;hoose a picture...</source>
        <translation>&amp;Bild auswählen ...</translation>
    </message>
    <message>
        <source>N&amp;o picture</source>
        <translation>&amp;Kein Bild</translation>
    </message>
    <message>
        <source>You can also drop a picture here.</source>
        <translation>Sie können ein Bild auch hierher ziehen.</translation>
    </message>
    <message>
        <source>Choose Your Picture</source>
        <translation>Ihr Bild auswählen</translation>
    </message>
    <message>
        <source>This is not a picture, or it is too large.</source>
        <translation>Das ist kein Bild, oder es ist zu groß.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.webp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.gif *.bmp *.webp)</translation>
    </message>
</context>
<context>
    <name>Presence</name>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
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
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Länger abwesend</translation>
    </message>
</context>
<context>
    <name>SampleDay</name>
    <message>
        <source>Will you come to the rehearsal tomorrow?</source>
        <translation>Kommst du morgen zur Probe?</translation>
    </message>
    <message>
        <source>Good morning! Look where I am:</source>
        <translation>Guten Morgen! Schau, wo ich bin:</translation>
    </message>
    <message>
        <source>How beautiful! Is that the hut from https://www.example.org/hut ?</source>
        <translation>Wie schön! Ist das die Hütte von https://www.example.org/hut ?</translation>
    </message>
    <message>
        <source>I envy you ;-)</source>
        <translation>Ich beneide dich ;-)</translation>
    </message>
    <message>
        <source>Mira Sandberg</source>
        <translation>Mira Sandberg</translation>
    </message>
    <message>
        <source>Off to the lake</source>
        <translation>Ab an den See</translation>
    </message>
    <message>
        <source>Of course! I will bring the new score :-)</source>
        <translation>Natürlich! Ich bringe die neue Partitur mit :-)</translation>
    </message>
    <message>
        <source>It is. Write to anna@example.org if you want the key: I will post it.</source>
        <translation>Ja. Schreib an anna@example.org, wenn du den Schlüssel willst: Ich schicke ihn mit der Post.</translation>
    </message>
</context>
<context>
    <name>ServerPage</name>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>For example chat.example.org: letters, digits, dots and hyphens, and a port if need be.</source>
        <translation>Zum Beispiel chat.example.org: Buchstaben, Ziffern, Punkte und Bindestriche, falls nötig ein Port.</translation>
    </message>
</context>
<context>
    <name>SummaryPage</name>
    <message>
        <source>Done. &quot;Exit&quot; takes you to your contacts.</source>
        <translation>Fertig. „Beenden“ bringt Sie zu Ihren Kontakten.</translation>
    </message>
    <message>
        <source>&quot;Complete&quot; saves the account.</source>
        <translation>„Fertigstellen“ speichert das Konto.</translation>
    </message>
</context>
<context>
    <name>example::CommandLine</name>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>--screenshots needs the name of a folder.</source>
        <translation>--screenshots braucht den Namen eines Ordners.</translation>
    </message>
    <message>
        <source>Try --help.</source>
        <translation>Versuchen Sie --help.</translation>
    </message>
</context>
<context>
    <name>example::ScreenshotJob</name>
    <message>
        <source>The folder &apos;%1&apos; cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; cannot be written to.</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Saved the pictures in %1.</source>
        <translation>Die Bilder liegen in %1.</translation>
    </message>
    <message>
        <source>The pictures could not be taken.</source>
        <translation>Die Bilder konnten nicht aufgenommen werden.</translation>
    </message>
    <message>
        <source>The program could not be started again: %1</source>
        <translation>Das Programm konnte nicht noch einmal gestartet werden: %1</translation>
    </message>
</context>
<context>
    <name>messenger::AccountMission</name>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Your Account</source>
        <translation>Ihr Konto</translation>
    </message>
    <message>
        <source>Where your account lives. Nothing is sent there: this example finds other running copies on this machine.</source>
        <translation>Wo Ihr Konto zu Hause ist. Dorthin wird nichts gesendet: Dieses Beispiel findet andere laufende Programme auf diesem Rechner.</translation>
    </message>
    <message>
        <source>Your account is ready.</source>
        <translation>Ihr Konto ist fertig.</translation>
    </message>
    <message>
        <source>Please check what you entered.</source>
        <translation>Bitte prüfen Sie Ihre Angaben.</translation>
    </message>
    <message>
        <source>What others call you. You can change it later: Messenger &gt; Account.</source>
        <translation>Wie andere Sie nennen. Sie können es später ändern: Messenger &gt; Konto.</translation>
    </message>
    <message>
        <source>What others see of you. You can choose one later, too.</source>
        <translation>Was andere von Ihnen sehen. Sie können es auch später auswählen.</translation>
    </message>
</context>
<context>
    <name>messenger::ChatHistory</name>
    <message>
        <source>You have nudged %1.</source>
        <translation>Sie haben %1 angestupst.</translation>
    </message>
    <message>
        <source>%1 has nudged you.</source>
        <translation>%1 hat Sie angestupst.</translation>
    </message>
    <message>
        <source>(a picture that is no longer there)</source>
        <translation>(ein Bild, das nicht mehr da ist)</translation>
    </message>
</context>
<context>
    <name>messenger::ChatWindow</name>
    <message>
        <source>%1: %2</source>
        <comment>presence and remark</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is writing...</source>
        <translation>%1 schreibt ...</translation>
    </message>
    <message>
        <source>Send a Picture</source>
        <translation>Bild senden</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Call this contact</source>
        <translation>Diesen Kontakt anrufen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Nudge</source>
        <translation>Anstupsen</translation>
    </message>
    <message>
        <source>Shake the window of this contact</source>
        <translation>Das Fenster dieses Kontakts schütteln</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Who this contact is</source>
        <translation>Wer dieser Kontakt ist</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Ihre Nachricht</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>Sends your message, as Return does</source>
        <translation>Sendet Ihre Nachricht, wie die Eingabetaste</translation>
    </message>
    <message>
        <source>Smileys</source>
        <translation>Smileys</translation>
    </message>
    <message>
        <source>This is not a picture, or it is too large.
Only pictures can be sent.</source>
        <translation>Das ist kein Bild, oder es ist zu groß.
Nur Bilder können gesendet werden.</translation>
    </message>
    <message>
        <source>No screenshot was taken.</source>
        <translation>Es wurde kein Bildschirmfoto aufgenommen.</translation>
    </message>
    <message>
        <source>Send a picture, or paste or drop one here</source>
        <translation>Ein Bild senden, oder eines hier einfügen oder hierher ziehen</translation>
    </message>
    <message>
        <source>Cut out a part of the screen in three seconds and send it</source>
        <translation>In drei Sekunden einen Teil des Bildschirms ausschneiden und senden</translation>
    </message>
</context>
<context>
    <name>messenger::Client</name>
    <message>
        <source>Messenger</source>
        <translation>Messenger</translation>
    </message>
    <message>
        <source>This example cannot do that.</source>
        <translation>Das kann dieses Beispiel nicht.</translation>
    </message>
    <message>
        <source>no number is known</source>
        <translation>keine Nummer bekannt</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>You have blocked %1.</source>
        <translation>Sie haben %1 gesperrt.</translation>
    </message>
    <message>
        <source>You have unblocked %1.</source>
        <translation>Sie haben %1 entsperrt.</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Kontakt löschen</translation>
    </message>
    <message>
        <source>Delete %1 from your contacts?
What you have written to each other is kept.</source>
        <translation>%1 aus Ihren Kontakten löschen?
Was Sie einander geschrieben haben, bleibt erhalten.</translation>
    </message>
    <message>
        <source>Add Contacts</source>
        <translation>Kontakte hinzufügen</translation>
    </message>
    <message>
        <source>All contacts of the contact book are in your list.
To have another one, start this program a second time.</source>
        <translation>Alle Kontakte des Kontaktbuchs sind in Ihrer Liste.
Für einen weiteren starten Sie dieses Programm ein zweites Mal.</translation>
    </message>
    <message>
        <source>Contacts that you have deleted:</source>
        <translation>Kontakte, die Sie gelöscht haben:</translation>
    </message>
    <message>
        <source>About Messenger</source>
        <translation>Über Messenger</translation>
    </message>
    <message>
        <source>A small messenger, built with ombrin gui.
Its source is there to be read: examples/messenger.</source>
        <translation>Ein kleiner Messenger, gebaut mit ombrin gui.
Sein Quelltext ist zum Lesen da: examples/messenger.</translation>
    </message>
    <message>
        <source>is here now.</source>
        <translation>ist jetzt da.</translation>
    </message>
    <message>
        <source>has sent you a picture.</source>
        <translation>hat Ihnen ein Bild geschickt.</translation>
    </message>
    <message>
        <source>has nudged you.</source>
        <translation>hat Sie angestupst.</translation>
    </message>
    <message>
        <source>has sent you a formatted message.</source>
        <translation>hat Ihnen eine formatierte Nachricht geschickt.</translation>
    </message>
    <message>
        <source>This example cannot make calls.
%1: %2</source>
        <translation>Dieses Beispiel kann nicht telefonieren.
%1: %2</translation>
    </message>
    <message>
        <source>Your Picture</source>
        <translation>Ihr Bild</translation>
    </message>
    <message>
        <source>The picture cannot be stored. Is the disk full?
Your picture stays as it was.</source>
        <translation>Das Bild kann nicht gespeichert werden. Ist der Datenträger voll?
Ihr Bild bleibt, wie es war.</translation>
    </message>
</context>
<context>
    <name>messenger::ContactList</name>
    <message>
        <source>%1 (%2)</source>
        <comment>name and number of unread messages</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>messenger::FilterPanel</name>
    <message>
        <source>Presence</source>
        <translation>Anwesenheit</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Kontakte suchen</translation>
    </message>
    <message>
        <source>Shows the contacts in which all words are found</source>
        <translation>Zeigt die Kontakte, in denen alle Wörter vorkommen</translation>
    </message>
</context>
<context>
    <name>messenger::MainWindow</name>
    <message>
        <source>Messenger</source>
        <translation>Messenger</translation>
    </message>
    <message>
        <source>&amp;Messenger</source>
        <translation>&amp;Messenger</translation>
    </message>
    <message>
        <source>&amp;Account...</source>
        <translation>&amp;Konto ...</translation>
    </message>
    <message>
        <source>Your &amp;picture...</source>
        <translation>Ihr B&amp;ild ...</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>&amp;Einstellungen ...</translation>
    </message>
    <message>
        <source>Always on &amp;top</source>
        <translation>Immer im &amp;Vordergrund</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;Kontakt</translation>
    </message>
    <message>
        <source>&amp;Chat</source>
        <translation>&amp;Chat</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation>Sp&amp;erren</translation>
    </message>
    <message>
        <source>&amp;Unblock</source>
        <translation>E&amp;ntsperren</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Löschen ...</translation>
    </message>
    <message>
        <source>&amp;Add contacts...</source>
        <translation>Kontakte &amp;hinzufügen ...</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Ü&amp;ber ...</translation>
    </message>
    <message>
        <source>%1 of %2 contacts</source>
        <translation>%1 von %2 Kontakten</translation>
    </message>
    <message>
        <source>Ca&amp;ll</source>
        <translation>An&amp;rufen</translation>
    </message>
    <message>
        <source>Send p&amp;icture...</source>
        <translation>&amp;Bild senden ...</translation>
    </message>
    <message>
        <source>&amp;Web folder</source>
        <translation>&amp;Webordner</translation>
    </message>
    <message>
        <source>Write &amp;e-mail</source>
        <translation>E-&amp;Mail schreiben</translation>
    </message>
    <message>
        <source>&amp;Filters</source>
        <translation>&amp;Filter</translation>
    </message>
</context>
<context>
    <name>messenger::OwnPanel</name>
    <message>
        <source>Your presence</source>
        <translation>Ihre Anwesenheit</translation>
    </message>
    <message>
        <source>What others see of you</source>
        <translation>Was andere von Ihnen sehen</translation>
    </message>
    <message>
        <source>Your remark</source>
        <translation>Ihre Bemerkung</translation>
    </message>
    <message>
        <source>What you are up to, for others to read</source>
        <translation>Was Sie gerade tun, zum Lesen für andere</translation>
    </message>
    <message>
        <source>Choose Your Picture</source>
        <translation>Ihr Bild auswählen</translation>
    </message>
    <message>
        <source>Your Picture</source>
        <translation>Ihr Bild</translation>
    </message>
    <message>
        <source>What&apos;s up?</source>
        <translation>Was gibt es?</translation>
    </message>
    <message>
        <source>This is not a picture, or it is too large.</source>
        <translation>Das ist kein Bild, oder es ist zu groß.</translation>
    </message>
    <message>
        <source>The picture cannot be stored.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Your picture stays as it was.</source>
        <translation>Ihr Bild bleibt, wie es war.</translation>
    </message>
</context>
<context>
    <name>messenger::PreferencesDialog</name>
    <message>
        <source>&amp;Check spelling as I type</source>
        <translation>&amp;Rechtschreibung beim Tippen prüfen</translation>
    </message>
    <message>
        <source>Let others see when I am &amp;writing</source>
        <translation>Andere sehen lassen, wenn ich &amp;schreibe</translation>
    </message>
    <message>
        <source>Show new messages in &amp;balloons</source>
        <translation>Neue Nachrichten in &amp;Sprechblasen zeigen</translation>
    </message>
    <message>
        <source>&amp;Shake the window when I am nudged</source>
        <translation>Das &amp;Fenster schütteln, wenn mich jemand anstupst</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>&amp;Dictionaries:</source>
        <translation>&amp;Wörterbücher:</translation>
    </message>
</context>
<context>
    <name>messenger::ProfileWindow</name>
    <message>
        <source>Your rating</source>
        <translation>Ihre Bewertung</translation>
    </message>
    <message>
        <source>What you think of this contact. Nobody else sees it.</source>
        <translation>Was Sie von diesem Kontakt halten. Niemand sonst sieht es.</translation>
    </message>
    <message>
        <source>Profile of %1</source>
        <translation>Profil von %1</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>%1 (%2 years)</source>
        <translation>%1 (%2 Jahre)</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Web folder</source>
        <translation>Webordner</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Chat with %1</source>
        <translation>Mit %1 chatten</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Unblock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>as QLocale::toString() takes it</comment>
        <translation>d. MMMM yyyy</translation>
    </message>
</context>
<context>
    <name>messenger::ScriptedContact</name>
    <message>
        <source>Hold on to your window!</source>
        <translation>Halten Sie Ihr Fenster fest!</translation>
    </message>
    <message>
        <source>Here is the view from my window. Its context menu saves it.</source>
        <translation>Das ist der Blick aus meinem Fenster. Sein Kontextmenü speichert ihn.</translation>
    </message>
    <message>
        <source>Somebody who means harm might send you this:</source>
        <translation>Jemand mit bösen Absichten könnte Ihnen das schicken:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>your files</source>
        <translation>Ihre Dateien</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>kein Link</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>ein Link</translation>
    </message>
    <message>
        <source>The bold word and the honest link are shown. The script, the file and the bad link never reach the window.</source>
        <translation>Das fette Wort und der ehrliche Link werden gezeigt. Das Skript, die Datei und der böse Link erreichen das Fenster nie.</translation>
    </message>
    <message>
        <source>Start me a second time. The copies find each other, and you can write to yourself.</source>
        <translation>Starten Sie mich ein zweites Mal. Die Programme finden einander, und Sie können sich selbst schreiben.</translation>
    </message>
    <message>
        <source>Hello! How are you today?</source>
        <translation>Hallo! Wie geht es Ihnen heute?</translation>
    </message>
    <message>
        <source>You are welcome :-)</source>
        <translation>Gern geschehen :-)</translation>
    </message>
    <message>
        <source>Tell me more.</source>
        <translation>Erzählen Sie mir mehr.</translation>
    </message>
    <message>
        <source>I see. And what happened then?</source>
        <translation>Ich verstehe. Und was geschah dann?</translation>
    </message>
    <message>
        <source>Ouch! Yes, I am listening.</source>
        <translation>Autsch! Ja, ich höre zu.</translation>
    </message>
    <message>
        <source>Point at these to see where they lead: https://www.example.org/ and anna@example.org.</source>
        <translation>Zeigen Sie darauf, um zu sehen, wohin es führt: https://www.example.org/ und anna@example.org.</translation>
    </message>
    <message>
        <source>Hello %1, and welcome! I am the guide of this messenger: a script, but a friendly one. Write &quot;help&quot; and I will tell you what we can try together.</source>
        <translation>Hallo %1, willkommen! Ich führe durch diesen Messenger: ein Skript, aber ein freundliches. Schreiben Sie „Hilfe“, und ich sage, was wir zusammen ausprobieren können.</translation>
    </message>
    <message>
        <source>Write one of these words: nudge, picture, link, html, spelling, away, copy. Or send me a picture or a nudge with the buttons above.</source>
        <translation>Schreiben Sie eines dieser Wörter: Stups, Bild, Link, HTML, Rechtschreibung, Pause, Kopie. Oder schicken Sie mir ein Bild oder einen Stups mit den Knöpfen oben.</translation>
    </message>
    <message>
        <source>Misspell a word and type a space after it: it is underlined. Its context menu suggests better ones.</source>
        <translation>Schreiben Sie ein falsches Wort und ein Leerzeichen dahinter: Es wird unterstrichen. Sein Kontextmenü weiß bessere.</translation>
    </message>
    <message>
        <source>I am getting a coffee. Look at my card!</source>
        <translation>Ich hole einen Kaffee. Schauen Sie auf meine Karte!</translation>
    </message>
    <message>
        <source>I am back.</source>
        <translation>Ich bin wieder da.</translation>
    </message>
    <message>
        <source>That is more than a script can judge. Write &quot;help&quot; and I will show you what I am good at.</source>
        <translation>Das übersteigt ein Skript. Schreiben Sie „Hilfe“, und ich zeige, was ich kann.</translation>
    </message>
    <message>
        <source>What a beautiful picture, thank you! I will keep it.</source>
        <translation>Was für ein schönes Bild, danke! Ich behalte es.</translation>
    </message>
</context>
<context>
    <name>messenger::Session</name>
    <message>
        <source>The picture cannot be sent.</source>
        <translation>Das Bild kann nicht gesendet werden.</translation>
    </message>
    <message>
        <source>%1 is not connected. This has not been delivered.</source>
        <translation>%1 ist nicht verbunden. Das wurde nicht zugestellt.</translation>
    </message>
    <message>
        <source>%1 is an example of the contact book and cannot answer. The guide can, and so can a second copy of this program.</source>
        <translation>%1 ist ein Beispiel aus dem Kontaktbuch und kann nicht antworten. Der Begleiter kann es, und ein zweites laufendes Programm auch.</translation>
    </message>
    <message>
        <source>This could not be stored. Is the disk full?</source>
        <translation>Das konnte nicht gespeichert werden. Ist die Festplatte voll?</translation>
    </message>
    <message>
        <source>%1 has sent a picture that cannot be stored.</source>
        <translation>%1 hat ein Bild geschickt, das nicht gespeichert werden kann.</translation>
    </message>
</context>
</TS>
