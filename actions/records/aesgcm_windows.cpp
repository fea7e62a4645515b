#include "actions/records/aesgcm.h"

#include "core/platform/win32.h"

#include <bcrypt.h>

#include <limits>

namespace Mirrix {

namespace {

PUCHAR bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<PUCHAR>(const_cast<char *>(bytes.data())); // the calls only read it
}

} // namespace

struct AesGcmKey::State
{
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_KEY_HANDLE key = nullptr;

    explicit State(QByteArray secret)
    {
        wchar_t mode[] = BCRYPT_CHAIN_MODE_GCM;
        if (secret.size() != gcmKeyBytes ||
            BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_AES_ALGORITHM, nullptr, 0) < 0 ||
            BCryptSetProperty(algorithm, BCRYPT_CHAINING_MODE, reinterpret_cast<PUCHAR>(mode), sizeof mode, 0) < 0)
            return;
        if (BCryptGenerateSymmetricKey(algorithm, &key, nullptr, 0, reinterpret_cast<PUCHAR>(secret.data()),
                                       static_cast<ULONG>(secret.size()), 0) < 0)
            key = nullptr;
        SecureZeroMemory(secret.data(), static_cast<size_t>(secret.size()));
    }
    ~State()
    {
        if (key)
            BCryptDestroyKey(key);
        if (algorithm)
            BCryptCloseAlgorithmProvider(algorithm, 0);
    }
    State(const State &) = delete;
    State &operator=(const State &) = delete;

    /// BCryptEncrypt or BCryptDecrypt of `input` to `output`, which is as long.
    template <typename Call>
    [[nodiscard]] bool run(Call call, QByteArrayView nonce, QByteArrayView input, QByteArrayView additional,
                           QByteArray &tag, char *output) const
    {
        constexpr qsizetype most = std::numeric_limits<int>::max() - gcmTagBytes;
        if (!key || nonce.size() != gcmNonceBytes || input.size() > most || additional.size() > most)
            return false;
        BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO info = {};
        BCRYPT_INIT_AUTH_MODE_INFO(info);
        info.pbNonce = bytesOf(nonce);
        info.cbNonce = static_cast<ULONG>(nonce.size());
        info.pbAuthData = additional.isEmpty() ? nullptr : bytesOf(additional);
        info.cbAuthData = static_cast<ULONG>(additional.size());
        info.pbTag = reinterpret_cast<PUCHAR>(tag.data());
        info.cbTag = static_cast<ULONG>(tag.size());
        const auto length = static_cast<ULONG>(input.size());
        ULONG done = 0;
        return call(key, bytesOf(input), length, &info, nullptr, 0, reinterpret_cast<PUCHAR>(output), length, &done,
                    0) >= 0 &&
               done == length;
    }
};

AesGcmKey::AesGcmKey(const QByteArray &key)
    : m_state(new State(key))
{}

AesGcmKey::~AesGcmKey() = default;
AesGcmKey::AesGcmKey(AesGcmKey &&) noexcept = default;
AesGcmKey &AesGcmKey::operator=(AesGcmKey &&) noexcept = default;

QByteArray AesGcmKey::encrypt(QByteArrayView nonce, QByteArrayView plain, QByteArrayView additional)
{
    QByteArray output(plain.size(), Qt::Uninitialized);
    QByteArray tag(gcmTagBytes, Qt::Uninitialized);
    return m_state->run(BCryptEncrypt, nonce, plain, additional, tag, output.data()) ? output + tag : QByteArray();
}

std::optional<QByteArray> AesGcmKey::decrypt(QByteArrayView nonce, QByteArrayView encrypted, QByteArrayView additional)
{
    if (encrypted.size() < gcmTagBytes)
        return std::nullopt;
    QByteArray tag = encrypted.last(gcmTagBytes).toByteArray();
    QByteArray output(encrypted.size() - gcmTagBytes, Qt::Uninitialized);
    const bool isAuthentic =
        m_state->run(BCryptDecrypt, nonce, encrypted.chopped(gcmTagBytes), additional, tag, output.data());
    return isAuthentic ? std::optional(output) : std::nullopt;
}

QByteArray randomNonce()
{
    QByteArray nonce(gcmNonceBytes, Qt::Uninitialized);
    const NTSTATUS status = BCryptGenRandom(nullptr, reinterpret_cast<PUCHAR>(nonce.data()), gcmNonceBytes,
                                            BCRYPT_USE_SYSTEM_PREFERRED_RNG);
    return status >= 0 ? nonce : QByteArray();
}

} // namespace Mirrix
