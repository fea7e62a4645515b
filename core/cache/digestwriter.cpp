#include "core/cache/digestwriter.h"

#include <system_error>

namespace MirrixCore {

namespace {

/// How many entries may wait: so few that they are written in well under a second.
constexpr size_t mostWaiting = 256;

/// How long a cancelled scan may continue to write.
constexpr qint64 cancelledWriteMs = 100;

} // namespace

DigestWriter::DigestWriter(const CancelQuery &cancelled)
    : m_cancelled(cancelled)
{}

DigestWriter::~DigestWriter()
{
    finish();
}

void DigestWriter::add(const FileEntry &file, const Fingerprint &digests)
{
    const Entry entry = {file.path, file.size, file.modifiedMs, digests};
    std::unique_lock lock(m_mutex);
    if (!startThread()) {
        if (!isTimeOver())
            write(entry);
        return;
    }
    m_changed.wait(lock, [this] { return m_entries.size() < mostWaiting; });
    m_entries.push_back(entry);
    m_changed.notify_all();
}

void DigestWriter::finish()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isFinishing = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void DigestWriter::write(const Entry &entry)
{
    if (entry.digests.full.isEmpty())
        storeQuick(entry.path, entry.sizeBytes, entry.modifiedMs, entry.digests.quick);
    else
        storeQuickAndFull(entry.path, entry.sizeBytes, entry.modifiedMs, entry.digests.quick, entry.digests.full);
}

bool DigestWriter::startThread()
{
    try {
        if (!m_thread.joinable())
            m_thread = std::thread([this] { work(); });
    } catch (const std::system_error &) { // then add() writes itself
    }
    return m_thread.joinable();
}

void DigestWriter::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_entries.empty() || m_isFinishing; });
        if (isTimeOver())
            m_entries.clear();
        if (m_entries.empty() && m_isFinishing)
            return;
        if (!m_entries.empty()) {
            const Entry entry = std::move(m_entries.front());
            m_entries.pop_front();
            lock.unlock();
            write(entry);
            lock.lock();
        }
        m_changed.notify_all();
    }
}

bool DigestWriter::isTimeOver()
{
    if (!m_sinceCancelled.isValid() && isCancelled(m_cancelled))
        m_sinceCancelled.start();
    return m_sinceCancelled.isValid() && m_sinceCancelled.hasExpired(cancelledWriteMs);
}

} // namespace MirrixCore
