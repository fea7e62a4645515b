#include "core/match/rulekeys.h"
#include "core/media/mediainfo.h"
#include "core/media/mediakinds.h"
#include "core/media/metadata.h"
#include "core/media/rawfile.h"
#include "tests/support/mediafiles.h"
#include "tests/support/temptree.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QTest>

#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <filesystem>
#include <memory>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

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
    FileEntry entry;
    entry.path = path;
    MediaMetadata::enrich(entry, kind);
    return entry;
}

/// The record of a file that told nothing.
FileEntry onlyPath(const QString &path)
{
    FileEntry entry;
    entry.path = path;
    return entry;
}

} // namespace

class MetadataTest : public QObject
{
    Q_OBJECT

private slots:
    void kinds();
    void photograph();
    void rawFile();
    void audio();
    void video();
    void brokenFiles();
    void previewFacts();
    void tagRulesGroupAudio();

private:
    QString writeAudio(const QString &name, const wchar_t *artist, unsigned track, int milliseconds = 1500) const;

    TempTree m_tree;
};

QString MetadataTest::writeAudio(const QString &name, const wchar_t *artist, unsigned track, int milliseconds) const
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

void MetadataTest::kinds()
{
    for (const QStringList &list : {videoExtensions(), imageExtensions(), audioExtensions(), rawExtensions()})
        QCOMPARE(QSet<QString>(list.begin(), list.end()).size(), list.size());
    for (const QString &raw : rawExtensions())
        QVERIFY(imageExtensions().contains(raw));
    QVERIFY(isMediaFile(u"/a.b/C.JPG"_s, SearchMode::Images));
    QVERIFY(!isMediaFile(u"/a.jpg/c"_s, SearchMode::Images));
    QVERIFY(!isMediaFile(u"/a.mp3"_s, SearchMode::Video));
}

void MetadataTest::photograph()
{
    const QString path = m_tree.write(u"日本.jpg"_s, withExif(jpeg(), exifBlock()));
    const FileEntry entry = enriched(path, SearchMode::Images);
    QCOMPARE(entry.width, 60);
    QCOMPARE(entry.height, 40);
    QCOMPARE(entry.cameraMake, u"Maker"_s);
    QCOMPARE(entry.cameraModel, u"Modèle"_s);
    QCOMPARE(entry.album, u"Beach"_s);
    QCOMPARE(entry.dateTaken, u"2023-01-02 03:04:05"_s);
    QCOMPARE(entry.shotMs, localMs(u"2023-01-02T03:04:05"_s));
    QVERIFY(entry.hasGps);
    QCOMPARE(entry.latitude, -12.51);
    QCOMPARE(entry.longitude, -170.25);
    QVERIFY(entry.tags.isEmpty());
}

void MetadataTest::rawFile()
{
    const QByteArray preview = jpeg(64, 48);
    const QString path = m_tree.write(u"photo.dng"_s, dngFile(preview, 64, 48));
    const FileEntry entry = enriched(path, SearchMode::Images);
    QCOMPARE(entry.width, 256); // not the preview's
    QCOMPARE(entry.height, 192);
    QCOMPARE(entry.cameraMake, u"Maker"_s);
    QCOMPARE(entry.cameraModel, u"Model 5"_s);
    QCOMPARE(entry.dateTaken, u"2021-03-04 05:06:07"_s);
    QCOMPARE(embeddedPreview(path), preview);
    const QImage developed = QImage::fromData(developedRaw(path));
    QCOMPARE(developed.size(), QSize(128, 96));
    QVERIFY(qGray(developed.pixel(10, 50)) < qGray(developed.pixel(60, 50)));
    QVERIFY(qGray(developed.pixel(60, 50)) < qGray(developed.pixel(110, 50)));
}

void MetadataTest::audio()
{
    const FileEntry entry = enriched(writeAudio(u"日本 ü.wav"_s, L"Ärtist", 7), SearchMode::Audio);
    QCOMPARE(entry.durationMs, 1500);
    QCOMPARE(entry.artist, u"Ärtist"_s);
    QCOMPARE(entry.title, u"Títle"_s);
    QCOMPARE(entry.album, u"专辑"_s);
    QCOMPARE(entry.track, u"7"_s);
    const FileEntry untagged = enriched(m_tree.write(u"untagged.wav"_s, wavFile(250)), SearchMode::Audio);
    FileEntry expected = onlyPath(untagged.path);
    expected.durationMs = 250;
    QCOMPARE(untagged, expected);
}

void MetadataTest::video()
{
    if (!MediaInfoFile::isAvailable())
        QSKIP("MediaInfo is not installed");
    const FileEntry entry =
        enriched(m_tree.write(u"日本.mp4"_s, mp4File(61234, "Trip", "2022-05-06 07:08:09")), SearchMode::Video);
    QCOMPARE(entry.durationMs, 61234);
    QCOMPARE(entry.title, u"Trip"_s);
    QCOMPARE(entry.dateTaken, u"2022-05-06 07:08:09"_s);
    QCOMPARE(entry.shotMs, localMs(u"2022-05-06T07:08:09"_s));
}

void MetadataTest::brokenFiles()
{
    const QByteArray photo = withExif(jpeg(), exifBlock());
    for (const SearchMode kind : {SearchMode::Images, SearchMode::Audio, SearchMode::Video}) {
        for (const QString &extension : extensionsOf(kind)) {
            for (const QByteArray &content : {QByteArray(), patternBytes(5000), photo.first(300)}) {
                const QString path = m_tree.write(u"broken."_s + extension, content);
                const FileEntry entry = enriched(path, kind);
                QVERIFY2(!content.isEmpty() || entry == onlyPath(path), qPrintable(path));
            }
        }
        QCOMPARE(enriched(m_tree.path(u"missing.jpg"_s), kind), onlyPath(m_tree.path(u"missing.jpg"_s)));
    }
}

void MetadataTest::previewFacts()
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
    QCOMPARE(MediaMetadata::readPreviewFacts(u"/no/such.jpg"_s), onlyPath(u"/no/such.jpg"_s));
}

void MetadataTest::tagRulesGroupAudio()
{
    ScanOptions options;
    options.searchMode = static_cast<qint32>(SearchMode::Audio);
    options.audioMatchDuration = true;
    options.audioTags = {{u"艺术家"_s, 1}, {u"Title"_s, 0}};
    QList<FileEntry> files = {onlyPath(writeAudio(u"1.wav"_s, L"A", 1)), onlyPath(writeAudio(u"2.wav"_s, L"B", 1)),
                              onlyPath(writeAudio(u"3.wav"_s, L"A", 2, 2500)),
                              onlyPath(writeAudio(u"4.wav"_s, L"A", 2, 7000))};
    QVERIFY(MediaMetadata::isNeeded(options));
    MediaMetadata::enrich(files, options, {}, {});
    const ScanResult result = groupByRuleKeys(files, options, true);
    QCOMPARE(result.groups.size(), 1);
    QCOMPARE(result.groups[0].key, u"ADUR:0|AT:艺术家:A"_s);
    QCOMPARE(result.groups[0].files, (QList<FileEntry>{files[0], files[2]}));
}

QTEST_GUILESS_MAIN(MetadataTest)
#include "tst_metadata.moc"
