#include "Camera.h"
#include "CommandLine.h"
#include "GalleryWindow.h"
#include "common/Program.h"
#include "common/WindowCamera.h"

#include <ombrin/OmDesktop.h>
#include <ombrin/OmSkin.h>

#include <QtWidgets/QApplication>

namespace gallery {

namespace {

int takeOneDensity(const CommandLine &commandLine)
{
    return example::exitCodeOf(Camera(commandLine.directory).takeAll(commandLine.page));
}

int show(const CommandLine &commandLine)
{
    GalleryWindow window;
    window.showPage(commandLine.page);
    ombrin::OmDesktop::setCentered(&window);
    window.show();
    return QCoreApplication::exec();
}

std::optional<int> runWithoutWindows(CommandLine *commandLine)
{
    *commandLine = CommandLine::parse(QCoreApplication::arguments());
    return example::runWithoutWindows(
            *commandLine,
            CommandLine::oneDensityArguments(commandLine->directory, commandLine->page));
}

int run(int argc, char *argv[])
{
    example::prepareApplication(QStringLiteral("ombrin_gallery"));

    CommandLine commandLine;
    {
        const QCoreApplication application(argc, argv);
        if (const std::optional<int> exitCode = runWithoutWindows(&commandLine))
            return *exitCode;
    }

    const QApplication application(argc, argv);
    if (const std::optional<int> exitCode = runWithoutWindows(&commandLine))
        return *exitCode;
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
