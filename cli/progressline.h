#pragma once

#include "core/model/scanprogress.h"

#include <QElapsedTimer>

namespace MirrixCli {

/// One line on standard error that shows how far a scan is, redrawn at most ten times a second; nothing when standard
/// error is no terminal. One thread at a time.
class ProgressLine
{
public:
    /// Shows nothing unless `isShown`.
    explicit ProgressLine(bool isShown = true);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void show(const MirrixCore::ScanProgress &progress);

    /// Removes the line.
    void clear();

private:
    bool m_isActive;
    bool m_isShown = false;
    QString m_phase;
    QElapsedTimer m_sinceDrawn;
};

/// The text of the line, cut to `columns`: phase, counts, and as much of the path's end as fits.
[[nodiscard]] QString progressText(const MirrixCore::ScanProgress &progress, int columns);

} // namespace MirrixCli
