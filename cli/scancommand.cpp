#include "cli/scancommand.h"

#include "app/datalocations.h"
#include "app/settings.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scanreport.h"
#include "cli/terminal.h"
#include "core/cache/cacheroot.h"
#include "core/match/rulekeys.h"
#include "core/media/mediakinds.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"
#include "core/scan/duplicatescanner.h"
#include "core/scan/optiontable.h"
#include "core/walk/filestatus.h"
#include "core/walk/pathrules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <array>
#include <filesystem>
#include <system_error>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString modeOption = QStringLiteral("mode");
const QString hashOption = QStringLiteral("hash");
const QString setOption = QStringLiteral("set");
const QString optionsOption = QStringLiteral("options");
const QString excludeOption = QStringLiteral("exclude");
const QString noCacheOption = QStringLiteral("no-cache");
const QString threadsOption = QStringLiteral("threads");
const QString formatOption = QStringLiteral("format");
const QString outputOption = QStringLiteral("output");

constexpr int mostThreads = 256;

/// `path` against `base`, the current folder when that is empty.
QString absoluteFolder(const QString &path, const QString &base = {})
{
    if (path.isEmpty())
        throw UsageError{QStringLiteral("an empty folder name")};
    const bool isAgainstBase = !base.isEmpty() && QDir::isRelativePath(path);
    return cleanedPath(absolutePath(isAgainstBase ? base + QLatin1Char('/') + path : path));
}

/// Takes the relative paths among the options against `base`, as above.
void makeAbsolute(ScanOptions &options, const QString &base = {})
{
    for (QString &root : options.roots)
        root = absoluteFolder(root, base);
    for (QString &folder : options.excludeFolders)
        folder = absoluteFolder(folder, base);
    for (ScanLocation &location : options.locations)
        location.path = absoluteFolder(location.path, base);
}

/// A folder that is to be left out and is misspelled would be scanned.
void refuseMissingExclusions(const ScanOptions &options)
{
    for (const QString &folder : options.excludeFolders) {
        const FileStatus status = fileStatus(folder);
        if (status.kind == FileStatus::Kind::Folder)
            continue;
        const QString missing = status.reason.isEmpty() ? QStringLiteral("no such folder") : status.reason;
        const QString reason = status.kind == FileStatus::Kind::Missing ? missing : QStringLiteral("not a folder");
        throw UsageError{QStringLiteral("cannot exclude %1: %2").arg(folder, reason)};
    }
}

void readOptionsFile(const QString &path, ScanOptions &options)
{
    QFile file;
    QString reason;
    if (!openNatively(file, path, QIODevice::ReadOnly, &reason))
        throw UsageError{QStringLiteral("cannot read %1: %2").arg(path, reason)};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        const bool isJson = error.error == QJsonParseError::NoError;
        throw UsageError{
            QStringLiteral("%1: %2").arg(path, isJson ? QStringLiteral("not a JSON object") : error.errorString())};
    }
    const QString problem = scanOptionsFromJson(document.object(), options);
    if (!problem.isEmpty())
        throw UsageError{QStringLiteral("%1: %2").arg(path, problem)};
    makeAbsolute(options, QFileInfo(path).path());
}

void applyAssignment(const QString &assignment, ScanOptions &options)
{
    const qsizetype equals = assignment.indexOf(QLatin1Char('='));
    if (equals < 1)
        throw UsageError{QStringLiteral("--set takes NAME=VALUE, not \"%1\"").arg(assignment)};
    const QString problem = setScanOption(options, assignment.left(equals), assignment.mid(equals + 1));
    if (!problem.isEmpty())
        throw UsageError{problem};
}

int threadsOf(const QString &text)
{
    bool isNumber = false;
    const int threads = text.toInt(&isNumber);
    if (!isNumber || threads < 0 || threads > mostThreads)
        throw UsageError{
            QStringLiteral("--threads must be a number from 0 to %1, not \"%2\"").arg(mostThreads).arg(text)};
    return threads;
}

struct Mode
{
    QString name;
    SearchMode search;
    ContentMatch content;
};

const QList<Mode> &modes()
{
    static const QList<Mode> table = {
        {QStringLiteral("content"), SearchMode::Files, ContentMatch::Exact},
        {QStringLiteral("similar-content"), SearchMode::Files, ContentMatch::Similar},
        {QStringLiteral("rules"), SearchMode::Files, ContentMatch::Ignore},
        {QStringLiteral("images"), SearchMode::Images, ContentMatch::Exact},
        {QStringLiteral("audio"), SearchMode::Audio, ContentMatch::Exact},
        {QStringLiteral("video"), SearchMode::Video, ContentMatch::Exact},
    };
    return table;
}

void applyMode(const QString &name, ScanOptions &options)
{
    QStringList names;
    for (const Mode &mode : modes()) {
        names.append(mode.name);
        if (mode.name != name)
            continue;
        options.searchMode = static_cast<qint32>(mode.search);
        options.contentMatch = static_cast<qint32>(mode.content);
        return;
    }
    throw UsageError{choiceProblem(modeOption, names, name)};
}

struct Range
{
    const char *option;
    qint32 ScanOptions::*value;
    qint32 least;
    qint32 most;
};

constexpr std::array ranges = {
    Range{"searchMode", &ScanOptions::searchMode, 0, 3},
    Range{"contentMatch", &ScanOptions::contentMatch, 0, 2},
    Range{"mediaCompareDepth", &ScanOptions::mediaCompareDepth, 0, 4},
    Range{"mediaCompareDepthAlt", &ScanOptions::mediaCompareDepthAlt, 0, 2},
    Range{"similarPercent", &ScanOptions::similarPercent, 1, 100},
    Range{"imageSimilarityLevel", &ScanOptions::imageSimilarityLevel, 0, 4},
    Range{"imageMaxDistance", &ScanOptions::imageMaxDistance, 0, 64},
};

void refuseOutside(const char *option, qint32 value, qint32 least, qint32 most)
{
    if (value < least || value > most)
        throw UsageError{QStringLiteral("%1 must be from %2 to %3, not %4")
                             .arg(QLatin1String(option))
                             .arg(least)
                             .arg(most)
                             .arg(value)};
}

void refuseWildcards(const QStringList &extensions)
{
    for (const QString &extension : extensions) {
        if (extension.contains(QLatin1Char('*')))
            throw UsageError{QStringLiteral("an extension is given as jpg, not as \"%1\"").arg(extension)};
    }
}

/// Whether files are grouped by rules alone.
bool groupsByRules(const ScanOptions &options)
{
    switch (static_cast<SearchMode>(options.searchMode)) {
    case SearchMode::Files:
        return options.contentMatch == static_cast<qint32>(ContentMatch::Ignore);
    case SearchMode::Images:
        return false;
    case SearchMode::Audio:
        return options.mediaCompareDepth == ranges[2].most;
    case SearchMode::Video:
        return options.mediaCompareDepthAlt == ranges[3].most;
    }
    return false;
}

/// Refuses what would be answered with an empty result.
void refuseUnsupported(const ScanOptions &options)
{
    for (const Range &range : ranges)
        refuseOutside(range.option, options.*range.value, range.least, range.most);
    bool hasLocationRule = false;
    for (const ScanLocation &location : options.locations) {
        refuseOutside("findKind", location.findKind, 0, 2);
        hasLocationRule = hasLocationRule || location.findKind != static_cast<qint32>(FindKind::ContentDuplicates);
    }
    refuseWildcards(options.includeExtensions + options.excludeExtensions);
    const bool hasRule = hasRefiningRule(options) || hasLocationRule || options.audioMatchDuration ||
                         options.videoMatchDuration || !options.audioTags.isEmpty() || !options.videoTags.isEmpty();
    if (groupsByRules(options) && !hasRule)
        throw UsageError{
            QStringLiteral("without comparing contents a rule is needed, for example --set sameName=true")};
}

void applyHash(const QCommandLineParser &parser, const QString &dataDirectory)
{
    const QString name = parser.value(hashOption);
    if (name.isEmpty()) {
        Mirrix::applyContentHashAlgorithm(Mirrix::readSettings(dataDirectory));
        return;
    }
    if (name != QLatin1String("md5") && name != QLatin1String("blake3"))
        throw UsageError{choiceProblem(hashOption, {QStringLiteral("md5"), QStringLiteral("blake3")}, name)};
    setContentHashAlgorithm(contentHashAlgorithmFrom(name));
}

ReportFormat formatOf(const QString &name)
{
    if (name == QLatin1String("text"))
        return ReportFormat::Text;
    if (name == QLatin1String("json"))
        return ReportFormat::Json;
    if (name == QLatin1String("csv"))
        return ReportFormat::Csv;
    throw UsageError{
        choiceProblem(formatOption, {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("csv")}, name)};
}

/// Finds out before a long scan whether its report can be written. The file is not left open: its temporary name would
/// be found by a scan of its folder.
void refuseUnwritable(const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir())
        return; // opening a pipe twice would end its reader
    Output probe;
    if (!probe.open(path))
        throw UsageError{QStringLiteral("cannot write %1: %2").arg(path, probe.errorText())};
}

/// Turns the cache on, and says so when it can remember nothing new.
void useCache(const QString &dataDirectory)
{
    setCacheRoot(dataDirectory);
    const QString folder = dataDirectory + QLatin1Char('/') + fingerprintCacheName;
    const QString probePath = QStringLiteral("%1/probe%2").arg(folder).arg(QCoreApplication::applicationPid());
    QFile probe;
    if (!makeFolders(folder) || !openNatively(probe, probePath, QIODevice::WriteOnly))
        printError(QStringLiteral("cannot write to %1; digests will not be cached").arg(folder));
    std::error_code failure;
    std::filesystem::remove(filesystemPath(probePath), failure);
}

ScanResult scanWithProgress(const ScanOptions &options)
{
    ProgressLine line;
    return DuplicateScanner::scan(
        options, [&line](const ScanProgress &progress) { line.show(progress); }, isInterrupted);
}

} // namespace

void addSelectionOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {hashOption, QStringLiteral("Digest used for comparing: md5 or blake3 (default: from the settings)."),
         QStringLiteral("NAME")},
        {setOption, QStringLiteral("Set a scan option. May be repeated."), QStringLiteral("NAME=VALUE")},
        {excludeOption, QStringLiteral("Skip this folder. May be repeated."), QStringLiteral("DIR")},
        {noCacheOption, QStringLiteral("Do not read or write the digest cache.")},
        {threadsOption, QStringLiteral("Number of worker threads, 0 to 256; 0 = one per processor, up to 8."),
         QStringLiteral("N")},
    });
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("Folders to scan, including subfolders."),
                                 QStringLiteral("FOLDER..."));
}

void readSelection(const QCommandLineParser &parser, ScanOptions &options)
{
    const QStringList assignments = parser.values(setOption);
    for (const QString &assignment : assignments)
        applyAssignment(assignment, options);
    if (parser.isSet(threadsOption))
        options.threads = threadsOf(parser.value(threadsOption));
    options.excludeFolders += parser.values(excludeOption);
    options.roots += parser.positionalArguments();
    makeAbsolute(options);
    refuseMissingExclusions(options);
    if (options.roots.isEmpty())
        throw UsageError{QStringLiteral("no folder to scan")};
}

void prepareScan(const QCommandLineParser &parser)
{
    const QString dataDirectory = dataDirectoryOf(parser);
    applyHash(parser, dataDirectory);
    setOwnFiles(Mirrix::ownFilesIn(dataDirectory));
    if (parser.isSet(noCacheOption))
        setCacheRoot({});
    else
        useCache(dataDirectory);
    catchInterrupts();
}

ScanResult scanAndReportUnread(const ScanOptions &options)
{
    const ScanResult result = scanWithProgress(options);
    for (const UnreadPath &unread : result.unread)
        printError(QStringLiteral("%1: %2").arg(unread.path, unread.reason));
    return result;
}

void addScanOptions(QCommandLineParser &parser)
{
    addSelectionOptions(parser);
    parser.addOptions({
        {modeOption,
         QStringLiteral("How files are compared: content (default): identical bytes; similar-content: at least "
                        "similarPercent of samples agree; images: visual similarity, within imageMaxDistance; audio, "
                        "video: content samples, then the opening or the whole file, depending on mediaCompareDepth "
                        "(audio) or mediaCompareDepthAlt (video); rules: names, sizes, dates and paths only."),
         QStringLiteral("MODE")},
        {optionsOption, QStringLiteral("Read scan options from a JSON file."), QStringLiteral("FILE")},
        {formatOption, QStringLiteral("Report format: text (default), json or csv."), QStringLiteral("FORMAT"),
         QStringLiteral("text")},
        {outputOption, QStringLiteral("Write the report to a file."), QStringLiteral("FILE")},
    });
}

ScanOptions scanOptionsOf(const QCommandLineParser &parser)
{
    ScanOptions options;
    options.collapseHardLinks = true; // further names of one file waste nothing
    if (parser.isSet(optionsOption))
        readOptionsFile(parser.value(optionsOption), options);
    readSelection(parser, options);
    if (parser.isSet(modeOption))
        applyMode(parser.value(modeOption), options);
    refuseUnsupported(options);
    if (options.includeExtensions.isEmpty())
        options.includeExtensions = extensionsOf(static_cast<SearchMode>(options.searchMode));
    return options;
}

ExitStatus runScan(const QCommandLineParser &parser)
{
    const ScanOptions options = scanOptionsOf(parser);
    const ReportFormat format = formatOf(parser.value(formatOption));
    refuseUnwritable(parser.value(outputOption));
    prepareScan(parser);
    const ScanResult result = scanAndReportUnread(options);
    if (isInterrupted()) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    Output output;
    const bool isOpen = output.open(parser.value(outputOption));
    if (isOpen)
        writeReport(result, format, output);
    if (!isOpen || !output.finish()) {
        printError(QStringLiteral("cannot write the report: %1").arg(output.errorText()));
        return ExitStatus::SomeFailed;
    }
    return result.unread.isEmpty() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
