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

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption list(QStringLiteral("list"), tr("Print the names of all pages."));
    const QCommandLineOption page(QStringLiteral("page"), tr("Open the gallery at this page."),
                                  tr("name"));
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows the windows and widgets of ombrin gui."));
    parser.addOptions({list, page});

    CommandLine result;
    result.read(&parser, arguments,
                tr("Save pictures of every page, or of the one named with --page, in this folder: "
                   "active and inactive, at density 1 and 2."));
    if (result.task == Task::Refuse || result.task == Task::Print)
        return result;
    result.page = parser.value(page);
    if (parser.isSet(page) && !findPage(result.page))
        result.refuse(tr("There is no page '%1'; --list prints the names.").arg(result.page));
    else if (parser.isSet(list))
        result.print(pageNames());
    return result;
}

QStringList CommandLine::oneDensityArguments(const QString &directory, const QString &page)
{
    QStringList arguments = example::CommandLine::oneDensityArguments(directory);
    if (!page.isEmpty())
        arguments << QStringLiteral("--page") << page;
    return arguments;
}

} // namespace gallery
