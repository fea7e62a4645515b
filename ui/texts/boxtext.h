#pragma once

#include <QString>

namespace Mirrix {

/// A text of any length, made to fit a message box.
struct BoxText
{
    QString shown;   ///< at most some fifteen lines, long paths cut in the middle
    QString details; ///< the whole text, up to some thousands of lines, when `shown` leaves anything out; else empty
};

/// The first lines and the last one stay, since that is where boxes say what happened and what to do.
/// Thread-safe.
[[nodiscard]] BoxText boxText(const QString &text);

} // namespace Mirrix
