#pragma once

#include <QString>

namespace Mirrix {

/// A point in time for display, local; empty when unknown (below 1).
[[nodiscard]] QString secondText(qint64 ms);

} // namespace Mirrix
