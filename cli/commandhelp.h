#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace MirrixCli {

/// An option as the help of a command shows it.
struct OptionHelp
{
    QStringList names; ///< with their dashes: "-q", "--quiet"
    QString valueName; ///< empty for an option without a value
    QString description;

    /// The words to choose from, which follow the description's first colon: "Report format: text (default), json or
    /// csv." What is in parentheses does not count. Empty when anything but single words follows.
    [[nodiscard]] QStringList choices() const;
};

struct CommandHelp
{
    QString name;
    QString summary; ///< what it does, as a verb in the infinitive
    QString usage;   ///< the arguments behind the options: "FOLDER..."
    QList<OptionHelp> options;
};

/// Reads the help that QCommandLineParser prints back into its parts: the parser does not offer them otherwise.
[[nodiscard]] CommandHelp commandHelpFrom(const QString &name, const QString &summary, const QString &helpText);

} // namespace MirrixCli
