#pragma once

#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QSize>
#include <QString>

namespace MirrixCore {

/// A picture's encoded bytes and the state of the file they were read from.
struct PictureBytes
{
    QByteArray bytes;      ///< what a decoder takes; empty when the file could not be read
    qint64 sizeBytes = -1; ///< of the file; -1 when it could not be read or changed during reading
    qint64 modifiedMs = 0; ///< of the file, milliseconds since the Unix epoch
};

/// Reads a file whole, or of a RAW file the embedded JPEG or, without `useRawPreview` or where there is none, the
/// picture developed at half size (as PPM). Files above 1 GiB are refused. Developing may wait for memory, until
/// `cancelled`. Thread-safe.
[[nodiscard]] PictureBytes readPicture(const QString &path, bool useRawPreview, const CancelQuery &cancelled = {});

/// Width and height in pixels as the head of a picture's encoded bytes state them, before any rotation; invalid where
/// Qt does not know the format. Decodes nothing.
[[nodiscard]] QSize pictureSize(const QByteArray &bytes);

/// The same for a file, of which little more than the head is read. Knows RAW files as well.
[[nodiscard]] QSize pictureSizeOfFile(const QString &path);

/// The first `mostBytes` of a file, less when it is shorter, none when it cannot be read. Thread-safe.
[[nodiscard]] QByteArray readHead(const QString &path, qint64 mostBytes);

} // namespace MirrixCore
