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

int run(int argc, char *argv[])
{
    example::prepareApplication(QStringLiteral("ombrin_gallery"));

    CommandLine commandLine;
    {
        const QCoreApplication application(argc, argv);
        commandLine = CommandLine::parse(QCoreApplication::arguments());
        const std::optional<int> exitCode = example::runWithoutWindows(
                commandLine,
                CommandLine::oneDensityArguments(commandLine.directory, commandLine.page));
        if (exitCode)
            return *exitCode;
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
