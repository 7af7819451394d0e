#include "common/WindowCamera.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QFontDatabase>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace example {

namespace {

constexpr int kFontPixels = 12;
constexpr int kActivationTimeoutMs = 10000;
// Windows put some of their work off for 20 ms.
constexpr int kSettleMs = 60;

bool waitForActivation(const QWidget *window, bool active)
{
    const QDeadlineTimer deadline(kActivationTimeoutMs);
    while (window->isActiveWindow() != active && !deadline.hasExpired())
        settle();
    settle();
    return window->isActiveWindow() == active;
}

} // namespace

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(kSettleMs, &loop, &QEventLoop::quit);
    loop.exec();
}

bool activate(QWidget *activated, const QWidget *observed, bool active)
{
    activated->show();
    activated->raise();
    activated->activateWindow();
    return waitForActivation(observed, active);
}

void pinLook()
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

QString photograph(QWidget *window, const QString &directory, const QString &name)
{
    const qreal density = window->devicePixelRatioF();
    QImage picture((QSizeF(window->size()) * density).toSize(), QImage::Format_ARGB32);
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::transparent);
    window->render(&picture);

    const QString suffix = density > 1 ? QStringLiteral("@%1x").arg(density) : QString();
    const QString path = QDir(directory).filePath(name + suffix + QStringLiteral(".png"));
    return picture.save(path) ? QString() : QDir::toNativeSeparators(path);
}

} // namespace example
