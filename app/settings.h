#pragma once

#include "core/hash/contenthasher.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Mirrix {

/// All user preferences. Members are in the order of the table in settings.cpp, which holds their JSON keys.
struct Settings
{
    bool portable = false; ///< mode in which the data directory was chosen; not stored
    QString backupRoot;    ///< folder of backed-up files
    QStringList lastRoots; ///< folders last scanned
    QStringList excludeDirs;
    QJsonArray locations; ///< the table of scan locations with its switches, as ui/state/locationsjson.h writes it
    QStringList includeExts;
    QStringList excludeExts;
    qint64 minFileBytes = 0; ///< 0 = no limit
    qint64 maxFileBytes = 0; ///< 0 = no limit
    qint32 keepRule = 0;
    bool skipHidden = true;
    bool skipSystemDirs = true;
    qint32 similarThreshold = 10;
    qint64 largeFileMinBytes = 104857600;
    bool trayEnabled = true;
    bool autoBackupBeforeDelete = true;
    QString appTheme = QStringLiteral("light"); ///< "light" or "dark"
    MirrixCore::ContentHashAlgorithm contentHashAlgorithm = MirrixCore::ContentHashAlgorithm::Md5;
    bool closeToTray = true;
    bool scanDoneBeep = false;
    bool skipScanConfirm = false;
    bool compareWholeContents = false; ///< before recycling, moving and backing up, too
    qint32 keepHistoryDays = 0;        ///< records of cleaning runs older than that may be removed; 0 = keep all
    QJsonObject window;                ///< where the main window was, as ui/window/windowmemory.h writes it
    QString uiLanguage;                ///< a code of languagecodes.h
    bool languageWasStored = false;    ///< whether the file named a language; not stored

    QString directory;         ///< the data directory the settings belong to; not stored
    QJsonObject unknown;       ///< members of the file that this version does not know; written back
    bool isFileUnread = false; ///< there is a file whose members are not in here; not stored

    bool operator==(const Settings &) const = default;

    /// Overlays the values with what the file in `directory` holds. A file that cannot be read or holds no object
    /// changes nothing; a member of the wrong type gives that member's default. Numbers are not range-tested.
    void load();

    /// Writes all stored members into the file in `directory`, atomically. A file that load could not read is set aside
    /// first, as "settings.damaged1.json" or with the next free number. False when that or the writing failed; the file
    /// is then as it was.
    bool save();
};

/// The defaults for a data directory.
[[nodiscard]] Settings defaultSettings(const QString &directory);

/// Defaults and file of a data directory together, without creating anything on disk. For programs without a window.
[[nodiscard]] Settings readSettings(const QString &directory);

/// The one instance of the running program. The first call decides the data directory, creates it and the default
/// backup folder, and loads the file. Interface thread only.
[[nodiscard]] Settings &settings();

/// Makes content hashing follow the settings.
void applyContentHashAlgorithm(const Settings &settings);

} // namespace Mirrix
