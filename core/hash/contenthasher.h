#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QCryptographicHash>

#include <memory>

namespace MirrixCore {

/// The process-wide choice of the digest that content comparison uses.
enum class ContentHashAlgorithm : int
{
    Md5 = 0,
    Blake3 = 1
};

/// Sets the choice. Call between scans only; thread-safe.
void setContentHashAlgorithm(ContentHashAlgorithm algorithm);
[[nodiscard]] ContentHashAlgorithm contentHashAlgorithm();

/// "blake3" gives Blake3; any other text, whatever its case, Md5.
[[nodiscard]] ContentHashAlgorithm contentHashAlgorithmFrom(const QString &name);

/// "blake3" or "md5", the current choice.
[[nodiscard]] QString currentHashAlgorithmName();

/// Bytes in a digest of the current choice: 32 or 16.
[[nodiscard]] int currentDigestLength();

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
