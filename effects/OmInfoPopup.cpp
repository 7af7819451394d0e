#include <ombrin/OmInfoPopup.h>

#include "effects/PopupPlacement.h"
#include "skin/LightGround.h"
#include "skin/SkinPixmap.h"

#include <ombrin/OmFaderWidget.h>

#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace ombrin {

namespace {

constexpr QSize kIconSize(16, 16);
constexpr QSize kPopupSize(150, 150);
constexpr QRgb kPopupColor = 0xfffffc00;

// The end of a fade may be on its way to \a listener already, from the last paint on.
void cancel(OmFaderWidget *fader, const QObject *listener)
{
    fader->disconnect(listener);
    fader->close();
}

} // namespace

OmInfoPopup::OmInfoPopup(QWidget *parent)
    : QLabel(parent)
{
    setPixmap(skinPixmap(QStringLiteral(":/is_typing-16"), devicePixelRatioF()));
    setFixedSize(kIconSize);
}

OmInfoPopup::~OmInfoPopup()
{
    delete m_popup;
}

QString OmInfoPopup::popupMessage() const
{
    return m_popupMessage;
}

void OmInfoPopup::setPopupMessage(const QString &message)
{
    m_popupMessage = message;
}

QString OmInfoPopup::notice() const
{
    return m_notice;
}

void OmInfoPopup::setNotice(const QString &notice)
{
    m_notice = notice;
}

bool OmInfoPopup::noticeInput() const
{
    return m_noticeInput;
}

void OmInfoPopup::enableNoticeInput(bool enable)
{
    m_noticeInput = enable;
}

void OmInfoPopup::enterEvent(EnterEvent *event)
{
    showPopup();
    QLabel::enterEvent(event);
}

void OmInfoPopup::leaveEvent(QEvent *event)
{
    hidePopup();
    QLabel::leaveEvent(event);
}

bool OmInfoPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_popup) {
        // The icon was left for the pop-up that covers it.
        if (event->type() == QEvent::Enter)
            keepPopup();
        else if (event->type() == QEvent::Leave)
            hidePopup();
        else if (event->type() == QEvent::Hide)
            endFades(); // which are not painted any more, and so would never end
    }
    return QLabel::eventFilter(watched, event);
}

void OmInfoPopup::slotFadeDone(bool fadeOut)
{
    if (fadeOut && m_popup)
        m_popup->close();
}

void OmInfoPopup::showPopup()
{
    if (!m_popup)
        buildPopup();
    endFades();
    m_popup->resize(kPopupSize);
    const QPoint corner = mapToGlobal(QPoint(0, 0));
    m_popup->move(popup_placement::movedInside(corner, m_popup->size(),
                                               popup_placement::screenAt(corner)));
    auto *const fader = new OmFaderWidget(m_popup);
    fader->fadeIn();
    m_popup->show();
}

void OmInfoPopup::hidePopup()
{
    if (!m_popup || !m_popup->isVisible() || m_fadeOut)
        return;
    m_fadeOut = new OmFaderWidget(m_popup);
    m_fadeOut->fadeOut();
    connect(m_fadeOut, &OmFaderWidget::done, this, &OmInfoPopup::slotFadeDone);
}

void OmInfoPopup::keepPopup()
{
    if (m_fadeOut)
        cancel(m_fadeOut, this);
    m_fadeOut.clear();
}

void OmInfoPopup::buildPopup()
{
    m_popup = new QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint);
    m_popup->installEventFilter(this);
    QPalette palette = m_popup->palette();
    palette.setBrush(QPalette::All, QPalette::Window,
                     QBrush(QColor::fromRgb(kPopupColor), Qt::SolidPattern));
    m_popup->setPalette(palette);
    keepTextReadable(m_popup);

    auto *const layout = new QVBoxLayout(m_popup);
    auto *const message = new QLabel(m_popup);
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setText(m_popupMessage);
    layout->addWidget(message);
    if (!m_noticeInput)
        return;
    auto *const box = new QTextEdit(m_popup);
    box->setPlainText(m_notice);
    layout->addWidget(box);
}

// A fade that went on would close a pop-up to which the mouse has come back.
void OmInfoPopup::endFades()
{
    const auto faders =
            m_popup->findChildren<OmFaderWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (OmFaderWidget *fader : faders)
        cancel(fader, this);
    m_fadeOut.clear();
}

} // namespace ombrin
