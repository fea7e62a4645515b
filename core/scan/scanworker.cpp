#include "core/scan/scanworker.h"

#include "core/scan/duplicatescanner.h"

#include <QtGlobal>

#include <exception>

namespace MirrixCore {

namespace {
const char unknownFailure[] = QT_TRANSLATE_NOOP("Mirrix", "扫描过程中发生未知错误");
} // namespace

void ScanWorker::start(MirrixCore::ScanOptions options)
{
    m_cancelled.exchange(false); // so a cancel that comes before this point is lost: callers repeat it
    ScanResult result;
    try {
        result = DuplicateScanner::scan(
            options, [this](const ScanProgress &report) { emit progress(report); },
            [this] { return m_cancelled.load(); });
    } catch (const std::exception &error) {
        emit failed(QString::fromUtf8(error.what()));
        return;
    } catch (...) { // not a std::exception; none may leave a slot
        emit failed(QString::fromUtf8(unknownFailure));
        return;
    }
    if (m_cancelled)
        emit failed(QString::fromUtf8(scanCancelledMessage));
    else
        emit finished(result);
}

void ScanWorker::cancel()
{
    m_cancelled = true;
}

} // namespace MirrixCore
