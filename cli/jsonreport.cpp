#include "cli/jsonreport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

/// Rises when a member changes its meaning or goes; new ones may come without.
constexpr qint64 schemaVersion = 1;

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
        if (file.allocatedBytes >= 0)
            member("allocated", file.allocatedBytes);
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

    void value(const UnreadPath &unread)
    {
        raw("{\"path\": ");
        value(unread.path);
        member("reason", unread.reason);
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

} // namespace

QJsonObject jsonOf(const FileEntry &file)
{
    QByteArray text;
    JsonText(text).value(file);
    return QJsonDocument::fromJson(text).object();
}

void writeJson(const ScanReport &report, Output &output)
{
    const ScanResult &result = report.result;
    QByteArray head;
    JsonText json(head);
    json.raw("{\"schemaVersion\": ");
    json.value(schemaVersion);
    json.member("filesScanned", result.filesScanned);
    json.member("totalBytes", result.totalBytes);
    json.member("wastedBytes", result.wastedBytes);
    json.member("candidates", result.candidates);
    json.member("elapsedMs", result.elapsedMs);
    json.raw(", \"hidden\": {\"files\": ");
    json.value(result.leftOut.files);
    json.member("folders", result.leftOut.folders);
    json.raw("}");
    output.write(head);
    const auto whole = [](const auto &item) -> const auto &
    {
        return item;
    };
    writeArray("groups", result.groups, whole, output);
    writeArray("folderGroups", result.folderGroups, whole, output);
    writeArray(
        "remaining", result.folderSummaries, [](const FileEntry &file) { return file.path; }, output);
    writeArray("unread", result.unread, whole, output);
    if (report.hasFolders)
        writeArray("emptyFolders", report.emptyFolders, whole, output);
    output.write("}\n");
}

} // namespace MirrixCli
