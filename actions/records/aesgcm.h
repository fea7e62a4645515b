#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>
#include <optional>

namespace Mirrix {

inline constexpr qsizetype gcmKeyBytes = 32;
inline constexpr qsizetype gcmNonceBytes = 12;
inline constexpr qsizetype gcmTagBytes = 16;

/// AES-256 in Galois/Counter Mode under one key, by the system's own library: what was changed by one bit, belongs to
/// another key, nonce or additional data is not decrypted at all. The key schedule is set up once. Not thread-safe.
class AesGcmKey
{
public:
    /// `key`: 32 bytes; with another number every call fails.
    explicit AesGcmKey(const QByteArray &key);
    ~AesGcmKey();
    AesGcmKey(AesGcmKey &&) noexcept;
    AesGcmKey &operator=(AesGcmKey &&) noexcept;

    /// The encrypted text, as long as `plain`, followed by the tag. `nonce`: 12 bytes that were never used with this
    /// key before. Empty on failure.
    [[nodiscard]] QByteArray encrypt(QByteArrayView nonce, QByteArrayView plain, QByteArrayView additional);

    /// The text of what encrypt made, given the same nonce and additional data; may be empty. No value when it is not
    /// authentic or the library fails.
    [[nodiscard]] std::optional<QByteArray> decrypt(QByteArrayView nonce, QByteArrayView encrypted,
                                                    QByteArrayView additional);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// 12 bytes of the system's random generator; empty on failure. Thread-safe.
[[nodiscard]] QByteArray randomNonce();

} // namespace Mirrix
