#include <ombrin/OmContactCard.h>

#include "contacts/CardLayout.h"
#include "contacts/OmContactCardAccessible.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmQtCompat.h>

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolBar>

#include <iterator>

namespace ombrin {

namespace {

constexpr int kIndicationMs = 5000;
// What a card takes as a rule with nothing left of its texts but an ellipsis.
constexpr int kUnseenWidth = 84;

constexpr const char *kStatusNames[] = {
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Offline"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Online"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Away"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Extended away"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Busy"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Do not disturb"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Invisible"),
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Invisible for everyone"),
};

bool isPresence(int status)
{
    return status >= 0 && status < static_cast<int>(std::size(kStatusNames));
}

// Where most of the cards can be out of sight.
bool isInScrollArea(const QWidget *widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<QAbstractScrollArea *>(widget->parentWidget()))
            return true;
    }
    return false;
}

} // namespace

OmContactCard::OmContactCard(QWidget *parent)
    : QGroupBox(parent)
{
    // By the name that is written in the signal, for queued connections.
    static const int registered = qRegisterMetaType<Om::ContactStatus>("Om::ContactStatus");
    Q_UNUSED(registered)
    installContactCardAccessibility();
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("contactBig"));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &OmContactCard::slotContextMenu);
    resizeParts();
}

OmContactCard::~OmContactCard()
{
    releaseMenu();
}

QString OmContactCard::alias() const
{
    return m_alias;
}

void OmContactCard::setAlias(const QString &alias)
{
    if (m_alias == alias)
        return;
    // A slot may set another alias, or delete the card and whatever the argument belongs to.
    const QString newAlias = alias;
    m_alias = newAlias;
    showAlias();
    announceContactName(this);
    Q_EMIT aliasChanged(newAlias);
}

Om::ContactStatus OmContactCard::status() const
{
    return m_status;
}

void OmContactCard::setStatus(Om::ContactStatus status)
{
    if (m_hasStatus && m_status == status)
        return;
    m_hasStatus = true;
    m_status = status;
    if (isPresence(status)) {
        m_namedStatus = status;
        showStatus();
        announceContactStatus(this);
    }
    Q_EMIT statusChanged(status);
}

QString OmContactCard::statusName() const
{
    return isPresence(m_namedStatus) ? tr(kStatusNames[m_namedStatus]) : QString();
}

bool OmContactCard::isBig() const
{
    return m_big;
}

void OmContactCard::setBig(bool big)
{
    qDebug() << "setBig" << big << "ombrinId" << m_ombrinId;
    if (m_big == big)
        return;
    m_big = big;
    changeSize();
    announceContactSelection(this);
}

bool OmContactCard::isOwn() const
{
    return m_own;
}

void OmContactCard::setOwn(bool own)
{
    m_own = own;
    setAcceptDrops(own);
}

bool OmContactCard::isTyping() const
{
    return m_typing;
}

void OmContactCard::setTyping(bool typing)
{
    m_typing = typing;
    indicate(typing ? Indication::Typing : Indication::None);
    restartTimer(&m_typingTimerId, typing);
    Q_EMIT isTyping(typing);
}

bool OmContactCard::isTalking() const
{
    return m_talking;
}

void OmContactCard::setTalking(bool talking)
{
    m_talking = talking;
    indicate(talking ? Indication::Talking : Indication::None);
    restartTimer(&m_talkingTimerId, talking);
    Q_EMIT isTalking(talking);
}

bool OmContactCard::isBlocked() const
{
    return m_blocked;
}

QString OmContactCard::ombrinId() const
{
    return m_ombrinId;
}

void OmContactCard::setOmbrinId(const QString &ombrinId)
{
    m_ombrinId = ombrinId;
}

int OmContactCard::internalId() const
{
    return m_internalId;
}

void OmContactCard::setInternalId(int id)
{
    m_internalId = id;
}

bool OmContactCard::mobile() const
{
    return m_mobile;
}

void OmContactCard::setMobile(bool mobile)
{
    m_mobile = mobile;
}

void OmContactCard::setGeneralApp(Om::ClientApplication application)
{
    m_generalApp = application;
}

Om::ClientApplication OmContactCard::generalApp() const
{
    return m_generalApp;
}

int OmContactCard::generalAppNumber() const
{
    return m_generalApp;
}

void OmContactCard::setGeneralAppNumber(int application)
{
    m_generalApp = static_cast<Om::ClientApplication>(application);
}

void OmContactCard::setAvatar(const QPixmap &avatar, bool hover)
{
    if (m_avatar) {
        m_avatar->setAvatar(avatar, hover);
        return;
    }
    m_pendingPicture = avatar;
    m_pendingHover = hover;
}

QPixmap OmContactCard::avatar() const
{
    return m_avatar ? m_avatar->avatar() : m_pendingPicture;
}

QSize OmContactCard::sizeHint() const
{
    ensurePolished();
    return m_avatar ? QGroupBox::sizeHint() : QSize(kUnseenWidth, minimumHeight());
}

QSize OmContactCard::minimumSizeHint() const
{
    ensurePolished();
    return m_avatar ? QGroupBox::minimumSizeHint() : QSize(kUnseenWidth, minimumHeight());
}

bool OmContactCard::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !isInScrollArea(this)) {
        createFace();
        createTools();
    } else if (event->type() == QEvent::Paint) {
        createFace();
    }
    return QGroupBox::event(event);
}

void OmContactCard::timerEvent(QTimerEvent *event)
{
    const int id = event->timerId();
    if (id != 0 && id == m_typingTimerId)
        setTyping(false);
    else if (id != 0 && id == m_talkingTimerId)
        setTalking(false);
    else
        QGroupBox::timerEvent(event);
}

void OmContactCard::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(mousePosition(event))) {
        const QPointer<OmContactCard> guard(this);
        Q_EMIT clicked();
        if (!guard)
            return;
    }
    QGroupBox::mouseReleaseEvent(event);
}

void OmContactCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (int index = 0; index < m_actions.size(); ++index)
            showAction(index);
        showStatus();
    }
    QGroupBox::changeEvent(event);
    const QEvent::Type type = event->type();
    const bool movesParts = type == QEvent::FontChange || type == QEvent::StyleChange
                            || type == QEvent::LayoutDirectionChange;
    if (movesParts && m_layout)
        m_layout->layOut();
}

void OmContactCard::restartTimer(int *timerId, bool run)
{
    if (*timerId != 0)
        killTimer(*timerId);
    *timerId = run ? startTimer(kIndicationMs) : 0;
}

} // namespace ombrin
