#include "core/platform/nativepath.h"

#include "core/platform/surrogates.h"
#include "core/platform/win32.h"

#include <QDir>

#include <shellapi.h>

namespace MirrixCore {

namespace {

void writeLoneSurrogate(char16_t unit, QByteArray &bytes)
{
    bytes += static_cast<char>(0xE0 | (unit >> 12));
    bytes += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
    bytes += static_cast<char>(0x80 | (unit & 0x3F));
}

bool isLoneSurrogate(QByteArrayView bytes)
{
    return bytes.size() >= 3 && static_cast<uchar>(bytes[0]) == 0xED && (static_cast<uchar>(bytes[1]) & 0xE0) == 0xA0;
}

} // namespace

QByteArray pathBytes(const QString &path)
{
    return encodeWithSurrogates(path, writeLoneSurrogate);
}

QString pathFromBytes(QByteArrayView bytes)
{
    QString path;
    qsizetype done = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const QByteArrayView rest = bytes.sliced(i);
        if (!isLoneSurrogate(rest))
            continue;
        path += decodeWholeUtf8(bytes.sliced(done, i - done));
        path += QChar(
            char16_t(0xD000 | ((static_cast<uchar>(rest[1]) & 0x3F) << 6) | (static_cast<uchar>(rest[2]) & 0x3F)));
        i += 2;
        done = i + 1;
    }
    return path + decodeWholeUtf8(bytes.sliced(done));
}

std::filesystem::path filesystemPath(const QString &path)
{
    return {longPath(path)};
}

bool makeFolders(const QString &path)
{
    return QDir().mkpath(path);
}

QString absolutePath(const QString &path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(QDir::fromNativeSeparators(path)));
}

QString canonicalPath(const QString &path)
{
    const UniqueHandle file(CreateFileW(longPath(path).c_str(), FILE_READ_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file)
        return {};
    std::wstring text(32768, L'\0'); // the longest path there is
    const DWORD length = GetFinalPathNameByHandleW(file.get(), text.data(), static_cast<DWORD>(text.size()),
                                                   FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    if (length == 0 || length >= text.size())
        return {};
    const QString found = QDir::fromNativeSeparators(textFromWide(text.c_str()));
    if (found.startsWith(QLatin1String("//?/UNC/")))
        return QLatin1String("//") + found.mid(8);
    return found.startsWith(QLatin1String("//?/")) ? found.mid(4) : found;
}

QString pathCaseKey(const QString &path)
{
    return path.toLower();
}

QStringList commandLineArguments(int, char **)
{
    // argv is in the system's code page and has lost what that cannot say.
    int count = 0;
    LPWSTR *wide = CommandLineToArgvW(GetCommandLineW(), &count);
    QStringList arguments;
    for (int i = 0; i < count; ++i)
        arguments.append(textFromWide(wide[i]));
    LocalFree(wide);
    return arguments;
}

QString systemErrorText(int code)
{
    wchar_t *text = nullptr;
    const DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    const DWORD length =
        FormatMessageW(flags, nullptr, static_cast<DWORD>(code), 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
    QString message = QString::fromWCharArray(text, static_cast<qsizetype>(length)).trimmed();
    LocalFree(text);
    if (message.endsWith(QLatin1Char('.')))
        message.chop(1);
    return message.isEmpty() ? QStringLiteral("error %1").arg(code) : message;
}

QString lastErrorText()
{
    return systemErrorText(static_cast<int>(GetLastError()));
}

std::wstring longPath(const QString &path)
{
    QString native = QDir::toNativeSeparators(path);
    if (native.startsWith(QLatin1String("\\\\?\\")) || native.startsWith(QLatin1String("\\\\.\\")))
        return native.toStdWString();
    if (native.startsWith(QLatin1String("\\\\")))
        native = QLatin1String("\\\\?\\UNC\\") + native.mid(2);
    else if (native.size() >= 3 && native[1] == QLatin1Char(':') && native[2] == QLatin1Char('\\'))
        native.prepend(QLatin1String("\\\\?\\"));
    return native.toStdWString();
}

qint64 epochMsFrom(const FILETIME &time)
{
    constexpr qint64 unixEpoch = 116444736000000000; // 1970-01-01 in units of 100 ns since 1601-01-01
    const auto ticks = static_cast<qint64>(joined(time.dwHighDateTime, time.dwLowDateTime));
    return ticks > unixEpoch ? (ticks - unixEpoch) / 10000 : 0;
}

} // namespace MirrixCore
