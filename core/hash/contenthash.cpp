#include "core/hash/contenthash.h"

#include "core/hash/filereader.h"
#include "core/hash/mappedreader.h"
#include "core/hash/samples.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace MirrixCore {

namespace {

/// Opens `path` and notes what is known of it.
bool openNoted(FileReader &reader, const QString &path, HashNotes *notes)
{
    const bool isOpen = reader.open(path);
    if (notes && isOpen) {
        notes->sizeBytes = reader.sizeBytes();
        notes->modifiedMs = reader.modifiedMs();
    } else if (notes) {
        notes->failure = reader.errorText();
    }
    return isOpen;
}

/// Hands on `digest` after noting whether the file changed while it was read. A file taken by one read is not asked
/// again: it had no time to change in between, and the question would cost a tenth of the scan of a small file.
QByteArray finished(const FileReader &reader, const QByteArray &digest, HashNotes *notes)
{
    if (notes && reader.readCount() > 1)
        notes->hasChanged = !reader.isUnchanged();
    return digest;
}

QByteArray failed(const FileReader &reader, HashNotes *notes)
{
    if (notes)
        notes->failure = reader.errorText();
    return {};
}

enum class Streaming
{
    Done,
    Cancelled,
    Failed
};

/// Feeds `add` with the file from its start to `limitBytes` or its end, in chunks of at most `chunkBytes`.
template <typename Add>
Streaming stream(FileReader &reader, qint64 limitBytes, qint64 chunkBytes, const CancelQuery &cancelled, Add add)
{
    // One byte more than the file holds lets a single read both take a small file whole and see its end.
    const qint64 bufferBytes = std::min({chunkBytes, limitBytes, reader.sizeBytes() + 1});
    QByteArray buffer(bufferBytes, Qt::Uninitialized);
    for (qint64 offset = 0; offset < limitBytes;) {
        if (isCancelled(cancelled))
            return Streaming::Cancelled;
        const qint64 wanted = std::min(bufferBytes, limitBytes - offset);
        const qint64 count = reader.readAt(offset, buffer.data(), wanted);
        if (count < 0)
            return Streaming::Failed;
        add(QByteArrayView(buffer.constData(), count));
        offset += count;
        if (count < wanted)
            break;
    }
    return Streaming::Done;
}

constexpr qint64 wholeFile = std::numeric_limits<qint64>::max();

/// Digest of the whole content by any hasher with addData, reset and result: mapped where that is possible, else
/// streamed.
template <typename Hasher>
QByteArray wholeDigest(const QString &path, Hasher &hasher, bool mayMap, const CancelQuery &cancelled, HashNotes *notes)
{
    FileReader reader;
    if (!openNoted(reader, path, notes))
        return {};
    if (mayMap && reader.sizeBytes() >= mapThresholdBytes) {
        const auto feed = [&](const char *bytes, qint64 length) {
            hasher.addData(QByteArrayView(bytes, length));
            return !isCancelled(cancelled);
        };
        if (mapFileIntoSink(path, feed))
            return finished(reader, hasher.result(), notes);
        hasher.reset();
    }
    reader.expectSequentialReads();
    const Streaming outcome =
        stream(reader, wholeFile, streamChunkBytes, cancelled, [&](QByteArrayView bytes) { hasher.addData(bytes); });
    if (outcome == Streaming::Failed)
        return failed(reader, notes);
    return outcome == Streaming::Done ? finished(reader, hasher.result(), notes) : QByteArray();
}

} // namespace

QByteArray quickHash(const QString &path, HashNotes *notes)
{
    FileReader reader;
    if (!openNoted(reader, path, notes))
        return {};
    const qint64 size = reader.sizeBytes();
    if (size <= 0)
        return {};
    // Size text, head and tail lie one behind the other, so that the hasher gets them in one piece: BLAKE3 works on
    // several kilobytes at once only when they come together, which halves its time here.
    constexpr qint64 longestSizeText = 20;
    std::array<char, longestSizeText + 2 * quickWindowBytes> buffer; // NOLINT: filled below
    const QByteArray sizeText = QByteArray::number(size);
    std::copy(sizeText.begin(), sizeText.end(), buffer.begin());
    char *head = buffer.data() + sizeText.size();
    char *tail = head + quickWindowBytes;

    const bool isOneRead = size <= 2 * quickWindowBytes;
    const qint64 count = reader.readAt(0, head, isOneRead ? size : quickWindowBytes);
    if (count <= 0)
        return failed(reader, notes);
    qint64 tailCount = 0;
    if (isOneRead && size > quickWindowBytes) {
        const qint64 from = std::min(size - quickWindowBytes, count);
        tailCount = count - from;
        std::memmove(tail, head + from, static_cast<size_t>(tailCount));
    } else if (!isOneRead) {
        tailCount = reader.readAt(size - quickWindowBytes, tail, quickWindowBytes);
        if (tailCount < 0)
            return failed(reader, notes);
    }
    // A file cut short meanwhile has no full head; then there is no tail either.
    const qint64 headCount = std::min(count, quickWindowBytes);
    ContentHasher hasher(contentHashAlgorithm());
    hasher.addData({buffer.data(), sizeText.size() + headCount + (headCount == quickWindowBytes ? tailCount : 0)});
    return finished(reader, hasher.result(), notes);
}

QByteArray fullContentHash(const QString &path, const CancelQuery &cancelled, HashNotes *notes)
{
    ContentHasher hasher(contentHashAlgorithm());
    return wholeDigest(path, hasher, true, cancelled, notes);
}

QByteArray fullContentHashBlake3(const QString &path, const CancelQuery &cancelled, HashNotes *notes)
{
    ContentHasher hasher(ContentHashAlgorithm::Blake3);
    return wholeDigest(path, hasher, true, cancelled, notes);
}

QByteArray prefixHash(const QString &path, qint64 limitBytes, const CancelQuery &cancelled, HashNotes *notes)
{
    if (limitBytes < 1)
        return fullContentHash(path, cancelled, notes);
    FileReader reader;
    if (!openNoted(reader, path, notes))
        return {};
    ContentHasher hasher(contentHashAlgorithm());
    hasher.addData(QByteArray::number(reader.sizeBytes()));
    const Streaming outcome =
        stream(reader, limitBytes, prefixChunkBytes, cancelled, [&](QByteArrayView bytes) { hasher.addData(bytes); });
    if (outcome == Streaming::Failed)
        return failed(reader, notes);
    return outcome == Streaming::Done ? finished(reader, hasher.result(), notes) : QByteArray();
}

QByteArray sampleHash(const QString &path, HashNotes *notes)
{
    FileReader reader;
    if (!openNoted(reader, path, notes))
        return {};
    const qint64 size = reader.sizeBytes();
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QByteArray::number(size));
    std::array<char, sampleBlockBytes> block; // NOLINT: filled by the reads
    for (const qint64 offset : sampleOffsets(size)) {
        const qint64 count = reader.readAt(offset, block.data(), sampleBlockBytes);
        if (count < 0)
            return failed(reader, notes);
        hash.addData(QByteArrayView(block.data(), count));
    }
    return finished(reader, hash.result(), notes);
}

QByteArray hashFileWith(const QString &path, QCryptographicHash::Algorithm algorithm, const CancelQuery &cancelled,
                        HashNotes *notes)
{
    QCryptographicHash hash(algorithm);
    return wholeDigest(path, hash, false, cancelled, notes);
}

} // namespace MirrixCore
