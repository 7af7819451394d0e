#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace messenger {

/// What the user asked for on the command line.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Task {
        Chat,
        Print,           ///< Print \c message and end well.
        Refuse,          ///< Print \c message as an error.
        TakeScreenshots, ///< Photograph the windows into \c directory.
        TakeOneDensity,  ///< The part of TakeScreenshots that runs in a process of its own.
    };

    Task task = Task::Chat;
    QString message;
    QString profile; ///< Empty where none was named.
    QString language;
    QString directory;

    /// Reads \a arguments, the first of which is the program's name. Needs a QCoreApplication.
    static CommandLine parse(const QStringList &arguments);

    /// The arguments with which parse() answers TakeOneDensity.
    static QStringList oneDensityArguments(const CommandLine &commandLine);

private:
    static CommandLine refusal(const QString &reason);
};

} // namespace messenger
