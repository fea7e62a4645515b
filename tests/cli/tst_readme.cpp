#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

/// The command lines of the README's section on the console, without their remarks.
QStringList consoleLines()
{
    const QString readme = QString::fromUtf8(testData(u"../README.md"_s));
    const qsizetype start = readme.indexOf(u"\n## The console\n"_s);
    const QString section = readme.mid(start, readme.indexOf(u"\n## "_s, start + 1) - start);
    static const QRegularExpression line(u"^    (.*mirrix-cli .*?)(?: +# .*)?$"_s, QRegularExpression::MultilineOption);
    QStringList lines;
    for (auto match = line.globalMatch(section); match.hasNext();)
        lines.append(match.next().captured(1));
    return lines;
}

/// What each line prints in the folder that the test makes, as a regular expression: each is a fact of its remark.
const QHash<QString, QString> &facts()
{
    static const QHash<QString, QString> table = {
        {u"scan ~/Pictures"_s,
         u"2 files of 75 B each, 75 B reclaimable\\n +\\S*/photo.jpg\\n +\\S*/photo \\(1\\).jpg\\n"_s},
        {u"scan --format json --output dup.json /data"_s, u"\"schemaVersion\": 1"_s},
        {u"scan --format csv --output dup.csv /data"_s, u"^group,path,size,modified,key\n1,\"\\S*one.iso\",1048576,"_s},
        {u"scan --hash blake3 --exclude /data/tmp /data"_s, u"^(?!.*data/tmp)3 files of 1.0 MB each"_s},
        {u"scan --min-size 1M --name '*.iso' --newer 30d --exclude-name '*.git' /data"_s,
         u"^(?!.*x.git)2 files of 1.0 MB each"_s},
        {u"scan --set includeExtensions=jpg,png --one-file-system ~/Pictures"_s, u"photo.jpg"_s},
        {u"find /data -name '*.bak' -print0 | mirrix-cli scan --files-from -"_s, u"^(?!.*iso).*x.bak"_s},
        {u"scan --set sameName=true ~/Music"_s, u"^(?!.*other).*Music/more/song.mp3"_s},
        {u"scan --mode images --set imageFindRotated=true ~/Pictures"_s, u"photo.jpg.*turned.jpg"_s},
        {u"scan --mode rules --set similarNames=true ~/Docs"_s, u"reportA.txt.*reportB.txt"_s},
        {u"scan --mode similar-content --set similarPercent=95 /data"_s, u"100% similar"_s},
        {u"scan --mode audio --set includeExtensions=mp3,flac --set mediaCompareDepth=1 ~/Music"_s, u"song.mp3"_s},
        {u"scan --set duplicateFoldersOnly=true ~/Backups"_s, u"2 equal folders of 1 file"_s},
        {u"scan --empty-files --empty-folders ~/Docs"_s, u"empty.txt.*nothing"_s},
        {u"scan --quiet --format nul --sort size /data | grep -z . | xargs -0 ls -l"_s, u"one.iso.*x.bak"_s},
        {u"scan --options my-scan.json"_s, u"Backups/new/a"_s},
        {u"clean --keep newest --method backup ~/Pictures"_s, u"Nothing was changed; run again with --apply"_s},
        {u"clean --empty-folders ~/Docs"_s, u"nothing.*Nothing was changed; run again with --apply"_s},
        {u"clean --empty-files --method recycle ~/Docs"_s, u"empty.txt.*Nothing was changed; run again with --apply"_s},
        {u"history"_s, u"backup"_s},
        {u"undo last"_s, u"Before/second"_s},
        {u"restore"_s, u"Before/second  <-  "_s},
        {u"log"_s, u"moved to the backup folder: 1 file"_s},
        {u"info photo.jpg"_s, u"(?i)75 B.*picture hash"_s},
        {u"options similarPercent"_s, u"similarPercent = 90\n.*1 to 100"_s},
        {u"hash --algorithm sha256 *.iso"_s, u"^[0-9a-f]{64}  disc.iso\n$"_s},
        {u"hash --algorithm blake3 --window prefix:1048576 film.mkv"_s, u"^[0-9a-f]{64}  film.mkv\n$"_s},
    };
    return table;
}

/// "P5" of 8 x 8 points, dark above and light below; or on one side and the other.
QByteArray picture(bool isTurned)
{
    QByteArray points = "P5 8 8 255\n";
    for (int i = 0; i < 64; ++i)
        points += static_cast<char>(isTurned ? i % 8 * 30 : i / 8 * 30);
    return points;
}

} // namespace

/// The README's command lines do what their remarks say.
class ReadmeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(u"bash"_s).isEmpty())
            QSKIP("no shell");
        const QList<std::pair<QString, QByteArray>> files = {{u"Pictures/photo.jpg"_s, picture(false)},
                                                             {u"Pictures/photo (1).jpg"_s, picture(false)},
                                                             {u"Pictures/turned.jpg"_s, picture(true)},
                                                             {u"photo.jpg"_s, picture(false)},
                                                             {u"data/one.iso"_s, patternBytes(1 << 20)},
                                                             {u"data/two.iso"_s, patternBytes(1 << 20)},
                                                             {u"data/x.git/c.iso"_s, patternBytes(1 << 20)},
                                                             {u"data/x.bak"_s, "old"},
                                                             {u"data/tmp/y.bak"_s, "old"},
                                                             {u"Music/song.mp3"_s, patternBytes(5000)},
                                                             {u"Music/more/song.mp3"_s, patternBytes(5000)},
                                                             {u"Music/other.mp3"_s, patternBytes(5000)},
                                                             {u"Docs/reportA.txt"_s, "first"},
                                                             {u"Docs/reportB.txt"_s, "second"},
                                                             {u"Docs/empty.txt"_s, {}},
                                                             {u"Backups/old/a"_s, "a"},
                                                             {u"Backups/new/a"_s, "a"},
                                                             {u"Backups/alone"_s, "a"},
                                                             {u"disc.iso"_s, "disc"},
                                                             {u"film.mkv"_s, "film"},
                                                             {u"Before/first"_s, "before"},
                                                             {u"Before/second"_s, "before"},
                                                             {u"my-scan.json"_s, R"({"roots": ["Backups"]})"}};
        for (const auto &[path, content] : files)
            m_tree.write(path, content);
        m_tree.makeFolder(u"Docs/nothing"_s);
        const ProgramRun run = m_program.run(
            {u"clean"_s, u"--keep"_s, u"oldest"_s, u"--method"_s, u"backup"_s, u"--apply"_s, m_tree.path(u"Before"_s)});
        QCOMPARE(run.errors, "");
    }

    void runs_data()
    {
        const auto row = columns<QString>({"line"});
        const QStringList lines = consoleLines();
        QVERIFY(lines.size() > 20);
        for (const QString &line : lines)
            row(qPrintable(line), line);
    }

    void runs()
    {
        QFETCH(QString, line);
        const QString known = QString(line).remove(QRegularExpression(u"^mirrix-cli "_s));
        QVERIFY2(facts().contains(known), "this line has no fact to check");
        QString script = QString(line).remove(u"~/"_s).replace(u" /data"_s, u" data"_s);
        static const QRegularExpression output(u"--output (\\S+)"_s);
        if (const QRegularExpressionMatch file = output.match(line); file.hasMatch())
            script += u" && cat "_s + file.captured(1);
        const ProgramRun run = m_program.runInShell(u"set -o pipefail; "_s + script, m_tree.path());
        QCOMPARE(run.errors, "");
        QCOMPARE(run.status, 0);
        const QRegularExpression fact(facts()[known], QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(fact.match(QString::fromUtf8(run.output)).hasMatch(), run.output.constData());
    }

private:
    Program m_program;
    TempTree m_tree;
};

QTEST_GUILESS_MAIN(ReadmeTest)
#include "tst_readme.moc"
