#include "actions/records/aescbc.h"

#include "core/platform/win32.h"

#include <bcrypt.h>

#include <limits>

namespace Mirrix {

namespace {

/// The algorithm in CBC mode with one key, for as long as it lives.
class CbcKey
{
public:
    explicit CbcKey(const QByteArray &key)
    {
        if (key.size() != aesKeyBytes ||
            BCryptOpenAlgorithmProvider(&m_algorithm, BCRYPT_AES_ALGORITHM, nullptr, 0) < 0)
            return;
        wchar_t mode[] = BCRYPT_CHAIN_MODE_CBC;
        if (BCryptSetProperty(m_algorithm, BCRYPT_CHAINING_MODE, reinterpret_cast<PUCHAR>(mode), sizeof mode, 0) < 0)
            return;
        QByteArray secret = key;
        if (BCryptGenerateSymmetricKey(m_algorithm, &m_key, nullptr, 0, reinterpret_cast<PUCHAR>(secret.data()),
                                       static_cast<ULONG>(secret.size()), 0) < 0)
            m_key = nullptr;
        SecureZeroMemory(secret.data(), static_cast<size_t>(secret.size()));
    }
    ~CbcKey()
    {
        if (m_key)
            BCryptDestroyKey(m_key);
        if (m_algorithm)
            BCryptCloseAlgorithmProvider(m_algorithm, 0);
    }
    CbcKey(const CbcKey &) = delete;
    CbcKey &operator=(const CbcKey &) = delete;

    /// BCryptEncrypt or BCryptDecrypt: once for the size of the output, once for the output. Empty on failure.
    template <typename Call>
    [[nodiscard]] QByteArray run(Call call, const QByteArray &vector, const QByteArray &input) const
    {
        if (!m_key || input.size() > std::numeric_limits<int>::max() - aesBlockBytes)
            return {};
        auto *in = reinterpret_cast<PUCHAR>(const_cast<char *>(input.constData()));
        const auto length = static_cast<ULONG>(input.size());
        ULONG size = 0;
        QByteArray scratch = vector; // the call writes into it
        if (call(m_key, in, length, nullptr, reinterpret_cast<PUCHAR>(scratch.data()), aesBlockBytes, nullptr, 0, &size,
                 BCRYPT_BLOCK_PADDING) < 0)
            return {};
        QByteArray output(static_cast<qsizetype>(size), Qt::Uninitialized);
        scratch = vector;
        if (call(m_key, in, length, nullptr, reinterpret_cast<PUCHAR>(scratch.data()), aesBlockBytes,
                 reinterpret_cast<PUCHAR>(output.data()), size, &size, BCRYPT_BLOCK_PADDING) < 0)
            return {};
        output.truncate(static_cast<qsizetype>(size));
        return output;
    }

private:
    BCRYPT_ALG_HANDLE m_algorithm = nullptr;
    BCRYPT_KEY_HANDLE m_key = nullptr;
};

} // namespace

QByteArray encryptAesCbc(const QByteArray &key, const QByteArray &plain)
{
    QByteArray vector(aesBlockBytes, Qt::Uninitialized);
    if (BCryptGenRandom(nullptr, reinterpret_cast<PUCHAR>(vector.data()), aesBlockBytes,
                        BCRYPT_USE_SYSTEM_PREFERRED_RNG) < 0)
        return {};
    const QByteArray cipher = CbcKey(key).run(BCryptEncrypt, vector, plain);
    return cipher.isEmpty() ? QByteArray() : vector + cipher;
}

QByteArray decryptAesCbc(const QByteArray &key, const QByteArray &encrypted)
{
    if (encrypted.size() < 2 * aesBlockBytes)
        return {};
    return CbcKey(key).run(BCryptDecrypt, encrypted.first(aesBlockBytes), encrypted.sliced(aesBlockBytes));
}

QString cipherLibraryVersion()
{
    return {};
}

} // namespace Mirrix
