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

/// What decides about the batch actions.
struct BatchState
{
    ResultsTab tab = ResultsTab::Duplicates;
    bool isScanning = false;
    bool hasGroups = false;
    qsizetype marked = 0; ///< ticked files in all

    [[nodiscard]] bool isActive() const { return !isScanning && hasGroups && tab == ResultsTab::Duplicates; }
};

/// Why the batch actions rest, or how many files are ticked.
[[nodiscard]] QString batchNote(const BatchState &state);

} // namespace Mirrix
