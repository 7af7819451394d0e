#include "common/CommandLine.h"

#include <QtCore/QCommandLineParser>

namespace example {

QStringList CommandLine::oneDensityArguments(const QString &directory)
{
    return {QStringLiteral("--one-density"), QStringLiteral("--screenshots"), directory};
}

void CommandLine::read(QCommandLineParser *parser, const QStringList &arguments,
                       const QString &aboutScreenshots)
{
    const QCommandLineOption help({QStringLiteral("help"), QStringLiteral("h")},
                                  tr("Print this help."));
    const QCommandLineOption screenshots(QStringLiteral("screenshots"), aboutScreenshots,
                                         tr("folder"));
    QCommandLineOption oneDensity(QStringLiteral("one-density"));
    oneDensity.setFlags(QCommandLineOption::HiddenFromHelp);
    parser->setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser->addOptions({screenshots, help, oneDensity});

    if (!parser->parse(arguments))
        return refuse(parser->errorText());
    if (!parser->positionalArguments().isEmpty())
        return refuse(tr("Unexpected argument '%1'.").arg(parser->positionalArguments().first()));
    directory = parser->value(screenshots);
    if (parser->isSet(screenshots) && directory.isEmpty())
        return refuse(tr("--screenshots needs the name of a folder."));

    if (parser->isSet(help))
        print(parser->helpText().trimmed());
    else if (parser->isSet(screenshots))
        task = parser->isSet(oneDensity) ? Task::TakeOneDensity : Task::TakeScreenshots;
}

void CommandLine::print(const QString &text)
{
    task = Task::Print;
    message = text;
}

void CommandLine::refuse(const QString &reason)
{
    task = Task::Refuse;
    message = reason + QLatin1Char('\n') + tr("Try --help.");
}

} // namespace example
