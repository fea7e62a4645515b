#pragma once

#include "core/model/scanoptions.h"

#include <QHash>
#include <QList>
#include <QString>

namespace MirrixCore {

/// What each file of a scan is examined for, and whether it is listed when it is in no group, by the location it lies
/// in. Asking takes time by the length of the path and the number of lengths that the locations' paths have, not by the
/// number of locations.
class LocationKinds
{
public:
    explicit LocationKinds(const ScanOptions &options);

    /// Whether all files are examined for the same.
    [[nodiscard]] bool isUniform() const;

    /// What that is; valid when isUniform.
    [[nodiscard]] FindKind uniformKind() const;

    /// The kind of the innermost location that holds `path`; ContentDuplicates when none does.
    [[nodiscard]] FindKind kindOf(const QString &path) const;

    /// Whether any files are listed that are in no group.
    [[nodiscard]] bool showRemaining() const;

    /// Whether `path` is, if it is in no group: as its innermost location says; without locations, as the options say.
    [[nodiscard]] bool showRemainingOf(const QString &path) const;

private:
    struct Place
    {
        FindKind kind;
        bool showRemaining;
    };

    /// The innermost place that holds `path`; null when none does.
    [[nodiscard]] const Place *placeOf(const QString &path) const;

    QHash<QString, Place> m_places; ///< by folder, in comparable form
    QList<qsizetype> m_lengths;     ///< those of the folders, longest first
    bool m_showRemaining;           ///< what the options say without locations
};

} // namespace MirrixCore
