#include "ui/logic/scansummary.h"

#include <QTest>

using MirrixCore::ScanOptions;

namespace {

/// The lines between the heading and the closing remark.
QStringList linesOf(const ScanOptions &options)
{
    const QStringList lines = Mirrix::scanSummary(options).split(u'\n');
    return lines.mid(2, lines.size() - 4);
}

QString lineWith(const ScanOptions &options, const QString &start)
{
    return linesOf(options).filter(start).join(u'\n');
}

} // namespace

class TestScanSummary : public QObject
{
    Q_OBJECT

private slots:
    void whole()
    {
        ScanOptions options;
        options.roots = {u"a"_qs, u"b %1"_qs, u"c"_qs, u"d"_qs};
        options.excludeFolders = {u"x"_qs, u"y"_qs};
        options.maxSize = 1048576;
        options.includeExtensions = {u"jpg"_qs, u"png"_qs};
        options.excludeExtensions = {u"tmp"_qs};
        options.skipHidden = true;
        options.skipSystemFolders = true;
        QCOMPARE(
            Mirrix::scanSummary(options),
            u"请确认以下扫描设置：\n\n• 模式：常规模式\n• 匹配：相同内容（字节级）\n• 扫描位置：4\n    a\n    b %1\n"
            "    c\n    … 另有 1 个\n• 排除目录：2\n• 大小限制：不限 ~ 1.00 MB\n• 包含扩展名：jpg,png\n"
            "• 排除扩展名：tmp\n• 跳过：隐藏文件、系统目录\n\n扫描在本地执行，文件不会上传到网络。"_qs);
    }

    void modes_data()
    {
        QTest::addColumn<ScanOptions>("options");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, auto change, const QString &lines) {
            ScanOptions options;
            change(options);
            QTest::newRow(name) << options << lines;
        };
        row(
            "similar content", [](auto &o) { o.contentMatch = 1; },
            u"• 模式：常规模式\n• 匹配：相似内容（采样一致 ≥ 90%）"_qs);
        row(
            "ignored content", [](auto &o) { o.contentMatch = 2; },
            u"• 模式：常规模式\n• 匹配：忽略内容（名称/大小/日期规则）"_qs);
        row(
            "images", [](auto &o) { o.searchMode = 1; }, u"• 模式：图片模式\n• 图像相似度：非常近似匹配"_qs);
        row(
            "turned images", [](auto &o) { o.searchMode = 1, o.imageFindRotated = o.imageFindFlipped = true; },
            u"• 模式：图片模式\n• 图像相似度：非常近似匹配\n• 变体：旋转、翻转"_qs);
        row(
            "flipped images", [](auto &o) { o.searchMode = 1, o.imageSimilarityLevel = 4, o.imageFindFlipped = true; },
            u"• 模式：图片模式\n• 图像相似度：宽松相似\n• 变体：翻转"_qs);
        row(
            "audio", [](auto &o) { o.searchMode = 2, o.mediaCompareDepth = 3; },
            u"• 模式：音频模式\n• 音频比对：全文件精确哈希"_qs);
        row(
            "video", [](auto &o) { o.searchMode = 3; }, u"• 模式：视频模式\n• 视频比对：开头采样哈希"_qs);
    }

    void modes()
    {
        QFETCH(ScanOptions, options);
        QFETCH(QString, lines);
        QCOMPARE(linesOf(options).join(u'\n'), lines + u"\n• 扫描位置：0"_qs);
    }

    void longLists()
    {
        ScanOptions options;
        options.includeExtensions = {QString(48, u'x')};
        options.excludeExtensions = {QString(40, u'x'), u"12345678"_qs}; // 49 with the comma
        QCOMPARE(lineWith(options, u"• 包含"_qs), u"• 包含扩展名："_qs + QString(48, u'x'));
        QCOMPARE(lineWith(options, u"• 排除"_qs), u"• 排除扩展名："_qs + QString(40, u'x') + u",1234..."_qs);
    }

    void limits()
    {
        ScanOptions options;
        QCOMPARE(lineWith(options, u"大小限制"_qs), QString());
        options.minSize = 1;
        QCOMPARE(lineWith(options, u"大小限制"_qs), u"• 大小限制：1 B ~ 不限"_qs);
        options.roots = {u"a"_qs, u"b"_qs, u"c"_qs};
        QCOMPARE(lineWith(options, u"另有"_qs), QString());
        options.skipSystemFolders = true;
        QCOMPARE(lineWith(options, u"跳过"_qs), u"• 跳过：系统目录"_qs);
    }
};

QTEST_GUILESS_MAIN(TestScanSummary)
#include "tst_scansummary.moc"
