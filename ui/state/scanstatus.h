#pragma once

#include "core/model/scanprogress.h"
#include "ui/state/resultset.h"

#include <QString>

#include <optional>

namespace Mirrix {

/// What a phase is called in the window; a phase without a name shows its key.
[[nodiscard]] QString phaseName(const QString &phase);

/// One line on the progress of the scan.
[[nodiscard]] QString progressText(const MirrixCore::ScanProgress &progress);

/// The value of the progress bar, 0 to 100; no value when it is to stay as it is.
[[nodiscard]] std::optional<int> progressPercent(const MirrixCore::ScanProgress &progress);

/// The figures of a finished scan in one line.
[[nodiscard]] QString resultSummary(const ResultSet &results);

/// Lets a new text through when the phase is another or enough time has passed, so that a fast stream of reports does
/// not flood the label.
class ProgressThrottle
{
public:
    /// `nowMs`: milliseconds of any clock that does not run backwards.
    [[nodiscard]] bool admits(const QString &phase, qint64 nowMs);
    void reset() { m_phase.clear(); }

private:
    QString m_phase;
    qint64 m_shownMs = 0;
};

} // namespace Mirrix
