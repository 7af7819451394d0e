#include "app/CommandLine.h"

#include "model/Contact.h"

#include <QtCore/QCommandLineParser>

namespace messenger {

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption profile(
            QStringLiteral("profile"),
            tr("Use a profile of your own: account, contacts and conversations are kept under this "
               "name. Without it the first copy uses \"main\", the second \"guest-2\" and so on."),
            tr("name"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      tr("Speak this language, for example \"de\"."), tr("code"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
            tr("A small messenger built with ombrin gui. Start it twice and chat."));
    parser.addOptions({profile, language});

    CommandLine result;
    result.read(&parser, arguments,
                tr("Save pictures of the windows in this folder, at density 1 and 2."));
    if (result.task == Task::Refuse || result.task == Task::Print)
        return result;
    result.profile = parser.value(profile);
    result.language = parser.value(language);
    if (parser.isSet(profile) && !isContactId(result.profile))
        result.refuse(tr("The name of a profile has letters a to z, digits and hyphens."));
    return result;
}

QStringList CommandLine::oneDensityArguments() const
{
    QStringList arguments = example::CommandLine::oneDensityArguments(directory);
    if (!language.isEmpty())
        arguments << QStringLiteral("--language") << language;
    return arguments;
}

} // namespace messenger
