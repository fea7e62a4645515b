#include "tests/support/temptree.h"
#include "ui/state/locationsjson.h"

#include <QDir>
#include <QJsonDocument>
#include <QTest>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace {

/// "A:" is replaced with the root that absolute paths begin with on this system.
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

class TestLocationsJson : public QObject
{
    Q_OBJECT

private slots:
    void writesRows()
    {
        QCOMPARE(QJsonDocument(jsonFromLocations({row(u"A:/a"_s)})).toJson(QJsonDocument::Compact),
                 here(uR"([{"enabled":true,"find":0,"path":"A:/a","protected":false,"showRemaining":false,)"
                      uR"("subfolders":true}])"_s)
                     .toUtf8());
    }

    void readsWhatItCan_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); ///< paths; with a "-" those that are switched off
        const auto test = [](const char *name, const QString &text, const QString &expected) {
            QTest::newRow(name) << text << here(expected);
        };
        test("no objects", uR"([1, "A:/a", null, ["A:/a"], true])"_s, {});
        test("no path", uR"([{}, {"path": ""}, {"path": 5}, {"path": null}])"_s, {});
        test("wrong types",
             uR"([{"path": "A:/a", "enabled": 0, "protected": "true", "subfolders": [], "find": "2",)"
             uR"("showRemaining": {}}])"_s,
             u"A:/a"_s);
        test("kinds out of range", uR"([{"path": "A:/a", "find": 3}, {"path": "A:/b", "find": -1}])"_s, u"A:/a A:/b"_s);
        test("broken kind", uR"([{"path": "A:/a", "find": 1.5}])"_s, u"A:/a"_s);
        test("good after bad", uR"([7, {"path": "A:/a", "enabled": false, "new": 1}])"_s, u"-A:/a"_s);
        test("first of equals", uR"([{"path": "A:/a", "enabled": false}, {"path": "A:/b"}, {"path": "A:/a/"}])"_s,
             u"-A:/a A:/b"_s);
    }

    void readsWhatItCan()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QList<LocationRow> rows;
        for (const QString &path : expected.split(u' ', Qt::SkipEmptyParts)) {
            rows.append(row(path.startsWith(u'-') ? path.mid(1) : path));
            rows.last().enabled = !path.startsWith(u'-');
        }
        QCOMPARE(locationsFromJson(QJsonDocument::fromJson(here(text).toUtf8()).array()), rows);
    }

    void throughTheSettingsFile()
    {
        const MirrixTest::TempTree tree;
        LocationsState state;
        state.rows = {row(u"A:/日本 \"alt\""_s),
                      {here(u"A:/off"_s), false, true, false, 2, true},
                      {here(u"A:/"_s), true, true, true, 1, false}};
        state.excludeFolders = {here(u"A:/on/not"_s), here(u"A:/nor"_s)};
        state.advanced = {2, false, false, false, here(u"A:/safe"_s)};
        Settings settings = defaultSettings(tree.path());
        settings.maxFileBytes = 5;
        storeLocations(state, settings);
        QVERIFY(settings.save());
        Settings again = readSettings(tree.path());
        QCOMPARE(locationsStateFrom(again), state);
        QCOMPARE(again.lastRoots, (QStringList{state.rows[0].path, state.rows[2].path}));
        QCOMPARE(again.maxFileBytes, 5);
        state.rows.clear(); // an emptied table stays empty
        storeLocations(state, again);
        QVERIFY(locationsStateFrom(again).rows.isEmpty());
    }

    /// A file from before the table was kept, or written by hand.
    void settingsWithFoldersOnly()
    {
        Settings settings = defaultSettings(u"unused"_s);
        settings.lastRoots = {here(u"A:/a"_s), QString(), here(u"A:/b/"_s), here(u"A:/a"_s)};
        QCOMPARE(locationsStateFrom(settings).rows, (QList{row(u"A:/a"_s), row(u"A:/b"_s)}));
    }
};

QTEST_GUILESS_MAIN(TestLocationsJson)
#include "tst_locationsjson.moc"
