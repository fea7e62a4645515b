// Micro-benchmark of the hash primitives: bench_hash [MIB]. Makes a file of MIB mebibytes (default 256) and 2,000 small
// ones in a temporary folder, all in the page cache, and prints medians of five runs.

#include "core/hash/contenthash.h"
#include "core/hash/samples.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <cstdio>

using namespace MirrixCore;

namespace {

constexpr int runs = 5;
constexpr int smallFiles = 2000;

QString makeFile(const QString &path, qint64 bytes, char seed)
{
    QFile file(path);
    QByteArray block(1 << 20, Qt::Uninitialized);
    quint32 state = static_cast<quint32>(seed) + 1;
    for (char &byte : block) {
        state = state * 1664525 + 1013904223; // the usual linear congruential generator
        byte = static_cast<char>(state >> 24);
    }
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    for (qint64 done = 0; done < bytes; done += block.size()) {
        if (file.write(block.constData(), std::min<qint64>(block.size(), bytes - done)) < 0)
            qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

template <typename Work>
double medianSeconds(Work work)
{
    std::array<double, runs> seconds{};
    for (double &one : seconds) {
        QElapsedTimer timer;
        timer.start();
        work();
        one = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    }
    std::sort(seconds.begin(), seconds.end());
    return seconds[runs / 2];
}

void showThroughput(const char *name, double seconds, qint64 bytes)
{
    std::printf("%-28s %8.0f MB/s\n", name, static_cast<double>(bytes) / 1e6 / seconds);
}

void showCost(const char *name, double seconds)
{
    std::printf("%-28s %8.1f us a file\n", name, seconds * 1e6 / smallFiles);
}

void benchLarge(const QString &file, qint64 bytes)
{
    for (const auto algorithm : {ContentHashAlgorithm::Md5, ContentHashAlgorithm::Blake3}) {
        setContentHashAlgorithm(algorithm);
        const QByteArray name = currentHashAlgorithmName().toLatin1();
        const double one = medianSeconds([&] { (void)fullContentHash(file); });
        showThroughput(("full " + name + ", 1 thread").constData(), one, bytes);
        const double two = medianSeconds([&] {
            const QStringList files{file, file};
            QtConcurrent::map(files, [](const QString &path) { (void)fullContentHash(path); }).waitForFinished();
        });
        showThroughput(("full " + name + ", 2 threads").constData(), two, 2 * bytes);
    }
}

void benchSmall(const QStringList &files)
{
    const auto each = [&](auto hash) {
        return medianSeconds([&] {
            for (const QString &file : files)
                (void)hash(file);
        });
    };
    for (const auto algorithm : {ContentHashAlgorithm::Md5, ContentHashAlgorithm::Blake3}) {
        setContentHashAlgorithm(algorithm);
        const QByteArray name = currentHashAlgorithmName().toLatin1();
        showCost(("quick " + name + ", 8 KiB").constData(), each([](const QString &file) { return quickHash(file); }));
        showCost(("full " + name + ", 8 KiB").constData(),
                 each([](const QString &file) { return fullContentHash(file); }));
    }
    showCost("sample, 8 KiB", each([](const QString &file) { return sampleHash(file); }));
    showCost("similarity, 8 KiB", each([](const QString &file) { return sampledByteSimilarity(file, file); }));
}

} // namespace

int main(int argc, char **argv)
{
    const qint64 mebibytes = argc > 1 ? std::max(1, std::atoi(argv[1])) : 256;
    const QTemporaryDir folder;
    QThreadPool::globalInstance()->setMaxThreadCount(2);
    std::printf("medians of %d runs, %d processors\n", runs, QThread::idealThreadCount());
    benchLarge(makeFile(folder.filePath(QStringLiteral("large")), mebibytes << 20, 0), mebibytes << 20);
    QStringList files;
    for (int i = 0; i < smallFiles; ++i)
        files.append(makeFile(folder.filePath(QString::number(i)), 8192, static_cast<char>(i)));
    benchSmall(files);
    return 0;
}
