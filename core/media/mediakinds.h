#pragma once

#include "core/model/scanoptions.h"

#include <QStringList>

namespace MirrixCore {

/// The file name extensions of each kind of media: lower case, without dot, each once, the common ones first. The image
/// list holds those of RAW files too. Thread-safe.
[[nodiscard]] const QStringList &imageExtensions();
[[nodiscard]] const QStringList &audioExtensions();
[[nodiscard]] const QStringList &videoExtensions();

/// Extensions of cameras' RAW files, all of them image extensions as well; begins with the eight most common ones.
[[nodiscard]] const QStringList &rawExtensions();

/// The list of a search mode; empty, meaning every extension, for SearchMode::Files.
[[nodiscard]] const QStringList &extensionsOf(SearchMode mode);

/// Whether the path's suffix is one of the kind's. Case is ignored.
[[nodiscard]] bool isMediaFile(const QString &path, SearchMode mode);
[[nodiscard]] bool isRawFile(const QString &path);

} // namespace MirrixCore
