#include "app/settings.h"

#include "app/languagecodes.h"
#include "tests/support/disk.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <limits>
#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;
using MirrixCore::ContentHashAlgorithm;

namespace {

QJsonObject objectOf(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempTree> m_tree;

    [[nodiscard]] Settings loaded(const QByteArray &text) const
    {
        m_tree->write(u"settings.json"_s, text);
        return readSettings(m_tree->path());
    }

    [[nodiscard]] QByteArray savedText() const { return contentOf(m_tree->path(u"settings.json"_s)); }

    /// What a data directory without a file is to give, as the file would hold it, with `changes`.
    [[nodiscard]] QJsonObject defaultsWith(const QByteArray &changes) const
    {
        QJsonObject expected = objectOf(R"({"lastRoots": [], "excludeDirs": [], "locations": [], "includeExts": [],
            "excludeExts": [], "minFileBytes": 0, "maxFileBytes": 0, "keepRule": 0, "skipHidden": true,
            "skipSystemDirs": true, "similarThreshold": 10, "largeFileMinBytes": 104857600, "trayEnabled": true,
            "autoBackupBeforeDelete": true, "appTheme": "light", "contentHashAlgorithm": "md5", "closeToTray": true,
            "scanDoneBeep": false, "skipScanConfirm": false,
            "compareWholeContents": false, "keepHistoryDays": 0, "window": {}})");
        expected.insert(u"backupRoot"_s, m_tree->path(u"Backup"_s));
        expected.insert(u"uiLanguage"_s, systemLanguageCode());
        const QJsonObject members = objectOf(changes);
        for (auto it = members.begin(); it != members.end(); ++it)
            expected.insert(it.key(), it.value());
        return expected;
    }

public:
    /// Before the application exists: a system language that is not the one for unknown codes.
    static void initMain() { qputenv("LC_ALL", "de_DE.UTF-8"); }

private slots:
    void init() { m_tree = std::make_unique<TempTree>(); }

    void defaults()
    {
        Settings settings = readSettings(m_tree->path());
        QVERIFY(settings == defaultSettings(m_tree->path()));
        QVERIFY(!settings.portable && !settings.languageWasStored);
        QVERIFY(settings.save());
        QCOMPARE(objectOf(savedText()), defaultsWith("{}"));
        QVERIFY(savedText().startsWith("{\n    \"appTheme\": \"light\",\n") && savedText().endsWith("\n}\n"));
        QVERIFY(savedText().contains("\n    \"largeFileMinBytes\": 104857600,\n"));
    }

    void everyMemberTravels()
    {
        const QByteArray text = R"({"backupRoot": "D:/Sicherung", "lastRoots": ["C:/a, b", "/home/日本"],
            "excludeDirs": ["C:/x"], "locations": [{"path": "C:/x"}], "window": {"maximized": true},
            "includeExts": ["jpg"], "excludeExts": ["tmp", "bak"], "minFileBytes": 1, "maxFileBytes": 4503599627370496,
            "keepRule": 3, "skipHidden": false, "skipSystemDirs": false, "similarThreshold": 7, "largeFileMinBytes": 5,
            "trayEnabled": false, "autoBackupBeforeDelete": false, "appTheme": "dark", "contentHashAlgorithm": "blake3",
            "closeToTray": false, "scanDoneBeep": true, "compareWholeContents": true, "keepHistoryDays": 90,
            "skipScanConfirm": true, "uiLanguage": "ja"})";
        Settings settings = loaded(text);
        QCOMPARE(settings.lastRoots, (QStringList{u"C:/a, b"_s, u"/home/日本"_s}));
        QCOMPARE(settings.maxFileBytes, qint64(1) << 52);
        QCOMPARE(settings.keepHistoryDays, 90);
        QVERIFY(settings.unknown.isEmpty()); // each has a member of its own, which differs from the default
        QVERIFY(settings.save());
        QCOMPARE(objectOf(savedText()), objectOf(text));
        QVERIFY(readSettings(m_tree->path()) == settings);
        const QJsonObject standard = defaultsWith("{}");
        QCOMPARE(objectOf(text).keys(), standard.keys());
        for (auto it = standard.begin(); it != standard.end(); ++it)
            QVERIFY2(objectOf(text)[it.key()] != it.value(), qPrintable(it.key()));
    }

    void unusableFiles_data()
    {
        const auto row = columns<QByteArray>({"text"});
        row("empty", QByteArray());
        row("array", R"([{"keepRule": 2}])");
        row("text", R"("keepRule")");
        row("two objects", R"({"keepRule": 2}{"keepRule": 2})");
        row("noise", QByteArray("\0\xFF\xFE{}", 5));
    }

    void unusableFiles()
    {
        QFETCH(QByteArray, text);
        Settings settings = loaded(text);
        QVERIFY(settings.isFileUnread);
        settings.isFileUnread = false;
        QVERIFY(settings == defaultSettings(m_tree->path()));
    }

    void values_data()
    {
        const auto row = columns<QByteArray, QByteArray>({"text", "expected"}); // the members that are not the default
        const auto unchanged = [&](const char *name, const QByteArray &text) { row(name, text, text); };
        row("null", R"({"keepRule": null, "appTheme": null, "lastRoots": null, "skipHidden": null})", "{}");
        row("numbers as texts", R"({"keepRule": "3", "minFileBytes": "5", "maxFileBytes": [1]})", "{}");
        row("flags as numbers", R"({"skipHidden": 0, "scanDoneBeep": 1, "trayEnabled": "false"})", "{}");
        row("texts as numbers", R"({"appTheme": 1, "backupRoot": 5})", "{}");
        row("lists as texts", R"({"lastRoots": "/a", "includeExts": {"a": 1}, "locations": {"a": 1}, "window": [1]})",
            "{}");
        row("what is no text in a list", R"({"lastRoots": ["/a", 5, "", null, "/b"], "excludeDirs": []})",
            R"({"lastRoots": ["/a", "", "/b"]})");
        row("fractions are cut",
            R"({"minFileBytes": 1.9, "maxFileBytes": -1.9, "keepRule": 2.9, "similarThreshold": -2.9})",
            R"({"minFileBytes": 1, "maxFileBytes": -1, "keepRule": 2, "similarThreshold": -2})");
        unchanged("unknown members stay", R"({"KeepRule": 3, "fromTheFuture": {"list": [1, "x"]}})");
        unchanged("nothing is range-tested", R"({"minFileBytes": -5, "keepRule": 99, "appTheme": "red"})");
        unchanged("empty texts are texts", R"({"backupRoot": "", "appTheme": ""})");
        unchanged("largest exact size", R"({"maxFileBytes": 9007199254740992})");
        unchanged("algorithm", R"({"contentHashAlgorithm": "blake3"})");
        row("algorithm in capitals", R"({"contentHashAlgorithm": "BLAKE3"})", "{}");
        row("algorithm as number", R"({"contentHashAlgorithm": 1})", "{}");
    }

    void values()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, expected);
        Settings settings = loaded(text);
        QCOMPARE(savedText(), text); // loading changes nothing on disk
        QVERIFY(settings.save());
        QCOMPARE(objectOf(savedText()), defaultsWith(expected));
        QVERIFY(!QFile::exists(m_tree->path(u"Backup"_s)));
    }

    /// Numbers beyond their type stay at its end; converted without care they are undefined.
    void hugeNumbers()
    {
        const Settings huge = loaded(R"({"maxFileBytes": 1e300, "minFileBytes": -1e300, "keepRule": 1e10})");
        QCOMPARE(huge.maxFileBytes, std::numeric_limits<qint64>::max());
        QCOMPARE(huge.minFileBytes, std::numeric_limits<qint64>::min());
        QCOMPARE(huge.keepRule, std::numeric_limits<qint32>::max());
    }

    void language_data()
    {
        const auto row = columns<QByteArray, QString, bool>({"text", "code", "wasStored"});
        row("absent", R"({"keepRule": 1})", systemLanguageCode(), false);
        row("empty", R"({"uiLanguage": ""})", systemLanguageCode(), true);
        row("no text", R"({"uiLanguage": 3})", systemLanguageCode(), true);
        row("alias", R"({"uiLanguage": "zh-HK"})", u"zh_TW"_s, true);
        row("unknown", R"({"uiLanguage": "tlh"})", u"zh_CN"_s, true);
    }

    void language()
    {
        QFETCH(QByteArray, text);
        const Settings settings = loaded(text);
        QTEST(settings.uiLanguage, "code");
        QTEST(settings.languageWasStored, "wasStored");
    }

    void saveFails()
    {
        m_tree->write(u"file"_s, "x");
        m_tree->makeFolder(u"taken/settings.json"_s);
        for (const QString &folder : {u"missing"_s, u"file"_s, u"taken"_s})
            QVERIFY(!defaultSettings(m_tree->path(folder)).save());
        QVERIFY(!QFile::exists(m_tree->path(u"missing"_s)));
    }

    void keepsDamagedFiles()
    {
        Settings written = defaultSettings(m_tree->path());
        written.excludeDirs = {u"/mine"_s};
        QVERIFY(written.save());
        const QByteArray whole = savedText();
        for (qsizetype length = 0; length < whole.size() - 2; ++length) { // without its last brace it is no object
            const Settings cut = loaded(whole.first(length));
            QVERIFY2(cut.isFileUnread && cut.excludeDirs.isEmpty(), qPrintable(QString::number(length)));
        }
        int number = 0;
        for (const QByteArray &damaged :
             {whole.first(whole.size() / 2), QByteArray(whole.size(), '\0'), QByteArray("[1]")}) {
            Settings settings = loaded(damaged);
            settings.keepRule = 3;
            QVERIFY(settings.save() && settings.save());
            QCOMPARE(contentOf(m_tree->path(u"settings.damaged%1.json"_s.arg(++number))), damaged);
            QCOMPARE(readSettings(m_tree->path()).keepRule, 3);
        }
        QCOMPARE(treeBelow(m_tree->path()).size(), 4);
    }

    void unwritableFolderKeepsTheOldFile()
    {
        const QString folder = m_tree->makeFolder(u"data"_s);
        m_tree->write(u"data/settings.json"_s, R"({"keepRule": 1})");
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
        Settings settings = readSettings(folder);
        settings.keepRule = 2;
        const bool isRefused = !QFile(folder + u"/probe"_s).open(QIODevice::WriteOnly);
        const bool isSaved = isRefused && settings.save();
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (!isRefused)
            QSKIP("this user may write everywhere");
        QVERIFY(!isSaved);
        QCOMPARE(readSettings(folder).keepRule, 1);
        QCOMPARE(treeBelow(folder).keys(), QStringList{u"settings.json"_s});
    }

    void hashingFollows()
    {
        applyContentHashAlgorithm(loaded(R"({"contentHashAlgorithm": "blake3"})"));
        QCOMPARE(MirrixCore::contentHashAlgorithm(), ContentHashAlgorithm::Blake3);
        applyContentHashAlgorithm(loaded("{}"));
        QCOMPARE(MirrixCore::contentHashAlgorithm(), ContentHashAlgorithm::Md5);
    }

    /// The first use makes the folders and reads the file; later ones give the same object.
    void theInstance()
    {
        qputenv("HOME", QFile::encodeName(m_tree->path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_tree->path(u"share"_s)));
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Mirrix"_s;
        if (!folder.startsWith(m_tree->path()))
            QSKIP("the environment does not choose the user's folders here");
        m_tree->write(QDir(m_tree->path()).relativeFilePath(folder) + u"/settings.json"_s, R"({"keepRule": 3})");
        QCOMPARE(settings().directory, folder);
        QCOMPARE(settings().backupRoot, folder + u"/Backup"_s);
        QVERIFY(QDir(folder + u"/Backup"_s).exists());
        QCOMPARE(settings().keepRule, 3);
        QVERIFY(!settings().portable);
        settings().keepRule = 1;
        QCOMPARE(settings().keepRule, 1);
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "tst_settings.moc"
