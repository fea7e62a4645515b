#include "actions/export/exportscript.h"

#include "tests/actions/actiontest.h"
#include "tests/actions/exportscene.h"

#include <QProcess>
#include <QSet>
#include <QStandardPaths>

namespace {

struct Script
{
    QString text;
    QStringList refusals;
};

Script scriptOf(const QStringList &paths, const ExportOptions &options = everything)
{
    QByteArray text;
    Script script;
    const ByteSink sink = [&text](QByteArrayView bytes) { return text.append(bytes), true; };
    if (writeDeletionScript(recordsOf(paths), options, sink, script.refusals))
        script.text = QString::fromUtf8(text);
    return script;
}

} // namespace

class ExportScriptTest : public ActionTest
{
    Q_OBJECT

private slots:
    void lines_data();

    void lines()
    {
        QFETCH(QString, path);
        QFETCH(QString, line);
        QFETCH(bool, redacts);
        const Script script = scriptOf({path}, redacts ? redacted : everything);
        QCOMPARE(script.text, u"@echo off\r\n"_s + line + u"\r\n"_s);
        QCOMPARE(script.refusals.size(), line.startsWith(u"rem") ? 1 : 0);
    }

    void preparesCmd_data();

    void preparesCmd()
    {
        QFETCH(QString, path);
        QFETCH(QString, preparation);
        QCOMPARE(scriptOf({uR"(C:\first)"_s, path}).text,
                 u"@echo off\r\n"_s + preparation + u"del /f /q \"C:\\first\"\r\ndel /f /q \"%1\"\r\n"_s.arg(path));
    }

    /// Where there is a cmd.exe, with names that it would misread lying beside those that they would be misread as.
    void deletesWhatIsListed()
    {
        const QString cmd = QStandardPaths::findExecutable(u"cmd"_s);
        if (cmd.isEmpty())
            QSKIP("no cmd.exe");
        const TempTree tree;
        QStringList listed;
        for (const QString &name : {u"a b.txt"_s, u"100%.txt"_s, u"%OS%.txt"_s, u"%%x%%.txt"_s, u"c^d.txt"_s,
                                    u"e&f.txt"_s, u"(g).txt"_s, u"h!OS!i.txt"_s, u"j^!k.txt"_s, u"%1;l,m=n.txt"_s})
            listed.append(tree.write(name, "x"));
        const QStringList kept = {u"100.txt"_s, u"%x%.txt"_s, u".txt"_s, u"cd.txt"_s,
                                  u"hi.txt"_s,  u"j!k.txt"_s, u"a"_s};
        for (const QString &name : kept)
            tree.write(name, "x");
        const TempTree elsewhere;
        const QString script = elsewhere.path(u"x.bat"_s);
        QVERIFY(writeExport(recordsOf(listed), {ExportFormat::DeletionScript, script, everything}, {}, {}).isDone);
        QProcess::execute(cmd, {u"/v:on"_s, u"/c"_s, QDir::toNativeSeparators(script)});
        QStringList left = treeBelow(tree.path()).keys();
        QCOMPARE(QSet<QString>(left.begin(), left.end()), QSet<QString>(kept.begin(), kept.end()));
    }
};

// Out of the class, where moc reads past raw strings.
void ExportScriptTest::lines_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("redacts");
    const auto row = [](const char *name, const QString &path, const QString &line, bool redacts = false) {
        QTest::newRow(name) << path << line << redacts;
    };
    row("plain", uR"(C:\a b\c.txt)"_s, uR"(del /f /q "C:\a b\c.txt")"_s);
    row("share", uR"(\\host\share\c)"_s, uR"(del /f /q "\\host\share\c")"_s);
    row("percent", uR"(C:\100%\%PATH%\%1)"_s, uR"(del /f /q "C:\100%%\%%PATH%%\%%1")"_s);
    row("kept by quotes", uR"(C:\^a&b (c);'=,~)"_s, uR"(del /f /q "C:\^a&b (c);'=,~")"_s);
    row("redacted", uR"(C:\Users\ann\a)"_s, uR"(del /f /q "C:\Users\***\a")"_s, true);
    row("would become a wildcard", uR"(C:\Users\desktop.ini)"_s, uR"(rem del /f /q "C:\Users\???")"_s, true);
    row("wildcards", uR"(C:\a?b*)"_s, uR"(rem del /f /q "C:\a?b?")"_s);
    row("wildcards of the file system", uR"(C:\a<b>)"_s, uR"(rem del /f /q "C:\a?b?")"_s);
    row("a further line", u"C:\\a\r\ndel \"x"_s, uR"(rem del /f /q "C:\a??del ?x")"_s);
    row("trimmed dot", uR"(C:\a.)"_s, uR"(rem del /f /q "C:\a.")"_s);
    row("trimmed blank of a folder", uR"(C:\a \b)"_s, uR"(rem del /f /q "C:\a \b")"_s);
    row("stream", uR"(C:\a:b)"_s, uR"(rem del /f /q "C:\a:b")"_s);
    row("long", u"C:\\"_s + QString(8001, u'a'), u"rem del /f /q \"C:\\"_s + QString(997, u'a') + u'"');
}

void ExportScriptTest::preparesCmd_data()
{
    const QString utf8 = u"chcp 65001 >nul\r\nif errorlevel 1 exit /b 1\r\n"_s;
    const QString literal = u"setlocal DisableDelayedExpansion\r\n"_s;
    const auto row = columns<QString, QString>({"path", "preparation"});
    row("plain", uR"(C:\a)"_s, QString());
    row("foreign letter", uR"(C:\é)"_s, utf8);
    row("exclamation mark", uR"(C:\a!)"_s, literal);
    row("both", uR"(C:\中!)"_s, utf8 + literal);
}

QTEST_GUILESS_MAIN(ExportScriptTest)
#include "tst_exportscript.moc"
