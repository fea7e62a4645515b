#pragma once

#include "cli/commandhelp.h"

#include <QByteArray>

namespace MirrixCli {

/// The manual page (section 1, roff) of the whole program, and of one command.
[[nodiscard]] QByteArray programPage(const QList<CommandHelp> &commands);
[[nodiscard]] QByteArray commandPage(const CommandHelp &command);

} // namespace MirrixCli
