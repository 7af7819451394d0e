#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class QLabel;
class QPushButton;

namespace ombrin {

/// The icon of a balloon tip. Values that are not listed show no icon.
enum MessageIcon : int {
    NoMessageIcon = 0,
    WarningMessageIcon = 1,    ///< QStyle::SP_MessageBoxWarning
    CriticalMessageIcon = 2,   ///< QStyle::SP_MessageBoxCritical
    InformationMessageIcon = 3 ///< QStyle::SP_MessageBoxInformation
};

/// A speech bubble that points at a position on the screen.
///
/// A frameless window with round corners on a pale yellow ground, with a message and, if wanted, an
/// icon, a bold title, a close button and an arrow. It closes after a time-out, at a click anywhere
/// on it, or when the next one is shown; one that the mouse is over when its time is up stays until
/// it is clicked or replaced.
///
/// \code
/// ombrin::OmBalloonTip::showBalloon(ombrin::InformationMessageIcon, tr("Ada"),
///                                   tr("I am back at my desk."),
///                                   button->mapToGlobal(QPoint(8, 8)), 5000, true, true, true);
/// \endcode
///
/// showBalloon() keeps at most one balloon on the screen, the active one. Balloons that a host
/// makes itself and shows with balloon() are not counted; they must be made with \c new, since
/// every balloon deletes itself once it is closed. A balloon may be deleted at any time.
///
/// Title and message are plain text in which nothing is interpreted. A text too large for the
/// screen is broken into lines and ends with an ellipsis. Where the palette's text colour is a
/// light one, the texts are black, to be readable on the yellow ground.
///
/// The arrow stands at the top left of the bubble when the balloon then ends within the width and
/// height of the screen that the position is on; both are counted from the origin of the desktop,
/// whichever screen it is. Otherwise it stands at the right or at the bottom. Only where this would
/// take the balloon off its screen are they counted from the screen's own corner. Close to the left
/// or right edge of the screen the balloon stays 2 pixels away from it and the arrow points beside
/// the position. A position on no screen belongs to the nearest one.
///
/// Assistive technology sees a tool tip named by the title, or else by the message.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmBalloonTip : public QWidget
{
    Q_OBJECT

public:
    /// Shows a balloon and makes it the active one, in place of the one that was.
    ///
    /// \a pos is the position in screen coordinates that the balloon points at. \a timeout is in
    /// milliseconds: 0 means no time-out, a negative value 10 seconds. \a showArrow draws the
    /// arrow; without it the balloon is placed as if it were there. \a title is shown if \a
    /// showTitle is set.
    static void showBalloon(MessageIcon icon, const QString &title, const QString &message,
                            const QPoint &pos, int timeout, bool showArrow, bool showTitle,
                            bool showCloseButton);

    /// Closes the active balloon, if there is one.
    static void hideBalloon();

    /// Whether there is an active balloon. One that closed itself counts until it is deleted, which
    /// happens when the event loop is back.
    static bool isActive();

    /// A balloon that is not the active one, not yet shown.
    OmBalloonTip(MessageIcon icon, const QString &title, const QString &message, bool showTitle,
                 bool showCloseButton);
    ~OmBalloonTip() override;

    /// Shapes, places and shows the balloon. \a pos and \a showArrow are those of showBalloon(),
    /// \a timeout is in milliseconds, 0 or less means none.
    void balloon(const QPoint &pos, int timeout, bool showArrow);

protected:
    void timerEvent(QTimerEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void createContents(MessageIcon icon, bool showTitle, bool showCloseButton);
    void createCloseButton();
    void colourContents();
    void fitTexts(const QSize &room, bool showArrow);
    void restartTimer(int timeout);

    QLabel *m_titleLabel;
    QPushButton *m_closeButton;
    QLabel *m_messageLabel;
    QPixmap m_pixmap;
    int m_timerId = -1;
    QString m_title;
    QString m_message;
};

} // namespace ombrin
