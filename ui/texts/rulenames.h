#pragma once

#include <QString>

namespace Mirrix {

// What the window calls the choices of the rules page, translated; empty for a number that is none. Interface thread
// only.

[[nodiscard]] QString modeName(qint32 searchMode);                  ///< 0 to 3, a MirrixCore::SearchMode
[[nodiscard]] QString similarityLevelName(qint32 level);            ///< 0 to 4
[[nodiscard]] QString audioMethodName(qint32 mediaCompareDepth);    ///< 0 to 4
[[nodiscard]] QString videoMethodName(qint32 mediaCompareDepthAlt); ///< 0 to 2
[[nodiscard]] QString tagRuleName(qint32 rule);                     ///< 0 to 2, a TagRule
[[nodiscard]] QString noLimitName();                                ///< of a size that is not limited

} // namespace Mirrix
