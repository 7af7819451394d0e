#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class QLabel;

namespace ombrin {

/// A user's picture at its natural size: a pop-up window that fades away when the mouse leaves it.
///
/// The pop-up shows one picture, still or moving, in a frame of one pixel. It fades away when the
/// mouse leaves it or a mouse button is released on it, and then deletes itself; a click outside of
/// it closes it at once.
///
/// \code
/// auto *avatar = new ombrin::OmAvatar(picture, this);
/// avatar->move(mapToGlobal(QPoint(0, 0)));
/// auto *fader = new ombrin::OmFaderWidget(avatar);
/// fader->fadeIn();
/// avatar->show();
/// \endcode
///
/// The avatar belongs to its parent until it deletes itself. A host that keeps a pointer to it
/// keeps a QPointer; it may delete the avatar in a slot of clicked().
///
/// \ingroup contacts
class OMBRIN_GUI_EXPORT OmAvatar : public QWidget
{
    Q_OBJECT

public:
    /// Shows \a pixmap in its logical size. A null pixmap gives an empty frame of two pixels.
    explicit OmAvatar(const QPixmap &pixmap, QWidget *parent = nullptr);

    /// Shows the picture in the file or resource \a fileName, and plays it if it is an animation.
    ///
    /// A file that holds no picture, is no ordinary file, or whose picture is wider or higher than
    /// 4096 pixels is not decoded and gives an empty frame; so does one that is damaged beyond use.
    /// The frames of an animation are kept for the next round as long as they take no more than
    /// 64 MB.
    explicit OmAvatar(const QString &fileName, QWidget *parent = nullptr);

    ~OmAvatar() override;

Q_SIGNALS:
    /// The left mouse button was released inside the avatar, which has begun to fade away.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private Q_SLOTS:
    void slotFadeDone(bool fadeOut);

private:
    QLabel *createLabel();
    void addLabel(QLabel *label, const QPixmap &pixmap);
    void fadeAway();
};

} // namespace ombrin
