#pragma once

#include "cli/commandhelp.h"

#include <QByteArray>

namespace MirrixCli {

/// The shells that completionFor knows.
[[nodiscard]] QStringList completionShells();

/// A script that completes commands, options, the choices of options, and names of scan options; files everywhere else.
/// bash and fish read it at their start, zsh from a folder of its $fpath as "_mirrix-cli", PowerShell from the profile.
[[nodiscard]] QByteArray completionFor(const QString &shell, const QList<CommandHelp> &commands);

} // namespace MirrixCli
