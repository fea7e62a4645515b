#pragma once

#include "cli/commandhelp.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace MirrixCli {

/// The exit status of the program.
enum class ExitStatus : int
{
    Done = 0,
    SomeFailed = 1, ///< each failure was named on standard error
    WrongUsage = 2,
    Cancelled = 3,
};

/// Runs the command that `arguments` name, the program's own name first, and waits for its end.
[[nodiscard]] ExitStatus runCommandLine(const QStringList &arguments);

/// Thrown by a command for a mistake in its options; the message goes to standard error and the status is WrongUsage.
struct UsageError
{
    QString message;
};

/// The message for an option that takes one of `choices` and was given `value`; an empty one was not given at all.
[[nodiscard]] QString choiceProblem(const QString &option, const QStringList &choices, const QString &value);

/// The help of each command that the usage lists.
[[nodiscard]] QList<CommandHelp> commandHelps();

/// The command line as the record of a run keeps it.
[[nodiscard]] QString commandText();

/// Throws UsageError for a folder whose name is no proper Unicode: the indexes, journals and locks kept in it would end
/// up under another name. `source` says where the folder was given, such as "--target".
void requireUnicodeName(const QString &source, const QString &folder);

/// The data directory that the common options choose, absolute: for settings and caches, whatever its name.
[[nodiscard]] QString dataDirectoryOf(const QCommandLineParser &parser);

/// The same for records, too. Throws UsageError as requireUnicodeName.
[[nodiscard]] QString recordsDirectoryOf(const QCommandLineParser &parser);

} // namespace MirrixCli
