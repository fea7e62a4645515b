#include "tests/cli/clitest.h"
#include "tests/support/mediafiles.h"

#include <QBuffer>
#include <QImage>

namespace {

QByteArray rings(int width, int height, const char *format)
{
    QImage image(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.scanLine(y)[x] = static_cast<uchar>((x * x * 9 / width + y * y * 5 / height) / 3 % 256);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, format, 95) ? bytes : QByteArray();
}

} // namespace

class MediaScanTest : public CliTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void images()
    {
        m_tree->write(u"a.png"_s, rings(300, 200, "png"));
        m_tree->write(u"b.jpg"_s, rings(300, 200, "jpg"));
        for (int scans = 0; scans < 2; ++scans) {
            const QJsonArray groups = scan(u"images --set imageSameDimensions=true"_s)[u"groups"_s].toArray();
            QCOMPARE(m_run.errors, "");
            QCOMPARE(m_run.status, 0);
            QCOMPARE(groups.size(), 1);
            const QJsonArray files = groups[0][u"files"_s].toArray();
            QCOMPARE(files.size(), 2);
            for (const QJsonValue &file : files) {
                QCOMPARE(file[u"width"_s].toInt(), 300);
                QCOMPARE(file[u"height"_s].toInt(), 200);
            }
        }
        QVERIFY(QDir(dataFolder() + u"/image_feature_cache"_s).exists());
    }

    void brokenPicturesAreSilent()
    {
        int count = 0;
        for (const char *format : {"png", "jpg", "bmp", "ppm"}) {
            const QByteArray whole = rings(300, 200, format);
            for (const QByteArray &bytes : {whole.first(whole.size() / 2), whole.first(30) + patternBytes(3000),
                                            whole.first(whole.size() / 2) + patternBytes(3000), QByteArray()}) {
                for (const QString &extension : {u"jpg"_s, u"dng"_s, u"tiff"_s})
                    m_tree->write(u"broken/%1.%2"_s.arg(++count).arg(extension), bytes);
            }
        }
        const QJsonObject report = scan(u"images --set imageSameShotTime=true"_s);
        QCOMPARE(m_run.errors, "");
        QCOMPARE(m_run.status, 0);
        QVERIFY(report[u"filesScanned"_s].toInt() >= count);
    }

    void opensNothingForWriting_data()
    {
        const auto row = columns<QString>({"options"});
        row("files", {});
        row("similar content", u" --mode similar-content"_s);
        row("images", u" --mode images --set imageSameShotTime=true"_s);
        row("audio", u" --mode audio --set audioMatchDuration=true"_s);
        row("video", u" --mode video --set videoMatchDuration=true"_s);
    }

    void opensNothingForWriting()
    {
        QFETCH(QString, options);
        for (const QString &name : {u"a"_s, u"b"_s}) {
            m_tree->write(u"in/"_s + name + u".png"_s, rings(300, 200, "png"));
            m_tree->write(u"in/"_s + name + u".dng"_s, dngFile(rings(300, 200, "jpg"), 300, 200));
            m_tree->write(u"in/"_s + name + u".mp4"_s, mp4File(2000, "title", "2024-05-01"));
            for (const QString &format : {u"wav"_s, u"mp3"_s, u"flac"_s, u"ogg"_s, u"m4a"_s, u"wma"_s, u"ape"_s})
                m_tree->write(u"in/"_s + name + u'.' + format, wavFile(2000));
        }
        ProgramRun done;
        if (!traced(u"-o %1/trace -e trace=open,openat,openat2,creat,truncate"_s, u"scan %1/in"_s + options, done))
            QSKIP("there is no strace");
        QCOMPARE(done.status, 0);
        int reads = 0;
        for (const QByteArray &call : contentOf(path(u"trace"_s)).split('\n')) {
            if (!call.contains(path(u"in/"_s).toUtf8()))
                continue;
            ++reads;
            QVERIFY2(call.contains("O_RDONLY"), call.constData());
        }
        QVERIFY(reads > 0);
    }

private:
    QJsonObject scan(const QString &mode)
    {
        m_run = run(u"scan %1 --format json --mode "_s + mode);
        return QJsonDocument::fromJson(m_run.output).object();
    }

    ProgramRun m_run;
};

QTEST_GUILESS_MAIN(MediaScanTest)
#include "tst_mediascan.moc"
