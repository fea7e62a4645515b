#pragma once

#include "core/model/fileentry.h"

#include <QDateTime>
#include <QSize>

namespace MirrixCore {

// How the readers of the several formats write what they found into a record. What an earlier reader has set stays.

/// Names of the entries of FileEntry::tags, the same words as in the rule pages' tag tables.
namespace Tag {
inline const QString year = QStringLiteral("Year");
inline const QString genre = QStringLiteral("Genre");
inline const QString lyricist = QStringLiteral("Lyricist");
inline const QString bitrate = QStringLiteral("Bitrate");
inline const QString sampleRate = QStringLiteral("Sample rate");
inline const QString lens = QStringLiteral("LensModel");
inline const QString iso = QStringLiteral("ISO");
inline const QString aperture = QStringLiteral("FNumber");
inline const QString exposureTime = QStringLiteral("ExposureTime");
inline const QString focalLength = QStringLiteral("FocalLength");
inline const QString software = QStringLiteral("Software");
inline const QString userComment = QStringLiteral("UserComment");
} // namespace Tag

/// Sets `text` to `value` without the blanks around it.
void setIfEmpty(QString &text, const QString &value);

/// Adds a text to FileEntry::tags; not an empty one.
void addTag(FileEntry &entry, const QString &name, const QString &value);

/// Sets width and height; not from a size without area.
void setSize(FileEntry &entry, const QSize &size);

/// Sets the shot time and the date taken as "yyyy-MM-dd HH:mm:ss" in local time.
void setShotTime(FileEntry &entry, const QDateTime &time);

/// Sets the position in degrees; not one beyond the poles or the date line, nor one that is no number.
void setPosition(FileEntry &entry, double latitude, double longitude);

/// A number with as many digits as it needs, at most six; empty for 0 and less.
[[nodiscard]] QString shortNumber(double number);

/// Seconds as photographers write them: "1/250", "0.5", "2"; empty for 0 and less.
[[nodiscard]] QString exposureText(double seconds);

} // namespace MirrixCore
