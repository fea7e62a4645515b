#include "cli/scanreport.h"

#include "app/sizetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

QString counted(qint64 count, const QString &noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? QString() : QStringLiteral("s"));
}

QString heading(const DuplicateGroup &group)
{
    if (group.wastedBytes == 0)
        return counted(group.files.size(), QStringLiteral("empty file"));
    return QStringLiteral("%1 of %2, %3 to free")
        .arg(counted(group.files.size(), QStringLiteral("file")), Mirrix::sizeText(group.files.constFirst().size),
             Mirrix::sizeText(group.wastedBytes));
}

void writeText(const ScanResult &result, Output &output)
{
    const bool isTerminal = output.isTerminal();
    for (const DuplicateGroup &group : result.groups) {
        output.write(heading(group).toUtf8() + '\n');
        for (const FileEntry &file : group.files)
            output.write("  " + shownPath(file.path, isTerminal) + '\n');
        output.write("\n");
    }
    const QString found = result.groups.isEmpty()
                              ? QStringLiteral("No duplicates found")
                              : counted(result.groups.size(), QStringLiteral("group")) +
                                    QStringLiteral(", %1 to free").arg(Mirrix::sizeText(result.wastedBytes));
    output.write(QStringLiteral("%1; %2 (%3) scanned in %4 s\n")
                     .arg(found, counted(result.filesScanned, QStringLiteral("file")),
                          Mirrix::sizeText(result.totalBytes),
                          QString::number(static_cast<double>(result.elapsedMs) / 1000, 'f', 2))
                     .toUtf8());
}

/// A text as JSON writes it. Most paths need no escaping, and a report holds many of them: only the others go through
/// Qt's writer, which takes as long for one path as a scan takes to hash a small file.
QByteArray quoted(const QString &text)
{
    const auto isPlain = [](QChar character) {
        return character >= QLatin1Char(' ') && character <= QLatin1Char('~') && character != QLatin1Char('"') &&
               character != QLatin1Char('\\');
    };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return '"' + text.toLatin1() + '"';
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray numberText(qint64 value)
{
    return QByteArray::number(value);
}

QByteArray numberText(double value)
{
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

QByteArray member(const char *name, const QByteArray &json)
{
    return QByteArray(", \"") + name + "\": " + json;
}

QByteArray knownMember(const char *name, qint64 value)
{
    return value == 0 ? QByteArray() : member(name, numberText(value));
}

QByteArray knownMember(const char *name, const QString &value)
{
    return value.isEmpty() ? QByteArray() : member(name, quoted(value));
}

QByteArray mediaMembers(const FileEntry &file)
{
    QByteArray json = knownMember("durationMs", file.durationMs) + knownMember("width", file.width) +
                      knownMember("height", file.height) + knownMember("shotMs", file.shotMs) +
                      knownMember("artist", file.artist) + knownMember("title", file.title) +
                      knownMember("album", file.album) + knownMember("track", file.track) +
                      knownMember("cameraMake", file.cameraMake) + knownMember("cameraModel", file.cameraModel) +
                      knownMember("dateTaken", file.dateTaken);
    if (file.hasGps)
        json += member("latitude", numberText(file.latitude)) + member("longitude", numberText(file.longitude));
    return json;
}

QByteArray jsonOf(const FileEntry &file)
{
    return "{\"path\": " + quoted(file.path) + member("size", numberText(file.size)) +
           member("modifiedMs", numberText(file.modifiedMs)) + member("createdMs", numberText(file.createdMs)) +
           mediaMembers(file) + '}';
}

QByteArray jsonOf(const FolderEntry &folder)
{
    return "{\"path\": " + quoted(folder.path) + member("fileCount", numberText(folder.fileCount)) +
           member("size", numberText(folder.size)) + '}';
}

/// An array with an item a line, indented by `indent`.
template <typename List, typename JsonOf>
QByteArray arrayOf(const List &items, const QByteArray &indent, JsonOf textOf)
{
    QByteArray json = "[";
    for (const auto &item : items)
        json += (json.size() == 1 ? "\n" : ",\n") + indent + textOf(item);
    return json + ']';
}

QByteArray jsonOf(const DuplicateGroup &group)
{
    return "{\"key\": " + quoted(group.key) + member("wastedBytes", numberText(group.wastedBytes)) +
           member("files", arrayOf(group.files, "    ", [](const FileEntry &file) { return jsonOf(file); })) + '}';
}

QByteArray jsonOf(const FolderGroup &group)
{
    return "{\"fileCount\": " + numberText(group.fileCount) + member("size", numberText(group.size)) +
           member("folders", arrayOf(group.folders, "    ", [](const FolderEntry &item) { return jsonOf(item); })) +
           '}';
}

/// Writes an array member item by item.
template <typename List, typename JsonOf>
void writeArray(const char *name, const List &items, JsonOf textOf, Output &output)
{
    output.write(QByteArray(",\n \"") + name + "\": [");
    const char *separator = "\n  ";
    for (const auto &item : items) {
        output.write(separator + textOf(item));
        separator = ",\n  ";
    }
    output.write("]");
}

void writeJson(const ScanResult &result, Output &output)
{
    output.write(
        "{\"filesScanned\": " + numberText(result.filesScanned) + member("totalBytes", numberText(result.totalBytes)) +
        member("wastedBytes", numberText(result.wastedBytes)) + member("candidates", numberText(result.candidates)) +
        member("elapsedMs", numberText(result.elapsedMs)));
    const auto object = [](const auto &item) { return jsonOf(item); };
    writeArray("groups", result.groups, object, output);
    writeArray("folderGroups", result.folderGroups, object, output);
    writeArray(
        "remaining", result.folderSummaries, [](const FileEntry &file) { return quoted(file.path); }, output);
    output.write("}\n");
}

} // namespace

void writeReport(const ScanResult &result, ReportFormat format, Output &output)
{
    if (format == ReportFormat::Json)
        writeJson(result, output);
    else
        writeText(result, output);
}

} // namespace MirrixCli
