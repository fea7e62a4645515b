#pragma once

#include "core/model/fileentry.h"

#include <QByteArray>

namespace MirrixCore {

/// Fills the still empty members of `entry` from the EXIF block at the head of a JPEG or TIFF file: camera, date taken
/// and shot time, description, position, and with `withTags` lens, exposure and software. Leaves everything as it is
/// where there is none. Thread-safe.
void readExif(const QByteArray &head, FileEntry &entry, bool withTags);

} // namespace MirrixCore
