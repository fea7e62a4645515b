#pragma once

#include <QString>

namespace Mirrix {

/// A byte count for display in steps of 1024: TB and GB with two decimals, MB with one, KB and B with none.
[[nodiscard]] QString sizeText(qint64 bytes);

} // namespace Mirrix
