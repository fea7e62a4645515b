#include "app/datalocations.h"
#include "app/identity.h"
#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class DataLocationsTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { setApplicationIdentity(); }

private slots:
    void cleanup() { undecidePortable(); }
    void identity();
    void portableSwitch_data();
    void portableSwitch();
    void decisionHolds();
    void portableData();
    void usersData();
    void files();
};

void DataLocationsTest::identity()
{
    QCOMPARE(QCoreApplication::organizationName(), u"Mirrix"_s);
    QCOMPARE(QCoreApplication::applicationName(), u"Mirrix"_s);
    QCOMPARE(QCoreApplication::applicationVersion(), u"1.0.0"_s);
    QVERIFY(!QCoreApplication::organizationDomain().isEmpty());
}

void DataLocationsTest::portableSwitch_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char *argument, bool expected) {
        QTest::newRow(argument) << QString::fromLatin1(argument) << expected;
    };
    row("--portable", true);
    row("-portable", true);
    row("--Portable", false);
    row("-PORTABLE", false);
    row("portable", false);
    row("/portable", false);
    row("---portable", false);
    row("--portable=1", false);
    row("--portables", false);
    row(" --portable", false);
    row("", false);
}

void DataLocationsTest::portableSwitch()
{
    QFETCH(QString, argument);
    QTEST(hasPortableSwitch({u"mirrix"_s, u"--other"_s, argument, u"file"_s}), "expected");
    QVERIFY(!hasPortableSwitch({}));
}

void DataLocationsTest::decisionHolds()
{
    const bool undecided = isPortable();
    decidePortable(true);
    QVERIFY(isPortable());
    decidePortable(false);
    QVERIFY(!isPortable());
    undecidePortable();
    QCOMPARE(isPortable(), undecided);
}

void DataLocationsTest::portableData()
{
    decidePortable(true);
    const QString data = QCoreApplication::applicationDirPath() + u"/Data"_s;
    QCOMPARE(dataDirectory(), data);
    QCOMPARE(settingsFilePath(), data + u"/settings.json"_s);
    QVERIFY(!QFileInfo::exists(data)); // asking creates nothing
}

void DataLocationsTest::usersData()
{
    const TempTree home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path(u"share"_s)));
    decidePortable(false);
    const QString data = dataDirectory();
    QCOMPARE(data, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Mirrix"_s);
    QVERIFY2(data.endsWith(u"/Mirrix/Mirrix/Mirrix"_s), qPrintable(data)); // organisation, application, our own
    QCOMPARE(settingsFilePath(), data + u"/settings.json"_s);
    if (!data.startsWith(home.path()))
        QSKIP("the environment does not choose the user's folders here");
    QVERIFY(!QFileInfo::exists(data));
}

void DataLocationsTest::files()
{
    QCOMPARE(settingsFilePath(u"C:/a b"_s), u"C:/a b/settings.json"_s);
    QCOMPARE(defaultBackupRoot(u"C:/a b"_s), u"C:/a b/Backup"_s);
}

QTEST_GUILESS_MAIN(DataLocationsTest)
#include "tst_datalocations.moc"
