#include "actions/export/exporter.h"
#include "actions/export/exportscript.h"
#include "actions/export/exporttexts.h"
#include "tests/actions/actiontest.h"
#include "tests/actions/exportscene.h"

namespace {

const QDateTime now(QDate(2024, 1, 31), QTime(9, 5, 7));
/// Two groups with everything that a format could trip over; the second file of each is ticked.
ExportRecords trickyRecords()
{
    const qint64 modifiedMs = QDateTime(QDate(2020, 2, 29), QTime(23, 59)).toMSecsSinceEpoch();
    return {{{u"FN:a,\"b\"|SZ:3"_s, {entry(u"/d/a,\"b\".txt"_s, 3, modifiedMs), entry(u"/d/two\nlines"_s, 3)}, 3},
             {u"90ab"_s, {entry(u"/d/%1 中文😀"_s, 2048), entry(u"/d/c"_s, 2048), entry(u"/d/e"_s, 2048)}, 4096}},
            [](qsizetype group, qsizetype file) { return group == 1 && file == 1; }};
}

QString written(ExportFormat format, const ExportRecords &records, const ExportOptions &options)
{
    QByteArray text;
    const ByteSink sink = [&text](QByteArrayView bytes) { return text.append(bytes), true; };
    QStringList refusals;
    const bool isWhole = format == ExportFormat::Csv ? writeCsv(records, options, sink)
                         : format == ExportFormat::TextReport
                             ? writeTextReport(records, options, u"常规模式"_s, now, sink)
                             : writeDeletionScript(records, options, sink, refusals);
    return isWhole ? QString::fromUtf8(text) : u"incomplete"_s;
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

class ExportTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void texts_data()
    {
        const QString ms = QString::number(QDateTime(QDate(2020, 2, 29), QTime(23, 59)).toMSecsSinceEpoch());
        const QString csv = u"group,path,size,modified,key\n"_s;
        const QString report = u"Mirrix 重复文件扫描报告\n生成时间: 2024-01-31 09:05:07\n扫描模式: 常规模式\n"_s;
        const auto row = columns<ExportFormat, ExportOptions, QString>({"format", "options", "expected"});
        row("csv", ExportFormat::Csv, everything,
            csv + u"1,\"/d/a,\"\"b\"\".txt\",3,"_s + ms +
                u",\"FN:a,\"\"b\"\"|SZ:3\"\n"
                u"1,\"/d/two\nlines\",3,0,\"FN:a,\"\"b\"\"|SZ:3\"\n"
                u"2,\"/d/%1 中文😀\",2048,0,90ab\n2,\"/d/c\",2048,0,90ab\n2,\"/d/e\",2048,0,90ab\n"_s);
        row("csv, checked", ExportFormat::Csv, checkedOnly, csv + u"2,\"/d/c\",2048,0,90ab\n"_s);
        row("csv, bare", ExportFormat::Csv, bare,
            csv + u"1,\"/d/a,\"\"b\"\".txt\",3,0,\n1,\"/d/two\nlines\",3,0,\n"
                  u"2,\"/d/%1 中文😀\",2048,0,\n2,\"/d/c\",2048,0,\n2,\"/d/e\",2048,0,\n"_s);
        row("report", ExportFormat::TextReport, everything,
            report + u"[组 1] 键: FN:a,\"b\"|SZ:3  (2 个文件)\n"
                     u"  • /d/a,\"b\".txt (3 B)  2020-02-29 23:59\n  • /d/two\nlines (3 B)\n"
                     u"[组 2] 键: 90ab  (3 个文件)\n"
                     u"  • /d/%1 中文😀 (2 KB)\n  • /d/c (2 KB)\n  • /d/e (2 KB)\n"_s);
        row("report, checked", ExportFormat::TextReport, checkedOnly,
            report + u"范围: 仅已勾选文件\n[组 2] 键: 90ab  (1 个文件)\n  • /d/c (2 KB)\n"_s);
        row("report, bare", ExportFormat::TextReport, bare,
            report + u"[组 1]  (2 个文件)\n  • /d/a,\"b\".txt (3 B)\n  • /d/two\nlines (3 B)\n"
                     u"[组 2]  (3 个文件)\n"
                     u"  • /d/%1 中文😀 (2 KB)\n  • /d/c (2 KB)\n  • /d/e (2 KB)\n"_s);
        row("script, checked", ExportFormat::DeletionScript, checkedOnly,
            u"@echo off\r\ndel /f /q \""_s + native(u"/d/c"_s) + u"\"\r\n"_s);
    }

    void texts()
    {
        QFETCH(ExportFormat, format);
        QFETCH(ExportOptions, options);
        QTEST(written(format, trickyRecords(), options), "expected");
    }

    void redaction_data()
    {
        const auto row = columns<QString, QString>({"path", "expected"});
        row("user", uR"(C:\Users\Ann Lee\a.txt)"_s, uR"(C:\Users\***\a.txt)"_s);
        row("letter case", uR"(d:\USERS\ann\b\c)"_s, uR"(d:\USERS\***\b\c)"_s);
        row("only the folder", uR"(C:\Users\中文)"_s, uR"(C:\Users\***)"_s);
        row("elsewhere", uR"(C:\Work\Users\ann)"_s, uR"(C:\Work\Users\ann)"_s);
        row("slashes of this system", native(u"C:/Users/ann/a"_s),
            QDir::separator() == u'\\' ? uR"(C:\Users\***\a)"_s : u"C:/Users/ann/a"_s);
        row("internal slashes", u"E:/x/a.txt"_s, native(u"E:/x/a.txt"_s));
    }

    void redaction()
    {
        QFETCH(QString, path);
        QFETCH(QString, expected);
        QCOMPARE(redactedPath(path), expected);
        ExportRecords records = recordsOf({path});
        records.groups[0].key = u"EXT:txt|FP:c:/users/ann/b|RP:x/y|FP:C:/Users/bob|SZ:1"_s;
        const QString key = u"EXT:txt|FP:c:/users/***/b|RP:x/y|FP:C:/Users/***|SZ:1"_s;
        QCOMPARE(written(ExportFormat::Csv, records, redacted),
                 u"group,path,size,modified,key\n1,\"%1\",1,0,%2\n"_s.arg(expected, key));
        QVERIFY(written(ExportFormat::TextReport, records, redacted)
                    .endsWith(u"说明: 路径已脱敏（用户名已隐藏）\n[组 1] 键: %2  (1 个文件)\n  • %1 (1 B)\n"_s.arg(
                        expected, key)));
    }

    void copies()
    {
        ExportRecords records =
            recordsOf({m_tree->write(u"one/a.txt"_s, "first"), m_tree->write(u"two/a.txt"_s, "second"),
                       m_tree->write(u"two/中%1.txt"_s, "third"), at(u"missing"_s)});
        records.isChecked = [](qsizetype, qsizetype file) { return file != 0; };
        const ExportRequest request = {ExportFormat::Copies, at(u"new/deep"_s), everything};
        const ExportOutcome outcome = writeExport(records, request, {}, now);
        QVERIFY(outcome.isDone);
        QCOMPARE(outcome.message, u"已复制 2 个文件"_s);
        QCOMPARE(outcome.errors.size(), 2); // a name taken, and no such file
        QCOMPARE(contentOf(at(u"new/deep/a.txt"_s)), "first");
        QCOMPARE(contentOf(at(u"new/deep/中%1.txt"_s)), "third");
        const ExportRequest ticked = {ExportFormat::Copies, at(u"ticked"_s), checkedOnly};
        QCOMPARE(writeExport(records, ticked, {}, now).message, u"已复制 2 个文件"_s);
        QCOMPARE(contentOf(at(u"ticked/a.txt"_s)), "second");
    }

    void failures_data()
    {
        const auto row = columns<ExportFormat, QString, QString>({"format", "place", "message"});
        row("missing folder", ExportFormat::Csv, u"missing/x.csv"_s, u"无法写入文件。"_s);
        row("script", ExportFormat::DeletionScript, u"missing/x.bat"_s, u"无法写入脚本。"_s);
        row("unknown", static_cast<ExportFormat>(4), u"x"_s, u"未知导出格式。"_s);
        row("below a file", ExportFormat::Copies, u"folder/file/x"_s, u"无法创建目标目录: %1"_s);
    }

    void failures()
    {
        QFETCH(ExportFormat, format);
        QFETCH(QString, place);
        QFETCH(QString, message);
        m_tree->write(u"folder/file"_s, "x");
        const DiskTree before = treeAt();
        const ExportRequest request = {format, at(place), everything};
        const QString expected = message.contains(u"%1"_s) ? message.arg(request.path) : message;
        QCOMPARE(writeExport(trickyRecords(), request, {}, now), (ExportOutcome{false, false, expected, {}}));
        QCOMPARE(treeAt(), before);
        QVERIFY(!QFileInfo::exists(at(u"missing"_s)));
    }

    void fullDisk()
    {
        MIRRIX_ON_SMALL_DISK();
        const ExportRecords large = recordsOf(QStringList(2000, u"/a/file/with/a/name"_s));
        for (ExportFormat format : {ExportFormat::Csv, ExportFormat::DeletionScript}) {
            const ExportRequest request = {format, smallDisk() + u"/out"_s, everything};
            QVERIFY(writeExport(recordsOf({u"/old"_s}), request, {}, now).isDone);
            const DiskTree before = treeBelow(smallDisk());
            QVERIFY(!writeExport(large, request, {}, now).isDone);
            QCOMPARE(treeBelow(smallDisk()), before);
        }
    }

    void cancelled()
    {
        const QStringList paths = {m_tree->write(u"a"_s, "1"), m_tree->write(u"b"_s, "2")};
        const auto stopAtSecond = [](qsizetype done, qsizetype) { return done == 0; };
        for (int number = 0; number < 4; ++number) {
            const bool isCopy = static_cast<ExportFormat>(number) == ExportFormat::Copies;
            const QString target = at(isCopy ? u"copies"_s : u"out"_s);
            const ExportRequest request = {static_cast<ExportFormat>(number), target, everything};
            const ExportOutcome outcome = writeExport(recordsOf(paths), request, {}, now, stopAtSecond);
            QVERIFY(outcome.isCancelled);
            QCOMPARE(outcome.isDone, isCopy);
        }
        QCOMPARE(treeAt().keys(), (QStringList{u"a"_s, u"b"_s, u"copies/a"_s}));
    }
};

QTEST_GUILESS_MAIN(ExportTest)
#include "tst_export.moc"
