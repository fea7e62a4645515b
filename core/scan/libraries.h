#pragma once

#include <QList>
#include <QString>

namespace MirrixCore {

/// A library the program works with.
struct LibraryInfo
{
    QString name;
    QString version; ///< as the library itself reports it; empty when it does not or is missing
    QString licence; ///< SPDX expression
};

/// The libraries behind scanning and media reading. Loads those that are only loaded when needed, which may take a
/// tenth of a second. Thread-safe.
[[nodiscard]] QList<LibraryInfo> librariesInUse();

} // namespace MirrixCore
