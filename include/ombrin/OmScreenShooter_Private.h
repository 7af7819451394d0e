#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QPixmap>

#include <memory>

class OmScreenShooter_FullscreenCutter;

namespace ombrin {
class DesktopPicture;
class OmImageMaskedButton;
class OmImageMaskedWidget;
} // namespace ombrin

/// One request for a picture of the desktop: counts down, takes the picture, reports through one of
/// its signals, once, and deletes itself. Hosts use OmScreenShooter, or connect function pointers:
///
/// \code
/// auto *request = new OmScreenShooter_Private(3000, true, false); // deletes itself
/// connect(request, &OmScreenShooter_Private::signalOnScreenshotSucceeded, this,
///         &Window::showPicture);
/// \endcode
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmScreenShooter_Private : public QObject
{
    Q_OBJECT

public:
    /// Starts at once. \a delay in milliseconds; with \a cutMode the user cuts an area out.
    OmScreenShooter_Private(unsigned int delay, bool showNowButton, bool cutMode);
    /// Takes its widgets along. Reports a failure if nothing was reported yet.
    ~OmScreenShooter_Private() override;

Q_SIGNALS:
    /// \a p_pixScreenshot is what was asked for.
    void signalOnScreenshotSucceeded(QPixmap p_pixScreenshot);
    /// There will be no picture.
    void signalOnScreenshotFailed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void slotOnDelayFinished();
    void slotOnNowButtonClicked();
    void slotOnDelayProgress();
    void slotOnCutterScreenshotSucceeded(QPixmap p_pixScreenshot);
    void slotOnCutterScreenshotFailed();
    void slotOnReadyToShoot();

private:
    friend class OmScreenShooter_FullscreenCutter;

    void showNowButton();
    bool showNextNumber();
    void hideWidgets();
    void trigger();
    void usePicture(const ombrin::DesktopPicture &picture);
    void openCutter();
    void showCutter();
    void deleteWhenShown();
    void reportSuccess(const QPixmap &picture);
    void reportFailure();
    bool startReport();

    const bool m_cutMode;
    const bool m_waitsForButton;
    int m_remainingSeconds;
    bool m_triggered = false;
    bool m_reported = false;
    bool m_isOpening = false;
    std::unique_ptr<ombrin::DesktopPicture> m_screenshot;
    QPointer<ombrin::OmImageMaskedWidget> m_countdownImage;
    QPointer<ombrin::OmImageMaskedButton> m_nowButton;
    QPointer<OmScreenShooter_FullscreenCutter> m_cutter;
};
