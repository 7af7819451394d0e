#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>

namespace ombrin {

class OmFaderWidget;

/// An icon that tells more while the mouse is over it.
///
/// The icon, 16 by 16 pixels, fades in a yellow pop-up of 150 by 150 pixels at its own place when
/// the mouse comes, and fades it out when the mouse goes. The pop-up holds a message and, if
/// wanted, a box with a text below it.
///
/// \code
/// auto *info = new ombrin::OmInfoPopup(this);
/// info->setPopupMessage(tr("Ann wrote:"));
/// info->setNotice(notice);
/// info->enableNoticeInput(true);
/// \endcode
///
/// The pop-up is made when the mouse comes for the first time, and used again from then on: texts
/// set later are not shown. Both texts are plain text. What the user writes into the box goes
/// nowhere.
///
/// Since the pop-up covers the icon, the mouse that came to the icon is then over the pop-up. There
/// it keeps the pop-up open; it goes when it leaves the pop-up. A click outside closes the pop-up
/// at once. The pop-up opens wholly on the icon's screen, and it is deleted with the icon.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmInfoPopup : public QLabel
{
    Q_OBJECT

    /// \name What the pop-up shows
    /// \{
    Q_PROPERTY(QString popupMessage READ popupMessage WRITE setPopupMessage)
    Q_PROPERTY(QString notice READ notice WRITE setNotice)
    Q_PROPERTY(bool noticeInput READ noticeInput WRITE enableNoticeInput)
    /// \}

public:
    explicit OmInfoPopup(QWidget *parent = nullptr);
    ~OmInfoPopup() override;

    /// The message at the top of the pop-up; plain text.
    QString popupMessage() const;
    void setPopupMessage(const QString &message);

    /// What the box below the message holds when the pop-up is made; plain text.
    QString notice() const;
    void setNotice(const QString &notice);

    /// Whether the pop-up has the box with the notice (default: false).
    bool noticeInput() const;
    void enableNoticeInput(bool enable);

protected:
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void slotFadeDone(bool fadeOut);

private:
    void showPopup();
    void hidePopup();
    void keepPopup();
    void buildPopup();
    void endFades();

    bool m_noticeInput = false;
    QString m_popupMessage;
    QString m_notice;
    // Ours, but without a parent and thus within the host's reach.
    QPointer<QWidget> m_popup;
    QPointer<OmFaderWidget> m_fadeOut;
};

} // namespace ombrin
