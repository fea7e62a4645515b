#include "cli/scanreport.h"

#include "actions/export/exporttexts.h"
#include "app/sizetext.h"
#include "cli/colours.h"
#include "cli/counted.h"
#include "cli/jsonreport.h"
#include "core/platform/nativepath.h"

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

/// How much the members agree, of a group by similar content: "SIM:93%" and what rules add to it.
QString agreement(const QString &key)
{
    const qsizetype end = key.indexOf(QLatin1Char('%'));
    return key.startsWith(QLatin1String("SIM:")) ? QStringLiteral(", %1 similar").arg(key.mid(4, end - 3)) : QString();
}

/// "of 3 MB each", or "of 1 MB to 3 MB" where the members differ.
QString sizes(const QList<FileEntry> &files)
{
    const auto [least, most] = std::minmax_element(
        files.begin(), files.end(), [](const FileEntry &a, const FileEntry &b) { return a.size < b.size; });
    if (least->size == most->size)
        return QStringLiteral("of %1 each").arg(Mirrix::sizeText(most->size));
    return QStringLiteral("of %1 to %2").arg(Mirrix::sizeText(least->size), Mirrix::sizeText(most->size));
}

QString heading(const DuplicateGroup &group)
{
    if (group.wastedBytes == 0)
        return counted(group.files.size(), QStringLiteral("empty file"));
    return QStringLiteral("%1 %2%3, %4 reclaimable")
        .arg(counted(group.files.size(), QStringLiteral("file")), sizes(group.files), agreement(group.key),
             Mirrix::sizeText(group.wastedBytes));
}

QString heading(const FolderGroup &group)
{
    return QStringLiteral("%1 of %2 (%3) each")
        .arg(counted(group.folders.size(), QStringLiteral("equal folder")),
             counted(group.fileCount, QStringLiteral("file")), Mirrix::sizeText(group.size));
}

/// Writes what people read.
class TextReport
{
public:
    TextReport(Output &output, const ReportStyle &style)
        : m_output(output)
        , m_isTerminal(output.isTerminal())
        , m_isColoured(isColoured(style.colour, output))
    {}

    /// A heading, and below it the paths of `items`.
    template <typename Items, typename PathOf>
    void block(const QString &heading, const Items &items, PathOf pathOf)
    {
        m_output.write(coloured(heading.toUtf8(), Colour::Heading, m_isColoured) + '\n');
        for (const auto &item : items)
            m_output.write("  " + shownPath(pathOf(item), m_isTerminal) + '\n');
        m_output.write("\n");
    }

private:
    Output &m_output;
    const bool m_isTerminal;
    const bool m_isColoured;
};

/// What removing all files but one of each group would free, however sparse they are.
qint64 reclaimableBytes(const QList<DuplicateGroup> &groups)
{
    qint64 sum = 0;
    for (const DuplicateGroup &group : groups) {
        qint64 all = 0;
        qint64 largest = 0;
        for (const FileEntry &file : group.files) {
            const qint64 bytes = MirrixCore::freeableBytes(file.size, file.allocatedBytes);
            all += bytes;
            largest = std::max(largest, bytes);
        }
        sum += std::min(group.wastedBytes, all - largest);
    }
    return sum;
}

QString summaryOf(const ScanReport &report)
{
    const ScanResult &result = report.result;
    QStringList found;
    if (!result.groups.isEmpty())
        found.append(counted(result.groups.size(), QStringLiteral("group")) +
                     QStringLiteral(", %1 reclaimable").arg(Mirrix::sizeText(reclaimableBytes(result.groups))));
    else if (report.hasFiles)
        found.append(QStringLiteral("No duplicates found"));
    if (report.hasFolders)
        found.append(counted(report.emptyFolders.size(), QStringLiteral("empty folder")));
    if (report.hasFiles)
        found.append(QStringLiteral("%1 (%2) scanned in %3 s")
                         .arg(counted(result.filesScanned, QStringLiteral("file")), Mirrix::sizeText(result.totalBytes),
                              QString::number(static_cast<double>(result.elapsedMs) / 1000, 'f', 2)));
    return found.join(QStringLiteral("; "));
}

void writeText(const ScanReport &report, const ReportStyle &style, Output &output)
{
    const ScanResult &result = report.result;
    const auto pathOf = [](const auto &item) { return item.path; };
    TextReport text(output, style);
    for (const DuplicateGroup &group : result.groups)
        text.block(heading(group), group.files, pathOf);
    for (const FolderGroup &group : result.folderGroups)
        text.block(heading(group), group.folders, pathOf);
    if (!report.emptyFolders.isEmpty())
        text.block(counted(report.emptyFolders.size(), QStringLiteral("empty folder")), report.emptyFolders,
                   [](const QString &path) { return path; });
    if (!result.folderSummaries.isEmpty())
        text.block(counted(result.folderSummaries.size(), QStringLiteral("file")) + QStringLiteral(" in no group"),
                   result.folderSummaries, pathOf);
    if (!style.isQuiet)
        output.write(summaryOf(report).toUtf8() + '\n');
}

/// Each path ends with a NUL byte, with an empty one between groups.
void writeNul(const ScanReport &report, Output &output)
{
    bool isFirst = true;
    const auto separate = [&] {
        if (!isFirst)
            output.write(QByteArrayView("", 1));
        isFirst = false;
    };
    for (const DuplicateGroup &group : report.result.groups) {
        separate();
        for (const FileEntry &file : group.files)
            output.write(pathBytes(file.path) + '\0');
    }
    if (report.emptyFolders.isEmpty())
        return;
    separate();
    for (const QString &folder : report.emptyFolders)
        output.write(pathBytes(folder) + '\0');
}

void writeCsv(const ScanResult &result, Output &output)
{
    const auto sink = [&output](QByteArrayView bytes) {
        output.write(bytes);
        return true; // the output keeps its failures for the end
    };
    static_cast<void>(Mirrix::writeCsv({result.groups, {}}, {}, sink));
}

} // namespace

void writeReport(const ScanReport &report, const ReportStyle &style, Output &output)
{
    switch (style.format) {
    case ReportFormat::Text:
        writeText(report, style, output);
        break;
    case ReportFormat::Json:
        writeJson(report, output);
        break;
    case ReportFormat::Csv:
        writeCsv(report.result, output);
        break;
    case ReportFormat::Nul:
        writeNul(report, output);
        break;
    }
}

} // namespace MirrixCli
