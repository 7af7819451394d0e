#include "app/Camera.h"
#include "app/Client.h"
#include "app/CommandLine.h"
#include "app/Languages.h"
#include "common/ScreenshotJob.h"
#include "common/SkinPictures.h"
#include "common/WindowCamera.h"
#include "model/ContactBook.h"
#include "model/Session.h"
#include "peers/PeerRegistry.h"

#include <ombrin/OmSkin.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace messenger {

namespace {

constexpr int kExitSuccess = 0;
constexpr int kExitFailure = 1;
constexpr int kExitWrongArguments = 2;
constexpr int kMostGuests = 20;

void print(FILE *file, const QString &text)
{
    QTextStream(file) << text << Qt::endl;
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ombrin"));
    QCoreApplication::setApplicationName(QStringLiteral("ombrin_messenger"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

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

int takeScreenshots(const CommandLine &commandLine)
{
    example::ScreenshotJob job(commandLine.directory,
                               CommandLine::oneDensityArguments(commandLine));
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
    const QString error = Camera(commandLine.directory, loadBook()).takeAll();
    if (error.isEmpty())
        return kExitSuccess;
    print(stderr, error);
    return kExitFailure;
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
        case CommandLine::Task::Chat:
            break;
        }
    }

    const QApplication application(argc, argv);
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
