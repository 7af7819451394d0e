#include "common/Program.h"

#include "common/CommandLine.h"
#include "common/ScreenshotJob.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtCore/QTextStream>
#include <QtGui/QGuiApplication>

namespace example {

namespace {

/// Whether there are options that a QApplication would take, and it is not there yet.
bool isForQt()
{
    const QRegularExpression option(QStringLiteral(
            "--?(display|geometry|icon|platform|platformpluginpath|platformtheme|plugin|"
            "qwindowgeometry|qwindowicon|qwindowtitle|reverse|session|style|stylesheet|title|"
            "widgetcount)(=.*)?"));
    return !qobject_cast<QGuiApplication *>(QCoreApplication::instance())
           && QCoreApplication::arguments().indexOf(option) > 0;
}

int takeScreenshots(const QString &directory, const QStringList &arguments)
{
    const QStringList mirrored = {QStringLiteral("-reverse")};
    ScreenshotJob job(directory,
                      QGuiApplication::isRightToLeft() ? arguments + mirrored : arguments);
    QObject::connect(&job, &ScreenshotJob::finished, &job, [](bool ok, const QString &message) {
        print(ok ? stdout : stderr, message);
        QCoreApplication::exit(ok ? kExitSuccess : kExitFailure);
    });
    job.start();
    return QCoreApplication::exec();
}

} // namespace

void print(FILE *file, const QString &text)
{
    QTextStream(file) << text << Qt::endl;
}

void prepareApplication(const QString &name)
{
    QCoreApplication::setOrganizationName(QStringLiteral("ombrin"));
    QCoreApplication::setApplicationName(name);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

std::optional<int> runWithoutWindows(const CommandLine &commandLine,
                                     const QStringList &oneDensityArguments)
{
    switch (commandLine.task) {
    case CommandLine::Task::Print:
        print(stdout, commandLine.message);
        return kExitSuccess;
    case CommandLine::Task::Refuse:
        if (isForQt())
            break;
        print(stderr, commandLine.message);
        return kExitWrongArguments;
    case CommandLine::Task::TakeScreenshots:
        return takeScreenshots(commandLine.directory, oneDensityArguments);
    case CommandLine::Task::TakeOneDensity:
    case CommandLine::Task::Show:
        break;
    }
    return std::nullopt;
}

int exitCodeOf(const QString &error)
{
    if (error.isEmpty())
        return kExitSuccess;
    print(stderr, error);
    return kExitFailure;
}

} // namespace example
