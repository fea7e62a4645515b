#include "core/media/audiofile.h"

#include "core/media/mediafacts.h"
#include "core/platform/nativepath.h"

#include <taglib/fileref.h>
#include <taglib/tag.h>
#include <taglib/tfilestream.h>
#include <taglib/tpropertymap.h>

#include <algorithm>

namespace MirrixCore {

namespace {

QString textFrom(const TagLib::String &text)
{
    const std::string utf8 = text.to8Bit(true);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString numberText(unsigned number)
{
    return number == 0 ? QString() : QString::number(number);
}

void readTags(const TagLib::FileRef &file, FileEntry &entry)
{
    if (const TagLib::Tag *tag = file.tag()) {
        addTag(entry, Tag::year, numberText(tag->year()));
        addTag(entry, Tag::genre, textFrom(tag->genre()));
    }
    if (file.file())
        addTag(entry, Tag::lyricist, textFrom(file.file()->properties()["LYRICIST"].toString()));
    if (const TagLib::AudioProperties *audio = file.audioProperties()) {
        if (audio->bitrate() > 0)
            addTag(entry, Tag::bitrate, QStringLiteral("%1 kb/s").arg(audio->bitrate()));
        if (audio->sampleRate() > 0)
            addTag(entry, Tag::sampleRate, QStringLiteral("%1 Hz").arg(audio->sampleRate()));
    }
}

} // namespace

void readAudioFacts(FileEntry &entry, bool withTags)
{
    const std::filesystem::path path = filesystemPath(entry.path);
    TagLib::FileStream stream(path.c_str(), true); // else it asks for the right to write
    if (!stream.isOpen())
        return;
    const TagLib::FileRef file(&stream, true, TagLib::AudioProperties::Average);
    if (file.isNull() || file.file()->length() == 0) // of an empty file the library makes up a duration
        return;
    if (const TagLib::AudioProperties *audio = file.audioProperties())
        entry.durationMs = std::max(audio->lengthInMilliseconds(), 0);
    if (const TagLib::Tag *tag = file.tag()) {
        setIfEmpty(entry.title, textFrom(tag->title()));
        setIfEmpty(entry.artist, textFrom(tag->artist()));
        setIfEmpty(entry.album, textFrom(tag->album()));
        setIfEmpty(entry.track, numberText(tag->track()));
    }
    if (withTags)
        readTags(file, entry);
}

} // namespace MirrixCore
