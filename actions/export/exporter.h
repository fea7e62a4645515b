#pragma once

#include "actions/export/exportrecords.h"

#include <QDateTime>

namespace Mirrix {

/// What results become; the numbers are those of the dialog.
enum class ExportFormat : int
{
    Csv = 0,
    TextReport = 1,
    Copies = 2,
    DeletionScript = 3
};

/// What the user asks for.
struct ExportRequest
{
    ExportFormat format = ExportFormat::Csv;
    QString path; ///< a file, or the folder for copies
    ExportOptions options;

    bool operator==(const ExportRequest &) const = default;
};

/// The outcome of an export.
struct ExportOutcome
{
    bool isDone = false;
    bool isCancelled = false;
    QString message;    ///< translated: why it failed, or how many files were copied
    QStringList errors; ///< of single files, translated; the rest was exported

    bool operator==(const ExportOutcome &) const = default;
};

/// Writes the results to `request.path`. A list or script takes the place of an earlier file only when it is whole;
/// otherwise the disk is left as it was. Copies go under their own names into a folder made as needed; none replaces a
/// file, each failure is reported, and what was copied before a cancellation stays. `modeName` and `now` are for the
/// text report. Blocks; run it off the interface thread. Thread-safe.
[[nodiscard]] ExportOutcome writeExport(const ExportRecords &records, const ExportRequest &request,
                                        const QString &modeName, const QDateTime &now,
                                        const BatchProgress &progress = {});

/// The default name of a file of this format: "Mirrix_20240131_0915.csv". Empty for copies.
[[nodiscard]] QString defaultExportName(ExportFormat format, const QDateTime &now);

} // namespace Mirrix
