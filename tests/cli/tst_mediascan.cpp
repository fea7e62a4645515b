#include "tests/support/disk.h"
#include "tests/support/mediafiles.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

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

class MediaScanTest : public QObject
{
    Q_OBJECT

private slots:
    void images()
    {
        m_tree.write(u"a.png"_s, rings(300, 200, "png"));
        m_tree.write(u"b.jpg"_s, rings(300, 200, "jpg"));
        for (int scans = 0; scans < 2; ++scans) {
            const QJsonArray groups =
                scan({u"--mode"_s, u"images"_s, u"--set"_s, u"imageSameDimensions=true"_s})[u"groups"_s].toArray();
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
        QVERIFY(QDir(m_program.dataFolder() + u"/image_feature_cache"_s).exists());
    }

    void brokenPicturesAreSilent()
    {
        int count = 0;
        for (const char *format : {"png", "jpg", "bmp", "ppm"}) {
            const QByteArray whole = rings(300, 200, format);
            for (const QByteArray &bytes : {whole.first(whole.size() / 2), whole.first(30) + patternBytes(3000),
                                            whole.first(whole.size() / 2) + patternBytes(3000), QByteArray()}) {
                for (const QString &extension : {u"jpg"_s, u"dng"_s, u"tiff"_s})
                    m_tree.write(u"broken/%1.%2"_s.arg(++count).arg(extension), bytes);
            }
        }
        const QJsonObject report = scan({u"--mode"_s, u"images"_s, u"--set"_s, u"imageSameShotTime=true"_s});
        QCOMPARE(m_run.errors, "");
        QCOMPARE(m_run.status, 0);
        QVERIFY(report[u"filesScanned"_s].toInt() >= count);
    }

    void opensNothingForWriting_data()
    {
        const auto row = columns<QStringList>({"arguments"});
        row("files", QStringList());
        row("similar content", QStringList{u"--mode"_s, u"similar-content"_s});
        row("images", QStringList{u"--mode"_s, u"images"_s, u"--set"_s, u"imageSameShotTime=true"_s});
        row("audio", QStringList{u"--mode"_s, u"audio"_s, u"--set"_s, u"audioMatchDuration=true"_s});
        row("video", QStringList{u"--mode"_s, u"video"_s, u"--set"_s, u"videoMatchDuration=true"_s});
    }

    void opensNothingForWriting()
    {
        QFETCH(QStringList, arguments);
        const TempTree tree;
        for (const QString &name : {u"a"_s, u"b"_s}) {
            tree.write(name + u".png"_s, rings(300, 200, "png"));
            tree.write(name + u".dng"_s, dngFile(rings(300, 200, "jpg"), 300, 200));
            tree.write(name + u".mp4"_s, mp4File(2000, "title", "2024-05-01"));
            for (const QString &format : {u"wav"_s, u"mp3"_s, u"flac"_s, u"ogg"_s, u"m4a"_s, u"wma"_s, u"ape"_s})
                tree.write(name + u'.' + format, wavFile(2000));
        }
        const QString trace = m_tree.path(u"trace"_s);
        QProcess process;
        m_program.prepare(process, {u"-E"_s, u"ASAN_OPTIONS=detect_leaks=0"_s, u"-f"_s, u"-qq"_s, u"-o"_s, trace,
                                    u"-e"_s, u"trace=open,openat,openat2,creat,truncate"_s, Program::builtExecutable(),
                                    u"scan"_s, u"--data-dir"_s, m_program.dataFolder(), tree.path()});
        process.setProgram(u"strace"_s);
        process.setArguments(process.arguments() + arguments);
        process.start();
        if (!process.waitForStarted())
            QSKIP("there is no strace");
        QCOMPARE(Program::ended(process).status, 0);
        int reads = 0;
        for (const QByteArray &call : contentOf(trace).split('\n')) {
            if (!call.contains(tree.path().toUtf8() + '/'))
                continue;
            ++reads;
            QVERIFY2(call.contains("O_RDONLY"), call.constData());
        }
        QVERIFY(reads > 0);
    }

private:
    QJsonObject scan(const QStringList &arguments)
    {
        const QStringList all =
            QStringList{u"scan"_s, u"--data-dir"_s, m_program.dataFolder(), u"--format"_s, u"json"_s} + arguments +
            QStringList{m_tree.path()};
        m_run = m_program.run(all);
        return QJsonDocument::fromJson(m_run.output).object();
    }

    Program m_program;
    TempTree m_tree;
    ProgramRun m_run;
};

QTEST_GUILESS_MAIN(MediaScanTest)
#include "tst_mediascan.moc"
