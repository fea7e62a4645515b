#include "actions/records/aescbc.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <algorithm>
#include <limits>
#include <memory>

namespace Mirrix {

namespace {

using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

const uchar *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const uchar *>(bytes.data());
}

/// Both directions; the output is appended to `prefix`. Empty on failure.
QByteArray run(QByteArrayView key, QByteArrayView vector, QByteArrayView input, QByteArrayView prefix,
               bool isEncrypting)
{
    // The library counts in int and keeps no account of overflow.
    if (key.size() != aesKeyBytes || input.size() > std::numeric_limits<int>::max() - aesBlockBytes)
        return {};
    const CipherContext context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
    QByteArray output(prefix.size() + input.size() + aesBlockBytes, Qt::Uninitialized);
    std::copy(prefix.begin(), prefix.end(), output.begin());
    auto *out = reinterpret_cast<uchar *>(output.data()) + prefix.size();
    int done = 0;
    int rest = 0;
    if (!context ||
        EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, bytesOf(key), bytesOf(vector),
                          isEncrypting ? 1 : 0) != 1 ||
        EVP_CipherUpdate(context.get(), out, &done, bytesOf(input), static_cast<int>(input.size())) != 1 ||
        EVP_CipherFinal_ex(context.get(), out + done, &rest) != 1) {
        return {};
    }
    output.truncate(prefix.size() + done + rest);
    return output;
}

} // namespace

QByteArray encryptAesCbc(const QByteArray &key, const QByteArray &plain)
{
    QByteArray vector(aesBlockBytes, Qt::Uninitialized);
    if (RAND_bytes(reinterpret_cast<uchar *>(vector.data()), aesBlockBytes) != 1)
        return {};
    return run(key, vector, plain, vector, true);
}

QByteArray decryptAesCbc(const QByteArray &key, const QByteArray &encrypted)
{
    if (encrypted.size() < aesBlockBytes)
        return {};
    const QByteArrayView bytes(encrypted);
    return run(key, bytes.first(aesBlockBytes), bytes.sliced(aesBlockBytes), {}, false);
}

QString cipherLibraryVersion()
{
    return QString::fromLatin1(OpenSSL_version(OPENSSL_VERSION_STRING));
}

} // namespace Mirrix
