#pragma once

#include <QByteArray>
#include <QString>

namespace Mirrix {

// AES-256 in CBC mode with PKCS#7 padding, by the system's own library. Nothing guards the content against changes:
// what was tampered with may decrypt to noise. Thread-safe.

inline constexpr qsizetype aesKeyBytes = 32;
inline constexpr qsizetype aesBlockBytes = 16;

/// A fresh random vector of 16 bytes followed by the encrypted content. Empty on failure, and for a key of another
/// size than 32 bytes.
[[nodiscard]] QByteArray encryptAesCbc(const QByteArray &key, const QByteArray &plain);

/// The content of what encryptAesCbc made. Empty on failure; the content itself may be empty too.
[[nodiscard]] QByteArray decryptAesCbc(const QByteArray &key, const QByteArray &encrypted);

/// The version of the library behind this, such as "3.0.15"; empty where it is the system's own.
[[nodiscard]] QString cipherLibraryVersion();

} // namespace Mirrix
