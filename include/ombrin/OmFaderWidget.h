#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QTimer;

namespace ombrin {

/// Fades a widget in or out, once.
///
/// The fader lies over its parent and fills it with one colour, whose alpha it animates: fadeIn()
/// uncovers the parent, fadeOut() covers it. At the end the fader closes and deletes itself.
///
/// \code
/// auto *fader = new ombrin::OmFaderWidget(popup);
/// connect(fader, &ombrin::OmFaderWidget::done, popup, &QWidget::close);
/// fader->fadeOut();
/// \endcode
///
/// A timer asks for a paint every 33 ms and each paint moves the alpha by one step, so a fade is
/// never shown in part only; repaints for other reasons hasten it. With the default duration a fade
/// takes eleven paints. A fader that is not visible does not proceed; it is deleted with its parent
/// at the latest.
///
/// The fader has the size that its parent has when it is made. Without a parent it is a window of
/// its own. Give each fade a fader of its own; a fade that is started while another one of the same
/// fader runs takes its place. The host may delete the fader or its parent in a slot of done().
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmFaderWidget : public QWidget
{
    Q_OBJECT

    /// The colour of the cover; its alpha is not used. Default: the window colour of the parent, or
    /// white. Takes effect with the next paint.
    Q_PROPERTY(QColor fadeColor READ fadeColor WRITE setFadeColor)
    /// The nominal length of a fade in milliseconds, 333 by default. Takes effect with the next
    /// paint. Any value is kept, but a fade takes at least one paint and at most 255, which is to
    /// say some 8.4 seconds.
    Q_PROPERTY(int fadeDuration READ fadeDuration WRITE setFadeDuration)

public:
    explicit OmFaderWidget(QWidget *parent = nullptr);
    ~OmFaderWidget() override;

    /// Shows the parent's contents coming out of the colour.
    void fadeIn();
    /// Shows the parent's contents vanishing into the colour.
    void fadeOut();

    void setFadeColor(const QColor &color);
    QColor fadeColor() const;
    void setFadeDuration(int milliseconds);
    int fadeDuration() const;

Q_SIGNALS:
    /// The fade has ended. Comes right after the last paint and after the fader has been closed.
    void done(bool fadeOut);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void start(bool fadeOut);
    int step() const;
    void finish();

    QTimer *m_timer;
    QColor m_fadeColor;
    bool m_fadeOut = false;
    int m_alpha = 0;
    int m_fadeDuration = 333;
    bool m_finishing = false;
};

} // namespace ombrin
