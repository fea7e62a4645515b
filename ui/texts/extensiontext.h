#pragma once

#include <QString>
#include <QStringList>

namespace Mirrix {

/// The extensions of a text as a user types it: parts between commas, semicolons and white space, in lower case,
/// without one leading dot, each once, in the order of first appearance. A text that is empty, "*" or "*.*" as a whole
/// gives the empty list, which means every extension.
[[nodiscard]] QStringList extensionsFromText(const QString &text);

} // namespace Mirrix
