#pragma once

#include <QtCore/QObject>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace example {

/// Has this program photograph its windows in processes of their own, one for each density.
///
/// A process has one display scale for its whole life, and a picture of a dense screen is sharp
/// only if everything in it was loaded and laid out for that screen. It is also the way to pictures
/// that do not depend on the user's screen, theme and mouse. Needs an event loop.
class ScreenshotJob : public QObject
{
    Q_OBJECT

public:
    /// Starts this program with \a arguments, which must make it save its pictures in \a directory;
    /// that folder is made where it does not exist.
    ScreenshotJob(const QString &directory, const QStringList &arguments,
                  QObject *parent = nullptr);

    /// Starts; finished() follows, never from within this call.
    void start();

Q_SIGNALS:
    /// \a message tells the user what was saved or what went wrong.
    void finished(bool ok, const QString &message);

private:
    QString prepareDirectory() const;
    void takeNextDensity();
    void onProcessFinished(int exitCode, QProcess::ExitStatus status);
    void onProcessError(QProcess::ProcessError error);

    QString m_directory;
    QString m_shownDirectory;
    QVector<int> m_densities;
    QProcess m_process;
};

} // namespace example
