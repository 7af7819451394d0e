#include "app/Camera.h"
#include "app/Client.h"
#include "app/CommandLine.h"
#include "app/Languages.h"
#include "common/Program.h"
#include "common/SkinPictures.h"
#include "common/WindowCamera.h"
#include "model/ContactBook.h"
#include "model/Session.h"
#include "peers/PeerRegistry.h"

#include <ombrin/OmSkin.h>

#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

namespace messenger {

namespace {

using example::kExitFailure;
using example::kExitSuccess;
using example::print;
constexpr int kMostGuests = 20;

ContactBook loadBook()
{
    ContactBook book = ContactBook::load(QCoreApplication::applicationDirPath()
                                         + QStringLiteral("/messenger/contacts.json"));
    for (const QString &problem : book.problems())
        print(stderr, problem);
    return book;
}

/// The profile that was named, or the first that no other copy has; null if there is none.
std::unique_ptr<ProfileFolder> takeProfile(const QString &name)
{
    for (int guest = 1; guest <= kMostGuests; ++guest) {
        QString candidate = name;
        if (name.isEmpty())
            candidate = guest == 1 ? QStringLiteral("main") : QStringLiteral("guest-%1").arg(guest);
        auto folder = std::make_unique<ProfileFolder>(ProfileFolder::pathFor(candidate));
        if (folder->lock())
            return folder;
        if (!name.isEmpty())
            break;
    }
    return nullptr;
}

int takeOneDensity(const CommandLine &commandLine)
{
    return example::exitCodeOf(Camera(commandLine.directory, loadBook()).takeAll());
}

int chat(const CommandLine &commandLine)
{
    const std::unique_ptr<ProfileFolder> folder = takeProfile(commandLine.profile);
    if (!folder) {
        print(stderr,
              CommandLine::tr(
                      "This profile cannot be used: another copy has it, or its folder cannot be "
                      "written to."));
        return kExitFailure;
    }
    // Contact cards write a line whenever they become big or small.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QApplication::setQuitOnLastWindowClosed(false);
    Session session(*folder, loadBook());
    Client client(&session);
    if (!client.start())
        return kExitSuccess;
    session.goOnline(PeerRegistry::defaultPath());
    return QCoreApplication::exec();
}

std::optional<int> runWithoutWindows(CommandLine *commandLine)
{
    const Languages languages{QString()};
    *commandLine = CommandLine::parse(QCoreApplication::arguments());
    return example::runWithoutWindows(*commandLine, commandLine->oneDensityArguments());
}

int run(int argc, char *argv[])
{
    example::prepareApplication(QStringLiteral("ombrin_messenger"));

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
    QApplication::setWindowIcon(example::skinIcon(QStringLiteral("chat-32")));
    const Languages languages(commandLine.language);
    return commandLine.task == CommandLine::Task::TakeOneDensity ? takeOneDensity(commandLine)
                                                                 : chat(commandLine);
}

} // namespace

} // namespace messenger

int main(int argc, char *argv[])
{
    return messenger::run(argc, argv);
}
