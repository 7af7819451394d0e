#include "common/ScreenshotJob.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryFile>

namespace example {

namespace {

QProcessEnvironment environmentForDensity(int density)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"QT_SCREEN_SCALE_FACTORS", "QT_DEVICE_PIXEL_RATIO", "QT_FONT_DPI",
                                 "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"})
        environment.remove(QString::fromLatin1(variable));
    // The density alone counts, not what the system makes of its screen.
    environment.insert(QStringLiteral("QT_ENABLE_HIGHDPI_SCALING"), QStringLiteral("0"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(density));
#ifndef Q_OS_WIN
    // Windows programs are rarely shipped with this platform plug-in.
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
#endif
    return environment;
}

} // namespace

ScreenshotJob::ScreenshotJob(const QString &directory, const QStringList &arguments,
                             QObject *parent)
    : QObject(parent)
    , m_directory(QDir(directory).absolutePath())
    , m_shownDirectory(QDir::toNativeSeparators(m_directory))
    , m_densities({1, 2})
{
    m_process.setProgram(QCoreApplication::applicationFilePath());
    m_process.setArguments(arguments);
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &ScreenshotJob::onProcessFinished);
    connect(&m_process, &QProcess::errorOccurred, this, &ScreenshotJob::onProcessError);
}

void ScreenshotJob::start()
{
    const QString error = prepareDirectory();
    if (error.isEmpty()) {
        takeNextDensity();
        return;
    }
    QMetaObject::invokeMethod(
            this, [this, error] { Q_EMIT finished(false, error); }, Qt::QueuedConnection);
}

QString ScreenshotJob::prepareDirectory() const
{
    if (!QDir().mkpath(m_directory))
        return tr("The folder '%1' cannot be made.").arg(m_shownDirectory);
    QTemporaryFile probe(QDir(m_directory).filePath(QStringLiteral("XXXXXX.tmp")));
    if (!probe.open())
        return tr("The folder '%1' cannot be written to.").arg(m_shownDirectory);
    return QString();
}

void ScreenshotJob::takeNextDensity()
{
    if (m_densities.isEmpty()) {
        Q_EMIT finished(true, tr("Saved the pictures in %1.").arg(m_shownDirectory));
        return;
    }
    m_process.setProcessEnvironment(environmentForDensity(m_densities.takeFirst()));
    m_process.start();
}

void ScreenshotJob::onProcessFinished(int exitCode, QProcess::ExitStatus status)
{
    if (status == QProcess::NormalExit && exitCode == 0) {
        takeNextDensity();
        return;
    }
    const QString reason = QString::fromLocal8Bit(m_process.readAllStandardError()).trimmed();
    Q_EMIT finished(false, reason.isEmpty() ? tr("The pictures could not be taken.") : reason);
}

void ScreenshotJob::onProcessError(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart)
        Q_EMIT finished(
                false,
                tr("The program could not be started again: %1").arg(m_process.errorString()));
}

} // namespace example
