// What the operations log costs as it grows: bench_log [RECORDS...], default 1000 10000 100000. For each number of
// records it prints the size of the file, the time of one more record and that of reading all.

#include "actions/records/operationslog.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Mirrix;

namespace {

/// The median of some runs, in milliseconds.
template <typename Work>
double medianMs(Work work)
{
    constexpr int runs = 9;
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[runs / 2];
}

/// As a year of daily use leaves them.
QList<LogEntry> madeRecords(int count)
{
    QList<LogEntry> records;
    for (int i = 0; i < count; ++i)
        records.append({1'600'000'000'000 + i * 60'000LL, QStringLiteral("scan_done"),
                        QStringLiteral("groups=%1 wasted=%2 candidates=%3").arg(i % 999).arg(i * 7919LL).arg(i)});
    return records;
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i)
        counts.push_back(std::max(1, std::atoi(argv[i])));
    if (counts.empty())
        counts = {1'000, 10'000, 100'000};
    for (const int count : counts) {
        const QTemporaryDir folder;
        OperationsLog log(folder.filePath(QStringLiteral("ops.log.enc")));
        if (!log.append(madeRecords(count))) {
            std::fprintf(stderr, "bench_log: cannot write %s\n", qPrintable(log.filePath()));
            return 2;
        }
        const double megabytes = static_cast<double>(QFileInfo(log.filePath()).size()) / 1e6;
        const double appendMs = medianMs([&] { log.append(QStringLiteral("restore"), QStringLiteral("a  <-  b")); });
        const double readMs = medianMs([&] { (void)log.readAll(); });
        std::printf("%7d records %8.2f MB   append %7.2f ms   read %7.2f ms\n", count, megabytes, appendMs, readMs);
    }
    return 0;
}
