#pragma once

#include <QString>

namespace Mirrix {

/// Whether both files grant the same users the same access: owner, group, permission bits and access lists agree, as
/// far as the system has them. What cannot be read counts as different. Follows links. Thread-safe.
[[nodiscard]] bool haveSameAccess(const QString &one, const QString &other);

} // namespace Mirrix
