#pragma once

#include <QByteArray>
#include <QSize>

namespace MirrixCore {

/// What the head of a picture says that OpenCV decodes and Qt does not, or only where one of its plug-ins is installed.
struct HeaderSize
{
    /// WebP, TIFF, JPEG 2000, OpenEXR, Radiance, Sun raster, the float or the arbitrary form of PPM.
    bool isKnownFormat = false;
    QSize size; ///< in pixels; invalid when it is not found
};

/// Reads it from the encoded bytes without decoding. Thread-safe.
[[nodiscard]] HeaderSize headerSizeOf(const QByteArray &bytes);

} // namespace MirrixCore
