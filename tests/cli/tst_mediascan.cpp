#include "tests/support/mediafiles.h"
#include "tests/support/program.h"
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
    void images();
    void brokenPicturesAreSilent();

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

void MediaScanTest::images()
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

void MediaScanTest::brokenPicturesAreSilent()
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

QTEST_GUILESS_MAIN(MediaScanTest)
#include "tst_mediascan.moc"
