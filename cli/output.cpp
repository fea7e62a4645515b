#include "cli/output.h"

#include "app/storedfile.h"
#include "cli/terminal.h"
#include "core/platform/nativepath.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>

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
Output::~Output() = default;

bool Output::open(const QString &path)
{
    const QFileInfo target(path);
    m_isStandard = path.isEmpty();
    m_isReplacing = !m_isStandard && (!target.exists() || target.isFile() || target.isDir());
    if (m_isReplacing) {
        m_device = std::make_unique<QSaveFile>(path);
        return m_device->open(QIODevice::WriteOnly | QIODevice::Unbuffered); // each write tells the truth
    }
    // A device or pipe is written to; putting a file in its place would take it from everybody.
    auto file = std::make_unique<QFile>(path);
    constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    const bool isOpen = m_isStandard ? file->open(stdout, mode) : file->open(mode);
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
    auto *file = static_cast<QSaveFile *>(m_device.get());
    m_hasFailed = m_hasFailed || !Mirrix::flushToDisk(*file);
    if (m_hasFailed)
        file->cancelWriting();
    return file->commit();
}

void Output::flush()
{
    m_hasFailed = m_hasFailed || m_device->write(m_buffer) != m_buffer.size();
    m_buffer.clear();
}

QString Output::errorText() const
{
    return m_device->errorString();
}

bool Output::isTerminal() const
{
    return m_isStandard && isOutputTerminal();
}

} // namespace MirrixCli
