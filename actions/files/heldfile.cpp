#include "actions/files/heldfile.h"

#include "core/hash/contenthasher.h"

#include <algorithm>
#include <cstring>

namespace Mirrix {

Comparison compareContents(HeldFile &one, HeldFile &other, const StopQuery &isStopped, QByteArray *digest)
{
    constexpr qint64 pieceBytes = 1 << 20;
    const qint64 size = one.state().sizeBytes;
    if (size != other.state().sizeBytes)
        return Comparison::Different;
    QByteArray onePiece(std::min(size, pieceBytes), Qt::Uninitialized);
    QByteArray otherPiece(onePiece.size(), Qt::Uninitialized);
    MirrixCore::ContentHasher hasher(MirrixCore::ContentHashAlgorithm::Blake3);
    for (qint64 offset = 0; offset < size; offset += pieceBytes) {
        if (offset > 0 && isStopped && isStopped())
            return Comparison::Stopped;
        // Checked here, too, so that a program that wants to write need not wait for the end.
        if (!one.isUnchanged() || !other.isUnchanged())
            return Comparison::Different;
        const qint64 length = std::min(pieceBytes, size - offset);
        if (one.readAt(offset, onePiece.data(), length) != length ||
            other.readAt(offset, otherPiece.data(), length) != length ||
            std::memcmp(onePiece.constData(), otherPiece.constData(), static_cast<size_t>(length)) != 0)
            return Comparison::Different;
        if (digest)
            hasher.addData(QByteArrayView(onePiece.constData(), length));
    }
    if (digest)
        *digest = hasher.result();
    return Comparison::Equal;
}

} // namespace Mirrix
