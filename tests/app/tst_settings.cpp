#include "app/languagecodes.h"
#include "app/settings.h"
#include "tests/support/disk.h"
#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTest>

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

private slots:
    void init() { m_tree = std::make_unique<TempTree>(); }
    void cleanup() { MirrixCore::setContentHashAlgorithm(ContentHashAlgorithm::Md5); }
    void defaults();
    void everyMemberTravels();
    void savedForm();
    void unusableFiles_data();
    void unusableFiles();
    void values_data();
    void values();
    void language_data();
    void language();
    void listsAndTexts();
    void unknownMembersStay();
    void loadingChangesNothingOnDisk();
    void saveFails();
    void damagedFilesAreSetAside();
    void unwritableFolderKeepsTheOldFile();
    void hashingFollows();
    void theInstance();

private:
    [[nodiscard]] Settings loaded(const QByteArray &text) const
    {
        m_tree->write(u"settings.json"_s, text);
        return readSettings(m_tree->path());
    }

    [[nodiscard]] QByteArray savedText() const
    {
        QFile file(m_tree->path(u"settings.json"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    /// What a data directory without a file is to give, as the file would hold it.
    [[nodiscard]] QJsonObject defaultObject() const
    {
        QJsonObject expected = objectOf(R"({"lastRoots": [], "excludeDirs": [], "locations": [], "includeExts": [],
            "excludeExts": [], "minFileBytes": 0, "maxFileBytes": 0, "keepRule": 0, "skipHidden": true, "skipSystemDirs": true,
            "similarThreshold": 10, "largeFileMinBytes": 104857600, "trayEnabled": true,
            "autoBackupBeforeDelete": true, "appTheme": "light", "contentHashAlgorithm": "md5", "closeToTray": true,
            "scanDoneBeep": false, "skipScanConfirm": false,
            "compareWholeContents": false, "keepHistoryDays": 0, "window": {}})");
        expected.insert(u"backupRoot"_s, m_tree->path(u"Backup"_s));
        expected.insert(u"uiLanguage"_s, systemLanguageCode());
        return expected;
    }

    std::unique_ptr<TempTree> m_tree;
};

void SettingsTest::defaults()
{
    Settings settings = readSettings(m_tree->path());
    QVERIFY(settings == defaultSettings(m_tree->path()));
    QVERIFY(!settings.portable);
    QVERIFY(!settings.languageWasStored);
    QVERIFY(settings.save());
    QCOMPARE(objectOf(savedText()), defaultObject());
}

void SettingsTest::everyMemberTravels()
{
    Settings settings = defaultSettings(m_tree->path());
    settings.backupRoot = u"D:/Sicherung"_s;
    settings.lastRoots = {u"C:/a, b"_s, u"/home/日本"_s};
    settings.excludeDirs = {u"C:/x"_s};
    settings.locations = {QJsonObject{{u"path"_s, u"C:/x"_s}}};
    settings.window = {{u"maximized"_s, true}};
    settings.includeExts = {u"jpg"_s};
    settings.excludeExts = {u"tmp"_s, u"bak"_s};
    settings.minFileBytes = 1;
    settings.maxFileBytes = qint64(1) << 52;
    settings.keepRule = 3;
    settings.skipHidden = false;
    settings.skipSystemDirs = false;
    settings.similarThreshold = 7;
    settings.largeFileMinBytes = 5;
    settings.trayEnabled = false;
    settings.autoBackupBeforeDelete = false;
    settings.appTheme = u"dark"_s;
    settings.contentHashAlgorithm = ContentHashAlgorithm::Blake3;
    settings.closeToTray = false;
    settings.scanDoneBeep = true;
    settings.compareWholeContents = true;
    settings.keepHistoryDays = 90;
    settings.skipScanConfirm = true;
    settings.uiLanguage = u"ja"_s;
    settings.languageWasStored = true;
    QVERIFY(settings.save());
    const Settings again = readSettings(m_tree->path());
    QVERIFY(again == settings);
    const QJsonObject standard = defaultObject();
    const QJsonObject saved = objectOf(savedText());
    QCOMPARE(saved.keys(), standard.keys());
    for (auto it = saved.begin(); it != saved.end(); ++it)
        QVERIFY2(it.value() != standard[it.key()], qPrintable(it.key()));
}

void SettingsTest::savedForm()
{
    QVERIFY(defaultSettings(m_tree->path()).save());
    const QByteArray text = savedText();
    QVERIFY2(text.startsWith("{\n    \"appTheme\": \"light\",\n") && text.endsWith("\n}\n"), text.constData());
    QVERIFY2(text.contains("\n    \"largeFileMinBytes\": 104857600,\n"), text.constData());
}

void SettingsTest::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("array") << QByteArray(R"([{"keepRule": 2}])");
    QTest::newRow("text") << QByteArray(R"("keepRule")");
    QTest::newRow("cut short") << QByteArray(R"({"keepRule": 2, "skipHid)");
    QTest::newRow("two objects") << QByteArray(R"({"keepRule": 2}{"keepRule": 2})");
    QTest::newRow("noise") << QByteArray("\0\xFF\xFE{}", 5);
}

void SettingsTest::unusableFiles()
{
    QFETCH(QByteArray, text);
    Settings settings = loaded(text);
    QVERIFY(settings.isFileUnread);
    settings.isFileUnread = false;
    QVERIFY(settings == defaultSettings(m_tree->path()));
}

void SettingsTest::values_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected"); // the members that are not the default
    const auto row = [](const char *name, const char *text, const char *expected) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(expected);
    };
    row("nothing", R"({})", R"({})");
    row("null", R"({"keepRule": null, "appTheme": null, "lastRoots": null, "skipHidden": null})", R"({})");
    row("numbers as texts", R"({"keepRule": "3", "minFileBytes": "5", "similarThreshold": "1"})", R"({})");
    row("a text as size", R"({"largeFileMinBytes": "big", "maxFileBytes": [1]})", R"({})");
    row("flags as numbers", R"({"skipHidden": 0, "scanDoneBeep": 1, "trayEnabled": "false"})", R"({})");
    row("texts as numbers", R"({"appTheme": 1, "backupRoot": 5})", R"({})");
    row("lists as texts", R"({"lastRoots": "/a", "includeExts": {"a": 1}, "locations": {"a": 1}, "window": [1]})",
        R"({})");
    row("other cases of the keys", R"({"KeepRule": 3, "skiphidden": false})",
        R"({"KeepRule": 3, "skiphidden": false})");
    row("fractions are cut",
        R"({"minFileBytes": 1.9, "maxFileBytes": -1.9, "keepRule": 2.9, "similarThreshold": -2.9})",
        R"({"minFileBytes": 1, "maxFileBytes": -1, "keepRule": 2, "similarThreshold": -2})");
    row("nothing is range-tested", R"({"minFileBytes": -5, "keepRule": 99, "similarThreshold": -1, "appTheme": "red"})",
        R"({"minFileBytes": -5, "keepRule": 99, "similarThreshold": -1, "appTheme": "red"})");
    row("empty texts are texts", R"({"backupRoot": "", "appTheme": ""})", R"({"backupRoot": "", "appTheme": ""})");
    row("largest exact size", R"({"maxFileBytes": 9007199254740992})", R"({"maxFileBytes": 9007199254740992})");
    row("algorithm", R"({"contentHashAlgorithm": "blake3"})", R"({"contentHashAlgorithm": "blake3"})");
    row("algorithm in capitals", R"({"contentHashAlgorithm": "BLAKE3"})", R"({})");
    row("algorithm unknown", R"({"contentHashAlgorithm": "sha256"})", R"({})");
    row("algorithm as number", R"({"contentHashAlgorithm": 1})", R"({})");
}

void SettingsTest::values()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, expected);
    QVERIFY(loaded(text).save());
    QJsonObject whole = defaultObject();
    const QJsonObject changes = objectOf(expected);
    for (auto it = changes.begin(); it != changes.end(); ++it)
        whole.insert(it.key(), it.value());
    QCOMPARE(objectOf(savedText()), whole);
}

void SettingsTest::language_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("wasStored");
    QTest::newRow("absent") << QByteArray(R"({"keepRule": 1})") << systemLanguageCode() << false;
    QTest::newRow("empty") << QByteArray(R"({"uiLanguage": ""})") << systemLanguageCode() << true;
    QTest::newRow("no text") << QByteArray(R"({"uiLanguage": 3})") << systemLanguageCode() << true;
    QTest::newRow("code") << QByteArray(R"({"uiLanguage": "ko"})") << u"ko"_s << true;
    QTest::newRow("alias") << QByteArray(R"({"uiLanguage": "zh-HK"})") << u"zh_TW"_s << true;
    QTest::newRow("unknown") << QByteArray(R"({"uiLanguage": "tlh"})") << u"zh_CN"_s << true;
}

void SettingsTest::language()
{
    QFETCH(QByteArray, text);
    const Settings settings = loaded(text);
    QTEST(settings.uiLanguage, "code");
    QTEST(settings.languageWasStored, "wasStored");
}

void SettingsTest::listsAndTexts()
{
    const Settings settings = loaded(R"({"lastRoots": ["/a", 5, "", null, "/b"], "excludeDirs": []})");
    QCOMPARE(settings.lastRoots, (QStringList{u"/a"_s, QString(), u"/b"_s}));
    QVERIFY(settings.excludeDirs.isEmpty());
    // Numbers beyond their type stay at its end; converted without care they are undefined.
    const Settings huge = loaded(R"({"maxFileBytes": 1e300, "minFileBytes": -1e300, "keepRule": 1e10})");
    QCOMPARE(huge.maxFileBytes, std::numeric_limits<qint64>::max());
    QCOMPARE(huge.minFileBytes, std::numeric_limits<qint64>::min());
    QCOMPARE(huge.keepRule, std::numeric_limits<qint32>::max());
}

void SettingsTest::unknownMembersStay()
{
    Settings settings = loaded(R"({"keepRule": 1, "fromTheFuture": {"list": [1, "x"]}})");
    settings.keepRule = 2;
    QVERIFY(settings.save());
    QJsonObject expected = defaultObject();
    expected.insert(u"keepRule"_s, 2);
    expected.insert(u"fromTheFuture"_s, QJsonObject{{u"list"_s, QJsonArray{1, u"x"_s}}});
    QCOMPARE(objectOf(savedText()), expected);
}

void SettingsTest::loadingChangesNothingOnDisk()
{
    QVERIFY(!QFile::exists(readSettings(m_tree->path(u"none"_s)).directory));
    const QByteArray text = R"({ "keepRule" :1})";
    QVERIFY(loaded(text).keepRule == 1);
    QCOMPARE(savedText(), text);
    QVERIFY(!QFile::exists(m_tree->path(u"Backup"_s)));
}

void SettingsTest::saveFails()
{
    QVERIFY(!defaultSettings(m_tree->path(u"missing"_s)).save());
    m_tree->write(u"file"_s, "x");
    QVERIFY(!defaultSettings(m_tree->path(u"file"_s)).save());
    m_tree->makeFolder(u"taken/settings.json"_s);
    QVERIFY(!defaultSettings(m_tree->path(u"taken"_s)).save());
}

void SettingsTest::damagedFilesAreSetAside()
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

void SettingsTest::unwritableFolderKeepsTheOldFile()
{
    const QString folder = m_tree->makeFolder(u"data"_s);
    const QString path = m_tree->write(u"data/settings.json"_s, R"({"keepRule": 1})");
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
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{u"settings.json"_s});
    QVERIFY(QFile::exists(path));
}

void SettingsTest::hashingFollows()
{
    applyContentHashAlgorithm(loaded(R"({"contentHashAlgorithm": "blake3"})"));
    QCOMPARE(MirrixCore::contentHashAlgorithm(), ContentHashAlgorithm::Blake3);
    applyContentHashAlgorithm(loaded(R"({"contentHashAlgorithm": "BLAKE3"})"));
    QCOMPARE(MirrixCore::contentHashAlgorithm(), ContentHashAlgorithm::Md5);
}

/// The first use makes the folders and reads the file; later ones give the same object.
void SettingsTest::theInstance()
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

QTEST_GUILESS_MAIN(SettingsTest)
#include "tst_settings.moc"
