#include "support/RatioCase.h"

#include "screen/DesktopPicture.h"
#include "screen/ScreenGrabber.h"

#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

using namespace ombrin::bench;
using Cutter = OmScreenShooter_FullscreenCutter;

namespace {

constexpr QSize kDesktop(3840, 2160);
constexpr QRect kCut(700, 500, 800, 600);
constexpr QPoint kFrom(700, 500);
constexpr QPoint kTo(2300, 1500);

QPixmap desktop()
{
    QImage image(kDesktop, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) % 256));
    }
    return QPixmap::fromImage(image);
}

/// A cutter over a picture of 3840 x 2160 pixels in which an area is being dragged.
class Opened
{
public:
    Opened()
    {
        ombrin::setScreenGrab([picture = desktop()](QScreen *) { return picture; });
        OmScreenShooter::shootUserCutted(0, false, nullptr, nullptr, nullptr, nullptr);
        while (!m_cutter) {
            QCoreApplication::processEvents();
            const auto widgets = QApplication::topLevelWidgets();
            for (QWidget *widget : widgets) {
                if (auto *cutter = qobject_cast<Cutter *>(widget); cutter && cutter->isVisible())
                    m_cutter = cutter;
            }
        }
        m_cutter->resize(kDesktop);
        QCoreApplication::processEvents();
        send(QEvent::MouseButtonPress, kFrom);
        moveTo(kTo);
    }
    ~Opened()
    {
        delete m_cutter;
        ombrin::setScreenGrab(nullptr);
    }
    Q_DISABLE_COPY(Opened)

    void moveTo(const QPoint &point)
    {
        send(QEvent::MouseMove, point);
        paint();
    }
    void repaintAll()
    {
        m_cutter->update();
        paint();
    }

private:
    void paint() { QCoreApplication::sendPostedEvents(m_cutter, QEvent::UpdateRequest); }
    void send(QEvent::Type type, const QPoint &point)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, point, button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_cutter, &event);
    }

    QPointer<Cutter> m_cutter;
};

void dragStep(benchmark::State &state)
{
    Opened opened;
    int step = 0;
    for (auto _ : state)
        opened.moveTo(kTo + QPoint(++step % 8, step % 5));
}

void wholeRepaint(benchmark::State &state)
{
    Opened opened;
    for (auto _ : state)
        opened.repaintAll();
}

void cutArea(benchmark::State &state)
{
    const ombrin::DesktopPicture picture({{QRect(QPoint(), kDesktop), desktop()}});
    for (auto _ : state)
        benchmark::DoNotOptimize(picture.copy(kCut));
}

void copyArea(benchmark::State &state)
{
    const QPixmap picture = desktop();
    for (auto _ : state)
        benchmark::DoNotOptimize(picture.copy(kCut));
}

const RatioCase kCases[] = {
        {"screen shooter, drag step on 3840 x 2160 : whole repaint", 0.25, dragStep, wholeRepaint},
        {"screen shooter, cut of 800 x 600 : QPixmap::copy", 1.1, cutArea, copyArea},
};

} // namespace
