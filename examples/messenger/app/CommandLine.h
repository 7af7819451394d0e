#pragma once

#include "common/CommandLine.h"

namespace messenger {

/// What the user asked for on the command line.
struct CommandLine : example::CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QString profile; ///< Empty where none was named.
    QString language;

    /// Reads \a arguments, the first of which is the program's name. Needs a QCoreApplication.
    static CommandLine parse(const QStringList &arguments);

    /// The arguments with which parse() answers TakeOneDensity.
    QStringList oneDensityArguments() const;
};

} // namespace messenger
