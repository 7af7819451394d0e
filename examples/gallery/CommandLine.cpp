#include "CommandLine.h"

#include "GalleryPage.h"

#include <QtCore/QCommandLineParser>

namespace gallery {

namespace {

QString pageNames()
{
    QStringList names;
    for (const GalleryPage *page : allPages())
        names.append(page->nameText());
    return names.join(QLatin1Char('\n'));
}

} // namespace

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
    const QCommandLineOption list(QStringLiteral("list"), tr("Print the names of all pages."));
    const QCommandLineOption page(QStringLiteral("page"), tr("Open the gallery at this page."),
                                  tr("name"));
    const QCommandLineOption screenshots(
            QStringLiteral("screenshots"),
            tr("Save pictures of every page, or of the one named with --page, in this folder: "
               "active and inactive, at density 1 and 2."),
            tr("folder"));
    QCommandLineOption oneDensity(QStringLiteral("one-density"));
    oneDensity.setFlags(QCommandLineOption::HiddenFromHelp);

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows the windows and widgets of ombrin gui."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({help, list, page, screenshots, oneDensity});

    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refusal(tr("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));

    CommandLine result;
    result.page = parser.value(page);
    result.directory = parser.value(screenshots);
    if (parser.isSet(page) && !findPage(result.page))
        return refusal(tr("There is no page '%1'; --list prints the names.").arg(result.page));
    if (parser.isSet(screenshots) && result.directory.isEmpty())
        return refusal(tr("--screenshots needs the name of a folder."));

    if (parser.isSet(help)) {
        result.task = Task::Print;
        result.message = parser.helpText().trimmed();
    } else if (parser.isSet(list)) {
        result.task = Task::Print;
        result.message = pageNames();
    } else if (parser.isSet(screenshots)) {
        result.task = parser.isSet(oneDensity) ? Task::TakeOneDensity : Task::TakeScreenshots;
    }
    return result;
}

QStringList CommandLine::oneDensityArguments(const QString &directory, const QString &page)
{
    QStringList arguments = {QStringLiteral("--one-density"), QStringLiteral("--screenshots"),
                             directory};
    if (!page.isEmpty())
        arguments << QStringLiteral("--page") << page;
    return arguments;
}

} // namespace gallery
