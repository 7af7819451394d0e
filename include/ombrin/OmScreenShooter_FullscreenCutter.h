#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPointer>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <memory>
#include <vector>

class OmScreenShooter_Private;

namespace ombrin {
class CutSelection;
class CutterPane;
class DesktopPicture;
} // namespace ombrin

/// Shows the frozen desktop over the whole desktop and lets the user cut an area out of it.
///
/// The left mouse button draws a selection, moves it, or drags it by one of its eight handles. The
/// buttons in its corner take the picture and close the cutter. So do a double click, inside and
/// outside of the selection, and the keys Enter or Return, and Escape. Whoever has selected nothing
/// after five seconds is told how to. Losing the focus, or a change of the screens, closes the
/// cutter without a picture. A selection counts when it is wider and taller than 2 pixels; what of
/// it lies outside of the desktop is not part of the picture.
///
/// Reports exactly once, at the latest when it is destroyed. Hosts use OmScreenShooter, which makes
/// and owns one:
///
/// \code
/// OmScreenShooter::shootUserCutted(0, false, chat, SLOT(sendPicture(QPixmap)), nullptr, nullptr);
/// \endcode
///
/// Where screens differ in density each has a window of its own: no window can cover them all.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmScreenShooter_FullscreenCutter : public QWidget
{
    Q_OBJECT

public:
    /// Shows the picture of \a owner, which may be null or vanish: then nothing is shown.
    explicit OmScreenShooter_FullscreenCutter(OmScreenShooter_Private *owner);
    ~OmScreenShooter_FullscreenCutter() override;

Q_SIGNALS:
    /// The user has taken \a p_pixScreenshot, the selected part of the picture.
    void signalOnScreenshotSucceeded(QPixmap p_pixScreenshot);
    /// There will be no picture.
    void signalOnScreenshotFailed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void slotOnUserIsAnIdiot();

private:
    friend class ombrin::CutterPane;

    /// A button in the corner of the selection.
    struct Button
    {
        QPixmap normal;
        QPixmap hovered;
        QPixmap pressed;
        bool isHovered = false;
    };

    enum class DoubleClick { None, Inside, Outside };

    static Button loadButton(const QString &name);
    static void prepareWindow(QWidget *window, QScreen *screen);
    void coverDesktop();
    const ombrin::DesktopPicture *picture() const;
    QPoint originOf(const QWidget *window) const;
    QPoint desktopPosition(const QWidget *window, const QMouseEvent *event) const;

    void handleMouse(QWidget *window, QMouseEvent *event);
    void press(const QPoint &point);
    void moveTo(const QPoint &point);
    void release(const QPoint &point);
    void doubleClick(const QPoint &point);
    void endDoubleClick();
    void hover(const QPoint &point);
    void noteSelection();
    void takePicture();

    void refresh(const QRegion &region);
    void refreshAll();
    void paint(QWidget *window, const QRegion &exposed);
    void paintSelection(QPainter *painter) const;
    void paintButton(QPainter *painter, const Button &button, const QRect &place,
                     bool isPressed) const;
    QRect hintBox() const;
    void paintHint(QPainter *painter) const;

    QPointer<OmScreenShooter_Private> m_owner;
    bool m_isShown = false;
    bool m_shotTaken = false;
    bool m_userHasSelected = false;
    bool m_showHint = false;
    DoubleClick m_doubleClick = DoubleClick::None;
    Button m_snap;
    Button m_close;
    QString m_hint;
    QRect m_desktop; // in logical pixels, and so is the next
    QRect m_covered; // by this window
    std::unique_ptr<ombrin::CutSelection> m_selection;
    std::vector<std::unique_ptr<ombrin::CutterPane>> m_panes; // of other screens
};
