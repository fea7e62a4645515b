#pragma once

#include "actions/records/operationslog.h"

namespace Mirrix {

// The plain text of the operations log: a compact JSON array of objects with the members "t", "a" and "d" in that
// order. Thread-safe.

/// The records of a text; none when it is no array. A missing member is 0 or empty.
[[nodiscard]] QList<LogEntry> logRecordsOf(const QByteArray &text);

/// The text, or an empty array where it is none, with `records` at its end. What it holds stays as it is.
[[nodiscard]] QByteArray withLogRecords(QByteArray text, const QList<LogEntry> &records);

} // namespace Mirrix
