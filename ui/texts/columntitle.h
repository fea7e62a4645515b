#pragma once

#include <QString>

namespace Mirrix {

/// A title of several words in two lines of about one length, for a narrow column.
[[nodiscard]] QString inTwoLines(const QString &title);

} // namespace Mirrix
