#include "actions/export/exporter.h"

#include "actions/export/exportscript.h"
#include "actions/export/exporttexts.h"
#include "actions/files/fileoperations.h"
#include "actions/files/movefile.h"
#include "app/storedfile.h"
#include "app/text.h"

#include <QSaveFile>

namespace Mirrix {

namespace {

using TextWriter = std::function<bool(const ByteSink &)>;

constexpr qsizetype bufferBytes = 256 * 1024;

/// Puts what `write` writes into place as a file. False when it could not be written whole or `write` ended early.
bool writeFile(const QString &path, QIODevice::OpenMode mode, const TextWriter &write)
{
    QSaveFile file(path);
    // Unbuffered, since a buffer that cannot be flushed on a full disk would count as written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode))
        return false;
    QByteArray buffer;
    const auto flush = [&] {
        const bool isWritten = file.write(buffer) == buffer.size();
        buffer.clear();
        return isWritten;
    };
    const auto sink = [&](QByteArrayView bytes) {
        buffer.append(bytes);
        return buffer.size() < bufferBytes || flush();
    };
    if (write(sink) && flush() && flushToDisk(file))
        return file.commit();
    file.cancelWriting();
    return false;
}

ExportOutcome copyAll(const ExportRecords &records, const ExportRequest &request, const BatchProgress &progress)
{
    if (!makeFolders(request.path))
        return {false, false, Text::tr("无法创建目标目录: %1").arg(request.path), {}};
    ExportOutcome outcome;
    outcome.isDone = true;
    qsizetype count = 0;
    outcome.isCancelled = !visitListedFiles(records, request.options, progress, [&](const ListedFile &listed) {
        QString error;
        if (copyToFolder(listed.file.path, request.path, &error))
            ++count;
        else
            outcome.errors.append(error);
        return true;
    });
    outcome.message = Text::tr("已复制 %1 个文件").arg(count);
    return outcome;
}

} // namespace

ExportOutcome writeExport(const ExportRecords &records, const ExportRequest &request, const QString &modeName,
                          const QDateTime &now, const BatchProgress &progress)
{
    ExportOutcome outcome;
    const BatchProgress watched = [&](qsizetype done, qsizetype total) {
        outcome.isCancelled = progress && !progress(done, total);
        return !outcome.isCancelled;
    };
    const ExportOptions &options = request.options;
    QString failure = Text::tr("无法写入文件。");
    switch (request.format) {
    case ExportFormat::Csv:
        outcome.isDone = writeFile(request.path, QIODevice::Text,
                                   [&](const ByteSink &sink) { return writeCsv(records, options, sink, watched); });
        break;
    case ExportFormat::TextReport:
        outcome.isDone = writeFile(request.path, QIODevice::Text, [&](const ByteSink &sink) {
            return writeTextReport(records, options, modeName, now, sink, watched);
        });
        break;
    case ExportFormat::Copies:
        return copyAll(records, request, progress);
    case ExportFormat::DeletionScript:
        failure = Text::tr("无法写入脚本。");
        outcome.isDone = writeFile(request.path, {}, [&](const ByteSink &sink) {
            return writeDeletionScript(records, options, sink, outcome.errors, watched);
        });
        break;
    default:
        failure = Text::tr("未知导出格式。");
    }
    if (outcome.isDone)
        return outcome;
    return {false, outcome.isCancelled, outcome.isCancelled ? QString() : failure, {}};
}

QString defaultExportName(ExportFormat format, const QDateTime &now)
{
    const QString stem = QStringLiteral("Mirrix_") + now.toString(QStringLiteral("yyyyMMdd_HHmm"));
    switch (format) {
    case ExportFormat::Csv:
        return stem + QStringLiteral(".csv");
    case ExportFormat::TextReport:
        return stem + QStringLiteral(".txt");
    case ExportFormat::DeletionScript:
        return stem + QStringLiteral(".bat");
    case ExportFormat::Copies:
        break;
    }
    return {};
}

} // namespace Mirrix
