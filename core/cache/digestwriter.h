#pragma once

#include "core/cache/fingerprintcache.h"
#include "core/model/fileentry.h"
#include "core/model/scanprogress.h"

#include <QElapsedTimer>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace MirrixCore {

/// Writes the digests of a scan into the fingerprint cache during the scan, so that a crash or kill loses only the last
/// few. One thread, since the cache takes one entry at a time anyway. Once the scan is cancelled, it continues for a
/// tenth of a second and drops the rest.
class DigestWriter
{
public:
    explicit DigestWriter(const CancelQuery &cancelled);
    ~DigestWriter();
    DigestWriter(const DigestWriter &) = delete;
    DigestWriter &operator=(const DigestWriter &) = delete;

    /// Has the digests of `file` written under its size and time; without a full digest, the quick one. Waits while
    /// many others are to be written first. Thread-safe.
    void add(const FileEntry &file, const Fingerprint &digests);

    /// Waits until all are written. Nothing may be added afterwards.
    void finish();

private:
    struct Entry
    {
        QString path;
        qint64 sizeBytes;
        qint64 modifiedMs;
        Fingerprint digests;
    };

    static void write(const Entry &entry);
    [[nodiscard]] bool startThread();
    void work();
    [[nodiscard]] bool isTimeOver();

    const CancelQuery &m_cancelled;
    std::mutex m_mutex; ///< for the members below
    std::condition_variable m_changed;
    std::deque<Entry> m_entries;
    bool m_isFinishing = false;
    QElapsedTimer m_sinceCancelled;
    std::thread m_thread; ///< none before the first entry, and where the system refuses one
};

} // namespace MirrixCore
