#pragma once

#include "common/CommandLine.h"

namespace gallery {

/// What the user asked for on the command line.
struct CommandLine : example::CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /// The page to open or to photograph; empty where none was named.
    QString page;

    /// Reads \a arguments, the first of which is the program's name. Needs a QCoreApplication.
    static CommandLine parse(const QStringList &arguments);

    /// The arguments with which parse() answers TakeOneDensity for \a page, or all.
    static QStringList oneDensityArguments(const QString &directory, const QString &page);
};

} // namespace gallery
