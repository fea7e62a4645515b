#include "ui/state/batchstate.h"
#include "ui/state/hashrows.h"
#include "ui/state/imagefacts.h"
#include "ui/state/scanstatus.h"
#include "ui/texts/boxtext.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/extensiontext.h"
#include "ui/texts/resulttexts.h"
#include "ui/texts/scansummary.h"

#include <QDateTime>
#include <QTest>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace {

/// The lines between the heading and the closing remark.
QString linesOf(const MirrixCore::ScanOptions &options)
{
    const QStringList lines = scanSummary(options).split(u'\n');
    return lines.mid(2, lines.size() - 4).join(u'\n');
}

} // namespace

/// What the window says in words.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void sizes()
    {
        QStringList texts;
        for (const qint64 bytes : {0LL, 1023LL, 1024LL, 1LL << 20, 1LL << 30, 1LL << 40})
            texts.append(formatSize(bytes));
        QCOMPARE(texts.join(u'|'), u"0 B|1023 B|1.0 KB|1.00 MB|1.00 GB|1024.00 GB"_s); // no TB
    }

    void extensions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("extensions");
        QTest::newRow("blanks") << u" \t\n "_s << QString();
        QTest::newRow("star") << u" * "_s << QString();
        QTest::newRow("star dot star") << u"*.*"_s << QString();
        QTest::newRow("star among others counts as a name") << u".JPG;png, jpg *.*"_s << u"jpg png *.*"_s;
        QTest::newRow("runs of separators") << u",;a ;,\n b\t"_s << u"a b"_s;
        QTest::newRow("one dot only") << u"..tar .tar.gz"_s << u".tar tar.gz"_s;
        QTest::newRow("dots without a name") << u". a ."_s << u"a"_s;
    }

    void extensions()
    {
        QFETCH(QString, text);
        QTEST(extensionsFromText(text).join(u' '), "extensions");
    }

    void progress()
    {
        const auto percent = [](qint64 found, qint64 processed, qint64 total) {
            return progressPercent({found, processed, total, {}, {}}).value_or(-1);
        };
        QCOMPARE(percent(0, 0, 0), -1); // left where it is
        QCOMPARE(percent(7, 0, 0), 5);
        QCOMPARE(percent(3, 2, 3), 66); // cut, not rounded
        QCOMPARE(percent(3, 9, 3), 100);
        QCOMPARE(percent(1, 4'000'000'000, 8'000'000'000), 50);
        QCOMPARE(progressText({12, 3, 4, u"/a/%3/%1.txt"_s, u"quick-hash"_s}),
                 u"[快速哈希] /a/%3/%1.txt  已枚举 12  已处理 3/4"_s);
    }

    void slowsTheTextOfOnePhase()
    {
        ProgressThrottle throttle;
        QVERIFY(throttle.admits(u"quick-hash"_s, 1000));
        QVERIFY(!throttle.admits(u"quick-hash"_s, 1149));
        QVERIFY(throttle.admits(u"quick-hash"_s, 1150));
        QVERIFY(throttle.admits(u"full-hash"_s, 1151));
        throttle.reset();
        QVERIFY(throttle.admits(u"full-hash"_s, 1152));
    }

    void scanSummaries_data()
    {
        QTest::addColumn<MirrixCore::ScanOptions>("options");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, auto change, const QString &lines) {
            MirrixCore::ScanOptions options;
            change(options);
            QTest::newRow(name) << options << lines;
        };
        const QString same = u"• 模式：常规模式\n• 匹配：相同内容（字节级）\n"_s;
        const auto everything = [](auto &o) {
            o.roots = {u"a"_s, u"b %1"_s, u"c"_s, u"d"_s};
            o.excludeFolders = {u"x"_s, u"y"_s};
            o.maxSize = 1048576;
            o.includeExtensions = {u"jpg"_s, u"png"_s};
            o.excludeExtensions = {u"tmp"_s};
            o.skipHidden = o.skipSystemFolders = true;
        };
        row("everything", everything,
            same +
                u"• 扫描位置：4\n    a\n    b %1\n    c\n    … 另有 1 个\n• 排除目录：2\n• 大小限制：不限 ~ 1.00 MB\n"
                "• 包含扩展名：jpg,png\n• 排除扩展名：tmp\n• 跳过：隐藏文件、系统目录"_s);
        const auto longLists = [](auto &o) {
            o.includeExtensions = {QString(48, u'x')};
            o.excludeExtensions = {QString(40, u'x'), u"12345678"_s}; // 49 with the comma
            o.minSize = 1;
            o.roots = {u"a"_s, u"b"_s, u"c"_s};
        };
        row("limits", longLists,
            same +
                u"• 扫描位置：3\n    a\n    b\n    c\n• 大小限制：1 B ~ 不限\n• 包含扩展名：%1\n• 排除扩展名：%2,1234..."_s
                    .arg(QString(48, u'x'), QString(40, u'x')));
        const QString none = u"\n• 扫描位置：0"_s;
        const auto flipped = [](auto &o) { o.searchMode = 1, o.imageSimilarityLevel = 4, o.imageFindFlipped = true; };
        const auto both = [](auto &o) { o.searchMode = 1, o.imageFindRotated = o.imageFindFlipped = true; };
        const auto audio = [](auto &o) { o.searchMode = 2, o.mediaCompareDepth = 3; };
        const auto similar = [](auto &o) { o.contentMatch = 1; };
        const auto ignored = [](auto &o) { o.contentMatch = 2; };
        const auto video = [](auto &o) { o.searchMode = 3; };
        row("similar", similar, u"• 模式：常规模式\n• 匹配：相似内容（采样一致 ≥ 90%）"_s + none);
        row("ignored", ignored, u"• 模式：常规模式\n• 匹配：忽略内容（名称/大小/日期规则）"_s + none);
        row("both", both, u"• 模式：图片模式\n• 图像相似度：非常近似匹配\n• 变体：旋转、翻转"_s + none);
        row("flipped", flipped, u"• 模式：图片模式\n• 图像相似度：宽松相似\n• 变体：翻转"_s + none);
        row("audio", audio, u"• 模式：音频模式\n• 音频比对：全文件精确哈希"_s + none);
        row("video", video, u"• 模式：视频模式\n• 视频比对：开头采样哈希"_s + none);
    }

    void scanSummaries()
    {
        QFETCH(MirrixCore::ScanOptions, options);
        QTEST(linesOf(options), "lines");
    }

    void results()
    {
        ResultSet results;
        results.groups.resize(2);
        results.folderGroups.resize(1);
        results.remaining.resize(3);
        results.filesScanned = 1234;
        results.wastedBytes = 1048576;
        results.elapsedMs = 1940;
        QCOMPARE(resultSummary(results),
                 u"文件 1234 · 重复组 2 · 文件夹组 1 · 其余 3 · 可回收约 1.00 MB · 耗时 1.9 秒"_s);
        QCOMPARE(hashSummary(3, 1234), u"共 3 个文件 @ 1.234 秒"_s);
        const BatchState scanning{ResultsTab::Folders, true, true, 0};
        const BatchState ready{ResultsTab::Duplicates, false, true, 7};
        QCOMPARE(batchNote(scanning), u"扫描进行中，批量操作已暂停。"_s);
        QCOMPARE(batchNote({}), u"扫描完成后，在左侧勾选重复项再执行批量操作。"_s);
        QCOMPARE(batchNote(ready), u"已勾选 7 个文件"_s);
        QVERIFY(!scanning.isActive() && !BatchState().isActive() && ready.isActive());
    }

    void facts()
    {
        MirrixCore::FileEntry file;
        file.path = u"p %1.JPG"_s;
        file.size = 5'000'000'000;
        const QString preview = u"路径: p %1.JPG\n大小: 4.66 GB\n修改: \n后缀: jpg"_s;
        QCOMPARE(previewText(file), preview);                                               // without a time
        file.modifiedMs = QDateTime(QDate(2023, 2, 3), QTime(4, 5, 6)).toMSecsSinceEpoch(); // local
        const QString sheet = u"路径: p %1.JPG\n大小: 5000000000 字节\n修改: 2023-02-03 04:05:06"_s;
        QCOMPARE(factSheet(file), sheet);
        file.width = 40;
        file.height = 30;
        file.cameraMake = u"Maker"_s;
        file.cameraModel = u"M1"_s;
        file.artist = u"Someone"_s;
        file.title = u"Dawn"_s;
        file.dateTaken = u"2023:01:01 00:00:00"_s;
        file.hasGps = true;
        file.latitude = -33.1;
        file.longitude = 151.25;
        const QString picture = u"\n尺寸: 40 × 30\n相机: Maker M1\n拍摄: 2023:01:01 00:00:00"_s;
        QCOMPARE(factSheet(file), sheet + picture + u"\nGPS: -33.1, 151.25"_s);
        file.modifiedMs = 0;
        QCOMPARE(previewText(file), preview + picture + u"\n艺术家: Someone\n标题: Dawn"_s);
    }

    /// What message boxes make of texts that would not fit the screen.
    void boxes()
    {
        QCOMPARE(boxText(u"a\nb"_s).shown, u"a\nb"_s);
        QVERIFY(boxText(u"a\nb"_s).details.isEmpty());
        const QString sentence = u"word "_s.repeated(40);
        QCOMPARE(boxText(sentence).shown, sentence);
        QStringList lines = {u"done"_s};
        for (int i = 0; i < 100000; ++i)
            lines.append(u"failed %1"_s.arg(i));
        lines.append(QString(5000, u'z') + u"end"_s);
        const BoxText fitted = boxText(lines.join(u'\n'));
        const QStringList shown = fitted.shown.split(u'\n');
        QCOMPARE(shown.size(), 14);
        QCOMPARE(shown[11], u"failed 10"_s);
        QVERIFY(shown[12].contains(QString::number(100002 - 13)));
        QVERIFY(shown[13].endsWith("zend"_L1) && shown[13].size() < 400);
        QVERIFY(fitted.details.startsWith("done\nfailed 0\n"_L1) && fitted.details.count(u'\n') < 10000);
    }
};

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_texts.moc"
