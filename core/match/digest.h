#pragma once

#include <QByteArray>

#include <algorithm>
#include <array>
#include <compare>
#include <cstring>

namespace MirrixCore {

/// A content digest without an allocation of its own, so that a table of a million stays small and quick to sort.
/// Ordered and compared by its bytes.
class Digest
{
public:
    Digest() = default;

    /// An MD5 or BLAKE3 digest; bytes of any other length are no digest and give an empty one.
    explicit Digest(const QByteArray &bytes)
    {
        if (bytes.size() == 16 || bytes.size() == 32) {
            m_length = static_cast<quint8>(bytes.size());
            std::copy(bytes.begin(), bytes.end(), m_bytes.begin());
        }
    }

    [[nodiscard]] bool isEmpty() const { return m_length == 0; }
    /// Eight bytes of the digest as a number; 0 when empty. Equal for equal digests.
    [[nodiscard]] quint64 leadingBits() const
    {
        quint64 bits = 0;
        std::memcpy(&bits, m_bytes.data(), sizeof bits);
        return bits;
    }

    [[nodiscard]] QByteArray bytes() const { return {m_bytes.data(), m_length}; }

    bool operator==(const Digest &other) const { return (*this <=> other) == 0; }
    std::strong_ordering operator<=>(const Digest &other) const
    {
        if (m_length != other.m_length)
            return m_length <=> other.m_length;
        return std::memcmp(m_bytes.data(), other.m_bytes.data(), m_length) <=> 0;
    }

private:
    quint8 m_length = 0;
    std::array<char, 32> m_bytes{};
};

} // namespace MirrixCore
