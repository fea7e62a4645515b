#pragma once

#include "core/model/scanprogress.h"

#include <QSize>

#include <condition_variable>
#include <deque>
#include <mutex>

namespace MirrixCore {

/// The memory that pictures may take while they are decoded, shared by all threads: a few bytes can promise a picture
/// of a gigabyte. A caller that asks for more than is left waits, first come, first served. Thread-safe.
class DecodeBudget
{
public:
    explicit DecodeBudget(qint64 totalBytes);

    /// The one of this process: a quarter of the memory, at least 512 MiB.
    [[nodiscard]] static DecodeBudget &ofProcess();

    [[nodiscard]] qint64 totalBytes() const { return m_totalBytes; }

    /// Takes `bytes`, and waits for them as long as others hold them. More than the total is given to one alone, but
    /// never more than twice the total: false then, and when `cancelled` while waiting. A thread that holds some must
    /// not take more.
    [[nodiscard]] bool take(qint64 bytes, const CancelQuery &cancelled);

    /// Gives back what was taken.
    void giveBack(qint64 bytes);

private:
    [[nodiscard]] bool isTurnOf(const void *waiter, qint64 bytes) const;

    const qint64 m_totalBytes;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<const void *> m_waiting;
    qint64 m_takenBytes = 0;
};

/// A part of a budget, held as long as this lives.
class DecodeShare
{
public:
    explicit DecodeShare(qint64 bytes, const CancelQuery &cancelled = {},
                         DecodeBudget &budget = DecodeBudget::ofProcess());
    ~DecodeShare();
    DecodeShare(const DecodeShare &) = delete;
    DecodeShare &operator=(const DecodeShare &) = delete;

    /// Whether the picture may be decoded.
    [[nodiscard]] bool isGranted() const { return m_isGranted; }

private:
    DecodeBudget &m_budget;
    const qint64 m_bytes;
    const bool m_isGranted;
};

/// What decoding a picture of this size takes, in bytes; 0 for an invalid size.
[[nodiscard]] qint64 decodingBytes(const QSize &size);

} // namespace MirrixCore
