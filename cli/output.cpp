#include "cli/output.h"

#include "app/storedfile.h"
#include "cli/terminal.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace MirrixCli {

namespace {
constexpr qsizetype bufferBytes = 256 * 1024;
}

void printText(const QString &text)
{
    const QByteArray bytes = MirrixCore::pathBytes(text);
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void printError(const QString &message)
{
    const QByteArray line = "mirrix-cli: " + shownPath(message, isErrorTerminal()) + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), errorStream());
}

QByteArray shownPath(const QString &path, bool forTerminal)
{
    QString shown = path;
    if (!forTerminal) {
        shown.replace(QLatin1Char('\n'), QLatin1Char('?')).replace(QLatin1Char('\r'), QLatin1Char('?'));
        return MirrixCore::pathBytes(shown);
    }
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Surrogate)
            character = QLatin1Char('?');
    }
    return shown.toUtf8();
}

Output::Output() = default;
Output::~Output()
{
    std::error_code ignored;
    if (!m_temporaryPath.isEmpty())
        std::filesystem::remove(MirrixCore::filesystemPath(m_temporaryPath), ignored);
}

bool Output::open(const QString &path)
{
    using Kind = MirrixCore::FileStatus::Kind;
    m_path = path;
    m_isStandard = path.isEmpty();
    m_isReplacing = !m_isStandard && MirrixCore::fileStatus(path).kind != Kind::Other;
    if (m_isReplacing && !MirrixCore::isQtPath(path)) {
        const QString beside = path + QLatin1Char('.') + QString::number(QCoreApplication::applicationPid());
        if (!openPlain(beside, QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::NewOnly))
            return false;
        m_temporaryPath = beside;
        return true;
    }
    if (m_isReplacing) {
        m_device = std::make_unique<QSaveFile>(path);
        // Unbuffered, so that each write reports its own failure.
        return m_device->open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    // A device or pipe is written to: replacing it with a file would break its other users.
    constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (!m_isStandard)
        return openPlain(path, mode);
    auto file = std::make_unique<QFile>();
    const bool isOpen = file->open(stdout, mode);
    m_device = std::move(file);
    return isOpen;
}

bool Output::openPlain(const QString &path, QIODevice::OpenMode mode)
{
    auto file = std::make_unique<QFile>();
    const bool isOpen = MirrixCore::openNatively(*file, path, mode, &m_openFailure);
    m_device = std::move(file);
    return isOpen;
}

void Output::write(QByteArrayView bytes)
{
    m_buffer.append(bytes);
    if (m_buffer.size() >= bufferBytes)
        flush();
}

bool Output::finish()
{
    flush();
    if (!m_isReplacing)
        return m_device->flush() && !m_hasFailed;
    m_hasFailed = m_hasFailed || !Mirrix::flushToDisk(*m_device);
    if (!m_temporaryPath.isEmpty())
        return !m_hasFailed && putIntoPlace();
    auto *file = static_cast<QSaveFile *>(m_device.get());
    if (m_hasFailed)
        file->cancelWriting();
    return file->commit();
}

bool Output::putIntoPlace()
{
    std::error_code failure;
    std::filesystem::rename(MirrixCore::filesystemPath(m_temporaryPath), MirrixCore::filesystemPath(m_path), failure);
    if (!failure)
        m_temporaryPath.clear();
    return !failure;
}

void Output::flush()
{
    m_hasFailed = m_hasFailed || m_device->write(m_buffer) != m_buffer.size();
    m_buffer.clear();
}

QString Output::errorText() const
{
    return m_openFailure.isEmpty() ? m_device->errorString() : m_openFailure;
}

bool Output::isTerminal() const
{
    return m_isStandard && isOutputTerminal();
}

} // namespace MirrixCli
