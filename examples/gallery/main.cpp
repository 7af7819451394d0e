#include "Camera.h"
#include "CommandLine.h"
#include "GalleryWindow.h"
#include "common/ScreenshotJob.h"
#include "common/WindowCamera.h"

#include <ombrin/OmDesktop.h>
#include <ombrin/OmSkin.h>

#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace gallery {

namespace {

constexpr int kExitSuccess = 0;
constexpr int kExitFailure = 1;
constexpr int kExitWrongArguments = 2;

void print(FILE *file, const QString &text)
{
    QTextStream(file) << text << Qt::endl;
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ombrin"));
    QCoreApplication::setApplicationName(QStringLiteral("ombrin_gallery"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

int takeScreenshots(const CommandLine &commandLine)
{
    example::ScreenshotJob job(
            commandLine.directory,
            CommandLine::oneDensityArguments(commandLine.directory, commandLine.page));
    QObject::connect(&job, &example::ScreenshotJob::finished, &job,
                     [](bool ok, const QString &message) {
                         print(ok ? stdout : stderr, message);
                         QCoreApplication::exit(ok ? kExitSuccess : kExitFailure);
                     });
    job.start();
    return QCoreApplication::exec();
}

int takeOneDensity(const CommandLine &commandLine)
{
    const QString error = Camera(commandLine.directory).takeAll(commandLine.page);
    if (error.isEmpty())
        return kExitSuccess;
    print(stderr, error);
    return kExitFailure;
}

int show(const CommandLine &commandLine)
{
    GalleryWindow window;
    window.showPage(commandLine.page);
    ombrin::OmDesktop::setCentered(&window);
    window.show();
    return QCoreApplication::exec();
}

int run(int argc, char *argv[])
{
    nameApplication();

    // What needs no window must work where there is no display.
    CommandLine commandLine;
    {
        const QCoreApplication application(argc, argv);
        commandLine = CommandLine::parse(QCoreApplication::arguments());
        switch (commandLine.task) {
        case CommandLine::Task::Print:
            print(stdout, commandLine.message);
            return kExitSuccess;
        case CommandLine::Task::Refuse:
            print(stderr, commandLine.message);
            return kExitWrongArguments;
        case CommandLine::Task::TakeScreenshots:
            return takeScreenshots(commandLine);
        case CommandLine::Task::TakeOneDensity:
        case CommandLine::Task::Show:
            break;
        }
    }

    const QApplication application(argc, argv);
    if (commandLine.task == CommandLine::Task::TakeOneDensity)
        example::pinLook();
    ombrin::OmSkin::init(true);
    return commandLine.task == CommandLine::Task::TakeOneDensity ? takeOneDensity(commandLine)
                                                                 : show(commandLine);
}

} // namespace

} // namespace gallery

int main(int argc, char *argv[])
{
    return gallery::run(argc, argv);
}
