#pragma once

#include <QList>
#include <QString>

namespace Mirrix {

/// A tag that a tag table offers.
struct TagName
{
    QString name;  ///< as the engine knows it, whatever the language
    QString label; ///< as the window shows it, translated
};

/// The tags of pictures (EXIF fields), audio and video files, in the order offered. Interface thread only.
[[nodiscard]] QList<TagName> imageTagNames();
[[nodiscard]] QList<TagName> audioTagNames();
[[nodiscard]] QList<TagName> videoTagNames();

} // namespace Mirrix
