#pragma once

#include "model/Contact.h"
#include "model/Message.h"
#include "model/Preferences.h"

#include <ombrin/OmWindow.h>

#include <QtCore/QTimer>
#include <QtCore/QVector>
#include <QtGui/QImage>

class QAction;
class QLabel;

namespace ombrin {
class OmInfoPopup;
class OmLabel;
class OmShakeWidget;
} // namespace ombrin

namespace messenger {

class ChatHistory;
class MessageInput;
class Session;

/// The conversation with one contact: who it is, what can be done, what was said, and what is being
/// written. Deletes itself when it is closed.
class ChatWindow : public ombrin::OmWindow
{
    Q_OBJECT

public:
    /// \a session must outlive the window.
    ChatWindow(Session *session, const QString &contactId, const Preferences &preferences);
    ~ChatWindow() override;

    const QString &contactId() const { return m_contactId; }
    void setPreferences(const Preferences &preferences);
    MessageInput *input() const { return m_input; }
    /// Asks for a picture and sends it.
    void choosePicture();
    /// Shows that the contact is writing, for some seconds at most.
    void showTyping(bool isTyping);

Q_SIGNALS:
    /// The user wants the action \a id for the contact, as OmContactCard names it.
    void actionId(const QString &id, const QString &contactId);

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private Q_SLOTS:
    // OmScreenShooter reports to slots by their names.
    void sendScreenshot(const QPixmap &picture);
    void reportNoScreenshot();

private:
    QWidget *createHead();
    QWidget *createToolBar();
    QWidget *createConversation();
    QWidget *createInputRow();
    QWidget *createSmileys();
    QAction *addAction(const QString &icon, const QString &text, const QString &tip);
    void refreshContact(const Contact &contact);
    void showMessage(const QString &contactId, const Message &message);
    void noteRead();
    void sendText();
    void sendPictures(const QVector<QImage> &pictures);
    bool isBlocked() const;
    void takeScreenshot();
    void nudge();
    void shake();
    void showDraft();
    void keepDraft();
    void noteTyping();
    void stopTyping();

    Session *m_session;
    QString m_contactId;
    Preferences m_preferences;
    ChatHistory *m_history;
    MessageInput *m_input;
    ombrin::OmShakeWidget *m_shaker;
    ombrin::OmInfoPopup *m_info = nullptr;
    ombrin::OmLabel *m_name = nullptr;
    ombrin::OmLabel *m_remark = nullptr;
    QLabel *m_face = nullptr;
    QLabel *m_presence = nullptr;
    QLabel *m_typing = nullptr;
    QList<QAction *> m_actions;
    QTimer m_typingShown;
    QTimer m_ownTyping;
    QTimer m_draftChanged;
};

} // namespace messenger
