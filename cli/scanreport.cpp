#include "cli/scanreport.h"

#include "actions/exporttexts.h"
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

/// The name of a place in JSON; empty for the ordinary one.
QString placeName(FilePlace place)
{
    switch (place) {
    case FilePlace::Ordinary:
        return {};
    case FilePlace::RecycleBin:
        return QStringLiteral("recycleBin");
    case FilePlace::BackupFolder:
        return QStringLiteral("backupFolder");
    case FilePlace::Snapshot:
        return QStringLiteral("snapshot");
    }
    return {};
}

/// A heading, and below it the paths of `items`.
template <typename Item>
void writeBlock(const QString &heading, const QList<Item> &items, Output &output)
{
    const bool isTerminal = output.isTerminal();
    output.write(heading.toUtf8() + '\n');
    for (const Item &item : items)
        output.write("  " + shownPath(item.path, isTerminal) + '\n');
    output.write("\n");
}

void writeText(const ScanResult &result, Output &output)
{
    for (const DuplicateGroup &group : result.groups)
        writeBlock(heading(group), group.files, output);
    for (const FolderGroup &group : result.folderGroups)
        writeBlock(heading(group), group.folders, output);
    if (!result.folderSummaries.isEmpty())
        writeBlock(counted(result.folderSummaries.size(), QStringLiteral("file")) + QStringLiteral(" in no group"),
                   result.folderSummaries, output);
    const QString found = result.groups.isEmpty()
                              ? QStringLiteral("No duplicates found")
                              : counted(result.groups.size(), QStringLiteral("group")) +
                                    QStringLiteral(", %1 reclaimable").arg(Mirrix::sizeText(result.wastedBytes));
    output.write(QStringLiteral("%1; %2 (%3) scanned in %4 s\n")
                     .arg(found, counted(result.filesScanned, QStringLiteral("file")),
                          Mirrix::sizeText(result.totalBytes),
                          QString::number(static_cast<double>(result.elapsedMs) / 1000, 'f', 2))
                     .toUtf8());
}

/// Builds JSON text at the end of a buffer. Most paths need no escaping, and a report holds many of them: only the
/// others go through Qt's writer, which takes as long for one path as a scan takes to hash a small file.
class JsonText
{
public:
    explicit JsonText(QByteArray &out)
        : m_out(out)
    {}

    void raw(const char *text) { m_out.append(text); }
    void value(qint64 number) { m_out.append(QByteArray::number(number)); }
    void value(double number) { m_out.append(QByteArray::number(number, 'g', QLocale::FloatingPointShortest)); }
    void value(const QString &text)
    {
        const auto isPlain = [](char16_t unit) {
            return unit >= u' ' && unit <= u'~' && unit != u'"' && unit != u'\\';
        };
        const auto *units = reinterpret_cast<const char16_t *>(text.utf16());
        if (std::all_of(units, units + text.size(), isPlain)) {
            m_out.append('"').append(text.toLatin1()).append('"');
        } else {
            const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
            m_out.append(QByteArrayView(array).sliced(1, array.size() - 2));
        }
    }

    template <typename Value>
    void member(const char *name, const Value &json)
    {
        m_out.append(", \"").append(name).append("\": ");
        value(json);
    }

    /// A member that is left out when nothing is known.
    void knownMember(const char *name, qint64 number)
    {
        if (number != 0)
            member(name, number);
    }
    void knownMember(const char *name, const QString &text)
    {
        if (!text.isEmpty())
            member(name, text);
    }

    void value(const FileEntry &file)
    {
        raw("{\"path\": ");
        value(file.path);
        member("size", file.size);
        member("modifiedMs", file.modifiedMs);
        member("createdMs", file.createdMs);
        knownMember("place", placeName(file.place));
        mediaMembers(file);
        raw("}");
    }

    void value(const FolderEntry &folder)
    {
        raw("{\"path\": ");
        value(folder.path);
        member("fileCount", folder.fileCount);
        member("size", folder.size);
        raw("}");
    }

    void value(const DuplicateGroup &group)
    {
        raw("{\"key\": ");
        value(group.key);
        member("wastedBytes", group.wastedBytes);
        raw(", \"files\": ");
        array(group.files);
        raw("}");
    }

    void value(const FolderGroup &group)
    {
        raw("{\"fileCount\": ");
        value(group.fileCount);
        member("size", group.size);
        raw(", \"folders\": ");
        array(group.folders);
        raw("}");
    }

private:
    void mediaMembers(const FileEntry &file)
    {
        knownMember("durationMs", file.durationMs);
        knownMember("width", file.width);
        knownMember("height", file.height);
        knownMember("shotMs", file.shotMs);
        knownMember("artist", file.artist);
        knownMember("title", file.title);
        knownMember("album", file.album);
        knownMember("track", file.track);
        knownMember("cameraMake", file.cameraMake);
        knownMember("cameraModel", file.cameraModel);
        knownMember("dateTaken", file.dateTaken);
        if (file.hasGps) {
            member("latitude", file.latitude);
            member("longitude", file.longitude);
        }
    }

    template <typename Item>
    void array(const QList<Item> &items)
    {
        const char *separator = "[\n    ";
        for (const Item &item : items) {
            raw(separator);
            value(item);
            separator = ",\n    ";
        }
        raw(items.isEmpty() ? "[]" : "]");
    }

    QByteArray &m_out;
};

/// Writes the items of an array of the outermost object one by one; `valueOf` picks what is written of an item.
template <typename Item, typename ValueOf>
void writeArray(const char *name, const QList<Item> &items, ValueOf valueOf, Output &output)
{
    output.write(QByteArray(",\n \"") + name + "\": [");
    QByteArray text;
    JsonText json(text);
    const char *separator = "\n  ";
    for (const Item &item : items) {
        text.clear();
        json.raw(separator);
        json.value(valueOf(item));
        output.write(text);
        separator = ",\n  ";
    }
    output.write("]");
}

void writeJson(const ScanResult &result, Output &output)
{
    QByteArray head;
    JsonText json(head);
    json.raw("{\"filesScanned\": ");
    json.value(result.filesScanned);
    json.member("totalBytes", result.totalBytes);
    json.member("wastedBytes", result.wastedBytes);
    json.member("candidates", result.candidates);
    json.member("elapsedMs", result.elapsedMs);
    output.write(head);
    const auto whole = [](const auto &item) -> const auto &
    {
        return item;
    };
    writeArray("groups", result.groups, whole, output);
    writeArray("folderGroups", result.folderGroups, whole, output);
    writeArray(
        "remaining", result.folderSummaries, [](const FileEntry &file) { return file.path; }, output);
    output.write("}\n");
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

void writeReport(const ScanResult &result, ReportFormat format, Output &output)
{
    switch (format) {
    case ReportFormat::Text:
        writeText(result, output);
        break;
    case ReportFormat::Json:
        writeJson(result, output);
        break;
    case ReportFormat::Csv:
        writeCsv(result, output);
        break;
    }
}

} // namespace MirrixCli
