#pragma once

#include "core/model/fileentry.h"

#include <QList>
#include <QMetaType>
#include <QString>

namespace MirrixCore {

/// Files that share what the scan looked for. A finished group has two or more members; only the group of empty files
/// may have one.
struct DuplicateGroup
{
    QString key; ///< what the members share: hex digest, "empty", "SIM:90%", a rule key, ...
    QList<FileEntry> files;
    qint64 wastedBytes = 0; ///< bytes freed by removing all members but one
    /// The members are to hold the same bytes: their whole contents were compared by digest.
    bool isEqualContent = false;

    bool operator==(const DuplicateGroup &) const = default;
};

/// One folder of a group of equal folders.
struct FolderEntry
{
    QString path;
    qint64 fileCount = 0;
    qint64 size = 0; ///< bytes of all files below

    bool operator==(const FolderEntry &) const = default;
};

/// Folders with the same content.
struct FolderGroup
{
    QList<FolderEntry> folders;
    qint64 fileCount = 0; ///< files in each of the folders
    qint64 size = 0;      ///< bytes in each of the folders

    bool operator==(const FolderGroup &) const = default;
};

/// A file or folder that could not be taken into account, and why.
struct UnreadPath
{
    QString path;
    QString reason; ///< the system's or our own words, untranslated

    bool operator==(const UnreadPath &) const = default;
};

/// How much a walk met and did not take because of the options' filters.
struct LeftOut
{
    qint64 files = 0;
    qint64 folders = 0; ///< not entered: excluded, hidden, on another volume

    bool operator==(const LeftOut &) const = default;
};

/// The outcome of a scan and of each matcher. Nothing found and cancelled before matching are both the default value.
struct ScanResult
{
    QList<DuplicateGroup> groups;     ///< by wastedBytes, largest first
    QList<FolderGroup> folderGroups;  ///< by reclaimable size, largest first
    QList<FileEntry> folderSummaries; ///< remaining files: enumerated, in no group, asked for
    qint64 filesScanned = 0;          ///< files that passed all filters
    qint64 totalBytes = 0;            ///< their sizes
    qint64 wastedBytes = 0;           ///< sum over the groups
    qint64 elapsedMs = 0;             ///< wall time of the whole scan
    qint64 candidates = 0;            ///< files that went on to content comparison
    QList<UnreadPath> unread;         ///< what is missing from the figures above because it could not be read
    LeftOut leftOut;                  ///< what the options left out on purpose

    bool operator==(const ScanResult &) const = default;
};

/// Sorts by wastedBytes, largest first; the order of equals is open.
void sortByWaste(QList<DuplicateGroup> &groups);

/// What removing all but one of `files` frees at least: the sum of their sizes less the largest.
[[nodiscard]] qint64 wasteOf(const QList<FileEntry> &files);

/// Sum of their sizes.
[[nodiscard]] qint64 totalSize(const QList<FileEntry> &files);

/// A result without groups that counts `files` as what was examined.
[[nodiscard]] ScanResult resultOn(const QList<FileEntry> &files);

/// Sum of the groups' wastedBytes.
[[nodiscard]] qint64 totalWaste(const QList<DuplicateGroup> &groups);

} // namespace MirrixCore

Q_DECLARE_METATYPE(MirrixCore::ScanResult)
