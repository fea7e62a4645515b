#pragma once

#include "core/model/fileentry.h"
#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QSize>
#include <QString>

namespace MirrixCore {

// RAW files of cameras, read with LibRaw. All functions are thread-safe and answer with nothing for what LibRaw does
// not know or cannot read.

/// The largest picture embedded in a RAW file, encoded: mostly JPEG, from a few cameras PPM.
[[nodiscard]] QByteArray embeddedPreview(const QString &path);

/// A RAW file developed at half its width and height with the camera's white balance, as 8-bit PPM or PGM. May wait for
/// the memory it takes (DecodeBudget), and returns nothing when `cancelled` while waiting.
[[nodiscard]] QByteArray developedRaw(const QString &path, const CancelQuery &cancelled = {});

/// Width and height of the picture a RAW file holds, in pixels, before any turning.
[[nodiscard]] QSize rawSize(const QString &path);

/// Fills the members of `entry` that are still empty: dimensions, shot time, camera, date taken, description, position,
/// and with `withTags` the further texts about lens and exposure.
void readRawFacts(FileEntry &entry, bool withTags);

} // namespace MirrixCore
