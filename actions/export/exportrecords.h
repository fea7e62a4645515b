#pragma once

#include "actions/files/batch.h"
#include "core/model/scanresult.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <functional>

namespace Mirrix {

/// What of the results is written, and how.
struct ExportOptions
{
    bool onlyChecked = false;
    bool includeKeyAndTime = true;
    bool redactPaths = false; ///< hide the names of users' folders

    bool operator==(const ExportOptions &) const = default;
};

/// The groups to be written and which of their files are ticked.
struct ExportRecords
{
    QList<MirrixCore::DuplicateGroup> groups;
    std::function<bool(qsizetype group, qsizetype file)> isChecked; ///< indices from 0; empty = all are

    [[nodiscard]] bool isListed(qsizetype group, qsizetype file, const ExportOptions &options) const
    {
        return !options.onlyChecked || !isChecked || isChecked(group, file);
    }

    /// How many files of one group are written.
    [[nodiscard]] qsizetype countIn(qsizetype group, const ExportOptions &options) const;

    /// How many files are written in all.
    [[nodiscard]] qsizetype count(const ExportOptions &options) const;
};

/// One file that is to be written.
struct ListedFile
{
    const MirrixCore::DuplicateGroup &group;
    const MirrixCore::FileEntry &file;
    qsizetype groupIndex; ///< from 0
    bool isFirstOfGroup;  ///< among those written
};

/// Calls `visit` for every file to be written in the order of groups and files. False when the progress or a visit
/// ended it early.
[[nodiscard]] bool visitListedFiles(const ExportRecords &records, const ExportOptions &options,
                                    const BatchProgress &progress,
                                    const std::function<bool(const ListedFile &)> &visit);

/// Takes the next bytes of a text. False when they could not be written, which ends the text there.
using ByteSink = std::function<bool(QByteArrayView bytes)>;

} // namespace Mirrix
