#pragma once

#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/COmWizard_Page_Base.h>
#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmBalloonTip.h>
#include <ombrin/OmCalendar.h>
#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmContactCardList.h>
#include <ombrin/OmDesktop.h>
#include <ombrin/OmDir.h>
#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmGraphicsSimpleHyperlinkItem.h>
#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmIconComboBoxDelegate.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmLineEdit.h>
#include <ombrin/OmLinkButton.h>
#include <ombrin/OmMenuItem.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmPushButton.h>
#include <ombrin/OmRatingLabel.h>
#include <ombrin/OmSafeHtml.h>
#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmScreenShooter_Private.h>
#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraItemText.h>
#include <ombrin/OmScribbledZebraView.h>
#include <ombrin/OmSearchField.h>
#include <ombrin/OmSettings.h>
#include <ombrin/OmShakeWidget.h>
#include <ombrin/OmSkin.h>
#include <ombrin/OmSmoothDelegate.h>
#include <ombrin/OmSmoothList.h>
#include <ombrin/OmSpelling.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmStyle2.h>
#include <ombrin/OmTabBar.h>
#include <ombrin/OmTabWidget.h>
#include <ombrin/OmTextBrowser.h>
#include <ombrin/OmTextEdit.h>
#include <ombrin/OmTextEditSyntax.h>
#include <ombrin/OmToolBar.h>
#include <ombrin/OmToolButton.h>
#include <ombrin/OmTranslation.h>
#include <ombrin/OmTrayPopup.h>
#include <ombrin/OmWindow.h>
#include <ombrin/OmWizard_Standard2.h>
#include <ombrin/vhutilities.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

// What the examples of the documentation take for granted: the program that they are parts of. They
// are only compiled, so nothing here is defined.

struct Contact
{
    QString id() const;
    QString name() const;
    QString alias() const;
    void setAlias(const QString &alias);
    QPixmap picture() const;
};

struct Message
{
    bool isHtml() const;
    QString text() const;
};

struct Profile_Data
{
    QString city() const;
};

struct Song
{
    bool isPlayable() const;
};

struct Account
{
    QString name;
};

struct Accounts
{
    bool add(const QString &name);
};

class AccountMission : public COmWizard_Mission_Base
{
    Q_OBJECT

public:
    Account account() const;
    QString server() const;

protected:
    bool canReach(const QString &server) const;
    bool ExecuteMission() override;
    QString MissionName() override;

    QWidget *m_serverPage;
    QString m_problem;
};

// Members of classes that an example shows a part of.
extern QLineEdit *m_name;
extern QWidget *m_server;
extern QWidget *m_summary;
extern Accounts *m_accounts;
extern struct Refreshed
{
    void refresh();
} * m_window;

// One class for all classes of the host: its slots take nothing and so fit any signal.
struct Host;
using Card = Host;
using ChatWindow = Host;
using Client = Host;
using ContactFilter = Host;
using ContactView = QWidget;
using Menu = Host;
using Page = Host;
using Profile = Host;
using Window = Host;

struct Host : QWidget
{
    void addContact();
    void call();
    void choosePicture();
    void editAlias();
    void exchangeConversations();
    void performAction();
    void scrollToEnd();
    void sendRating();
    void setFilter();
    void shoot();
    void showPicture();
    void showTyping();
    void startChat();

    void block(const Contact &contact);
    ombrin::OmContactCard *createCard(const Contact &contact);
    void search(const QString &text);
    void send(const QString &text);
    void showGroup(const QVariant &group, bool shown);
    void showNewAccount();

    int argc;
    char **argv;
    QDate birthday;
    ombrin::OmImageButton *button;
    QPushButton *callButton;
    ombrin::OmContactCard *card;
    QWidget *chat;
    QWidget *chatWindow;
    Contact contact;
    QWidget *contactList;
    Host *contacts;
    QWidget *detailsBox;
    QLineEdit *field;
    QString folder;
    int groupId;
    ombrin::OmTextBrowser *history;
    QVBoxLayout *layout;
    ombrin::OmContactCardList *list;
    ombrin::OmWindow *mainWindow;
    Message message;
    AccountMission mission;
    QString notice;
    QPixmap picture;
    COmMonitoredList<Song *> playlist;
    QWidget *popup;
    Profile_Data profile;
    QRect remembered;
    QGraphicsScene *scene;
    ombrin::OmIconComboBox *smileys;
    Song *song;
    QStackedWidget *stack;
    QTextEdit *textEdit;
    OmScribbledZebraView *view;
    ombrin::OmWindow *window;
};

// The host around the examples of a file.
template <typename File>
struct Around
{
    using Host = ::Host;
};

// Where the same names stand for other things. Needs the names of the files.
#define HOSTS_OF_THEIR_OWN                                                                         \
    template <>                                                                                    \
    struct Around<OmCheckBoxAssortmentItem_h>                                                      \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            ombrin::OmCheckBoxAssortmentView *view;                                                \
        };                                                                                         \
    };                                                                                             \
    template <>                                                                                    \
    struct Around<OmCheckBoxAssortmentList_h> : Around<OmCheckBoxAssortmentItem_h>                 \
    {};                                                                                            \
    template <>                                                                                    \
    struct Around<OmContactCardList_h>                                                             \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            QList<Contact> contacts;                                                               \
        };                                                                                         \
    };                                                                                             \
    template <>                                                                                    \
    struct Around<OmIconComboBoxDelegate_h>                                                        \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            QListView *view;                                                                       \
        };                                                                                         \
    };                                                                                             \
    template <>                                                                                    \
    struct Around<OmSmoothDelegate_h>                                                              \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            QListView *list;                                                                       \
        };                                                                                         \
    };                                                                                             \
    template <>                                                                                    \
    struct Around<OmTextBrowser_h>                                                                 \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            QString message;                                                                       \
        };                                                                                         \
    };                                                                                             \
    template <>                                                                                    \
    struct Around<OmToolBar_h>                                                                     \
    {                                                                                              \
        struct Host : ::Host                                                                       \
        {                                                                                          \
            QAction *call, *send, *block;                                                          \
        };                                                                                         \
    };
