#include "WidgetEntry.h"

#include "SampleContents.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmContactCardList.h>
#include <ombrin/OmDialog2.h>
#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmImageMaskedWidget.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmLineEdit.h>
#include <ombrin/OmLinkButton.h>
#include <ombrin/OmMenuItem.h>
#include <ombrin/OmPushButton.h>
#include <ombrin/OmRatingLabel.h>
#include <ombrin/OmScribbledZebraView.h>
#include <ombrin/OmSearchField.h>
#include <ombrin/OmSmoothList.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmTabBar.h>
#include <ombrin/OmTabWidget.h>
#include <ombrin/OmTextBrowser.h>
#include <ombrin/OmTextEdit.h>
#include <ombrin/OmToolBar.h>
#include <ombrin/OmToolButton.h>
#include <ombrin/OmTrayPopup.h>
#include <ombrin/OmWindow.h>

#include <QtCore/QCoreApplication>

namespace ombrin::designer {

namespace {

enum class Kind { Plain, Container };

template <typename Widget>
WidgetEntry entry(QSize size, const char *toolTip, const char *whatsThis, const char *contents = "",
                  Kind kind = Kind::Plain, void (*prepareOnForm)(QWidget *) = nullptr)
{
    const auto create = [](QWidget *parent) -> QWidget * { return new Widget(parent); };
    return {&Widget::staticMetaObject,
            create,
            kind == Kind::Container,
            size,
            toolTip,
            whatsThis,
            contents,
            prepareOnForm};
}

QList<WidgetEntry> makeEntries()
{
    return {
            entry<OmAvatarSmall>(
                    QSize(78, 78),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A thumbnail of a user's picture"),
                    QT_TRANSLATE_NOOP(
                            "ombrin::DesignerPlugin",
                            "Shows a user's picture as a thumbnail in a frame, or a placeholder "
                            "while there is none. A thumbnail with a picture acts as a link."),
                    R"(<property name="minimumSize"><size><width>78</width><height>78</height></size></property>)"
                    R"(<property name="maximumSize"><size><width>78</width><height>78</height></size></property>)"),
            entry<OmCheckBoxAssortmentView>(
                    QSize(250, 80),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Coloured check boxes in a box that folds"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows coloured check boxes below a title bar, in which they "
                                      "can be folded away. The program fills it; the check boxes "
                                      "seen in the form are an example."),
                    R"(<property name="text"><string>Check boxes</string></property>)", Kind::Plain,
                    showSampleCheckBoxes),
            entry<OmContactCard>(
                    QSize(250, 48),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A contact: picture, alias and presence"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows a contact with picture, alias and presence. The "
                                      "client application, a number, decides which actions a big "
                                      "card and the context menu offer."),
                    R"(<property name="alias"><string>Contact</string></property>)"
                    R"(<property name="status"><enum>ombrin::Om::Online</enum></property>)"
                    R"(<property name="generalApp" stdset="0"><number>11</number></property>)"),
            entry<OmContactCardList>(
                    QSize(250, 200),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A scrolling list of contact cards"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows contact cards one above the other. A click makes a "
                                      "card big and all others small. The program fills it; the "
                                      "cards seen in the form are an example."),
                    "", Kind::Plain, showSampleCards),
            entry<OmDialog2>(
                    QSize(300, 200),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A dialog with a skinned border and title"),
                    QT_TRANSLATE_NOOP(
                            "ombrin::DesignerPlugin",
                            "A frameless dialog with a border, title and buttons from the skin. As "
                            "the top level of a form it becomes a window-modal dialog."),
                    R"(<property name="windowTitle"><string>Dialog</string></property>)",
                    Kind::Container),
            entry<OmIconComboBox>(
                    QSize(60, 24),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A combo box for choosing among icons"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows its items as a grid of icons. Give each item an icon; "
                                      "a text is shown in the closed box only."),
                    R"(<item><property name="text"><string/></property><property name="icon"><iconset><normaloff>:/chat-16</normaloff>:/chat-16</iconset></property></item>)"
                    R"(<item><property name="text"><string/></property><property name="icon"><iconset><normaloff>:/phone-16</normaloff>:/phone-16</iconset></property></item>)"
                    R"(<item><property name="text"><string/></property><property name="icon"><iconset><normaloff>:/filetransfer-16</normaloff>:/filetransfer-16</iconset></property></item>)"),
            entry<OmImageButton>(
                    QSize(16, 16),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A button that is nothing but a picture"),
                    QT_TRANSLATE_NOOP(
                            "ombrin::DesignerPlugin",
                            "Draws one of eight pictures and nothing else: for each state one of "
                            "the normal and one of the selected set. It has no size of its own."),
                    R"(<property name="minimumSize"><size><width>16</width><height>16</height></size></property>)"
                    R"(<property name="pixmapUp"><pixmap>:/chat-16</pixmap></property>)"),
            entry<OmImageMaskedButton>(
                    QSize(64, 64),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A button in the shape of its picture"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows a picture for each of its states and has its shape: "
                                      "what is fully transparent does not belong to the button."),
                    R"(<property name="minimumSize"><size><width>64</width><height>64</height></size></property>)"
                    R"(<property name="pixmapNormal"><pixmap>:/countdown-snap-64.png</pixmap></property>)"
                    R"(<property name="pixmapHovered"><pixmap>:/countdown-snap-hover-64.png</pixmap></property>)"
                    R"(<property name="pixmapPressed"><pixmap>:/countdown-snap-pressed-64.png</pixmap></property>)"),
            entry<OmImageMaskedWidget>(
                    QSize(78, 78),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A widget in the shape of its picture"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows a picture and has its shape: what is fully "
                                      "transparent does not belong to the widget."),
                    R"(<property name="minimumSize"><size><width>78</width><height>78</height></size></property>)"
                    R"(<property name="pixmap"><pixmap>:/no_userpic-78</pixmap></property>)"),
            entry<OmInfoPopup>(
                    QSize(16, 16),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "An icon that tells more under the mouse"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Fades in a yellow pop-up with a message, and if wanted a "
                                      "box with a notice, while the mouse is over the icon."),
                    R"(<property name="minimumSize"><size><width>16</width><height>16</height></size></property>)"
                    R"(<property name="pixmap"><pixmap>:/profile-16</pixmap></property>)"
                    R"(<property name="popupMessage"><string>Message</string></property>)"),
            entry<OmLabel>(QSize(80, 20),
                           QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                             "A label that shortens its text, or acts as a link"),
                           QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                             "A label that can shorten its text to the width it "
                                             "has, and can act as a link that is clicked."),
                           R"(<property name="elide" stdset="0"><bool>true</bool></property>)"
                           R"(<property name="text"><string>Label</string></property>)"),
            entry<OmLineEdit>(
                    QSize(160, 24),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A line edit with a hint"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A line edit that says what belongs into it while it is "
                                      "empty and has no focus."),
                    R"(<property name="noFocusMessage"><string>Hint</string></property>)"),
            entry<OmLinkButton>(
                    QSize(80, 20),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A button that looks like a link"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A button with an underlined text. With an arrow, which a "
                                      "checkable one has, it suits for folding something out."),
                    R"(<property name="text"><string>Link</string></property>)"),
            entry<OmMenuItem>(
                    QSize(160, 24),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "An entry of a menu made of widgets"),
                    QT_TRANSLATE_NOOP(
                            "ombrin::DesignerPlugin",
                            "A row with an icon and a text that darkens under the mouse. The icon "
                            "is the path of a picture in the skin or in the program's resources."),
                    R"(<property name="icon"><string>:/chat-16</string></property>)"
                    R"(<property name="text"><string>Menu item</string></property>)"),
            entry<OmPushButton>(QSize(90, 26),
                                QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                                  "A push button whose tool tip is a balloon"),
                                QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                                  "A push button that shows its tool tip in a "
                                                  "balloon at its bottom edge."),
                                R"(<property name="text"><string>Push button</string></property>)"),
            entry<OmRatingLabel>(
                    QSize(166, 34),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A rating of five stars"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows a rating in half stars, from 0 to 10, and lets the "
                                      "user give one with the mouse."),
                    R"(<property name="rating"><number>7</number></property>)"),
            entry<OmScribbledZebraView>(
                    QSize(250, 120),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "Texts and links on stripes"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows short texts and links in striped lines, hung on "
                                      "guides called poles. The program fills it; the lines seen "
                                      "in the form are an example."),
                    "", Kind::Plain, showSampleLines),
            entry<OmSearchField>(
                    QSize(160, 24),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A line edit for search words"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A line edit with a magnifier, a hint while it is empty, and "
                                      "an icon that erases the text."),
                    R"(<property name="defaultText"><string>Search</string></property>)"),
            entry<OmSmoothList>(
                    QSize(120, 120),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A list that chooses what is shown beside it"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A list whose selected entry looks like a tab that opens to "
                                      "the right. Put it to the left of what it chooses."),
                    R"(<item><property name="text"><string>Page 1</string></property></item>)"
                    R"(<item><property name="text"><string>Page 2</string></property></item>)"
                    R"(<item><property name="text"><string>Page 3</string></property></item>)"),
            entry<OmStatusBar>(
                    QSize(250, 22),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A status bar on a gradient"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A status bar on a grey gradient. Skinned windows make one "
                                      "for themselves when they are asked for it.")),
            entry<OmTabBar>(QSize(200, 26),
                            QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                              "Tabs that exchange places by drag and drop"),
                            QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                              "A tab bar whose tabs can be dragged onto each other "
                                              "and whose captions can be hidden. The program adds "
                                              "the tabs; those seen in the form are an example."),
                            "", Kind::Plain, showSampleTabs),
            entry<OmTabWidget>(
                    QSize(250, 150),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Pages whose tabs can be dragged and closed"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A tab widget whose tabs can be dragged onto each other, "
                                      "with a button that closes the current page."),
                    R"(<property name="currentIndex"><number>0</number></property>)"
                    R"(<widget class="QWidget" name="tab1"><attribute name="title"><string>Tab 1</string></attribute></widget>)"
                    R"(<widget class="QWidget" name="tab2"><attribute name="title"><string>Tab 2</string></attribute></widget>)",
                    Kind::Container),
            entry<OmTextBrowser>(
                    QSize(250, 150),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "The history of a chat"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "Shows a conversation, safely where strangers wrote it. "
                                      "Copying can be forbidden, and saving of pictures allowed.")),
            entry<OmTextEdit>(
                    QSize(250, 60),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "The input of a chat"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A text edit that reports Return, pastes plain text, limits "
                                      "what is typed and checks the spelling.")),
            entry<OmToolBar>(
                    QSize(250, 30),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A tool bar that shows texts where they fit"),
                    QT_TRANSLATE_NOOP(
                            "ombrin::DesignerPlugin",
                            "A tool bar whose buttons show texts beside their icons where there is "
                            "room. The program names the buttons for which this holds."),
                    "", Kind::Plain, releaseWidth),
            entry<OmToolButton>(QSize(26, 26),
                                QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                                  "A tool button whose tool tip is a balloon"),
                                QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                                  "A tool button that shows its tool tip in a "
                                                  "balloon at its bottom edge."),
                                R"(<property name="text"><string>...</string></property>)"),
            entry<OmTrayPopup>(
                    QSize(200, 120),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin", "A plain frame near the tray"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A frame to be filled and shown near the tray. It is a class "
                                      "of its own, which style sheets can name."),
                    "", Kind::Container),
            entry<OmWindow>(
                    QSize(400, 300),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A window with a skinned border and title"),
                    QT_TRANSLATE_NOOP("ombrin::DesignerPlugin",
                                      "A frameless window with a border, title and buttons from "
                                      "the skin, to be used as the top level of a form."),
                    R"(<property name="windowTitle"><string>Window</string></property>)",
                    Kind::Container),
    };
}

} // namespace

const QList<WidgetEntry> &widgetEntries()
{
    static const QList<WidgetEntry> entries = makeEntries();
    return entries;
}

} // namespace ombrin::designer
