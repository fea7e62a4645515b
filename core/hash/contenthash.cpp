#include "core/hash/contenthash.h"

#include "core/hash/samples.h"
#include "core/platform/filereader.h"
#include "core/platform/mappedreader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace MirrixCore {

namespace {

/// Opens `path` and notes what is known of it.
bool openAndRecord(FileReader &reader, const QString &path, HashNotes *notes)
{
    const bool isOpen = reader.open(path) && reader.readState();
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

QByteArray digestOf(QByteArrayView bytes)
{
    ContentHasher hasher(contentHashAlgorithm());
    hasher.addData(bytes);
    return hasher.result();
}

/// What the quick hash is made of, one part behind the other: decimal size, head, tail. The hasher gets it in one piece
/// because BLAKE3 works on several kilobytes at once only when they come together, which halves its time here.
class QuickWindows
{
public:
    explicit QuickWindows(qint64 sizeBytes)
        : m_size(sizeBytes)
    {
        const QByteArray text = QByteArray::number(sizeBytes);
        std::copy(text.begin(), text.end(), m_buffer.begin());
        m_textLength = text.size();
    }

    /// Room for the head, and behind it for the tail; a file of up to quickCoversBytes can be read whole into both,
    /// with a byte to spare.
    char *head() { return m_buffer.data() + m_textLength; }
    char *tail() { return head() + quickWindowBytes; }

    /// Takes the first `count` bytes behind head() as the file's start, or as the whole file when it is small enough;
    /// then the tail, which may overlap the head, is made from them.
    void splitAt(qint64 count)
    {
        m_headCount = std::min(count, quickWindowBytes);
        m_tailCount = 0;
        if (m_size > quickWindowBytes && m_size <= quickCoversBytes && m_headCount == quickWindowBytes) {
            const qint64 from = std::min(m_size - quickWindowBytes, count);
            m_tailCount = count - from;
            std::memmove(tail(), head() + from, static_cast<size_t>(m_tailCount));
        }
    }

    void setTailCount(qint64 count) { m_tailCount = count; }

    [[nodiscard]] QByteArrayView input() const { return {m_buffer.data(), m_textLength + m_headCount + m_tailCount}; }

private:
    static constexpr qint64 longestSizeText = 19; ///< digits of 2^63 - 1

    std::array<char, longestSizeText + quickCoversBytes + 1> m_buffer; // NOLINT: filled as far as it is used
    qint64 m_size;
    qint64 m_textLength = 0;
    qint64 m_headCount = 0;
    qint64 m_tailCount = 0;
};

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
        const qint64 length = std::min(bufferBytes, limitBytes - offset);
        const qint64 count = reader.readAt(offset, buffer.data(), length);
        if (count < 0)
            return Streaming::Failed;
        add(QByteArrayView(buffer.constData(), count));
        offset += count;
        if (count < length)
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
    if (!openAndRecord(reader, path, notes))
        return {};
    if (mayMap && reader.sizeBytes() >= mapThresholdBytes) {
        const auto feed = [&](const char *bytes, qint64 length) {
            hasher.addData(QByteArrayView(bytes, length));
            return !isCancelled(cancelled);
        };
        if (mapFileIntoSink(path, feed))
            return finished(reader, hasher.result(), notes);
        hasher.reset(); // a part may have been fed before mapping failed
    }
    reader.expectSequentialReads();
    const Streaming outcome =
        stream(reader, wholeFile, streamChunkBytes, cancelled, [&](QByteArrayView bytes) { hasher.addData(bytes); });
    if (outcome == Streaming::Failed)
        return failed(reader, notes);
    return outcome == Streaming::Done ? finished(reader, hasher.result(), notes) : QByteArray();
}

} // namespace

SmallFileDigests smallFileDigests(const QString &path, qint64 sizeBytes, bool forCache, HashNotes *notes)
{
    Q_ASSERT(sizeBytes >= 1 && sizeBytes <= quickCoversBytes);
    FileReader reader;
    if (!(forCache ? openAndRecord(reader, path, notes) : reader.open(path))) {
        failed(reader, notes);
        return {};
    }
    QuickWindows windows(sizeBytes);
    // One byte more than expected shows that the file has grown, without asking the system for its size.
    const qint64 count = reader.readAt(0, windows.head(), sizeBytes + 1);
    if (count != sizeBytes) {
        if (count < 0)
            failed(reader, notes);
        else if (notes)
            notes->hasChanged = true;
        return {};
    }
    SmallFileDigests digests;
    digests.full = digestOf({windows.head(), count});
    if (forCache) {
        windows.splitAt(count);
        digests.quick = digestOf(windows.input());
    }
    return digests;
}

QByteArray quickHash(const QString &path, HashNotes *notes)
{
    FileReader reader;
    if (!openAndRecord(reader, path, notes))
        return {};
    const qint64 size = reader.sizeBytes();
    if (size <= 0)
        return {};
    QuickWindows windows(size);
    const bool isOneRead = size <= quickCoversBytes;
    const qint64 count = reader.readAt(0, windows.head(), isOneRead ? size : quickWindowBytes);
    if (count <= 0)
        return failed(reader, notes);
    windows.splitAt(count);
    if (!isOneRead && count == quickWindowBytes) {
        const qint64 tailCount = reader.readAt(size - quickWindowBytes, windows.tail(), quickWindowBytes);
        if (tailCount < 0)
            return failed(reader, notes);
        windows.setTailCount(tailCount);
    }
    return finished(reader, digestOf(windows.input()), notes);
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
    if (!openAndRecord(reader, path, notes))
        return {};
    ContentHasher hasher(contentHashAlgorithm());
    // Files of different sizes differ even where their beginnings are equal.
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
    if (!openAndRecord(reader, path, notes))
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
