#pragma once

#include <QString>

namespace MirrixCore {

/// Sets the folder that holds the caches: the program's data directory. Call once at start-up, before the first scan.
/// An empty text, the state before the first call, turns the caches off: nothing is found and nothing is stored.
void setCacheRoot(const QString &dataDirectory);

/// The folder given last. Thread-safe.
[[nodiscard]] QString cacheRoot();

/// Names of the caches' folders inside the root.
inline const QString fingerprintCacheName = QStringLiteral("fingerprint_cache");
inline const QString imageFeatureCacheName = QStringLiteral("image_feature_cache");

/// Where a cache keeps its entry for a file: below its folder, by the SHA-256 digest of the file's path; empty while
/// the caches are off. Thread-safe.
[[nodiscard]] QString cacheEntryPath(const QString &cacheName, const QString &filePath);

} // namespace MirrixCore
