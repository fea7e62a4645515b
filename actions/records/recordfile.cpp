#include "actions/records/recordfile.h"

#include "app/storedfile.h"

#include <QtEndian>

namespace Mirrix {

namespace {

constexpr qsizetype lengthBytes = sizeof(quint32);

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

bool RecordReader::open(const QString &path)
{
    m_file.setFileName(path);
    return m_file.open(QIODevice::ReadOnly);
}

RecordReader::Outcome RecordReader::next(QByteArray &text)
{
    if (m_last == Outcome::Record)
        m_last = read(text);
    return m_last;
}

RecordReader::Outcome RecordReader::read(QByteArray &text)
{
    const auto hasFailed = [this] { return m_file.error() != QFileDevice::NoError; };
    const QByteArray head = m_file.read(lengthBytes);
    if (head.size() != lengthBytes)
        return hasFailed() ? Outcome::Failed : head.isEmpty() ? Outcome::End : Outcome::Cut;
    const qint64 length = qFromLittleEndian<quint32>(head.constData());
    if (length < gcmNonceBytes + gcmTagBytes || length > mostRecordBytes)
        return length == 0 ? Outcome::Cut : Outcome::Damaged; // zeros: space that a power cut left unwritten
    const QByteArray body = m_file.read(length);
    if (body.size() != length)
        return hasFailed() ? Outcome::Failed : Outcome::Cut;
    const QByteArrayView bytes(body);
    const std::optional<QByteArray> plain =
        m_key.decrypt(bytes.first(gcmNonceBytes), bytes.sliced(gcmNonceBytes), littleEndian(m_position.count));
    if (!plain)
        return Outcome::Damaged;
    text = *plain;
    m_position = {m_position.bytes + lengthBytes + length, m_position.count + 1};
    return Outcome::Record;
}

bool RecordWriter::create(const QString &path)
{
    m_file.setFileName(path);
    return m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
}

bool RecordWriter::resume(const QString &path, RecordPosition position)
{
    m_file.setFileName(path);
    m_flushed = position;
    return m_file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) && cutBackTo(position);
}

bool RecordWriter::append(QByteArrayView text)
{
    const QByteArray nonce = randomNonce();
    const QByteArray encrypted = m_key.encrypt(nonce, text, littleEndian(m_end.count));
    const qsizetype length = nonce.size() + encrypted.size();
    if (nonce.isEmpty() || encrypted.isEmpty() || length > mostRecordBytes)
        return false;
    if (m_file.pos() != m_end.bytes && !cutBackTo(m_end)) // an earlier failure that could not be tidied up then
        return false;
    const QByteArray record = littleEndian(static_cast<quint32>(length)) + nonce + encrypted;
    if (m_file.write(record) != record.size()) {
        cutBackTo(m_end);
        return false;
    }
    m_end = {m_end.bytes + record.size(), m_end.count + 1};
    return true;
}

bool RecordWriter::flush()
{
    if (m_end.count == m_flushed.count)
        return true;
    if (flushToDisk(m_file)) {
        m_flushed = m_end;
        return true;
    }
    cutBackTo(m_flushed); // the disk may hold any part of the rest; the caller appends it again
    return false;
}

bool RecordWriter::cutBackTo(RecordPosition position)
{
    m_end = position;
    return m_file.resize(position.bytes) && m_file.seek(position.bytes);
}

} // namespace Mirrix
