#pragma once

#include "core/model/hashalgorithm.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QCryptographicHash>

#include <memory>

namespace MirrixCore {

/// One digest being computed. Not thread-safe; make one per file.
class ContentHasher
{
public:
    explicit ContentHasher(ContentHashAlgorithm algorithm);
    ~ContentHasher();
    ContentHasher(const ContentHasher &) = delete;
    ContentHasher &operator=(const ContentHasher &) = delete;

    void addData(QByteArrayView bytes);

    /// The digest of what was added: 16 bytes for Md5, 32 for Blake3.
    [[nodiscard]] QByteArray result() const;

    /// Forgets what was added.
    void reset();

private:
    struct Blake3State;
    std::unique_ptr<Blake3State> m_blake3;     ///< one of the two is set
    std::unique_ptr<QCryptographicHash> m_md5; ///< one of the two is set
};

} // namespace MirrixCore
