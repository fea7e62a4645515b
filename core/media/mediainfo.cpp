#include "core/media/mediainfo.h"

#include "core/media/mediainfolibrary.h"
#include "core/platform/filereader.h"

#include <QLibrary>

#include <algorithm>
#include <vector>

namespace MirrixCore {

namespace {

/// The entry points of the library's C interface. Texts are of wide characters.
struct Library
{
    void *(*create)() = nullptr;
    void (*destroy)(void *) = nullptr;
    void (*close)(void *) = nullptr;
    const wchar_t *(*get)(void *, int stream, size_t number, const wchar_t *name, int kind, int search) = nullptr;
    size_t (*beginBuffer)(void *, quint64 size, quint64 offset) = nullptr;
    size_t (*addBuffer)(void *, const quint8 *bytes, size_t length) = nullptr;
    quint64 (*nextOffset)(void *) = nullptr;
    size_t (*endBuffer)(void *) = nullptr;
    const wchar_t *(*option)(void *, const wchar_t *name, const wchar_t *value) = nullptr;

    template <typename Function>
    static bool resolve(QLibrary &file, const char *name, Function &function)
    {
        function = reinterpret_cast<Function>(file.resolve(name));
        return function != nullptr;
    }

    bool load(const QString &fileName)
    {
        QLibrary file(fileName);
        return resolve(file, "MediaInfo_New", create) && resolve(file, "MediaInfo_Delete", destroy) &&
               resolve(file, "MediaInfo_Close", close) && resolve(file, "MediaInfo_Get", get) &&
               resolve(file, "MediaInfo_Open_Buffer_Init", beginBuffer) &&
               resolve(file, "MediaInfo_Open_Buffer_Continue", addBuffer) &&
               resolve(file, "MediaInfo_Open_Buffer_Continue_GoTo_Get", nextOffset) &&
               resolve(file, "MediaInfo_Open_Buffer_Finalize", endBuffer) && resolve(file, "MediaInfo_Option", option);
    }
};

/// Null when the library is missing or lacks an entry point.
const Library *library()
{
    static Library functions;
    static const bool isLoaded = [] {
        const QStringList names = mediaInfoLibraryNames();
        return std::any_of(names.begin(), names.end(), [](const QString &name) { return functions.load(name); });
    }();
    return isLoaded ? &functions : nullptr;
}

/// Hands the file to the library piece by piece, from the offsets it asks for. It could open the file itself, but not
/// under every name, and on Linux only under names that suit the locale.
void feed(const Library &functions, void *handle, FileReader &reader)
{
    constexpr qint64 pieceBytes = 64 * 1024;
    // A head and a tail are a few MiB; a broken file could make the library ask for more without end.
    constexpr qint64 mostBytes = 256 * 1024 * 1024;
    constexpr size_t isFinished = 8; // bit 3 of the answer
    constexpr auto nowhere = static_cast<quint64>(-1);
    const qint64 size = reader.sizeBytes();
    std::vector<char> piece(pieceBytes);
    qint64 offset = 0;
    qint64 done = 0;
    functions.beginBuffer(handle, static_cast<quint64>(size), 0);
    while (offset < size && done < mostBytes) {
        const qint64 count = reader.readAt(offset, piece.data(), pieceBytes);
        if (count <= 0)
            break;
        offset += count;
        done += count;
        const auto *bytes = reinterpret_cast<const quint8 *>(piece.data());
        if (functions.addBuffer(handle, bytes, static_cast<size_t>(count)) & isFinished)
            break;
        const quint64 next = functions.nextOffset(handle);
        if (next == nowhere)
            continue;
        if (next >= static_cast<quint64>(size))
            break;
        offset = static_cast<qint64>(next);
        functions.beginBuffer(handle, static_cast<quint64>(size), next);
    }
    functions.endBuffer(handle);
}

} // namespace

MediaInfoFile::MediaInfoFile() = default;

MediaInfoFile::~MediaInfoFile()
{
    if (!m_handle)
        return;
    library()->close(m_handle);
    library()->destroy(m_handle);
}

bool MediaInfoFile::open(const QString &path)
{
    FileReader reader;
    if (!library() || !reader.open(path) || !reader.readState())
        return false;
    if (!m_handle)
        m_handle = library()->create();
    if (!m_handle)
        return false;
    feed(*library(), m_handle, reader);
    return !value(Stream::General, QStringLiteral("Format")).isEmpty();
}

QString MediaInfoFile::value(Stream stream, const QString &name) const
{
    constexpr int text = 1;
    constexpr int byName = 0;
    if (!m_handle)
        return {};
    // The answer lies in memory that the next call may overwrite.
    const wchar_t *answer =
        library()->get(m_handle, static_cast<int>(stream), 0, name.toStdWString().c_str(), text, byName);
    return answer ? QString::fromWCharArray(answer).trimmed() : QString();
}

bool MediaInfoFile::isAvailable()
{
    return library() != nullptr;
}

QString MediaInfoFile::unavailableText()
{
    return isAvailable() ? QString() : QStringLiteral("Unable to load MediaInfo.dll");
}

QString MediaInfoFile::libraryVersion()
{
    if (!isAvailable())
        return {};
    const QString answer =
        QString::fromWCharArray(library()->option(nullptr, L"Info_Version", L"")); // "MediaInfoLib - v23.04"
    return answer.section(QLatin1Char('v'), -1);
}

} // namespace MirrixCore
