#pragma once

#include <QString>

namespace MirrixCore {

/// What two paths of one file have in common. Never compare members that are not known.
struct FileIdentity
{
    quint32 volume = 0;
    quint64 index = 0; ///< 0 = unknown
    quint32 links = 1; ///< number of hard links
    bool isKnown = false;

    /// Whether both are known for certain and the same file or folder.
    [[nodiscard]] bool isSameAs(const FileIdentity &other) const
    {
        return areComparable(*this, other) && index == other.index && volume == other.volume;
    }

    /// Whether both are known for certain and not the same. What is unknown is neither the same nor another.
    [[nodiscard]] bool isOtherThan(const FileIdentity &other) const
    {
        return areComparable(*this, other) && !isSameAs(other);
    }

    /// Whether anything can be said of the two.
    static bool areComparable(const FileIdentity &one, const FileIdentity &other)
    {
        return one.isKnown && other.isKnown && one.index != 0 && other.index != 0;
    }
};

/// What a path leads to. Links are followed.
struct FileStatus
{
    enum class Kind
    {
        Missing,
        File,
        Folder,
        Other
    };

    Kind kind = Kind::Missing;
    bool isHidden = false;
    qint64 sizeBytes = 0;
    qint64 modifiedMs = 0; ///< milliseconds since the Unix epoch; below 1 = unknown
    FileIdentity identity;
    QString reason; ///< why nothing could be read, in the system's words; empty otherwise
};

/// Reads what `path` leads to without opening its content. Missing with an empty reason means that nothing is there;
/// with a reason, that the system returned an error. Thread-safe.
[[nodiscard]] FileStatus fileStatus(const QString &path);

} // namespace MirrixCore
