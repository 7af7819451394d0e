#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>

/// Takes pictures of the whole desktop: at once, after a countdown, or of an area that the user
/// cuts out.
///
/// \code
/// OmScreenShooter::shootUserCutted(3000, true, chat, SLOT(sendPicture(QPixmap)),
///                                  chat, SLOT(screenshotFailed()));
/// \endcode
///
/// A request that was started reports exactly once, to the one slot or the other, whatever happens
/// meanwhile: when the user cancels, the system does not let the desktop be seen, or the
/// application closes, it has failed. It belongs to nobody; a receiver that is deleted hears no
/// more of it. Several requests may run, but only one area is cut at a time: the cutter that is
/// opened later takes the focus, and with it ends the earlier one.
///
/// Pictures hold the real pixels of the screens, and their device pixel ratio is that of the
/// densest screen they show. Where there is no screen they are black.
///
/// Some systems let nobody see the desktop unless the user agrees. There the request asks for that,
/// if the plug-in for it is installed, or else fails. No picture is ever black instead.
///
/// To be used from the GUI thread.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmScreenShooter : public QObject
{
    Q_OBJECT

public:
    OmScreenShooter();
    ~OmScreenShooter() override;

    /// The whole desktop as it is now, or a null pixmap where it cannot be seen.
    static QPixmap shootSimple();

    /// Takes the whole desktop.
    ///
    /// \param delay         how long the user has to prepare, in milliseconds. Larger than 0, the
    ///                      seconds left are counted down in the middle of the desktop. The longest
    ///                      delay is INT_MAX, about 24 days; larger ones are shortened to it
    /// \param showNowButton whether a button below the numbers takes the picture at once. With a
    ///                      delay of 0 the picture is taken when it is clicked, and not before
    /// \param succeededReceiver, succeededSlot what gets the picture, a slot with one QPixmap, as
    /// in
    ///                      \c SLOT(shot(QPixmap)). Either may be null: nothing is told then
    /// \param failedReceiver, failedSlot what is told that there is none, a slot without
    ///                      parameters
    ///
    /// A quarter of a second passes before the picture is taken, in which countdown and button
    /// vanish from the screen.
    static void shootDelayed(unsigned int delay, bool showNowButton, QObject *succeededReceiver,
                             const char *succeededSlot, QObject *failedReceiver,
                             const char *failedSlot);

    /// The same, but freezes the desktop and lets the user cut an area out of it. See
    /// OmScreenShooter_FullscreenCutter.
    static void shootUserCutted(unsigned int delay, bool showNowButton, QObject *succeededReceiver,
                                const char *succeededSlot, QObject *failedReceiver,
                                const char *failedSlot);
};
