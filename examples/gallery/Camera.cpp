#include "Camera.h"

#include "GalleryPage.h"
#include "GalleryWindow.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QFontDatabase>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>

namespace gallery {

namespace {

constexpr QSize kPictureSize(960, 640);
constexpr QPoint kWindowPosition(40, 40);
constexpr int kFontPixels = 12;
constexpr int kActivationTimeoutMs = 10000;
// Windows put some of their work off for 20 ms.
constexpr int kSettleMs = 60;

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(kSettleMs, &loop, &QEventLoop::quit);
    loop.exec();
}

bool waitForActivation(const QWidget *window, bool active)
{
    const QDeadlineTimer deadline(kActivationTimeoutMs);
    while (window->isActiveWindow() != active && !deadline.hasExpired())
        settle();
    settle();
    return window->isActiveWindow() == active;
}

bool activate(QWidget *window, const QWidget *observed, bool active)
{
    window->show();
    window->raise();
    window->activateWindow();
    return waitForActivation(observed, active);
}

} // namespace

Camera::Camera(const QString &directory)
    : m_directory(directory)
{}

void Camera::pinLook()
{
    QApplication::setCursorFlashTime(0);
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                                      Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip})
        QApplication::setEffectEnabled(effect, false);

    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const QStringList installed = QFontDatabase().families();
    for (const char *family : {"Noto Sans", "Segoe UI", "Liberation Sans", "DejaVu Sans"}) {
        if (installed.contains(QLatin1String(family))) {
            font = QFont(QString::fromLatin1(family));
            break;
        }
    }
    font.setPixelSize(kFontPixels);
    QApplication::setFont(font);
}

QString Camera::takeAll(const QString &page) const
{
    QCursor::setPos(0, 0); // outside the window: nothing is hovered
    GalleryWindow window;
    window.resize(kPictureSize);
    window.move(kWindowPosition);
    window.show();
    for (const GalleryPage *candidate : allPages()) {
        if (!page.isEmpty() && candidate->nameText() != page)
            continue;
        const QString error = take(&window, *candidate);
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

QString Camera::take(GalleryWindow *window, const GalleryPage &page) const
{
    window->showPage(page.nameText());
    if (!activate(window, window, true))
        return tr("The gallery's window does not become active.");
    const QString error = save(window, page, QStringLiteral("active"));
    if (!error.isEmpty())
        return error;

    // A window of its own that takes the activation: the only way to look like any inactive window.
    QWidget other(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    other.setGeometry(0, 0, 8, 8);
    if (!activate(&other, window, false))
        return tr("The gallery's window does not become inactive.");
    return save(window, page, QStringLiteral("inactive"));
}

QString Camera::save(GalleryWindow *window, const GalleryPage &page,
                     const QString &activation) const
{
    const qreal density = window->devicePixelRatioF();
    QImage picture((QSizeF(window->size()) * density).toSize(), QImage::Format_ARGB32);
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::transparent);
    window->render(&picture);

    const QString suffix = density > 1 ? QStringLiteral("@%1x").arg(density) : QString();
    const QString name = QStringLiteral("%1-%2%3.png").arg(page.nameText(), activation, suffix);
    const QString path = QDir(m_directory).filePath(name);
    if (picture.save(path))
        return QString();
    return tr("The picture '%1' cannot be saved.").arg(QDir::toNativeSeparators(path));
}

} // namespace gallery
