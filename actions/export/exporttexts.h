#pragma once

#include "actions/export/exportrecords.h"

#include <QDateTime>

namespace Mirrix {

// The lists that results are written as: UTF-8 with "\n" behind each line, handed on piece by piece so that no second
// copy of a large result is made. File names that are no proper Unicode keep their own bytes. Thread-safe. Each writer
// returns false when the sink or the progress ended it early.

/// The path with native separators and three asterisks in place of the name of a user's folder below "Users" on a
/// drive.
[[nodiscard]] QString redactedPath(const QString &path);

/// The same inside a group's key, which may hold paths or beginnings of paths.
[[nodiscard]] QString redactedKey(const QString &key);

/// A table with the columns group (from 1), path, size in bytes, modified (milliseconds since the Unix epoch) and key.
/// The path is always in quotes, a key only when it holds what would end its field.
[[nodiscard]] bool writeCsv(const ExportRecords &records, const ExportOptions &options, const ByteSink &sink,
                            const BatchProgress &progress = {});

/// A translated report for people.
[[nodiscard]] bool writeTextReport(const ExportRecords &records, const ExportOptions &options, const QString &modeName,
                                   const QDateTime &now, const ByteSink &sink, const BatchProgress &progress = {});

} // namespace Mirrix
