#include "cli/output.h"

#include "cli/terminal.h"
#include "core/platform/nativepath.h"

#include <QFile>
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
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
}

QByteArray shownPath(const QString &path, bool forTerminal)
{
    if (!forTerminal)
        return MirrixCore::pathBytes(path);
    QString shown = path;
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
    m_isFile = !path.isEmpty();
    if (m_isFile) {
        m_device = std::make_unique<QSaveFile>(path);
        return m_device->open(QIODevice::WriteOnly | QIODevice::Unbuffered); // each write tells the truth
    }
    auto standard = std::make_unique<QFile>();
    const bool isOpen = standard->open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    m_device = std::move(standard);
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
    if (!m_isFile)
        return m_device->flush() && !m_hasFailed;
    auto *file = static_cast<QSaveFile *>(m_device.get());
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
    return !m_isFile && isOutputTerminal();
}

} // namespace MirrixCli
