// Everything that the program parses, fed by libFuzzer. MIRRIX_FUZZ_TARGET names the parser; see scripts/fuzz.sh.
// Besides crashes, a broken promise of a parser aborts.

#include "actions/cleaning/backupstore.h"
#include "actions/export/exporttexts.h"
#include "actions/files/binlookup.h"
#include "actions/records/aescbc.h"
#include "actions/records/operationslog.h"
#include "actions/records/runhistory.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/cache/imagefeaturecache.h"
#include "core/match/rulekeys.h"
#include "core/model/optiontable.h"
#include "ui/state/locationsjson.h"
#include "ui/state/rulessettings.h"
#include "ui/texts/extensiontext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Mirrix;
using namespace MirrixCore;
using namespace Qt::StringLiterals;

namespace {

void demand(bool isKept, const char *promise)
{
    if (isKept)
        return;
    qWarning("broken: %s", promise);
    std::abort();
}

QString place(const QString &relative = {})
{
    static const QTemporaryDir folder(QDir::tempPath() + u"/mirrix-fuzz-XXXXXX"_s);
    return folder.filePath(relative);
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "a place for files");
}

void fuzzSettings(const QByteArray &input)
{
    write(place(u"settings.json"_s), input);
    Settings values = readSettings(place());
    demand(values.save(), "settings can be written");
    Settings again = readSettings(place());
    values.languageWasStored = again.languageWasStored;
    demand(again == values, "settings read as they were written");
    static_cast<void>(rulesStateFrom(values));
    const QList<LocationRow> rows = locationsFromJson(values.locations);
    demand(locationsFromJson(jsonFromLocations(rows)) == rows, "locations read as they were written");
    static_cast<void>(locationsStateFrom(values));
}

/// An index can name what it likes: nothing but the store's own file may go, and only to a free place.
void fuzzIndex(const QByteArray &input)
{
    const QString store = place(u"store"_s);
    write(place(u"secret"_s), "secret");
    write(store + u"/file"_s, "stored");
    QByteArray index = input;
    index.replace("STORE", store.toUtf8()).replace("OUT", place(u"out"_s).toUtf8());
    write(store + u"/backup_index.json"_s, index);
    const QList<BackupEntry> entries = restorableEntries(store);
    bool isConfined = true; // outside the scene only what cannot be made, the disk's root, may be tried
    for (const BackupEntry &entry : entries)
        isConfined = isConfined && QDir::cleanPath(entry.original).startsWith(place());
    if (!isConfined)
        return;
    static_cast<void>(restoreBackups(store, entries));
    QFile secret(place(u"secret"_s));
    demand(secret.open(QIODevice::ReadOnly) && secret.readAll() == "secret", "restoring touches only the store");
    QDir(place(u"out"_s)).removeRecursively();
}

void fuzzFingerprint(const QByteArray &input)
{
    setCacheRoot(place());
    const QString file = u"/a/file"_s;
    write(cachePathFor(file), input);
    static_cast<void>(lookupFingerprint(file, 5, 7));
    storeQuick(file, 5, 7, QByteArray(16, 'q'));
    demand(lookupFingerprint(file, 5, 7).quick == QByteArray(16, 'q'), "an entry is found as it was stored");
    demand(lookupFingerprint(file, 6, 7).quick.isEmpty(), "an entry of another size is none");
}

void fuzzFeature(const QByteArray &input)
{
    setCacheRoot(place());
    const QString file = u"/a/picture"_s;
    write(imageFeaturePathFor(file), input);
    ImageFeature feature;
    const bool isFound = loadImageFeature(file, 5, 7, feature);
    demand(isFound == feature.isValid && (!isFound || !feature.variants.isEmpty()), "a found feature has variants");
    if (!isFound)
        return;
    storeImageFeature(file, 5, 7, feature);
    ImageFeature again;
    demand(loadImageFeature(file, 5, 7, again) && again.variants == feature.variants, "a feature reads as stored");
}

void fuzzLog(const QByteArray &content)
{
    const QString path = place(u"ops.log.enc"_s);
    write(path, content);
    OperationsLog log(path);
    const qsizetype count = log.readAll().size();
    demand(log.append(u"next"_s, u"\xD800 detail"_s), "a record can be added");
    demand(log.readAll().size() == count + 1, "records stay");
}

void fuzzPlainLog(const QByteArray &input)
{
    fuzzLog(encryptAesCbc(operationsLogKey(), input));
}

void fuzzJournal(const QByteArray &content)
{
    const QString path = place(u"runs/20240229-120000-0af3.journal"_s);
    write(path, content);
    const StoredRun run = readRun(path);
    demand(run.items.size() == run.outcomes.size(), "each file of a run has an outcome");
    demand(listRuns(place()).constFirst().totals == run.summary.totals, "a run counts the same in the list");
}

/// Each line is a record.
void fuzzPlainJournal(const QByteArray &input)
{
    const QString path = place(u"plain"_s);
    QFile::remove(path);
    RecordWriter writer(runJournalKey());
    bool isWritten = writer.create(path);
    for (const QByteArray &line : input.split('\n'))
        isWritten = isWritten && writer.append(line);
    writer.close();
    QFile file(path);
    demand(isWritten && file.open(QIODevice::ReadOnly), "records can be written");
    fuzzJournal(file.readAll());
}

void fuzzBinNote(const QByteArray &input)
{
    for (const std::optional<BinEntry> &entry : {readTrashNote(input, u"/top"_s), readRecycleNote(input)})
        demand(!entry || !entry->original.isEmpty(), "a note names a file");
}

void fuzzOptions(const QByteArray &input)
{
    ScanOptions options;
    const QJsonDocument document = QJsonDocument::fromJson(input);
    if (!scanOptionsFromJson(document.object(), options).isEmpty())
        return;
    ScanOptions again;
    demand(scanOptionsFromJson(scanOptionsToJson(options), again).isEmpty(), "options read what they wrote");
    demand(scanOptionsToJson(again) == scanOptionsToJson(options), "options stay as they were");
}

/// Sizes, times and lists as the command line gives them: NAME=VALUE.
void fuzzAssignment(const QByteArray &input)
{
    ScanOptions options;
    const QString text = QString::fromUtf8(input);
    const qsizetype equals = text.indexOf(u'=');
    static_cast<void>(setScanOption(options, text.left(equals), text.mid(equals + 1)));
}

void fuzzExtensions(const QByteArray &input)
{
    const QStringList list = extensionsFromText(QString::fromUtf8(input));
    for (const QString &one : list)
        demand(!one.isEmpty() && list.count(one) == 1, "extensions are texts, each once");
}

void fuzzRedaction(const QByteArray &input)
{
    const QString text = QString::fromUtf8(input);
    const QString once = redactedPath(text);
    demand(redactedPath(once) == once, "what is redacted stays");
    demand(!redactedPath(u"C:\\Users\\somebody\\"_s + text).contains(u"C:\\Users\\somebody\\"_s), "names are hidden");
    static_cast<void>(redactedKey(text));
}

/// The first line are options, the rest is the path.
void fuzzRuleKey(const QByteArray &input)
{
    const qsizetype line = input.indexOf('\n');
    ScanOptions options;
    static_cast<void>(scanOptionsFromJson(QJsonDocument::fromJson(input.left(line)).object(), options));
    FileEntry entry;
    entry.path = QString::fromUtf8(input.mid(line + 1));
    entry.size = qHash(input) % 100000;
    entry.modifiedMs = qint64(qHash(entry.path)); // any, as a file system may report it
    demand(buildRuleKey(entry, options, true) == buildRuleKey(entry, options, true), "keys are the same each time");
    FileEntry twin = entry;
    static_cast<void>(groupByRuleKeys({entry, twin}, options, true));
}

struct Target
{
    const char *name;
    void (*run)(const QByteArray &input);
};

constexpr Target targets[] = {
    {"settings", fuzzSettings},
    {"index", fuzzIndex},
    {"fingerprint", fuzzFingerprint},
    {"feature", fuzzFeature},
    {"log", fuzzLog},
    {"plainlog", fuzzPlainLog},
    {"journal", fuzzJournal},
    {"plainjournal", fuzzPlainJournal},
    {"binnote", fuzzBinNote},
    {"options", fuzzOptions},
    {"assignment", fuzzAssignment},
    {"extensions", fuzzExtensions},
    {"redaction", fuzzRedaction},
    {"rulekey", fuzzRuleKey},
};

const Target *chosen()
{
    for (const Target &target : targets) {
        if (qgetenv("MIRRIX_FUZZ_TARGET") == target.name)
            return &target;
    }
    qFatal("MIRRIX_FUZZ_TARGET names no parser");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Target *const target = chosen();
    target->run(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
