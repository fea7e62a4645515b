#include "cli/commandline.h"
#include "cli/examples.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTest>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

/// What the program tells of itself and of single files.
class ReferenceTest : public QObject
{
    Q_OBJECT

private slots:
    void scanOptions()
    {
        QCOMPARE(
            m_program.run({u"options"_s, u"similarPercent"_s, u"roots"_s}).output,
            "similarPercent = 90\n    a 32-bit integer, 1 to 100. Minimum percentage of sampled bytes that must be "
            "equal in similar contents.\n"
            "roots = []\n    a list of strings. Folders to scan, including their subfolders.\n");
        const QJsonArray all =
            QJsonDocument::fromJson(m_program.run({u"options"_s, u"--format"_s, u"json"_s}).output).array();
        QVERIFY(all.size() > 60);
        for (const QJsonValue &option : all)
            QVERIFY2(!option[u"type"_s].toString().isEmpty(), qPrintable(option[u"name"_s].toString()));
        QCOMPARE(m_program.run({u"options"_s, u"minsize"_s}).errors,
                 usageErrorText(u"unknown option \"minsize\"; \"mirrix-cli options\" lists all"_s));
    }

    void files()
    {
        const TempTree tree;
        const QString text = tree.write(u"a.txt"_s, "abc");
        tree.write(u"b.txt"_s, "abc");
        const QString missing = tree.path(u"none"_s);
        const auto info = [&](const QString &path) {
            const ProgramRun run = m_program.run(
                {u"info"_s, u"--data-dir"_s, m_program.dataFolder(), u"--format"_s, u"json"_s, path, missing});
            return run.status == 1 && run.errors == "mirrix-cli: " + missing.toUtf8() + ": no such file\n"
                       ? QJsonDocument::fromJson(run.output)[0].toObject()
                       : QJsonObject();
        };
        QJsonObject facts = info(text);
        QCOMPARE(facts[u"size"_s], 3);
        QCOMPARE(facts[u"digests"_s], QJsonArray());
        QCOMPARE(m_program.run({u"scan"_s, u"--data-dir"_s, m_program.dataFolder(), u"--hash"_s, u"md5"_s, tree.path()})
                     .status,
                 0);
        const bool hasLink = tree.hardLink(u"a.txt"_s, u"link"_s);
        facts = info(text);
        QVERIFY(!hasLink || facts[u"links"_s] == 2);
        QCOMPARE(facts[u"digests"_s][0][u"algorithm"_s], u"md5"_s);
        QCOMPARE(facts[u"digests"_s][0][u"full"_s], u"900150983cd24fb0d6963f7d28e17f72"_s);
        QCOMPARE(facts[u"digestsOutOfDate"_s], false);
        tree.write(u"a.txt"_s, "other");
        facts = info(text);
        QCOMPARE(facts[u"digests"_s], QJsonArray());
        QCOMPARE(facts[u"digestsOutOfDate"_s], true);
        facts = info(tree.write(u"picture.pgm"_s, "P5 8 8 255\n" + patternBytes(64)));
        QCOMPARE(facts[u"width"_s], 8);
        QCOMPARE(facts[u"pictureHash"_s].toString().size(), 16);
    }

    void completes_data()
    {
        const auto row = columns<QString, QString, QStringList>({"shellName", "line", "expected"});
        const QList<std::pair<QString, QStringList>> rows = {
            {u"h"_s, {u"hash"_s, u"history"_s}},
            {u"scan --max"_s, {u"--max-size"_s}},
            {u"clean --method s"_s, {u"symlink"_s}},
            {u"log --format "_s, {u"json"_s, u"text"_s}},
            {u"scan --sort="_s, {u"modified"_s, u"path"_s, u"size"_s, u"waste"_s}},
            {u"scan --set simil"_s, {u"similarNames="_s, u"similarPercent="_s}},
            {u"options similarP"_s, {u"similarPercent"_s}},
            {u"scan --output a"_s, {u"aFile"_s}},
            {u"scan "_s, {u"aFile"_s, u"clean"_s}},
            {u"scan clean --meth"_s, {}}, // the folder, not the command
        };
        for (const QString &name : {u"bash"_s, u"zsh"_s, u"fish"_s}) {
            for (const auto &[line, expected] : rows)
                row(qPrintable(name + u": "_s + line), name, u"mirrix-cli "_s + line, expected);
        }
    }

    void completes()
    {
        QFETCH(QString, shellName);
        QFETCH(QString, line);
        if (QStandardPaths::findExecutable(shellName).isEmpty() || QStandardPaths::findExecutable(u"bash"_s).isEmpty())
            QSKIP("this shell is not installed");
        const TempTree scripts;
        const QHash<QString, QString> nameOf = {
            {u"bash"_s, u"mirrix-cli"_s}, {u"zsh"_s, u"_mirrix-cli"_s}, {u"fish"_s, u"mirrix-cli.fish"_s}};
        scripts.write(nameOf[shellName], m_program.run({u"completion"_s, shellName}).output);
        const QString driver = scripts.write(u"driver"_s, testData(u"cli/completions."_s + shellName));
        const TempTree tree;
        tree.write(u"aFile"_s, {});
        tree.makeFolder(u"clean"_s);
        const ProgramRun run =
            m_program.runInShell(u"%1 '%2' '%3' '%4'"_s.arg(shellName, driver, scripts.path(), line), tree.path());
        QCOMPARE(run.errors, "");
        QStringList offered = QString::fromUtf8(run.output).split(u'\n', Qt::SkipEmptyParts);
        for (QString &word : offered)
            word.remove(u'/');
        offered.sort();
        offered.removeDuplicates();
        QTEST(offered, "expected");
    }

    void completesInPowerShell()
    {
        const QByteArray script = m_program.run({u"completion"_s, u"powershell"_s}).output;
        for (const char *line :
             {"'scan --mode' = 'content similar-content", "'restore -' = '--target", "'scan --output' = ''"})
            QVERIFY2(script.contains(line), line);
        QCOMPARE(m_program.run({u"completion"_s, u"csh"_s}).status, 2);
    }

    void manualPages()
    {
        const TempTree tree;
        QCOMPARE(m_program.run({u"manpage"_s, u"--all"_s, tree.path()}).status, 0);
        const QStringList pages = QDir(tree.path()).entryList(QDir::Files);
        QCOMPARE(pages.size(), MirrixCli::commandHelps().size() + 1);
        for (const MirrixCli::CommandHelp &command : MirrixCli::commandHelps()) {
            QVERIFY2(!MirrixCli::examplesOf(command.name).isEmpty(), qPrintable(command.name));
            const QByteArray page = m_program.run({u"manpage"_s, command.name}).output;
            const QByteArray help = m_program.run({command.name, u"--help"_s}).output;
            QCOMPARE(page.count("\n.TP\n\\fB\\-"), help.count("\n  -"));
            for (const MirrixCli::OptionHelp &option : command.options)
                QVERIFY2(option.description.endsWith(u'.'), qPrintable(command.name + option.names.constFirst()));
        }
        if (QStandardPaths::findExecutable(u"groff"_s).isEmpty())
            QSKIP("nothing to check the pages with");
        for (const QString &page : pages)
            QCOMPARE(m_program.runInShell(u"groff -man -ww -Tutf8 "_s + page + u" > /dev/null"_s, tree.path()).errors,
                     "");
    }

    void examplesRun_data()
    {
        const auto row = columns<QString>({"line"});
        for (const MirrixCli::CommandHelp &command : MirrixCli::commandHelps()) {
            for (const MirrixCli::Example &example : MirrixCli::examplesOf(command.name))
                row(qPrintable(example.line), example.line);
        }
    }

    void examplesRun()
    {
        QFETCH(QString, line);
        if (QStandardPaths::findExecutable(u"bash"_s).isEmpty())
            QSKIP("no shell");
        const TempTree tree;
        for (const QString &name :
             {u"Pictures/a.jpg"_s, u"Pictures/b.jpg"_s, u"Downloads/a.jpg"_s, u"Downloads/film.mkv"_s})
            tree.write(name, "abc");
        tree.makeFolder(u"Downloads/empty"_s);
        const ProgramRun run = m_program.runInShell(u"set -o pipefail; "_s + line, tree.path());
        QCOMPARE(run.errors, "");
        QCOMPARE(run.status, 0);
    }

private:
    Program m_program;
};

QTEST_GUILESS_MAIN(ReferenceTest)
#include "tst_reference.moc"
