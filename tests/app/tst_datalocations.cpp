#include "app/datalocations.h"

#include "app/identity.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

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

    void identity()
    {
        QCOMPARE(QCoreApplication::organizationName(), u"Mirrix"_s);
        QCOMPARE(QCoreApplication::applicationName(), u"Mirrix"_s);
        QCOMPARE(QCoreApplication::applicationVersion(), u"1.0.0"_s);
        QVERIFY(!QCoreApplication::organizationDomain().isEmpty());
    }

    void portableSwitch()
    {
        const auto has = [](const QString &argument) {
            return hasPortableSwitch({u"mirrix"_s, u"--other"_s, argument, u"file"_s});
        };
        QVERIFY(has(u"--portable"_s) && has(u"-portable"_s));
        for (const char *other : {"--Portable", "-PORTABLE", "portable", "/portable", "---portable", "--portable=1",
                                  "--portables", " --portable", ""})
            QVERIFY2(!has(QLatin1String(other)), other);
        QVERIFY(!hasPortableSwitch({}));
    }

    void portableData()
    {
        const bool undecided = isPortable();
        decidePortable(true);
        QVERIFY(isPortable());
        const QString data = QCoreApplication::applicationDirPath() + u"/Data"_s;
        QCOMPARE(dataDirectory(), data);
        QCOMPARE(settingsFilePath(), data + u"/settings.json"_s);
        QCOMPARE(defaultBackupRoot(data), data + u"/Backup"_s);
        QVERIFY(!QFileInfo::exists(data)); // asking creates nothing
        undecidePortable();
        QCOMPARE(isPortable(), undecided);
    }

    void usersData()
    {
        const TempTree home;
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path(u"share"_s)));
        decidePortable(false);
        QVERIFY(!isPortable());
        const QString data = dataDirectory();
        QCOMPARE(data, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Mirrix"_s);
        QVERIFY2(data.endsWith(u"/Mirrix/Mirrix/Mirrix"_s), qPrintable(data)); // organisation, application, our own
        QCOMPARE(settingsFilePath(), data + u"/settings.json"_s);
        if (!data.startsWith(home.path()))
            QSKIP("the environment does not choose the user's folders here");
        QVERIFY(!QFileInfo::exists(data));
    }
};

QTEST_GUILESS_MAIN(DataLocationsTest)
#include "tst_datalocations.moc"
