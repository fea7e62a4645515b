#pragma once

#include <QString>

namespace Mirrix {

/// The tabs of the results page, in order.
enum class ResultsTab
{
    Duplicates,
    Folders,
    Remaining
};

/// What the batch actions depend on.
struct BatchState
{
    ResultsTab tab = ResultsTab::Duplicates;
    bool isScanning = false;
    bool hasGroups = false;
    qsizetype marked = 0; ///< ticked files in all

    [[nodiscard]] bool isActive() const { return !isScanning && hasGroups && tab == ResultsTab::Duplicates; }
};

/// Why the batch actions are disabled, or how many files are ticked.
[[nodiscard]] QString batchNote(const BatchState &state);

} // namespace Mirrix
