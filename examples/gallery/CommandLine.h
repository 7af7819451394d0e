#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace gallery {

/// What the user asked for on the command line.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Task {
        Show,            ///< Open the gallery at \c page.
        Print,           ///< Print \c message and end well.
        Refuse,          ///< Print \c message as an error.
        TakeScreenshots, ///< Photograph \c page, or every page, into \c directory.
        TakeOneDensity,  ///< The part of TakeScreenshots that runs in a process of its own.
    };

    Task task = Task::Show;
    QString message;
    QString page; ///< Empty where none was named.
    QString directory;

    /// Reads \a arguments, the first of which is the program's name. Needs a QCoreApplication.
    static CommandLine parse(const QStringList &arguments);

    /// The arguments with which parse() answers TakeOneDensity.
    static QStringList oneDensityArguments(const QString &directory, const QString &page);

private:
    static CommandLine refusal(const QString &reason);
};

} // namespace gallery
