#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdio>
#include <optional>

namespace example {

struct CommandLine;

constexpr int kExitSuccess = 0;
constexpr int kExitFailure = 1;
constexpr int kExitWrongArguments = 2;

/// Writes a line to \a file.
void print(FILE *file, const QString &text);

/// What the name of the settings and sharp pictures need; before the application object is made.
void prepareApplication(const QString &name);

/// Does what needs no window, and thus no display, and returns the exit code; nothing where
/// \a commandLine asks for windows. Needs a QCoreApplication; where it is no more than that, Qt's
/// own options are not refused: only a QApplication takes them out of the arguments.
/// \a oneDensityArguments are those with which this program takes the screenshots that
/// \a commandLine wants.
std::optional<int> runWithoutWindows(const CommandLine &commandLine,
                                     const QStringList &oneDensityArguments);

/// The exit code of something whose \a error is empty if it succeeded; prints it otherwise.
int exitCodeOf(const QString &error);

} // namespace example
