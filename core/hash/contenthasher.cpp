#include "core/hash/contenthasher.h"

#include <blake3.h>

namespace MirrixCore {

namespace {

/// The library finds out what the processor can do at its first use, without a lock; so that comes before any thread of
/// ours uses it.
void findProcessorFeatures()
{
    static const bool isDone = [] {
        blake3_hasher hasher;
        uint8_t digest[BLAKE3_OUT_LEN];
        blake3_hasher_init(&hasher);
        blake3_hasher_finalize(&hasher, digest, sizeof digest);
        return true;
    }();
    Q_UNUSED(isDone)
}

} // namespace

struct ContentHasher::Blake3State
{
    blake3_hasher hasher;
};

ContentHasher::ContentHasher(ContentHashAlgorithm algorithm)
{
    if (algorithm == ContentHashAlgorithm::Blake3) {
        findProcessorFeatures();
        m_blake3.reset(new Blake3State); // not value-initialised: 2 KB that blake3_hasher_init need not have cleared
    } else {
        m_md5 = std::make_unique<QCryptographicHash>(QCryptographicHash::Md5);
    }
    reset();
}

ContentHasher::~ContentHasher() = default;

void ContentHasher::addData(QByteArrayView bytes)
{
    if (m_blake3)
        blake3_hasher_update(&m_blake3->hasher, bytes.data(), static_cast<size_t>(bytes.size()));
    else
        m_md5->addData(bytes);
}

QByteArray ContentHasher::result() const
{
    if (!m_blake3)
        return m_md5->result();
    QByteArray digest(BLAKE3_OUT_LEN, Qt::Uninitialized);
    blake3_hasher_finalize(&m_blake3->hasher, reinterpret_cast<uint8_t *>(digest.data()), BLAKE3_OUT_LEN);
    return digest;
}

void ContentHasher::reset()
{
    if (m_blake3)
        blake3_hasher_init(&m_blake3->hasher);
    else
        m_md5->reset();
}

} // namespace MirrixCore
