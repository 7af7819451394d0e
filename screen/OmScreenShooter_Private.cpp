#include <ombrin/OmScreenShooter_Private.h>

#include "screen/ScreenGrabber.h"
#include "skin/SkinPixmap.h"

#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <limits>
#include <utility>

using ombrin::DesktopPicture;
using ombrin::OmImageMaskedButton;
using ombrin::OmImageMaskedWidget;

namespace {

constexpr int kSecond = 1000;      // milliseconds
constexpr int kClearingTime = 250; // until our own windows are gone from the screen
constexpr int kMiddleDistance = 5; // from countdown and button to the middle of the desktop
constexpr qreal kCountdownOpacity = 0.75;
constexpr int kHighestNumber = 10;

constexpr Qt::WindowFlags kWindowFlags = Qt::SplashScreen | Qt::X11BypassWindowManagerHint
                                         | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

/// Puts \a widget in the middle of the desktop from left to right, \a top being counted from its
/// middle from top to bottom. That may lie between the screens: then the primary one has to do.
void placeInTheMiddle(QWidget *widget, int top)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const auto place = [widget, top](const QRect &area) {
        return QPoint(area.left() + (area.width() - widget->width()) / 2,
                      area.top() + area.height() / 2 + top);
    };
    const QPoint position = place(screen->virtualGeometry());
    const QPoint centre = position + widget->rect().center();
    widget->move(QGuiApplication::screenAt(centre) ? position : place(screen->geometry()));
}

/// Not deleted at once: it may be what is calling, as the button is that has been clicked.
void removeFromScreen(QWidget *widget)
{
    if (!widget)
        return;
    widget->hide();
    widget->deleteLater();
}

/// QTimer::singleShot() would keep its timer for the whole time, even when the request is gone.
template <typename Slot>
void callLater(int milliseconds, OmScreenShooter_Private *request, Slot slot)
{
    auto *const timer = new QTimer(request);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, request, slot);
    QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(milliseconds);
}

QString countdownImage(int seconds)
{
    return QStringLiteral(":/countdown-%1-128.png").arg(qBound(1, seconds, kHighestNumber));
}

} // namespace

OmScreenShooter_Private::OmScreenShooter_Private(unsigned int delay, bool showNowButton,
                                                 bool cutMode)
    : m_cutMode(cutMode)
    , m_waitsForButton(showNowButton && delay == 0)
    , m_remainingSeconds(static_cast<int>(delay / kSecond) + 1)
{
    // Whoever is to hear of it is connected by then.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &OmScreenShooter_Private::reportFailure);
    if (showNowButton)
        this->showNowButton();
    // First: nothing is to happen while a window is being shown.
    if (delay > 0)
        showNextNumber();
    if (!m_waitsForButton) {
        constexpr auto kLongest = static_cast<unsigned int>(std::numeric_limits<int>::max());
        callLater(static_cast<int>(std::min(delay, kLongest)), this,
                  &OmScreenShooter_Private::slotOnDelayFinished);
    }
    if (delay > 0)
        callLater(kSecond, this, &OmScreenShooter_Private::slotOnDelayProgress);
}

OmScreenShooter_Private::~OmScreenShooter_Private()
{
    hideWidgets();
    if (startReport())
        Q_EMIT signalOnScreenshotFailed();
    delete m_cutter;
}

// Countdown

void OmScreenShooter_Private::showNowButton()
{
    m_nowButton = new OmImageMaskedButton(nullptr, kWindowFlags);
    m_nowButton->setImage_Normal(ombrin::skinImage(QStringLiteral(":/countdown-snap-64.png")));
    m_nowButton->setImage_Hovered(
            ombrin::skinImage(QStringLiteral(":/countdown-snap-hover-64.png")));
    m_nowButton->setImage_Pressed(
            ombrin::skinImage(QStringLiteral(":/countdown-snap-pressed-64.png")));
    placeInTheMiddle(m_nowButton, kMiddleDistance);
    m_nowButton->installEventFilter(this);
    m_nowButton->show();
    connect(m_nowButton, &OmImageMaskedButton::signalOnClicked, this,
            &OmScreenShooter_Private::slotOnNowButtonClicked);
}

void OmScreenShooter_Private::slotOnDelayProgress()
{
    if (!m_triggered && showNextNumber())
        callLater(kSecond, this, &OmScreenShooter_Private::slotOnDelayProgress);
}

// Whether the request is there and still counts. Showing a window can run the event loop, in which
// the delay may end. The image must not be deleted then, which is why nobody knows it yet.
bool OmScreenShooter_Private::showNextNumber()
{
    m_remainingSeconds = std::max(m_remainingSeconds - 1, 0);
    const QPointer<OmImageMaskedWidget> image = new OmImageMaskedWidget(nullptr, kWindowFlags);
    image->setImage(ombrin::skinImage(countdownImage(m_remainingSeconds)));
    placeInTheMiddle(image, -image->height() - kMiddleDistance);
    image->setWindowOpacity(kCountdownOpacity);
    const QPointer<OmScreenShooter_Private> guard(this);
    image->show();
    if (!guard || m_triggered) {
        removeFromScreen(image);
        return false;
    }
    // After the new one is there, so that the number never flickers away.
    removeFromScreen(std::exchange(m_countdownImage, image));
    return true;
}

void OmScreenShooter_Private::hideWidgets()
{
    removeFromScreen(m_countdownImage);
    m_countdownImage.clear();
    if (m_nowButton)
        m_nowButton->removeEventFilter(this);
    removeFromScreen(m_nowButton);
    m_nowButton.clear();
}

/// A button that somebody else closes, as an application that closes all its windows does, or
/// deletes will not be clicked any more.
bool OmScreenShooter_Private::eventFilter(QObject *, QEvent *event)
{
    const bool isOver = event->type() == QEvent::Close || event->type() == QEvent::DeferredDelete;
    if (isOver && m_waitsForButton)
        reportFailure();
    return false;
}

void OmScreenShooter_Private::slotOnDelayFinished()
{
    trigger();
}

void OmScreenShooter_Private::slotOnNowButtonClicked()
{
    trigger();
}

void OmScreenShooter_Private::trigger()
{
    if (m_triggered)
        return;
    m_triggered = true;
    hideWidgets();
    callLater(kClearingTime, this, &OmScreenShooter_Private::slotOnReadyToShoot);
}

// Picture

void OmScreenShooter_Private::slotOnReadyToShoot()
{
    const DesktopPicture picture = ombrin::grabDesktop();
    if (!picture.isNull())
        usePicture(picture);
    else
        ombrin::askForDesktop(this, [this](const DesktopPicture &late) { usePicture(late); });
}

void OmScreenShooter_Private::usePicture(const DesktopPicture &picture)
{
    if (m_reported)
        return;
    if (picture.isNull()) {
        reportFailure();
    } else if (m_cutMode) {
        m_screenshot = std::make_unique<DesktopPicture>(picture);
        openCutter();
    } else {
        reportSuccess(picture.whole());
    }
}

void OmScreenShooter_Private::openCutter()
{
    delete m_cutter;
    m_cutter = new OmScreenShooter_FullscreenCutter(this);
    connect(m_cutter, &OmScreenShooter_FullscreenCutter::signalOnScreenshotSucceeded, this,
            &OmScreenShooter_Private::slotOnCutterScreenshotSucceeded);
    connect(m_cutter, &OmScreenShooter_FullscreenCutter::signalOnScreenshotFailed, this,
            &OmScreenShooter_Private::slotOnCutterScreenshotFailed);
    showCutter();
}

// Showing a window can run the event loop, in which the user may answer already. Neither cutter nor
// request may be deleted until it is shown.
void OmScreenShooter_Private::showCutter()
{
    const QPointer<OmScreenShooter_Private> guard(this);
    m_isOpening = true;
    m_cutter->setAttribute(Qt::WA_DeleteOnClose, false);
    m_cutter->show();
    if (!guard)
        return;
    m_isOpening = false;
    if (m_reported)
        deleteLater();
    else if (m_cutter->isVisible())
        m_cutter->setAttribute(Qt::WA_DeleteOnClose);
    else
        delete m_cutter; // which reports
}

void OmScreenShooter_Private::slotOnCutterScreenshotSucceeded(QPixmap p_pixScreenshot)
{
    reportSuccess(p_pixScreenshot);
}

void OmScreenShooter_Private::slotOnCutterScreenshotFailed()
{
    reportFailure();
}

// Report

/// Returns false when something was reported before.
bool OmScreenShooter_Private::startReport()
{
    return !std::exchange(m_reported, true);
}

void OmScreenShooter_Private::reportSuccess(const QPixmap &picture)
{
    if (!startReport())
        return;
    deleteWhenShown(); // first: a slot of the signal may delete this request
    Q_EMIT signalOnScreenshotSucceeded(picture);
}

void OmScreenShooter_Private::reportFailure()
{
    if (!startReport())
        return;
    m_triggered = true;
    hideWidgets();
    deleteWhenShown();
    Q_EMIT signalOnScreenshotFailed();
}

void OmScreenShooter_Private::deleteWhenShown()
{
    if (!m_isOpening)
        deleteLater();
}
