#include "core/match/rulekeys.h"
#include "core/media/mediainfo.h"
#include "core/media/mediakinds.h"
#include "core/media/metadata.h"
#include "core/media/rawfile.h"
#include "tests/support/coretest.h"
#include "tests/support/mediafiles.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QSet>

#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <filesystem>

namespace {

QByteArray jpeg(int width = 60, int height = 40)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int i = 0; i < width * height; ++i)
        image.setPixel(i % width, i / width, qRgb(i % 256, i / width % 256, 99));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, "jpg") ? bytes : QByteArray();
}

qint64 localMs(const QString &time)
{
    return QDateTime::fromString(time, Qt::ISODate).toMSecsSinceEpoch();
}

/// A photograph's EXIF: 12° 30' 36" south, 170° 15' west.
QByteArray exifBlock()
{
    TiffFile file;
    const quint32 exif = file.addFolder({
        tiffRationals(0x829A, {{10, 2500}}), // exposure
        tiffRationals(0x829D, {{28, 5}}),    // f-number
        tiffShorts(0x8827, {3200}),          // ISO
        tiffText(0x9003, "2023:01:02 03:04:05"),
        tiffBytes(0x9286, QByteArray("ASCII\0\0\0a comment", 17), 7),
        tiffRationals(0x920A, {{50, 1}}),
        tiffText(0xA434, "A lens"),
    });
    const quint32 gps = file.addFolder({
        tiffText(1, "S"),
        tiffRationals(2, {{12, 1}, {30, 1}, {3600, 100}}),
        tiffText(3, "W"),
        tiffRationals(4, {{170, 1}, {15, 1}, {0, 1}}),
    });
    return file.finished({tiffText(270, "Beach"), tiffText(271, " Maker "), tiffText(272, "Modèle"),
                          tiffText(305, "Editor 2"), tiffText(306, "2024:01:01 00:00:00"), tiffLong(0x8769, exif),
                          tiffLong(0x8825, gps)});
}

FileEntry enriched(const QString &path, SearchMode kind)
{
    FileEntry entry = fileAt(path, 0);
    MediaMetadata::enrich(entry, kind);
    return entry;
}

/// What was read of a file, as one text.
QString factsOf(const FileEntry &file)
{
    const QString numbers = u"%1x%2 %3 ms"_s.arg(file.width).arg(file.height).arg(file.durationMs);
    return QStringList{numbers,    file.artist,     file.title,       file.album,
                       file.track, file.cameraMake, file.cameraModel, file.dateTaken}
        .join(u'|');
}

} // namespace

class MetadataTest : public QObject
{
    Q_OBJECT

    TempTree m_tree;

    QString writeAudio(const QString &name, const wchar_t *artist, unsigned track, int milliseconds = 1500) const
    {
        const QString path = m_tree.write(name, wavFile(milliseconds));
        const std::filesystem::path native(path.toStdU16String());
        TagLib::FileRef file(native.c_str());
        file.tag()->setArtist(artist);
        file.tag()->setTitle(L"Títle");
        file.tag()->setAlbum(L"专辑");
        file.tag()->setTrack(track);
        file.tag()->setYear(1999);
        file.tag()->setGenre("Jazz");
        if (!file.save())
            qFatal("cannot tag %s", qPrintable(path));
        return path;
    }

private slots:
    void kinds()
    {
        for (const QStringList &list : {videoExtensions(), imageExtensions(), audioExtensions(), rawExtensions()})
            QCOMPARE(QSet<QString>(list.begin(), list.end()).size(), list.size());
        for (const QString &raw : rawExtensions())
            QVERIFY(imageExtensions().contains(raw));
        QVERIFY(isMediaFile(u"/a.b/C.JPG"_s, SearchMode::Images));
        QVERIFY(!isMediaFile(u"/a.jpg/c"_s, SearchMode::Images));
        QVERIFY(!isMediaFile(u"/a.mp3"_s, SearchMode::Video));
    }

    void photograph()
    {
        const QString path = m_tree.write(u"日本.jpg"_s, withExif(jpeg(), exifBlock()));
        const FileEntry entry = enriched(path, SearchMode::Images);
        QCOMPARE(factsOf(entry), u"60x40 0 ms|||Beach||Maker|Modèle|2023-01-02 03:04:05"_s);
        QCOMPARE(entry.shotMs, localMs(u"2023-01-02T03:04:05"_s));
        QVERIFY(entry.hasGps);
        QCOMPARE(entry.latitude, -12.51);
        QCOMPARE(entry.longitude, -170.25);
        QVERIFY(entry.tags.isEmpty());
    }

    void rawFile()
    {
        const QByteArray preview = jpeg(64, 48);
        const QString path = m_tree.write(u"photo.dng"_s, dngFile(preview, 64, 48));
        QCOMPARE(factsOf(enriched(path, SearchMode::Images)), // not the preview's size
                 u"256x192 0 ms|||||Maker|Model 5|2021-03-04 05:06:07"_s);
        QCOMPARE(embeddedPreview(path), preview);
        const QImage developed = QImage::fromData(developedRaw(path));
        QCOMPARE(developed.size(), QSize(128, 96));
        QVERIFY(qGray(developed.pixel(10, 50)) < qGray(developed.pixel(60, 50)));
        QVERIFY(qGray(developed.pixel(60, 50)) < qGray(developed.pixel(110, 50)));
    }

    void audio()
    {
        const FileEntry tagged = enriched(writeAudio(u"日本 ü.wav"_s, L"Ärtist", 7), SearchMode::Audio);
        QCOMPARE(factsOf(tagged), u"0x0 1500 ms|Ärtist|Títle|专辑|7|||"_s);
        const FileEntry untagged = enriched(m_tree.write(u"untagged.wav"_s, wavFile(250)), SearchMode::Audio);
        FileEntry expected = fileAt(untagged.path, 0);
        expected.durationMs = 250;
        QCOMPARE(untagged, expected);
    }

    void video()
    {
        if (!MediaInfoFile::isAvailable())
            QSKIP("MediaInfo is not installed");
        const QString path = m_tree.write(u"日本.mp4"_s, mp4File(61234, "Trip", "2022-05-06 07:08:09"));
        const FileEntry entry = enriched(path, SearchMode::Video);
        QCOMPARE(entry.durationMs, 61234);
        QCOMPARE(entry.title, u"Trip"_s);
        QCOMPARE(entry.dateTaken, u"2022-05-06 07:08:09"_s);
        QCOMPARE(entry.shotMs, localMs(u"2022-05-06T07:08:09"_s));
    }

    void brokenFiles()
    {
        const QByteArray photo = withExif(jpeg(), exifBlock());
        for (const SearchMode kind : {SearchMode::Images, SearchMode::Audio, SearchMode::Video}) {
            for (const QString &extension : extensionsOf(kind)) {
                for (const QByteArray &content : {QByteArray(), patternBytes(5000), photo.first(300)}) {
                    const QString path = m_tree.write(u"broken."_s + extension, content);
                    const FileEntry entry = enriched(path, kind);
                    QVERIFY2(!content.isEmpty() || entry == fileAt(path, 0), qPrintable(path));
                }
            }
            const QString missing = m_tree.path(u"missing.jpg"_s);
            QCOMPARE(enriched(missing, kind), fileAt(missing, 0));
            QCOMPARE(MediaMetadata::readPreviewFacts(missing), fileAt(missing, 0));
        }
    }

    void previewFacts()
    {
        const QString photo = m_tree.write(u"photo.jpg"_s, withExif(jpeg(), exifBlock()));
        const FileEntry entry = MediaMetadata::readPreviewFacts(photo);
        QCOMPARE(entry.size, QFileInfo(photo).size());
        QCOMPARE(entry.modifiedMs, QFileInfo(photo).lastModified().toMSecsSinceEpoch());
        const QMap<QString, QString> tags = {{u"ExposureTime"_s, u"1/250"_s},   {u"FNumber"_s, u"5.6"_s},
                                             {u"FocalLength"_s, u"50"_s},       {u"ISO"_s, u"3200"_s},
                                             {u"LensModel"_s, u"A lens"_s},     {u"Software"_s, u"Editor 2"_s},
                                             {u"UserComment"_s, u"a comment"_s}};
        QCOMPARE(entry.tags, tags);
        const FileEntry song = MediaMetadata::readPreviewFacts(writeAudio(u"song.wav"_s, L"A", 0));
        QCOMPARE(song.track, QString());
        QCOMPARE(song.tags[u"Year"_s] + song.tags[u"Genre"_s] + song.tags[u"Sample rate"_s], u"1999Jazz8000 Hz"_s);
    }

    void tagRulesGroupAudio()
    {
        const ScanOptions options = optionsFrom(R"({"searchMode": 2, "audioMatchDuration": true,
            "audioTags": [{"name": "艺术家", "enabled": 1}, {"name": "Title", "enabled": 0}]})");
        QList<FileEntry> files = {fileAt(writeAudio(u"1.wav"_s, L"A", 1)), fileAt(writeAudio(u"2.wav"_s, L"B", 1)),
                                  fileAt(writeAudio(u"3.wav"_s, L"A", 2, 2500)),
                                  fileAt(writeAudio(u"4.wav"_s, L"A", 2, 7000))};
        QVERIFY(MediaMetadata::isNeeded(options));
        MediaMetadata::enrich(files, options, {}, {});
        const ScanResult result = groupByRuleKeys(files, options, true);
        QCOMPARE(result.groups.size(), 1);
        QCOMPARE(result.groups[0].key, u"ADUR:0|AT:艺术家:A"_s);
        QCOMPARE(result.groups[0].files, (QList<FileEntry>{files[0], files[2]}));
    }
};

QTEST_GUILESS_MAIN(MetadataTest)
#include "tst_metadata.moc"
