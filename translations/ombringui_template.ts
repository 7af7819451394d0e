<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>COmWizard_Mission_Base</name>
    <message>
        <source>Question</source>
        <comment>title of question-dialog for standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to cancel this wizard?</source>
        <comment>question on cancel in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COmWizard_Standard</name>
    <message>
        <source>Assistant</source>
        <comment>windowtitle of a wizard who hasn&apos;t get one by the mission</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; &amp;Previous</source>
        <comment>previous-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <comment>next-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <comment>execute-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <comment>cancel-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <comment>exit-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OmScreenShooter_FullscreenCutter</name>
    <message>
        <source>Please select the area on the screen that you want as an image by pressing the left mouse button and dragging your mouse.</source>
        <comment>hint if user doesn&apos;t select anything</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OmWizard_Standard2</name>
    <message>
        <source>Assistant</source>
        <comment>windowtitle of a wizard who hasn&apos;t get one by the mission</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; &amp;Previous</source>
        <comment>previous-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <comment>next-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <comment>execute-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <comment>cancel-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <comment>exit-button in standard-wizard</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::DesignerPlugin</name>
    <message>
        <source>A thumbnail of a user&apos;s picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a user&apos;s picture as a thumbnail in a frame, or a placeholder while there is none. A thumbnail with a picture acts as a link.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coloured check boxes in a box that folds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows coloured check boxes below a title bar, in which they can be folded away. The program fills it; the check boxes seen in the form are an example.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A contact: picture, alias and presence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a contact with picture, alias and presence. The client application, a number, decides which actions a big card and the context menu offer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A scrolling list of contact cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows contact cards one above the other. A click makes a card big and all others small. The program fills it; the cards seen in the form are an example.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dialog with a skinned border and title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frameless dialog with a border, title and buttons from the skin. As the top level of a form it becomes a window-modal dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A combo box for choosing among icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows its items as a grid of icons. Give each item an icon; a text is shown in the closed box only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button that is nothing but a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws one of eight pictures and nothing else: for each state one of the normal and one of the selected set. It has no size of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button in the shape of its picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a picture for each of its states and has its shape: what is fully transparent does not belong to the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A widget in the shape of its picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a picture and has its shape: what is fully transparent does not belong to the widget.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An icon that tells more under the mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fades in a yellow pop-up with a message, and if wanted a box with a notice, while the mouse is over the icon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label that shortens its text, or acts as a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label that can shorten its text to the width it has, and can act as a link that is clicked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line edit with a hint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line edit that says what belongs into it while it is empty and has no focus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button that looks like a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button with an underlined text. With an arrow, which a checkable one has, it suits for folding something out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry of a menu made of widgets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row with an icon and a text that darkens under the mouse. The icon is the path of a picture in the skin or in the program&apos;s resources.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A push button whose tool tip is a balloon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A push button that shows its tool tip in a balloon at its bottom edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A rating of five stars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a rating in half stars, from 0 to 10, and lets the user give one with the mouse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and links on stripes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows short texts and links in striped lines, hung on guides called poles. The program fills it; the lines seen in the form are an example.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line edit for search words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line edit with a magnifier, a hint while it is empty, and an icon that erases the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A list that chooses what is shown beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A list whose selected entry looks like a tab that opens to the right. Put it to the left of what it chooses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A status bar on a gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A status bar on a grey gradient. Skinned windows make one for themselves when they are asked for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabs that exchange places by drag and drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tab bar whose tabs can be dragged onto each other and whose captions can be hidden. The program adds the tabs; those seen in the form are an example.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages whose tabs can be dragged and closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tab widget whose tabs can be dragged onto each other, with a button that closes the current page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history of a chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a conversation, safely where strangers wrote it. Copying can be forbidden, and saving of pictures allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input of a chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text edit that reports Return, pastes plain text, limits what is typed and checks the spelling.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool bar that shows texts where they fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool bar whose buttons show texts beside their icons where there is room. The program names the buttons for which this holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool button whose tool tip is a balloon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool button that shows its tool tip in a balloon at its bottom edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plain frame near the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frame to be filled and shown near the tray. It is a class of its own, which style sheets can name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A window with a skinned border and title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frameless window with a border, title and buttons from the skin, to be used as the top level of a form.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmBalloonTip</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the balloon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmCalendar</name>
    <message>
        <source>Choose a Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmCheckBoxAssortmentView</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmContactCard</name>
    <message>
        <source>Kick Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kick contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat with Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat with contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Web Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open web folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authenticate Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authenticate contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unblock Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unblock contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invisible for everyone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change My User Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save User Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save User Picture as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmContactCardList</name>
    <message>
        <source>Add Contact(s)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmDialog2</name>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>50%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>40%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>20%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmInputDialog</name>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmMessageBox</name>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmTabWidget</name>
    <message>
        <source>Close tab</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmTextBrowser</name>
    <message>
        <source>Open %1 in your web browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write e-mail to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call %1 with ombrin Phone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Push Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Push Message as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Smiley</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Image as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Smiley as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmTextEdit</name>
    <message>
        <source>Spelling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to Dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for Suggestions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Suggestions Found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ombrin::OmWindow</name>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>50%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>40%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>20%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
