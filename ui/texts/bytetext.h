#pragma once

#include <QString>

namespace Mirrix {

/// A byte count as the window shows it, in steps of 1024: GB and MB with two decimals, KB with one, B whole. Not
/// translated. The list of drives, which reaches TB, has sizeText of app/sizetext.h.
[[nodiscard]] QString formatSize(qint64 bytes);

} // namespace Mirrix
