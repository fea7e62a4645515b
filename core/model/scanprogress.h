#pragma once

#include <QMetaType>
#include <QString>

#include <functional>

namespace MirrixCore {

/// A progress report.
struct ScanProgress
{
    qint64 filesFound = 0; ///< files enumerated so far, later the files in the matcher's input
    qint64 processed = 0;  ///< items finished in the current phase
    qint64 total = 0;      ///< items in the current phase; 0 = unknown
    QString currentPath;   ///< the file or folder being worked on
    QString phase;         ///< one of Phase

    bool operator==(const ScanProgress &) const = default;
};

/// Names of the phases, as ScanProgress carries them.
namespace Phase {
inline const QString Enumerating = QStringLiteral("enumerating");
inline const QString Metadata = QStringLiteral("metadata");
inline const QString QuickHash = QStringLiteral("quick-hash");
inline const QString FullHash = QStringLiteral("full-hash");
inline const QString PrefixHash = QStringLiteral("prefix-hash");
inline const QString SampleHash = QStringLiteral("sample-hash");
inline const QString SimilarContent = QStringLiteral("similar-content");
inline const QString ImageHash = QStringLiteral("image-hash");
} // namespace Phase

/// Receives progress reports. May be empty: no reports. Called from the scanning thread or from a pool thread, never
/// from two threads at once.
using ProgressCallback = std::function<void(const ScanProgress &)>;

/// Answers whether the work is to stop. May be empty: never. Called from many threads at once.
using CancelQuery = std::function<bool()>;

/// Asks `query`; false when it is empty.
[[nodiscard]] inline bool isCancelled(const CancelQuery &query)
{
    return query && query();
}

} // namespace MirrixCore

Q_DECLARE_METATYPE(MirrixCore::ScanProgress)
