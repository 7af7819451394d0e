#pragma once

#include <ombrin/OmLabel.h>

#include <QtGui/QPixmap>

namespace ombrin {

/// The thumbnail of a user's picture.
///
/// Without a picture it shows a placeholder. With one it shows the picture, scaled into the label
/// and framed by the placeholder, and is a link: it has the hand cursor, lights up a magnifier
/// while the mouse is over it, and emits hovered() and clicked(). Its slot slotAvatar() fades in
/// the picture at its natural size, in an OmAvatar beside the thumbnail; slotAvatarTimer() does so
/// shortly afterwards, when a menu or a press has come to its end. Nothing calls them by itself:
///
/// \code
/// auto *thumbnail = new ombrin::OmAvatarSmall(this);
/// thumbnail->setFixedSize(50, 50);
/// thumbnail->setAvatar(picture, false);
/// connect(thumbnail, SIGNAL(clicked()), thumbnail, SLOT(slotAvatarTimer()));
/// \endcode
///
/// The picture is rendered into the size that the label has when it is set, which is at most 78 by
/// 78 pixels. A host that changes the size sets the picture again. Where the label is not square,
/// what the placeholder and the picture do not cover is transparent.
///
/// The large picture opens on the screen that the thumbnail is on, and wholly on it unless it is
/// larger than the screen. It belongs to the thumbnail until it deletes itself.
///
/// \ingroup contacts
class OMBRIN_GUI_EXPORT OmAvatarSmall : public OmLabel
{
    Q_OBJECT

    /// The picture, unscaled. One that is set shows without the magnifier.
    Q_PROPERTY(QPixmap avatar READ avatar WRITE setAvatar)

public:
    explicit OmAvatarSmall(QWidget *parent = nullptr);
    ~OmAvatarSmall() override;

    /// Shows \a avatar, with the magnifier if \a hover is true. A null \a avatar shows the
    /// placeholder, which is no link.
    void setAvatar(const QPixmap &avatar, bool hover = false);
    /// The picture last set, unscaled.
    QPixmap avatar() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void slotAvatarTimer();
    void slotAvatar();
    void slotAvatarHovered(bool hover);

private:
    // What the thumbnail without its magnifier was rendered from.
    struct Source
    {
        qint64 avatar = 0;
        qint64 placeholder = 0;
        QSize size; // invalid before the first picture
        qreal devicePixelRatio = 0;

        bool operator==(const Source &other) const;
    };

    void showPlaceholder();
    void render(const QSize &size);
    QPixmap thumbnail(const Source &source) const;
    QPixmap withMagnifier(QPixmap canvas) const;

    QPixmap m_avatar;
    bool m_hover = false;
    Source m_source;
    QPixmap m_thumbnail;
};

} // namespace ombrin
