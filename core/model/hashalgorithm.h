#pragma once

#include <QString>

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

/// "blake3" or "md5".
[[nodiscard]] QString hashAlgorithmName(ContentHashAlgorithm algorithm);

/// The name of the current choice.
[[nodiscard]] QString currentHashAlgorithmName();

/// Bytes in a digest of the current choice: 32 or 16.
[[nodiscard]] int currentDigestLength();

} // namespace MirrixCore
