#pragma once

#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace MirrixTest {

/// What a run of the console program left behind.
struct ProgramRun
{
    int status = -1; ///< exit status; -1 when it did not start or did not end by itself
    QByteArray output;
    QByteArray errors;
};

/// The console program, which lies beside the tests, run with a home of its own so that it meets no user's data.
class Program
{
public:
    explicit Program(const QString &executable = builtExecutable())
        : m_executable(executable)
    {}

    [[nodiscard]] static QString builtExecutable()
    {
        return QCoreApplication::applicationDirPath() + QLatin1String("/mirrix-cli");
    }

    /// A data directory inside the home, for --data-dir. Not made here.
    [[nodiscard]] QString dataFolder() const { return m_home.path(QStringLiteral("data")); }

    /// Sets everything up but does not start it.
    void prepare(QProcess &process, const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.path(QStringLiteral("share")));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        process.setProcessEnvironment(environment);
        process.setProgram(m_executable);
        process.setArguments(arguments);
    }

    /// Waits for the end of a process that was started.
    [[nodiscard]] static ProgramRun ended(QProcess &process)
    {
        constexpr int timeoutMs = 120000;
        if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit)
            return {-1, process.readAllStandardOutput(), process.errorString().toUtf8()};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    [[nodiscard]] ProgramRun run(const QStringList &arguments, const QString &currentFolder = {}) const
    {
        QProcess process;
        prepare(process, arguments);
        process.setWorkingDirectory(currentFolder);
        process.start();
        return ended(process);
    }

    /// Runs a script of bash in which mirrix-cli is the built program.
    [[nodiscard]] ProgramRun runInShell(const QString &script, const QString &folder) const
    {
        QProcess process;
        prepare(process, {QStringLiteral("-c"), script});
        QProcessEnvironment environment = process.processEnvironment();
        const QString path = environment.value(QStringLiteral("PATH"));
        environment.insert(QStringLiteral("PATH"), QCoreApplication::applicationDirPath() + QLatin1Char(':') + path);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        process.setProgram(QStringLiteral("bash"));
        process.start();
        return ended(process);
    }

private:
    QString m_executable;
    TempTree m_home;
};

/// The lines that the program prints for a mistake in its usage.
[[nodiscard]] inline QByteArray usageErrorText(const QString &message)
{
    return "mirrix-cli: " + message.toUtf8() + "\nmirrix-cli: try \"mirrix-cli --help\"\n";
}

/// Whether `device` can be opened but takes no byte, as a full disk.
[[nodiscard]] inline bool takesNothing(const QString &device)
{
    QFile file(device);
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered) && file.write("x") != 1;
}

} // namespace MirrixTest
