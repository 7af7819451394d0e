#include "windows/ChatWindow.h"

#include "common/SkinPictures.h"
#include "model/PictureFiles.h"
#include "model/Session.h"
#include "windows/ChatHistory.h"
#include "windows/ClosingKeys.h"
#include "windows/MessageInput.h"
#include "windows/Pictures.h"

#include <ombrin/OmDesktop.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmShakeWidget.h>

#include <QAction>
#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QLabel>

namespace messenger {

namespace {

constexpr int kShownMessages = 500;
constexpr int kTypingShownMs = 8000;
constexpr int kOwnTypingMs = 3000;
constexpr int kDraftMs = 1000;
constexpr unsigned int kScreenshotDelayMs = 3000;

/// The user's language, else English, else what there is.
QString likelyDictionary(const QStringList &installed)
{
    for (const QString &name : {QLocale().name(), QStringLiteral("en_US")}) {
        if (installed.contains(name))
            return name;
    }
    return installed.value(0);
}

} // namespace

ChatWindow::ChatWindow(Session *session, const QString &contactId, const Preferences &preferences)
    : m_session(session)
    , m_contactId(contactId)
    , m_history(new ChatHistory(session, contactId))
    , m_input(new MessageInput)
    , m_shaker(new ombrin::OmShakeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setWidget(createConversation());
    setPreferences(preferences);

    m_typingShown.setSingleShot(true);
    connect(&m_typingShown, &QTimer::timeout, this, [this] { showTyping(false); });
    m_ownTyping.setSingleShot(true);
    connect(&m_ownTyping, &QTimer::timeout, this, &ChatWindow::stopTyping);
    m_draftChanged.setSingleShot(true);
    connect(&m_draftChanged, &QTimer::timeout, this, &ChatWindow::keepDraft);

    connect(m_history, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
        Q_EMIT actionId(QStringLiteral("open:") + link.toString(), m_contactId);
    });
    connect(session, &Session::messageAdded, this, &ChatWindow::showMessage);
    connect(session, &Session::accountChanged, m_history, &ChatHistory::refreshFaces);
    connect(session, &Session::typingChanged, this, [this](const QString &id, bool isTyping) {
        if (id == m_contactId)
            showTyping(isTyping);
    });
    connect(session, &Session::nudged, this, [this](const QString &id) {
        if (id == m_contactId)
            shake();
    });
    connect(&session->roster(), &Roster::changed, this, [this](const Contact &contact) {
        if (contact.id == m_contactId)
            refreshContact(contact);
    });

    refreshContact(session->roster().contact(contactId));
    for (const Message &message : session->messages(contactId, kShownMessages))
        m_history->add(message);
    showDraft();
    noteRead();
    m_input->setFocus();
    addClosingKeys(this);
}

ChatWindow::~ChatWindow()
{
    if (m_draftChanged.isActive())
        keepDraft();
}

void ChatWindow::setPreferences(const Preferences &preferences)
{
    m_preferences = preferences;
    m_input->setDict(preferences.dictionaries.isEmpty() ? likelyDictionary(m_input->availDicts())
                                                        : preferences.dictionaries);
    m_input->setSpellChecking(preferences.checksSpelling);
}

void ChatWindow::refreshContact(const Contact &contact)
{
    setWindowTitle(contact.alias);
    setWindowIcon(QIcon(roundPortrait(portraitOf(contact), 32)));
    m_face->setPixmap(roundPortrait(portraitOf(contact), 40));
    m_name->setText(contact.alias);
    const QString presence = presenceName(contact.status);
    m_remark->setText(
            contact.statusText.isEmpty()
                    ? presence
                    : tr("%1: %2", "presence and remark").arg(presence, contact.statusText));
    m_presence->setPixmap(presenceIcon(contact.status).pixmap(12));
    m_input->parentWidget()->setEnabled(!contact.isBlocked);
    for (QAction *action : std::as_const(m_actions))
        action->setEnabled(!contact.isBlocked || action->data().toBool());
    m_history->refreshFaces();
}

void ChatWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        noteRead();
    OmWindow::changeEvent(event);
}

void ChatWindow::noteRead()
{
    if (isActiveWindow())
        m_session->markRead(m_contactId);
}

// What comes in

void ChatWindow::showMessage(const QString &contactId, const Message &message)
{
    if (contactId != m_contactId)
        return;
    m_history->add(message);
    if (message.from != Message::From::Contact)
        return;
    noteRead();
    if (!isActiveWindow())
        ombrin::OmDesktop::flashWindow(this, true);
}

void ChatWindow::showTyping(bool isTyping)
{
    m_typing->setText(isTyping ? tr("%1 is writing...").arg(m_name->text()) : QString());
    if (isTyping)
        m_typingShown.start(kTypingShownMs);
    else
        m_typingShown.stop();
}

void ChatWindow::shake()
{
    if (m_preferences.shakes)
        m_shaker->shakeWidget();
    ombrin::OmDesktop::flashWindow(this, true);
}

// What goes out

void ChatWindow::sendText()
{
    const QString text = m_input->toPlainText();
    if (text.trimmed().isEmpty())
        return;
    stopTyping();
    m_session->sendText(m_contactId, text);
    m_input->clear();
    keepDraft();
}

void ChatWindow::nudge()
{
    shake();
    m_session->sendNudge(m_contactId);
}

// What was not sent yet is there again when the window is, also after a kill.
void ChatWindow::showDraft()
{
    const QSignalBlocker silence(m_input); // nobody is typing
    m_input->setPlainText(m_session->draft(m_contactId));
    m_input->moveCursor(QTextCursor::End);
}

void ChatWindow::keepDraft()
{
    m_draftChanged.stop();
    m_session->setDraft(m_contactId, m_input->toPlainText());
}

void ChatWindow::noteTyping()
{
    if (!m_draftChanged.isActive())
        m_draftChanged.start(kDraftMs);
    if (!m_preferences.sendsTyping || m_input->document()->isEmpty())
        return;
    if (!m_ownTyping.isActive())
        m_session->setTyping(m_contactId, true);
    m_ownTyping.start(kOwnTypingMs);
}

void ChatWindow::stopTyping()
{
    m_ownTyping.stop();
    if (m_preferences.sendsTyping)
        m_session->setTyping(m_contactId, false);
}

void ChatWindow::choosePicture()
{
    const QPointer<ChatWindow> guard(this);
    const QString fileName = choosePictureFile(this, tr("Send a Picture"));
    if (guard && !fileName.isEmpty())
        sendPictures({readPicture(fileName)});
}

void ChatWindow::sendPictures(const QVector<QImage> &pictures)
{
    if (isBlocked())
        return;
    bool isMissing = false;
    for (const QImage &picture : pictures) {
        if (picture.isNull())
            isMissing = true;
        else
            m_session->sendPicture(m_contactId, picture);
    }
    if (isMissing)
        ombrin::OmMessageBox::information(
                this, tr("Send a Picture"),
                tr("This is not a picture, or it is too large.\nOnly pictures can be sent."));
}

bool ChatWindow::isBlocked() const
{
    return m_session->roster().contact(m_contactId).isBlocked;
}

void ChatWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (holdsPictures(event->mimeData()) && !isBlocked())
        event->acceptProposedAction();
}

void ChatWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    // Once the drag has ended: a dialog may follow.
    const QVector<QImage> pictures = picturesIn(event->mimeData());
    QMetaObject::invokeMethod(
            this, [this, pictures] { sendPictures(pictures); }, Qt::QueuedConnection);
}

void ChatWindow::takeScreenshot()
{
    OmScreenShooter::shootUserCutted(kScreenshotDelayMs, true, this, SLOT(sendScreenshot(QPixmap)),
                                     this, SLOT(reportNoScreenshot()));
}

void ChatWindow::sendScreenshot(const QPixmap &picture)
{
    sendPictures({picture.toImage()});
}

void ChatWindow::reportNoScreenshot()
{
    m_session->remark(m_contactId, tr("No screenshot was taken."));
}

} // namespace messenger
