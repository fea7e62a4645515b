#include "app/settings.h"

#include "app/datalocations.h"
#include "app/languagecodes.h"
#include "app/storedfile.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativefileio.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <cmath>
#include <limits>
#include <type_traits>

namespace Mirrix {

namespace {

using MirrixCore::ContentHashAlgorithm;

// What each type of member becomes in JSON, and back with `fallback` for a value of another type.

QJsonValue written(const QString &value)
{
    return value;
}

QJsonValue written(const QStringList &value)
{
    return QJsonArray::fromStringList(value);
}

QJsonValue written(const QJsonArray &value)
{
    return value;
}

QJsonValue written(const QJsonObject &value)
{
    return value;
}

QJsonValue written(bool value)
{
    return value;
}

QJsonValue written(qint32 value)
{
    return value;
}

QJsonValue written(qint64 value)
{
    return static_cast<double>(value);
}

QJsonValue written(ContentHashAlgorithm value)
{
    return MirrixCore::hashAlgorithmName(value);
}

/// A double cut to an integer type, held within its range.
template <typename Integer>
Integer truncated(double number)
{
    constexpr auto low = static_cast<double>(std::numeric_limits<Integer>::min());
    if (std::isnan(number) || number <= low)
        return std::numeric_limits<Integer>::min();
    return number >= -low ? std::numeric_limits<Integer>::max() : static_cast<Integer>(number);
}

QString readAs(const QJsonValue &json, const QString &fallback)
{
    return json.toString(fallback);
}

QStringList readAs(const QJsonValue &json, const QStringList &)
{
    QStringList texts;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &item : array) {
        if (item.isString())
            texts.append(item.toString());
    }
    return texts;
}

QJsonArray readAs(const QJsonValue &json, const QJsonArray &)
{
    return json.toArray();
}

QJsonObject readAs(const QJsonValue &json, const QJsonObject &)
{
    return json.toObject();
}

bool readAs(const QJsonValue &json, bool fallback)
{
    return json.toBool(fallback);
}

qint32 readAs(const QJsonValue &json, qint32 fallback)
{
    return truncated<qint32>(json.toDouble(fallback));
}

qint64 readAs(const QJsonValue &json, qint64 fallback)
{
    return truncated<qint64>(json.toDouble(static_cast<double>(fallback)));
}

ContentHashAlgorithm readAs(const QJsonValue &json, ContentHashAlgorithm)
{
    return MirrixCore::contentHashAlgorithmFrom(json.toString());
}

struct Field
{
    QString key;
    QJsonValue (*write)(const Settings &);
    void (*read)(const QJsonValue &, const Settings &defaults, Settings &);
};

template <auto Member>
Field field(const QString &key)
{
    return {key, [](const Settings &values) { return written(values.*Member); },
            [](const QJsonValue &json, const Settings &defaults, Settings &values) {
                values.*Member = readAs(json, defaults.*Member);
            }};
}

#define MIRRIX_SETTING(name) field<&Settings::name>(QStringLiteral(#name))

/// Every stored member under its JSON key, in the order in which they are read. "uiLanguage" is normalised on top.
const QList<Field> &table()
{
    static const QList<Field> fields = {
        MIRRIX_SETTING(backupRoot),
        MIRRIX_SETTING(lastRoots),
        MIRRIX_SETTING(excludeDirs),
        MIRRIX_SETTING(locations),
        MIRRIX_SETTING(includeExts),
        MIRRIX_SETTING(excludeExts),
        MIRRIX_SETTING(minFileBytes),
        MIRRIX_SETTING(maxFileBytes),
        MIRRIX_SETTING(keepRule),
        MIRRIX_SETTING(skipHidden),
        MIRRIX_SETTING(skipSystemDirs),
        MIRRIX_SETTING(similarThreshold),
        MIRRIX_SETTING(largeFileMinBytes),
        MIRRIX_SETTING(trayEnabled),
        MIRRIX_SETTING(autoBackupBeforeDelete),
        MIRRIX_SETTING(appTheme),
        MIRRIX_SETTING(contentHashAlgorithm),
        MIRRIX_SETTING(closeToTray),
        MIRRIX_SETTING(scanDoneBeep),
        MIRRIX_SETTING(skipScanConfirm),
        MIRRIX_SETTING(compareWholeContents),
        MIRRIX_SETTING(keepHistoryDays),
        MIRRIX_SETTING(window),
        MIRRIX_SETTING(uiLanguage),
    };
    return fields;
}

#undef MIRRIX_SETTING

/// One read error of the drive, or a typing error, must not cost all preferences.
bool setAside(const QString &directory)
{
    const QString damagedPath = directory + QStringLiteral("/settings.damaged%1.json");
    int number = 1;
    while (QFile::exists(damagedPath.arg(number)))
        ++number;
    QFile file(settingsFilePath(directory));
    return file.rename(damagedPath.arg(number)) || !file.exists();
}

const QString languageKey = QStringLiteral("uiLanguage");

} // namespace

void Settings::load()
{
    QFile file;
    const QString path = settingsFilePath(directory);
    isFileUnread = MirrixCore::fileStatus(path).kind != MirrixCore::FileStatus::Kind::Missing;
    if (!MirrixCore::openNatively(file, path, QIODevice::ReadOnly))
        return;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return;
    isFileUnread = false;
    const Settings defaults = defaultSettings(directory);
    unknown = document.object();
    languageWasStored = unknown.contains(languageKey);
    for (const Field &entry : table())
        entry.read(unknown.take(entry.key), defaults, *this);
    uiLanguage = uiLanguage.isEmpty() ? systemLanguageCode() : normalizedLanguageCode(uiLanguage);
}

bool Settings::save()
{
    if (isFileUnread && !setAside(directory))
        return false;
    isFileUnread = false;
    QJsonObject json = unknown;
    for (const Field &entry : table())
        json.insert(entry.key, entry.write(*this));
    return replaceFile(settingsFilePath(directory), QJsonDocument(json).toJson(QJsonDocument::Indented));
}

Settings defaultSettings(const QString &directory)
{
    Settings values;
    values.directory = directory;
    values.backupRoot = defaultBackupRoot(directory);
    values.uiLanguage = systemLanguageCode();
    return values;
}

Settings readSettings(const QString &directory)
{
    Settings values = defaultSettings(directory);
    values.load();
    return values;
}

Settings &settings()
{
    static Settings instance = [] {
        Settings values = defaultSettings(dataDirectory());
        values.portable = isPortable();
        // A folder that cannot be created is reported by the code that writes into it.
        QDir().mkpath(values.directory);
        QDir().mkpath(values.backupRoot);
        values.load();
        return values;
    }();
    return instance;
}

void applyContentHashAlgorithm(const Settings &settings)
{
    MirrixCore::setContentHashAlgorithm(settings.contentHashAlgorithm);
}

} // namespace Mirrix
