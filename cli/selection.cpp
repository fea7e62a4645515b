#include "cli/selection.h"

#include "cli/commandline.h"
#include "cli/filelist.h"
#include "cli/valuetexts.h"
#include "core/model/optiontable.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QDateTime>
#include <QDir>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString setOption = QStringLiteral("set");
const QString excludeOption = QStringLiteral("exclude");
const QString threadsOption = QStringLiteral("threads");
const QString minSizeOption = QStringLiteral("min-size");
const QString maxSizeOption = QStringLiteral("max-size");
const QString nameOption = QStringLiteral("name");
const QString excludeNameOption = QStringLiteral("exclude-name");
const QString newerOption = QStringLiteral("newer");
const QString oneFileSystemOption = QStringLiteral("one-file-system");
const QString filesFromOption = QStringLiteral("files-from");
const QString nullOption = QStringLiteral("null");

constexpr int mostThreads = 256;

/// `path` against `base`, the current folder when that is empty.
QString absoluteFolder(const QString &path, const QString &base = {})
{
    if (path.isEmpty())
        throw UsageError{QStringLiteral("an empty folder name")};
    const bool isAgainstBase = !base.isEmpty() && QDir::isRelativePath(path);
    return cleanedPath(absolutePath(isAgainstBase ? base + QLatin1Char('/') + path : path));
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

/// The filters that have options of their own.
void readFilters(const QCommandLineParser &parser, ScanOptions &options)
{
    if (parser.isSet(minSizeOption))
        options.minSize = sizeFromText(minSizeOption, parser.value(minSizeOption));
    if (parser.isSet(maxSizeOption))
        options.maxSize = sizeFromText(maxSizeOption, parser.value(maxSizeOption));
    if (parser.isSet(newerOption))
        options.modifiedFromMs =
            timeFromText(newerOption, parser.value(newerOption), QDateTime::currentMSecsSinceEpoch());
    options.includeNames += parser.values(nameOption);
    options.excludeNames += parser.values(excludeNameOption);
    options.oneFileSystem = options.oneFileSystem || parser.isSet(oneFileSystemOption);
}

/// What is no folder counts as a file; the walk finds out whether it is one.
void readLists(const QCommandLineParser &parser, ScanOptions &options)
{
    for (const QString &list : parser.values(filesFromOption)) {
        for (const QString &path : readFileList(list, parser.isSet(nullOption))) {
            const bool isFolder = fileStatus(absolutePath(path)).kind == FileStatus::Kind::Folder;
            (isFolder ? options.roots : options.files).append(path);
        }
    }
}

} // namespace

void makeAbsolute(ScanOptions &options, const QString &base)
{
    for (QStringList *paths : {&options.roots, &options.files, &options.excludeFolders}) {
        for (QString &path : *paths)
            path = absoluteFolder(path, base);
    }
    for (ScanLocation &location : options.locations)
        location.path = absoluteFolder(location.path, base);
}

void addSelectionOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {minSizeOption,
         QStringLiteral("Only files of at least this size, such as 4096, 512K or 1.5M (powers of 1024)."),
         QStringLiteral("SIZE")},
        {maxSizeOption, QStringLiteral("Only files of at most this size."), QStringLiteral("SIZE")},
        {nameOption,
         QStringLiteral("Only files whose names match this pattern, such as '*.iso'. Letter case is ignored. May be "
                        "repeated."),
         QStringLiteral("PATTERN")},
        {excludeNameOption,
         QStringLiteral("Skip files and folders whose names match this pattern, such as '*.git'. May be repeated."),
         QStringLiteral("PATTERN")},
        {newerOption,
         QStringLiteral(
             "Only files modified within this time (12h, 30d, 4w, 1y) or since this date (2024-01-31, local time)."),
         QStringLiteral("AGE|DATE")},
        {excludeOption, QStringLiteral("Skip this folder. May be repeated."), QStringLiteral("DIR")},
        {oneFileSystemOption, QStringLiteral("Do not enter other file systems mounted below a folder.")},
        {filesFromOption,
         QStringLiteral("Also scan the files and folders listed in this file, one per line; - reads standard input. A "
                        "list separated by NUL bytes is recognised; names with line breaks need one. Equal folders are "
                        "not searched for when single files are listed."),
         QStringLiteral("FILE")},
        {{QStringLiteral("0"), nullOption}, QStringLiteral("The list of --files-from is separated by NUL bytes.")},
        {setOption,
         QStringLiteral("Set a scan option; \"mirrix-cli options\" lists them. May be repeated. Options such as "
                        "--min-size take precedence."),
         QStringLiteral("NAME=VALUE")},
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
    readFilters(parser, options);
    if (parser.isSet(threadsOption))
        options.threads = threadsOf(parser.value(threadsOption));
    options.excludeFolders += parser.values(excludeOption);
    options.roots += parser.positionalArguments();
    readLists(parser, options);
    makeAbsolute(options);
    refuseMissingExclusions(options);
    // An empty list is the answer of a search that found nothing.
    if (options.roots.isEmpty() && options.files.isEmpty() && !parser.isSet(filesFromOption))
        throw UsageError{QStringLiteral("no folder to scan")};
}

} // namespace MirrixCli
