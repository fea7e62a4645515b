#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/records/runrecord.h"

#include <QString>

namespace Mirrix {

/// The link that a run has put in the place of a file. One thread at a time.
class CreatedLink
{
public:
    /// With a method that makes no links, none is ever found.
    CreatedLink(const RunItem &item, CleaningMethod method);

    /// Whether the link is at the file's old path: a symbolic one by what it leads to, a hard one by its identity. A
    /// file that took its place, or a link to another file, is not ours.
    [[nodiscard]] bool isInPlace() const { return isOurs(m_item.original); }

    /// Whether it is at `path`.
    [[nodiscard]] bool isOurs(const QString &path) const;

    /// Sets it aside if it is in place, and checks again under the new name that it is ours. False when the old path is
    /// not free.
    [[nodiscard]] bool setAside() const;

    void putBack() const;

    /// Removes what setAside has set aside, in this run or before a crash. False when it is still there.
    bool removeAside() const;

    /// The temporary path under which a new copy of the file is written.
    [[nodiscard]] QString partPath() const;

private:
    [[nodiscard]] QString asidePath() const;

    const RunItem &m_item;
    CleaningMethod m_method;
    QString m_target;
};

} // namespace Mirrix
