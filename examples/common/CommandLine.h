#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QCommandLineParser;

namespace example {

/// What the user asked for on the command line of an example.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(example::CommandLine)

public:
    enum class Task {
        Show,            ///< Open the windows.
        Print,           ///< Print \c message and end well.
        Refuse,          ///< Print \c message as an error.
        TakeScreenshots, ///< Photograph the windows into \c directory.
        TakeOneDensity,  ///< The part of TakeScreenshots that runs in a process of its own.
    };

    Task task = Task::Show;
    QString message;
    QString directory;

    /// The arguments that ask for TakeOneDensity.
    static QStringList oneDensityArguments(const QString &directory);

protected:
    /// Reads \a arguments, the first of which is the program's name, through \a parser, which has
    /// the options of this example; the others are added to it. \a aboutScreenshots explains the
    /// option that takes them. Needs a QCoreApplication.
    void read(QCommandLineParser *parser, const QStringList &arguments,
              const QString &aboutScreenshots);

    void print(const QString &text);
    void refuse(const QString &reason);
};

} // namespace example
