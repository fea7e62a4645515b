#pragma once

#include "core/scan/scanoptions.h"

#include <QList>
#include <QString>

namespace MirrixCore {

/// What each file of a scan is examined for, by the location it lies in.
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

private:
    struct Place
    {
        QString folder; ///< cleaned
        FindKind kind;
    };
    QList<Place> m_places; ///< longest folder first
};

} // namespace MirrixCore
