#include "cli/scanreport.h"

#include "app/sizetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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

void addText(QJsonObject &json, const QString &name, const QString &value)
{
    if (!value.isEmpty())
        json.insert(name, value);
}

void addNumber(QJsonObject &json, const QString &name, qint64 value)
{
    if (value != 0)
        json.insert(name, value);
}

/// The media members that are known.
void addMedia(QJsonObject &json, const FileEntry &file)
{
    addNumber(json, QStringLiteral("durationMs"), file.durationMs);
    addNumber(json, QStringLiteral("width"), file.width);
    addNumber(json, QStringLiteral("height"), file.height);
    addNumber(json, QStringLiteral("shotMs"), file.shotMs);
    addText(json, QStringLiteral("artist"), file.artist);
    addText(json, QStringLiteral("title"), file.title);
    addText(json, QStringLiteral("album"), file.album);
    addText(json, QStringLiteral("track"), file.track);
    addText(json, QStringLiteral("cameraMake"), file.cameraMake);
    addText(json, QStringLiteral("cameraModel"), file.cameraModel);
    addText(json, QStringLiteral("dateTaken"), file.dateTaken);
    if (file.hasGps) {
        json.insert(QStringLiteral("latitude"), file.latitude);
        json.insert(QStringLiteral("longitude"), file.longitude);
    }
}

QJsonObject jsonOf(const FileEntry &file)
{
    QJsonObject json{{QStringLiteral("path"), file.path},
                     {QStringLiteral("size"), file.size},
                     {QStringLiteral("modifiedMs"), file.modifiedMs},
                     {QStringLiteral("createdMs"), file.createdMs}};
    addMedia(json, file);
    return json;
}

QJsonObject jsonOf(const DuplicateGroup &group)
{
    QJsonArray files;
    for (const FileEntry &file : group.files)
        files.append(jsonOf(file));
    return {{QStringLiteral("key"), group.key},
            {QStringLiteral("wastedBytes"), group.wastedBytes},
            {QStringLiteral("files"), files}};
}

QJsonObject jsonOf(const FolderGroup &group)
{
    QJsonArray folders;
    for (const FolderEntry &folder : group.folders) {
        folders.append(QJsonObject{{QStringLiteral("path"), folder.path},
                                   {QStringLiteral("fileCount"), folder.fileCount},
                                   {QStringLiteral("size"), folder.size}});
    }
    return {{QStringLiteral("fileCount"), group.fileCount},
            {QStringLiteral("size"), group.size},
            {QStringLiteral("folders"), folders}};
}

/// A JSON text of the items that `textOf` gives, one a line.
template <typename List, typename TextOf>
void writeArray(const char *name, const List &items, TextOf textOf, Output &output)
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
    const auto compact = [](const auto &item) { return QJsonDocument(jsonOf(item)).toJson(QJsonDocument::Compact); };
    const auto quotedPath = [](const FileEntry &file) {
        const QByteArray array = QJsonDocument(QJsonArray{file.path}).toJson(QJsonDocument::Compact);
        return array.mid(1, array.size() - 2);
    };
    output.write(QStringLiteral("{\"filesScanned\": %1, \"totalBytes\": %2, \"wastedBytes\": %3, \"candidates\": %4, "
                                "\"elapsedMs\": %5")
                     .arg(result.filesScanned)
                     .arg(result.totalBytes)
                     .arg(result.wastedBytes)
                     .arg(result.candidates)
                     .arg(result.elapsedMs)
                     .toUtf8());
    writeArray("groups", result.groups, compact, output);
    writeArray("folderGroups", result.folderGroups, compact, output);
    writeArray("remaining", result.folderSummaries, quotedPath, output);
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
