#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

#include <QObject>
#include <QtGlobal>

#include <atomic>

namespace MirrixCore {

/// What ScanWorker::failed says of a scan that was cancelled; see there.
inline constexpr const char scanCancelledMessage[] = QT_TRANSLATE_NOOP("Mirrix", "扫描已取消");

/// Runs scans on the thread it lives on and reports through signals. The records must be registered (see metatypes.h)
/// for queued connections. One scan at a time.
class ScanWorker : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// Emitted from whichever thread reports, never from two at once.
    void progress(MirrixCore::ScanProgress);
    void finished(MirrixCore::ScanResult result);
    /// The scan failed or was cancelled. Our own messages are source texts of the context "Mirrix", to be translated
    /// where they are shown; others are the words of an exception.
    void failed(QString message);

public slots:
    /// Runs a whole scan and ends with exactly one of finished and failed. Blocks this object's thread.
    void start(MirrixCore::ScanOptions options);

    /// Asks the running scan to stop; it then ends with failed. May be called from any thread at any time, returns at
    /// once. While idle it has no effect on the next scan.
    void cancel();

private:
    std::atomic<bool> m_cancelled = false;
};

} // namespace MirrixCore
