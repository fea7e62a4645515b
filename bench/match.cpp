// Benchmark of the matchers: bench_match [rules|names|letters|similar] [FILES]. Each makes its files (1,000,000,
// 200,000 and 20,000), in memory for the first two, and prints times, how long the matcher continues once cancelled,
// and the peak of memory where the system reports it. Exit status 1 when the groups found are not those made.

#include "core/hash/samples.h"
#include "core/match/rulekeys.h"
#include "core/match/similarcontent.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>

using namespace MirrixCore;

namespace {

int failures = 0;

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

void show(const char *what, double seconds)
{
    std::printf("%-44s %9.3f s\n", what, seconds);
    std::fflush(stdout);
}

void expectGroups(qsizetype found, qsizetype made)
{
    std::printf("%-44s %9lld of %lld\n", "groups", static_cast<long long>(found), static_cast<long long>(made));
    failures += found != made;
}

void showPeak()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            std::printf("%-44s %s\n", "peak of memory", line.mid(6).trimmed().constData());
    }
}

/// Runs `match` with a query that answers true after `afterMs`, and shows how much longer it took.
void showCancel(const std::function<void(const CancelQuery &)> &match, qint64 afterMs)
{
    QElapsedTimer timer;
    timer.start();
    match([&] { return timer.hasExpired(afterMs); });
    show("returns after being cancelled", static_cast<double>(timer.nsecsElapsed()) / 1e9 - afterMs / 1e3);
}

/// Names as people and devices give them.
QString someName(QRandomGenerator &random)
{
    static const QStringList words = QStringLiteral("report invoice holiday budget draft letter family garden summer "
                                                    "meeting notes project photo scan music backup plan travel budget "
                                                    "winter birthday contract recipe lecture paper final house car")
                                         .split(QLatin1Char(' '));
    const auto word = [&] { return words[random.bounded(static_cast<int>(words.size()))]; };
    switch (random.bounded(4)) {
    case 0:
        return QStringLiteral("IMG_%1").arg(random.bounded(100000), 5, 10, QLatin1Char('0'));
    case 1:
        return QStringLiteral("%1 %2 %3").arg(word(), word()).arg(1990 + random.bounded(35));
    case 2:
        return QStringLiteral("20%1%2_%3")
            .arg(random.bounded(1000, 2500))
            .arg(random.bounded(10, 32))
            .arg(random.bounded(100000, 240000));
    default:
        return QStringLiteral("%1_%2-%3 %4").arg(word(), word(), word()).arg(random.bounded(1000));
    }
}

QList<FileEntry> madeFiles(int count)
{
    QRandomGenerator random(1);
    QList<FileEntry> files(count);
    for (FileEntry &file : files) {
        file.path = QStringLiteral("/home/user/Documents/%1/%2/%3.%4")
                        .arg(random.bounded(200))
                        .arg(random.bounded(50))
                        .arg(someName(random), random.bounded(2) ? QStringLiteral("jpg") : QStringLiteral("pdf"));
        file.size = random.bounded(1, 5000);
    }
    return files;
}

void benchRules(int count)
{
    const QList<FileEntry> files = madeFiles(count);
    ScanOptions options;
    options.sameName = options.sameSize = true;
    for (int run = 0; run < 3; ++run) {
        std::vector<QString> paths;
        for (const FileEntry &file : files)
            paths.push_back(file.path);
        const double sorting = secondsOf([&] { std::sort(paths.begin(), paths.end()); });
        ScanResult result;
        const double grouping = secondsOf([&] { result = groupByRuleKeys(files, options, false); });
        show("sorting the paths", sorting);
        show("grouping by name and size", grouping);
        std::printf("%-44s %9.2f\n", "ratio", grouping / sorting);
    }
    showCancel([&](const CancelQuery &cancelled) { (void)groupByRuleKeys(files, options, false, cancelled); }, 300);
    showPeak();
}

void benchNames(int count)
{
    const QList<FileEntry> files = madeFiles(count);
    ScanOptions options;
    options.similarNames = true;
    options.nameTolerance = 3;
    show("similar names, one bucket, tolerance 3", secondsOf([&] { (void)groupByRuleKeys(files, options, false); }));
    for (const qint64 afterMs : {20, 1000})
        showCancel([&](const CancelQuery &cancelled) { (void)groupByRuleKeys(files, options, false, cancelled); },
                   afterMs);
    showPeak();
}

/// The hardest names for the index: long ones of two letters, in which all pieces occur everywhere.
void benchLetters(int count)
{
    constexpr int length = 200;
    QRandomGenerator random(1);
    QList<FileEntry> files(count);
    for (FileEntry &file : files) {
        file.path = QStringLiteral("/");
        for (int i = 0; i < length; ++i)
            file.path += QLatin1Char(random.bounded(2) ? 'a' : 'b');
    }
    ScanOptions options;
    options.similarNames = true;
    options.nameTolerance = 20;
    show("similar names of 200 letters, tolerance 20",
         secondsOf([&] { (void)groupByRuleKeys(files, options, false); }));
    showCancel([&](const CancelQuery &cancelled) { (void)groupByRuleKeys(files, options, false, cancelled); }, 1000);
    showPeak();
}

/// A file with random samples and holes between them. Of four files the first two are similar.
void makeSampled(const QString &path, qint64 size, int number)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
        qFatal("cannot write %s", qPrintable(path));
    QRandomGenerator random(static_cast<quint32>(number % 4 == 1 ? number - 1 : number));
    QByteArray block(sampleBytes(size) / sampleOffsets(size).size(), Qt::Uninitialized);
    for (const qint64 offset : sampleOffsets(size)) {
        std::generate(block.begin(), block.end(), [&] { return static_cast<char>(random.generate()); });
        if (offset == 0)
            block.replace(0, 4, QByteArray::number(number).leftJustified(4).left(4));
        if (!file.seek(offset) || file.write(block) != block.size())
            qFatal("cannot write %s", qPrintable(path));
    }
}

void benchSimilar(int count)
{
    constexpr qint64 size = 1000000;
    const QTemporaryDir folder;
    QList<FileEntry> files(count);
    for (int i = 0; i < count; ++i) {
        files[i].path = folder.filePath(QString::number(i));
        files[i].size = size;
        makeSampled(files[i].path, size, i);
    }
    showPeak();
    for (const int percent : {90, 50}) {
        ScanOptions options;
        options.similarPercent = percent;
        ScanResult result;
        std::printf("%d percent, %d threads\n", percent, QThread::idealThreadCount());
        show("similar content", secondsOf([&] { result = matchSimilarContent(files, {options, {}, {}}); }));
        expectGroups(result.groups.size(), (count + 2) / 4);
        for (const qint64 afterMs : {100, 3000})
            showCancel(
                [&](const CancelQuery &cancelled) {
                    (void)matchSimilarContent(files, {options, {}, cancelled});
                },
                afterMs);
        showPeak();
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray kind = argc > 1 ? argv[1] : "";
    const int count = argc > 2 ? std::max(4, std::atoi(argv[2])) : 0;
    if (kind == "rules" || kind.isEmpty())
        benchRules(count ? count : 1000000);
    if (kind == "names" || kind.isEmpty())
        benchNames(count ? count : 200000);
    if (kind == "letters" || kind.isEmpty())
        benchLetters(count ? count : 20000);
    if (kind == "similar" || kind.isEmpty())
        benchSimilar(count ? count : 20000);
    return failures ? 1 : 0;
}
