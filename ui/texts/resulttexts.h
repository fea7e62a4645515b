#pragma once

#include "core/model/scanresult.h"

#include <QString>
#include <QStringList>

namespace Mirrix {

/// A modification time as the lists show it, local, "yyyy-MM-dd HH:mm"; empty when unknown (below 1).
[[nodiscard]] QString minuteText(qint64 ms);

/// A path with the separators of this system.
[[nodiscard]] QString shownPath(const QString &path);

/// Where a file lies that is never the copy to keep, such as "In the recycle bin", in the current language; empty for
/// the ordinary place.
[[nodiscard]] QString placeText(MirrixCore::FilePlace place);

/// The paths that a scan could not read, as the end of its status: how many, and the first of them. Keeps no more than
/// those.
class UnreadNote
{
public:
    explicit UnreadNote(const QList<MirrixCore::UnreadPath> &unread);

    /// In the current language; empty when everything was read.
    [[nodiscard]] QString text() const;

private:
    qsizetype m_count;
    QStringList m_first;
};

/// What the preview says of a file: path, size, time, suffix, then the media members that are known.
[[nodiscard]] QString previewText(const MirrixCore::FileEntry &file);

} // namespace Mirrix
