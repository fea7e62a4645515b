#include "actions/records/aesgcm.h"

#include <openssl/evp.h>
#include <openssl/rand.h>

#include <limits>

namespace Mirrix {

namespace {

using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

const uchar *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const uchar *>(bytes.data());
}

/// A context with the key schedule in it; null on failure.
CipherContext preparedContext(const QByteArray &key, bool isEncrypting)
{
    CipherContext context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
    if (key.size() != gcmKeyBytes || !context ||
        EVP_CipherInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, bytesOf(key), nullptr, isEncrypting ? 1 : 0) != 1)
        context.reset();
    return context;
}

/// All but the tag; the library counts in int. The direction is that of the context.
bool run(EVP_CIPHER_CTX *context, QByteArrayView nonce, QByteArrayView input, QByteArrayView additional, uchar *out)
{
    constexpr qsizetype most = std::numeric_limits<int>::max() - gcmTagBytes;
    if (!context || nonce.size() != gcmNonceBytes || input.size() > most || additional.size() > most ||
        EVP_CipherInit_ex(context, nullptr, nullptr, nullptr, bytesOf(nonce), -1) != 1)
        return false;
    int done = 0;
    if (!additional.isEmpty() &&
        EVP_CipherUpdate(context, nullptr, &done, bytesOf(additional), static_cast<int>(additional.size())) != 1)
        return false;
    return input.isEmpty() ||
           EVP_CipherUpdate(context, out, &done, bytesOf(input), static_cast<int>(input.size())) == 1;
}

} // namespace

struct AesGcmKey::State
{
    CipherContext encryption;
    CipherContext decryption;
};

AesGcmKey::AesGcmKey(const QByteArray &key)
    : m_state(new State{preparedContext(key, true), preparedContext(key, false)})
{}

AesGcmKey::~AesGcmKey() = default;
AesGcmKey::AesGcmKey(AesGcmKey &&) noexcept = default;
AesGcmKey &AesGcmKey::operator=(AesGcmKey &&) noexcept = default;

QByteArray AesGcmKey::encrypt(QByteArrayView nonce, QByteArrayView plain, QByteArrayView additional)
{
    EVP_CIPHER_CTX *context = m_state->encryption.get();
    QByteArray output(plain.size() + gcmTagBytes, Qt::Uninitialized);
    auto *out = reinterpret_cast<uchar *>(output.data());
    uchar *tag = out + plain.size();
    int rest = 0;
    if (!run(context, nonce, plain, additional, out) || EVP_CipherFinal_ex(context, tag, &rest) != 1 ||
        EVP_CIPHER_CTX_ctrl(context, EVP_CTRL_GCM_GET_TAG, gcmTagBytes, tag) != 1)
        return {};
    return output;
}

std::optional<QByteArray> AesGcmKey::decrypt(QByteArrayView nonce, QByteArrayView encrypted, QByteArrayView additional)
{
    if (encrypted.size() < gcmTagBytes)
        return std::nullopt;
    EVP_CIPHER_CTX *context = m_state->decryption.get();
    QByteArray tag = encrypted.last(gcmTagBytes).toByteArray();
    QByteArray output(encrypted.size() - gcmTagBytes, Qt::Uninitialized);
    auto *out = reinterpret_cast<uchar *>(output.data());
    int rest = 0;
    if (!run(context, nonce, encrypted.chopped(gcmTagBytes), additional, out) ||
        EVP_CIPHER_CTX_ctrl(context, EVP_CTRL_GCM_SET_TAG, gcmTagBytes, tag.data()) != 1 ||
        EVP_CipherFinal_ex(context, out + output.size(), &rest) != 1)
        return std::nullopt;
    return output;
}

QByteArray randomNonce()
{
    QByteArray nonce(gcmNonceBytes, Qt::Uninitialized);
    return RAND_bytes(reinterpret_cast<uchar *>(nonce.data()), gcmNonceBytes) == 1 ? nonce : QByteArray();
}

} // namespace Mirrix
