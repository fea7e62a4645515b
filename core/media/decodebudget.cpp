#include "core/media/decodebudget.h"

#include "core/platform/memory.h"

#include <algorithm>
#include <chrono>

namespace MirrixCore {

DecodeBudget::DecodeBudget(qint64 totalBytes)
    : m_totalBytes(totalBytes)
{}

DecodeBudget &DecodeBudget::ofProcess()
{
    constexpr qint64 leastBytes = qint64(512) << 20;
    static DecodeBudget budget(std::max(memoryBytes() / 4, leastBytes));
    return budget;
}

bool DecodeBudget::isTurnOf(const void *waiter, qint64 bytes) const
{
    // One that needs more than the whole budget is decoded alone.
    return m_waiting.front() == waiter && (m_takenBytes == 0 || m_takenBytes + bytes <= m_totalBytes);
}

bool DecodeBudget::take(qint64 bytes, const CancelQuery &cancelled)
{
    constexpr std::chrono::milliseconds pollInterval(50); // `cancelled` can only be asked
    if (bytes <= 0 || bytes > 2 * m_totalBytes)
        return bytes <= 0;
    std::unique_lock lock(m_mutex);
    const void *self = &bytes;
    m_waiting.push_back(self);
    while (!isTurnOf(self, bytes) && !isCancelled(cancelled))
        m_changed.wait_for(lock, pollInterval);
    const bool isTaken = isTurnOf(self, bytes);
    if (isTaken)
        m_takenBytes += bytes;
    std::erase(m_waiting, self);
    m_changed.notify_all(); // the next one's turn
    return isTaken;
}

void DecodeBudget::giveBack(qint64 bytes)
{
    {
        const std::lock_guard lock(m_mutex);
        m_takenBytes -= bytes;
    }
    m_changed.notify_all();
}

DecodeShare::DecodeShare(qint64 bytes, const CancelQuery &cancelled, DecodeBudget &budget)
    : m_budget(budget)
    , m_bytes(bytes)
    , m_isGranted(budget.take(bytes, cancelled))
{}

DecodeShare::~DecodeShare()
{
    if (m_isGranted)
        m_budget.giveBack(m_bytes);
}

qint64 decodingBytes(const QSize &size)
{
    // Three or four for the colours and one for the grey copy; some decoders keep as much again for themselves, those
    // of WebP without loss and of progressive JPEG.
    constexpr qint64 bytesPerPixel = 8;
    return size.isValid() ? bytesPerPixel * size.width() * size.height() : 0;
}

} // namespace MirrixCore
