#pragma once

#include <QString>

namespace MirrixCore {

/// A file that MediaInfo looks at. The library is loaded on first use; where it is missing, no file can be opened. One
/// object belongs to one thread, several threads may each have theirs.
class MediaInfoFile
{
public:
    enum class Stream : int
    {
        General = 0,
        Video = 1,
        Audio = 2,
        Image = 5
    };

    MediaInfoFile();
    ~MediaInfoFile();
    MediaInfoFile(const MediaInfoFile &) = delete;
    MediaInfoFile &operator=(const MediaInfoFile &) = delete;

    /// Reads what of the file is needed. False when it cannot be read, when the library knows nothing of its format or
    /// is missing.
    [[nodiscard]] bool open(const QString &path);

    /// A value of the first stream of a kind, such as "Duration" (milliseconds); empty when there is none.
    [[nodiscard]] QString value(Stream stream, const QString &name) const;

    /// Whether the library could be loaded, with all entry points needed.
    [[nodiscard]] static bool isAvailable();

    /// Why it could not; empty when it could.
    [[nodiscard]] static QString unavailableText();

    /// What the library says its version is, such as "23.04"; empty when it could not be loaded.
    [[nodiscard]] static QString libraryVersion();

private:
    void *m_handle = nullptr;
};

} // namespace MirrixCore
