#pragma once

#include "actions/export/exporter.h"

#include <QStringList>

namespace MirrixTest {

inline constexpr Mirrix::ExportOptions everything;
inline constexpr Mirrix::ExportOptions checkedOnly = {true, true, false};
inline constexpr Mirrix::ExportOptions bare = {false, false, false};
inline constexpr Mirrix::ExportOptions redacted = {false, true, true};

[[nodiscard]] inline MirrixCore::FileEntry entry(const QString &path, qint64 size = 1, qint64 modifiedMs = 0)
{
    MirrixCore::FileEntry file;
    file.path = path;
    file.size = size;
    file.modifiedMs = modifiedMs;
    return file;
}

/// One group without a key.
[[nodiscard]] inline Mirrix::ExportRecords recordsOf(const QStringList &paths)
{
    MirrixCore::DuplicateGroup group;
    for (const QString &path : paths)
        group.files.append(entry(path));
    return {{group}, {}};
}

} // namespace MirrixTest
