#pragma once

#include "actions/records/operationslog.h"

#include <QString>

namespace MirrixCli {

/// A record of the operations log in words: "deleted: 2 files". What is not known stays as it was recorded.
[[nodiscard]] QString logText(const Mirrix::LogEntry &entry);

} // namespace MirrixCli
