#pragma once

#include "actions/cleaning/spaceaccount.h"
#include "actions/files/batch.h"

#include <QString>

namespace Mirrix {

/// The failures of a batch as the closing boxes list them; empty when there are none.
[[nodiscard]] QString failureText(const BatchResult &result);

/// What a run freed and holds, a line for each that is not nothing.
[[nodiscard]] QString spaceNote(const Space &space);

} // namespace Mirrix
