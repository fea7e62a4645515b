#include "tests/support/temptree.h"
#include "ui/logic/locationsjson.h"

#include <QDir>
#include <QJsonDocument>
#include <QTest>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

/// "A:" stands for the root that absolute paths begin with on this system.
QString here(QString text)
{
    return text.replace(u"A:"_s, QDir::rootPath().startsWith(u'/') ? u""_s : u"C:"_s);
}

LocationRow row(const QString &path)
{
    LocationRow row;
    row.path = here(path);
    return row;
}

} // namespace

class LocationsJsonTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsTravel();
    void readsWhatItCan_data();
    void readsWhatItCan();
    void throughTheSettingsFile();
    void settingsWithFoldersOnly();
};

void LocationsJsonTest::rowsTravel()
{
    const QList<LocationRow> rows = {
        {here(u"A:/Bilder \"alt\""_s), false, true, false, 2, true},
        {here(u"A:/日本"_s), true, false, true, 1, false},
        {here(u"A:/"_s), true, true, true, 0, false},
    };
    const QByteArray text = QJsonDocument(jsonFromLocations(rows)).toJson();
    QCOMPARE(locationsFromJson(QJsonDocument::fromJson(text).array()), rows);
    QCOMPARE(QJsonDocument(jsonFromLocations({row(u"A:/a"_s)})).toJson(QJsonDocument::Compact),
             here(uR"([{"enabled":true,"find":0,"path":"A:/a","protected":false,"showRemaining":false,)"
                  uR"("subfolders":true}])"_s)
                 .toUtf8());
}

void LocationsJsonTest::readsWhatItCan_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<LocationRow>>("expected");
    const auto test = [](const char *name, const QString &text, const QList<LocationRow> &expected) {
        QTest::newRow(name) << text << expected;
    };
    const LocationRow plain = row(u"A:/a"_s);
    LocationRow off = plain;
    off.enabled = false;
    test("nothing", u"[]"_s, {});
    test("no objects", uR"([1, "A:/a", null, ["A:/a"], true])"_s, {});
    test("no path", uR"([{}, {"path": ""}, {"path": 5}, {"path": null}])"_s, {});
    test("path alone", uR"([{"path": "A:/a"}])"_s, {plain});
    test(
        "wrong types",
        uR"([{"path": "A:/a", "enabled": 0, "protected": "true", "subfolders": [], "find": "2", "showRemaining": {}}])"_s,
        {plain});
    test("kinds out of range", uR"([{"path": "A:/a", "find": 3}, {"path": "A:/b", "find": -1}])"_s,
         {plain, row(u"A:/b"_s)});
    test("broken kind", uR"([{"path": "A:/a", "find": 1.5}])"_s, {plain});
    test("good after bad", uR"([7, {"path": "A:/a", "enabled": false, "new": 1}])"_s, {off});
    test("first of equals", uR"([{"path": "A:/a", "enabled": false}, {"path": "A:/b"}, {"path": "A:/a/"}])"_s,
         {off, row(u"A:/b"_s)});
}

void LocationsJsonTest::readsWhatItCan()
{
    QFETCH(QString, text);
    const QJsonDocument document = QJsonDocument::fromJson(here(text).toUtf8());
    QVERIFY(document.isArray());
    QTEST(locationsFromJson(document.array()), "expected");
}

void LocationsJsonTest::throughTheSettingsFile()
{
    const TempTree tree;
    LocationsState state;
    state.rows = {row(u"A:/on"_s), row(u"A:/off"_s), row(u"A:/locked"_s)};
    state.rows[1].enabled = false;
    state.rows[2].isProtected = true;
    state.excludeFolders = {here(u"A:/on/not"_s), here(u"A:/nor"_s)};
    state.advanced = {2, false, false, false, here(u"A:/safe"_s)};
    Settings settings = defaultSettings(tree.path());
    settings.maxFileBytes = 5;
    storeLocations(state, settings);
    QVERIFY(settings.save());
    const Settings again = readSettings(tree.path());
    QCOMPARE(locationsStateFrom(again), state);
    QCOMPARE(again.lastRoots, (QStringList{here(u"A:/on"_s), here(u"A:/locked"_s)}));
    QCOMPARE(again.maxFileBytes, 5);
}

/// A file from before the table was kept, or written by hand; and an emptied table stays empty.
void LocationsJsonTest::settingsWithFoldersOnly()
{
    Settings settings = defaultSettings(u"unused"_s);
    settings.lastRoots = {here(u"A:/a"_s), QString(), here(u"A:/b/"_s), here(u"A:/a"_s)};
    QCOMPARE(locationsStateFrom(settings).rows, (QList{row(u"A:/a"_s), row(u"A:/b"_s)}));
    LocationsState state = locationsStateFrom(settings);
    state.rows.clear();
    storeLocations(state, settings);
    QVERIFY(locationsStateFrom(settings).rows.isEmpty());
}

QTEST_GUILESS_MAIN(LocationsJsonTest)
#include "tst_locationsjson.moc"
