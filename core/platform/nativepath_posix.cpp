#include "core/platform/nativepath.h"

#include "core/platform/openpath_posix.h"
#include "core/platform/surrogates.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace MirrixCore {

namespace {

/// A text that the system has allocated.
using SystemText = std::unique_ptr<char, decltype(&std::free)>;

constexpr char16_t loneBase = 0xDC00;

/// Length of the valid UTF-8 sequence at the start of `bytes` (no overlong form, no surrogate), or 0.
qsizetype validSequence(QByteArrayView bytes)
{
    const auto lead = static_cast<uchar>(bytes[0]);
    const qsizetype length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
    if (length == 0 || length > bytes.size())
        return 0;
    return QByteArrayView(bytes.first(length)).isValidUtf8() ? length : 0;
}

} // namespace

QByteArray pathBytes(const QString &path)
{
    return encodeWithSurrogates(path, [](char16_t unit, QByteArray &bytes) {
        if (unit >= loneBase + 0x80 && unit <= loneBase + 0xFF) {
            bytes += static_cast<char>(unit - loneBase);
        } else { // not a name of this system; kept distinct all the same
            bytes += static_cast<char>(0xE0 | (unit >> 12));
            bytes += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
            bytes += static_cast<char>(0x80 | (unit & 0x3F));
        }
    });
}

QString pathFromBytes(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        return decodeWholeUtf8(bytes);
    QString path;
    path.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = validSequence(bytes.sliced(i));
        if (length == 0)
            path += QChar(char16_t(loneBase + static_cast<uchar>(bytes[i])));
        else
            path += decodeWholeUtf8(bytes.sliced(i, length));
        i += std::max<qsizetype>(length, 1);
    }
    return path;
}

std::filesystem::path filesystemPath(const QString &path)
{
    return {pathBytes(path).toStdString()};
}

bool makeFolders(const QString &path)
{
    std::error_code failure;
    std::filesystem::create_directories(filesystemPath(path), failure);
    return std::filesystem::is_directory(filesystemPath(path), failure);
}

QString absolutePath(const QString &path)
{
    // Behind a link ".." leads elsewhere than the text says, so the system is asked; what does not exist stays.
    if (path.contains(QLatin1String("..")) && path.split(QLatin1Char('/')).contains(QLatin1String(".."))) {
        const QString resolved = canonicalPath(path);
        if (!resolved.isEmpty())
            return resolved;
    }
    if (path.startsWith(QLatin1Char('/')))
        return path;
    const SystemText current(getcwd(nullptr, 0), &std::free); // QDir::currentPath() loses bytes that are not UTF-8
    return current ? pathFromBytes(current.get()) + QLatin1Char('/') + path : path;
}

QString canonicalPath(const QString &path)
{
    return pathFromBytes(realPath(pathBytes(path)));
}

QString pathCaseKey(const QString &path)
{
    return path;
}

QStringList commandLineArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i]));
    return arguments;
}

QString systemErrorText(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

} // namespace MirrixCore
