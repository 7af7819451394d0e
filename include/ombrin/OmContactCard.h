#pragma once

#include <ombrin/Om.h>
#include <ombrin/OmGlobal.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QPixmap>
#include <QtWidgets/QGroupBox>

class QAction;
class QHBoxLayout;
class QLabel;
class QMenu;
class QToolBar;

namespace ombrin {

class CardLayout;
class OmAvatarSmall;
class OmLabel;

/// One contact, or the user's own account: picture, alias, presence, and what can be done with it.
///
/// A card is small, 48 pixels high, or big, 72 pixels high and with a tool bar of the actions that
/// the contact's client application supports. Its context menu offers the same actions. The card
/// carries out none of them: actionId() tells the host which one the user chose.
///
/// \code
/// auto *card = new ombrin::OmContactCard;
/// card->setOmbrinId(contact.id());
/// card->setAlias(contact.name());
/// card->setAvatar(contact.picture(), false);
/// card->setStatus(ombrin::Om::Online);
/// card->setGeneralApp(static_cast<ombrin::Om::ClientApplication>(11));
/// connect(card, &ombrin::OmContactCard::actionId, this, &Client::performAction);
/// list->addCard(card); // an OmContactCardList
/// \endcode
///
/// | Client application | Actions, by the id that actionId() reports                          |
/// |--------------------|---------------------------------------------------------------------|
/// | 1                  | profile, voip, filetransfer, webfolder, block                       |
/// | 2                  | exit, chat, filetransfer                                            |
/// | 3                  | chat, filetransfer                                                  |
/// | 4                  | exit, auth                                                          |
/// | 5                  | auth                                                                |
/// | 10                 | exit, chat, voip, filetransfer, webfolder, profile, block           |
/// | 11                 | chat, voip, filetransfer, webfolder, profile, block                 |
/// | 12                 | exit, profile, voip, auth                                           |
/// | 13, 15             | profile, voip, auth                                                 |
/// | 19                 | chat, voip, filetransfer                                            |
///
/// Any other application has no actions: an empty tool bar and no context menu. For a blocked
/// contact the action block is replaced by unblock.
///
/// The own card (setOwn()) has a menu of one entry, which asks for another picture of the user, and
/// takes pictures that are dropped on it.
///
/// Alias and account id come from other people. They are shown as plain text, the alias in one
/// line. The user can save a contact's picture as a JPEG file from the context menu; the folder is
/// kept in the setting \c save_avatar_path of the group \c omchat.
///
/// Inside of a scroll area a card makes its parts when it is first painted, so that thousands of
/// cards are filled and shown quickly; elsewhere when its size is first asked for or it is shown.
/// Tool bar and actions are made when the card first becomes big or its menu opens. A style sheet
/// finds all cards under the object name \c contactBig, small ones too, and their tool bars under
/// \c actionToolBar.
///
/// The card deletes itself when it is closed. Hosts may delete it in a slot of any of its signals,
/// and while its menu or save dialog is open.
///
/// Assistive technology sees a list item named by the alias, or else by the account id, and
/// described by the presence; it is selected while the card is big, and pressing it is a click.
///
/// \ingroup contacts
class OMBRIN_GUI_EXPORT OmContactCard : public QGroupBox
{
    Q_OBJECT

    Q_PROPERTY(QString alias READ alias WRITE setAlias NOTIFY aliasChanged)
    Q_PROPERTY(ombrin::Om::ContactStatus status READ status WRITE setStatus NOTIFY statusChanged)
    Q_PROPERTY(bool big READ isBig WRITE setBig)
    Q_PROPERTY(bool own READ isOwn WRITE setOwn)
    Q_PROPERTY(bool blocked READ isBlocked WRITE setBlocked)
    Q_PROPERTY(bool mobile READ mobile WRITE setMobile)
    Q_PROPERTY(QString ombrinId READ ombrinId WRITE setOmbrinId)
    Q_PROPERTY(int internalId READ internalId WRITE setInternalId)
    /// The number of the contact's client application, which has no name.
    Q_PROPERTY(int generalApp READ generalAppNumber WRITE setGeneralAppNumber)
    /// The contact's picture. One that is set shows without the magnifier.
    Q_PROPERTY(QPixmap avatar READ avatar WRITE setAvatar)

public:
    explicit OmContactCard(QWidget *parent = nullptr);
    ~OmContactCard() override;

    /// The contact's name for people, empty at first. Setting another one emits aliasChanged().
    QString alias() const;
    void setAlias(const QString &alias);

    /// The contact's presence. A new card has none, shows none and answers Om::Offline; the first
    /// status that is set counts as a change whatever it is. A value that is no presence is kept
    /// and reported, and leaves the shown text as it was.
    Om::ContactStatus status() const;
    void setStatus(Om::ContactStatus status);
    /// The text that shows the presence, in the user's language; never shortened.
    QString statusName() const;

    /// Whether the card is big.
    bool isBig() const;
    /// Makes the card big or small, and writes a line to the debug output.
    void setBig(bool big);

    /// Whether this is the user's own account, on whose card pictures can be dropped.
    bool isOwn() const;
    void setOwn(bool own);

    /// Whether typing was reported within the last five seconds.
    bool isTyping() const;
    /// Shows for five seconds from now that the contact is typing, or no longer. Typing and talking
    /// share one place: the later call decides what is shown there, and the end of either empties
    /// it.
    void setTyping(bool typing);

    /// Whether talking was reported within the last five seconds.
    bool isTalking() const;
    /// The same for talking.
    void setTalking(bool talking);

    /// Whether the contact is blocked: the card then offers to unblock it.
    bool isBlocked() const;
    void setBlocked(bool blocked);

    /// The contact's account id, by which OmContactCardList reports.
    QString ombrinId() const;
    void setOmbrinId(const QString &ombrinId);

    /// The host's number for the contact, of no meaning to the card.
    int internalId() const;
    void setInternalId(int id);

    /// Whether the contact is on a mobile phone, of no meaning to the card.
    bool mobile() const;
    void setMobile(bool mobile);

    /// Decides the actions of the card's menu from now on, and of its tool bar from the next time
    /// on that it becomes big.
    void setGeneralApp(Om::ClientApplication application);
    Om::ClientApplication generalApp() const;

    /// Shows \a avatar, with a magnifier if \a hover is true; a null \a avatar shows a placeholder.
    void setAvatar(const QPixmap &avatar, bool hover = false);
    /// The picture last set, unscaled.
    QPixmap avatar() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user chose the action \a id, in the tool bar or in the menu.
    void actionId(const QString &id);
    /// setAlias() was given another alias.
    void aliasChanged(const QString &newAlias);
    /// The contact's picture was clicked.
    void avatarClicked();
    /// The left mouse button was released inside the card.
    void clicked();
    /// The contact was reported to be typing, or has ceased. Also emitted when nothing changed.
    void isTyping(bool typing);
    /// The same for talking.
    void isTalking(bool talking);
    /// Pictures were dropped on the own card: the files, of which those that are not local are
    /// empty. A picture that came without a file is in a temporary file, which the next such drop
    /// overwrites.
    void newAvatar(const QStringList &fileNames);
    /// The user wants to choose another picture of their own.
    void newAvatar();
    /// setStatus() was given another presence, or the first one.
    void statusChanged(Om::ContactStatus newStatus);

protected:
    bool event(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slotAction(QAction *action);
    void slotContextMenu(QPoint position);
    void slotSaveUserImageTimer();
    void slotSaveUserImage();

private:
    enum class Indication { None, Typing, Talking };

    // OmContactCard_parts.cpp
    void createFace();
    QLayout *createTextColumn();
    void showFace();
    void changeSize();
    void createTools();
    void showAction(int index);
    void fillToolBar();
    void resizeParts();

    void showAlias();
    void showStatus();
    void indicate(Indication indication);
    void restartTimer(int *timerId, bool run);
    int generalAppNumber() const;
    void setGeneralAppNumber(int application);
    bool fillMenu(QMenu *menu);
    void releaseMenu();

    // The face and the tools are null until they are made.
    CardLayout *m_layout = nullptr;
    OmAvatarSmall *m_avatar = nullptr;
    OmLabel *m_aliasLabel = nullptr;
    OmLabel *m_statusLabel = nullptr;
    QLabel *m_indicatorLabel = nullptr;
    QHBoxLayout *m_toolRow = nullptr;
    QToolBar *m_toolBar = nullptr;
    QList<QAction *> m_actions;
    // While it is open.
    QPointer<QMenu> m_menu;

    bool m_big = false;
    bool m_blocked = false;
    bool m_own = false;
    bool m_typing = false;
    bool m_talking = false;
    bool m_mobile = false;
    bool m_hasStatus = false;
    bool m_pendingHover = false;
    Indication m_indication = Indication::None;
    int m_internalId = 0;
    int m_typingTimerId = 0;
    int m_talkingTimerId = 0;
    Om::ContactStatus m_status = Om::Offline;
    // The last one that is a presence; -1 before.
    int m_namedStatus = -1;
    Om::ClientApplication m_generalApp = {};
    QString m_alias;
    QString m_ombrinId;
    // For the avatar that is still to be made.
    QPixmap m_pendingPicture;
};

} // namespace ombrin
