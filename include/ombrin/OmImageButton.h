#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace ombrin {

/// A button that is nothing but a picture.
///
/// The button draws one of eight pictures and nothing else, so a skin can give it any shape. Four
/// belong to the normal set (up, down, hovered, disabled), four to the selected set, which is shown
/// while the button is both checkable and checked. There is no size hint: give the button its size.
///
/// \code
/// auto *button = new ombrin::OmImageButton(this);
/// button->setAllPixmaps(QPixmap(QStringLiteral(":/chat-16")), false, true, true, true, true);
/// button->resize(16, 16);
/// button->setToolTip(tr("Chat"));
/// connect(button, &ombrin::OmImageButton::clicked, this, &Window::startChat);
/// \endcode
///
/// | Down | Enabled | Hovered | Picture                                |
/// |------|---------|---------|----------------------------------------|
/// | yes  | any     | any     | down                                   |
/// | no   | yes     | no      | up                                     |
/// | no   | yes     | yes     | hovered                                |
/// | no   | no      | any     | disabled, or down when that one is null |
///
/// A picture that is null is not replaced by another one (but for the disabled picture as above):
/// the button then draws nothing. Pictures are drawn unscaled, in their logical size (a picture of
/// 32 pixels with a device pixel ratio of 2 covers 16), with the top left corner in that of the
/// button.
///
/// A click toggles checked, whether the button is checkable or not; checkable only chooses the set
/// of pictures. A press emits pressed(), its release inside the button clicked() and then
/// released(); a release outside emits nothing. The pointer may leave the button and come back
/// while the mouse button is held. The button may be deleted in a slot of any of its signals.
///
/// The button takes the keyboard focus only if the host gives it a focus policy. Then Space, Return
/// and Enter press it while they are held down. Since it draws nothing but its pictures, a
/// QFocusFrame can show that it has the focus.
///
/// Assistive technology sees a push button named by accessibleName() or else by its tool tip.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmImageButton : public QWidget
{
    Q_OBJECT

    /// Whether the selected pictures are shown while the button is checked. Does not repaint.
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    /// Toggled by every click.
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)
    /// Whether the button is pressed. Setting it emits nothing.
    Q_PROPERTY(bool down READ isDown WRITE setDown)
    /// Whether the pointer is over the button.
    Q_PROPERTY(bool hovered READ isHovered WRITE setHovered)
    /// By how many logical pixels the picture of a button that is down or disabled is shifted to
    /// the right and downwards; negative to the left and upwards. Does not repaint.
    Q_PROPERTY(int offset READ offset WRITE setOffset)
    Q_PROPERTY(QPixmap pixmapUp READ pixmapUp WRITE setPixmapUp)
    Q_PROPERTY(QPixmap pixmapDown READ pixmapDown WRITE setPixmapDown)
    Q_PROPERTY(QPixmap pixmapHovered READ pixmapHovered WRITE setPixmapHovered)
    Q_PROPERTY(QPixmap pixmapDisabled READ pixmapDisabled WRITE setPixmapDisabled)
    Q_PROPERTY(QPixmap pixmapUpSelected READ pixmapUpSelected WRITE setPixmapUpSelected)
    Q_PROPERTY(QPixmap pixmapDownSelected READ pixmapDownSelected WRITE setPixmapDownSelected)
    Q_PROPERTY(
            QPixmap pixmapHoveredSelected READ pixmapHoveredSelected WRITE setPixmapHoveredSelected)
    Q_PROPERTY(QPixmap pixmapDisabledSelected READ pixmapDisabledSelected WRITE
                       setPixmapDisabledSelected)

public:
    explicit OmImageButton(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    ~OmImageButton() override;

    bool isCheckable() const;
    void setCheckable(bool checkable);
    bool isChecked() const;
    void setChecked(bool checked);
    bool isDown() const;
    void setDown(bool down);
    bool isHovered() const;
    void setHovered(bool hovered);
    int offset() const;
    void setOffset(int offset);

    /// The picture of a state, null unless set: the normal set, and behind it the one that is shown
    /// while the button is checked. A picture that is null is not drawn.
    QPixmap pixmapUp() const;
    void setPixmapUp(const QPixmap &pixmap);
    QPixmap pixmapDown() const;
    void setPixmapDown(const QPixmap &pixmap);
    QPixmap pixmapHovered() const;
    void setPixmapHovered(const QPixmap &pixmap);
    QPixmap pixmapDisabled() const;
    void setPixmapDisabled(const QPixmap &pixmap);
    QPixmap pixmapUpSelected() const;
    void setPixmapUpSelected(const QPixmap &pixmap);
    QPixmap pixmapDownSelected() const;
    void setPixmapDownSelected(const QPixmap &pixmap);
    QPixmap pixmapHoveredSelected() const;
    void setPixmapHoveredSelected(const QPixmap &pixmap);
    QPixmap pixmapDisabledSelected() const;
    void setPixmapDisabledSelected(const QPixmap &pixmap);

    /// Whether the pointer's coming and going leaves hovered alone (default: false).
    void setIgnoreHovered(bool ignore);

    /// Makes the up picture of the chosen sets from \a pixmap and derives the chosen other pictures
    /// of these sets from it. What is not chosen stays as it is; a null \a pixmap makes the chosen
    /// pictures null.
    void setAllPixmaps(const QPixmap &pixmap, bool selectedSet, bool normalSet, bool deriveDown,
                       bool deriveHovered, bool deriveDisabled);

Q_SIGNALS:
    /// The button was pressed and released; \a checked is its new state.
    void clicked(bool checked = false);
    /// The left mouse button went down on the button, or a key while it has the focus.
    void pressed();
    /// Follows clicked().
    void released();

protected:
    /// A slightly darker copy of \a pixmap.
    QPixmap refinePictureToDownState(QPixmap pixmap);
    /// A slightly lighter copy of \a pixmap.
    QPixmap refinePictureToHoveredState(QPixmap pixmap);
    /// A copy of \a pixmap that is washed out to light grey.
    QPixmap refinePictureToDisabledState(QPixmap pixmap);

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct PixmapSet
    {
        QPixmap up;
        QPixmap down;
        QPixmap hovered;
        QPixmap disabled;
    };

    const QPixmap &pixmap() const;
    void replacePixmap(QPixmap *target, const QPixmap &pixmap);
    void storeDown(bool down);
    void storeChecked(bool checked);
    void pointerEntered();
    void pointerLeft();
    void followDrag(const QMouseEvent *event);
    void dropLostPress();
    void dropPress();
    void click();

    bool m_pressedOutside = false;
    bool m_down = false;
    bool m_hovered = false;
    bool m_checked = false;
    bool m_checkable = false;
    bool m_ignoreHovered = false;
    // Qt knew of the held mouse button when it pressed us, so it will know when it no longer is.
    bool m_pressTracked = false;
    bool m_pressedByKey = false;
    int m_offset = 0;
    PixmapSet m_normal;
    PixmapSet m_selected;
};

} // namespace ombrin
