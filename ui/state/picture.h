#pragma once

#include "core/model/fileentry.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>

namespace Mirrix {

/// A picture made small, or why there is none.
struct Picture
{
    enum class Problem
    {
        None,
        Missing,
        TooLarge,
        Unreadable
    };

    QImage image;
    Problem problem = Problem::None;
};

/// Reads the picture of a file so that it fits into `bounds` (device pixels). Runs on pool threads, several at once.
using PictureReader = std::function<Picture(const QString &path, QSize bounds)>;

/// Completes what is known of a file with its media members. Runs on pool threads.
using FactsReader = std::function<MirrixCore::FileEntry(const MirrixCore::FileEntry &)>;

/// A PictureReader for Qt's formats and the RAW files of cameras (their embedded picture): scales while decoding, never
/// up; turns as the camera was held. A picture that would take more memory than the limit of QImageReader is not
/// decoded.
[[nodiscard]] Picture readPicture(const QString &path, QSize bounds);

/// Whether readPicture knows files with this suffix.
[[nodiscard]] bool isPicture(const QString &path);

/// The problem in words; empty for None.
[[nodiscard]] QString problemText(Picture::Problem problem);

} // namespace Mirrix
