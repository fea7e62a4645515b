#pragma once

#include <QString>

namespace MirrixCore {

/// `text` without what marks a copy at its very end ("- Copy", "(2)", "副本3", ...), trimmed. Thread-safe.
[[nodiscard]] QString stripCopySuffix(const QString &text);

/// A name without its extension, without what desktops and file managers add to the names of copies, in any of the
/// program's languages: at the end as stripCopySuffix knows it or as "- Kopie", "(otra copia)", " copie 2", "のコピー",
/// at the beginning as "Copy of" or "Kopie (2) von"; several in a row, too. Trimmed; a name of nothing else keeps its
/// last one, so that only a blank name becomes empty. Thread-safe.
[[nodiscard]] QString stripCopyWords(const QString &baseName);

/// Whether a file name says that the file is a copy, as stripCopyWords knows it. Thread-safe.
[[nodiscard]] bool hasCopyWord(const QString &name);

} // namespace MirrixCore
