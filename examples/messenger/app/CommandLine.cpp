#include "app/CommandLine.h"

#include "model/Contact.h"

#include <QtCore/QCommandLineParser>

namespace messenger {

CommandLine CommandLine::refusal(const QString &reason)
{
    CommandLine result;
    result.task = Task::Refuse;
    result.message = reason + QLatin1Char('\n') + tr("Try --help.");
    return result;
}

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption help({QStringLiteral("help"), QStringLiteral("h")},
                                  tr("Print this help."));
    const QCommandLineOption profile(
            QStringLiteral("profile"),
            tr("Be somebody of your own: account, contacts and conversations are kept "
               "under this name. Without it the first copy is \"main\", the second "
               "\"guest-2\" and so on."),
            tr("name"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      tr("Speak this language, for example \"de\"."), tr("code"));
    const QCommandLineOption screenshots(
            QStringLiteral("screenshots"),
            tr("Save pictures of the windows in this folder, at density 1 and 2."), tr("folder"));
    QCommandLineOption oneDensity(QStringLiteral("one-density"));
    oneDensity.setFlags(QCommandLineOption::HiddenFromHelp);

    QCommandLineParser parser;
    parser.setApplicationDescription(
            tr("A small messenger built with ombrin gui. Start it twice and chat."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({help, profile, language, screenshots, oneDensity});

    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refusal(tr("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));

    CommandLine result;
    result.profile = parser.value(profile);
    result.language = parser.value(language);
    result.directory = parser.value(screenshots);
    if (parser.isSet(profile) && !isContactId(result.profile))
        return refusal(tr("The name of a profile has letters a to z, digits and hyphens."));
    if (parser.isSet(screenshots) && result.directory.isEmpty())
        return refusal(tr("--screenshots needs the name of a folder."));

    if (parser.isSet(help)) {
        result.task = Task::Print;
        result.message = parser.helpText().trimmed();
    } else if (parser.isSet(screenshots)) {
        result.task = parser.isSet(oneDensity) ? Task::TakeOneDensity : Task::TakeScreenshots;
    }
    return result;
}

QStringList CommandLine::oneDensityArguments(const CommandLine &commandLine)
{
    QStringList arguments = {QStringLiteral("--one-density"), QStringLiteral("--screenshots"),
                             commandLine.directory};
    if (!commandLine.language.isEmpty())
        arguments << QStringLiteral("--language") << commandLine.language;
    return arguments;
}

} // namespace messenger
