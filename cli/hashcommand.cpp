#include "cli/hashcommand.h"

#include "cli/output.h"
#include "cli/terminal.h"
#include "core/hash/contenthash.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/threads/threadpool.h"
#include "core/walk/enumeration.h"

#include <QtConcurrent>

#include <algorithm>
#include <functional>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString algorithmOption = QStringLiteral("algorithm");
const QString windowOption = QStringLiteral("window");

/// Hashes one file; the notes say why it failed.
using FileHash = std::function<QByteArray(const QString &path, HashNotes &notes)>;

struct HashedFile
{
    QByteArray digest;
    QString failure;
};

FileHash wholeFileHash(const QString &algorithm)
{
    const auto with = [](QCryptographicHash::Algorithm chosen) -> FileHash {
        return [chosen](const QString &path, HashNotes &notes) {
            return hashFileWith(path, chosen, isInterrupted, &notes);
        };
    };
    if (algorithm == QLatin1String("md5"))
        return with(QCryptographicHash::Md5);
    if (algorithm == QLatin1String("sha1"))
        return with(QCryptographicHash::Sha1);
    if (algorithm == QLatin1String("sha256"))
        return with(QCryptographicHash::Sha256);
    return [](const QString &path, HashNotes &notes) { return fullContentHashBlake3(path, isInterrupted, &notes); };
}

/// The length in "prefix:N"; -1 for any other text.
qint64 prefixLengthOf(const QString &window)
{
    const QString prefix = QStringLiteral("prefix:");
    bool isNumber = false;
    const qint64 length = window.startsWith(prefix) ? window.mid(prefix.size()).toLongLong(&isNumber) : -1;
    return isNumber ? length : -1;
}

FileHash hashOf(const QString &algorithm, const QString &window)
{
    const QStringList known = {QStringLiteral("md5"), QStringLiteral("sha1"), QStringLiteral("sha256"),
                               QStringLiteral("blake3")};
    if (!known.contains(algorithm))
        throw UsageError{choiceProblem(algorithmOption, known, algorithm)};
    const QStringList windows = {QStringLiteral("full"), QStringLiteral("quick"), QStringLiteral("sample"),
                                 QStringLiteral("prefix:N")};
    if (window == QLatin1String("full"))
        return wholeFileHash(algorithm);
    const qint64 prefixLength = prefixLengthOf(window);
    const bool isSample = window == QLatin1String("sample");
    if (window != QLatin1String("quick") && !isSample && prefixLength < 0)
        throw UsageError{choiceProblem(windowOption, windows, window)};
    if (algorithm.startsWith(QLatin1String("sha")) || (isSample && algorithm != QLatin1String("md5")))
        throw UsageError{QStringLiteral("--window %1 cannot be used with --algorithm %2").arg(window, algorithm)};
    setContentHashAlgorithm(contentHashAlgorithmFrom(algorithm));
    if (isSample)
        return [](const QString &path, HashNotes &notes) { return sampleHash(path, &notes); };
    if (prefixLength >= 0) {
        return [prefixLength](const QString &path, HashNotes &notes) {
            return prefixHash(path, prefixLength, isInterrupted, &notes);
        };
    }
    return [](const QString &path, HashNotes &notes) { return quickHash(path, &notes); };
}

/// The files that `argument` means: itself, or all below a folder, as paths that begin with the argument.
QStringList filesOf(const QString &argument, QList<UnreadPath> &unread)
{
    if (fileStatus(absolutePath(argument)).kind != FileStatus::Kind::Folder)
        return {argument};
    const QString path = cleanedPath(absolutePath(argument));
    ScanOptions options;
    options.roots = QStringList{path};
    QStringList files;
    for (const FileEntry &file : enumerateFiles(options, {}, isInterrupted, &unread))
        files.append(cleanedPath(argument + QLatin1Char('/') + file.path.mid(path.size())));
    std::sort(files.begin(), files.end());
    return files;
}

/// The line of a checksum list. As other tools print them, a line whose name holds a line break or a backslash starts
/// with a backslash, and those characters are escaped.
QByteArray checksumLine(const QByteArray &digest, const QString &path)
{
    QByteArray name = pathBytes(path);
    const bool isEscaped = name.contains('\\') || name.contains('\n') || name.contains('\r');
    if (isEscaped)
        name.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
    return (isEscaped ? "\\" : "") + digest.toHex() + "  " + name + '\n';
}

} // namespace

void addHashOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {algorithmOption, QStringLiteral("Digest: md5 (default), sha1, sha256 or blake3."), QStringLiteral("NAME"),
         QStringLiteral("md5")},
        {windowOption,
         QStringLiteral("Part of the file to hash: full (default), or one of the scan fingerprints: quick (md5, "
                        "blake3), sample (md5), prefix:N (first N bytes, 0 = all; md5, blake3)."),
         QStringLiteral("WINDOW"), QStringLiteral("full")},
    });
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Files, and folders including subfolders."),
                                 QStringLiteral("FILE|FOLDER..."));
}

ExitStatus runHash(const QCommandLineParser &parser)
{
    const FileHash hash = hashOf(parser.value(algorithmOption), parser.value(windowOption));
    const QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        throw UsageError{QStringLiteral("no file to hash")};
    if (arguments.contains(QString()))
        throw UsageError{QStringLiteral("an empty file name")};
    catchInterrupts();
    QList<UnreadPath> unread;
    QStringList files;
    for (const QString &argument : arguments)
        files += filesOf(argument, unread);

    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    sizeThreadPool({});
    const QFuture<HashedFile> hashed = QtConcurrent::mapped(files, [&hash](const QString &path) {
        HashNotes notes;
        if (isInterrupted())
            return HashedFile();
        const QByteArray digest = hash(absolutePath(path), notes);
        return HashedFile{digest, notes.failure};
    });
    for (qsizetype i = 0; i < files.size() && !isInterrupted(); ++i) {
        const HashedFile file = hashed.resultAt(static_cast<int>(i));
        if (!file.digest.isEmpty())
            output.write(checksumLine(file.digest, files[i]));
        else if (!isInterrupted())
            unread.append({files[i], file.failure.isEmpty() ? QStringLiteral("nothing to hash") : file.failure});
    }
    QFuture<HashedFile>(hashed).waitForFinished();
    const bool isWritten = output.finish();
    if (!isWritten)
        printError(QStringLiteral("cannot write the digests: %1").arg(output.errorText()));
    for (const UnreadPath &path : unread)
        printError(QStringLiteral("%1: %2").arg(path.path, path.reason));
    if (isInterrupted()) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    return unread.isEmpty() && isWritten ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
