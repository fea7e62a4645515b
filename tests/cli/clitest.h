#pragma once

// What the tests of the console program share. Included by tests only, hence the usings.

#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <memory>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace MirrixTest {

/// A tree of files and the program, with a data directory of its own. Command lines are words between single blanks, of
/// which two in a row hold an empty word; %1 stands for the tree's folder.
class CliTest : public QObject
{
protected:
    /// Begins with an empty tree and without data.
    void renew()
    {
        m_tree = std::make_unique<TempTree>();
        m_program = std::make_unique<Program>();
    }

    [[nodiscard]] QString path(const QString &relative = {}) const { return m_tree->path(relative); }
    [[nodiscard]] QString dataFolder() const { return m_program->dataFolder(); }

    [[nodiscard]] QStringList words(const QString &line) const
    {
        return line.split(u' ').replaceInStrings(u"%1"_s, m_tree->path());
    }

    /// The line and `more` words, which may hold blanks, with --data-dir.
    [[nodiscard]] QStringList arguments(const QString &line, const QStringList &more = {}) const
    {
        const QStringList given = words(line);
        return QStringList{given[0], u"--data-dir"_s, dataFolder()} + given.mid(1) + more;
    }

    [[nodiscard]] ProgramRun run(const QString &line, const QStringList &more = {}) const
    {
        return m_program->run(arguments(line, more));
    }

    [[nodiscard]] QJsonDocument json(const QString &line) const
    {
        return QJsonDocument::fromJson(run(line + u" --format json"_s).output);
    }

    /// Runs the line with its output on a device that takes nothing.
    [[nodiscard]] ProgramRun runOntoFullDevice(const QString &line) const
    {
        QProcess process;
        m_program->prepare(process, arguments(line));
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start();
        return Program::ended(process);
    }

    /// Runs the line under strace with `options`. False where nothing can be traced.
    [[nodiscard]] bool traced(const QString &options, const QString &line, ProgramRun &done) const
    {
        QProcess process;
        // The leak sanitizer, in builds that have it, cannot work beside a tracer.
        m_program->prepare(process, words(u"-E ASAN_OPTIONS=detect_leaks=0 -f -qq "_s + options) +
                                        QStringList(Program::builtExecutable()) + arguments(line));
        process.setProgram(u"strace"_s);
        process.start();
        done = Program::ended(process);
        return process.error() != QProcess::FailedToStart;
    }

    std::unique_ptr<TempTree> m_tree;
    std::unique_ptr<Program> m_program;
};

} // namespace MirrixTest
