#include "actions/records/runjournal.h"
#include "tests/cli/clitest.h"

#include <QDateTime>

using namespace Mirrix;

class HistoryCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void listsAndShows()
    {
        QCOMPARE(run(u"history --format json"_s).output, "[]\n");
        const QString id = u"20240229-120000-0af3"_s;
        const QString odd = u"/x\n  done     /forged\x1b\u2028"_s;
        RunJournalWriter writer;
        QVERIFY(
            writer.create(dataFolder(), {id, 1709208000000, u"clean"_s, u"move"_s, u"/t"_s, u"newest"_s, 0, {}},
                          {{odd, u"/kept"_s, 7, 0, 0, 0, {}, u"older"_s, {}}, {u"/y"_s, {}, 8, 0, 0, 0, {}, {}, {}}}));
        QVERIFY(writer.outcome({1, ItemState::Done, u"/t/y"_s, u"said"_s, {}, 2048, 3072}) && writer.finish());
        const QByteArray summary = R"({"run": "20240229-120000-0af3", "startedMs": 1709208000000, "command": "clean",
        "method": "move", "planned": 2, "done": 1, "failed": 0, "undone": 0, "freedBytes": 2048, "heldBytes": 3072,
        "complete": true)";
        const QByteArray files = R"(, "files": [
        {"original": "/x\n  done     /forged\u001b\u2028", "now": null, "keeper": "/kept", "size": 7,
         "state": "planned", "reason": "older", "message": ""},
        {"original": "/y", "now": "/t/y", "keeper": "", "size": 8, "state": "done", "reason": "", "message": "said"}])";
        QCOMPARE(json(u"history"_s), QJsonDocument::fromJson('[' + summary + "}]"));
        QCOMPARE(json(u"history "_s + id), QJsonDocument::fromJson(summary + files + '}'));

        const QByteArray time =
            QDateTime::fromMSecsSinceEpoch(1709208000000).toString(u"yyyy-MM-dd HH:mm:ss"_s).toLatin1();
        const QByteArray line =
            id.toLatin1() + "  " + time + "  move            1/2 files  freed      2 KB  held      3 KB  ";
        QCOMPARE(run(u"history "_s + id).output, line + "complete\n  planned  /x?  done     /forged??  (kept: /kept)\n"
                                                        "  done     /y  ->  /t/y  said\n");
        QFile journal(runJournalPath(dataFolder(), id));
        QVERIFY(journal.resize(journal.size() - 1));
        const ProgramRun cut = run(u"history"_s);
        QCOMPARE(cut.output, line + "interrupted\n");
        QCOMPARE(cut.status, 0);
        QVERIFY(cut.errors.contains("damaged"));
        QVERIFY(journal.open(QIODevice::WriteOnly) && journal.write(QByteArray(100, 'x')) == 100 && journal.flush());
        const ProgramRun unreadable = run(u"history "_s + id);
        QCOMPARE(unreadable.status, 1);
        QVERIFY(unreadable.output.contains("unreadable") && unreadable.errors.contains(id.toLatin1()));
    }

    void usage()
    {
        QCOMPARE(run(u"history --format csv"_s).status, 2);
        QCOMPARE(run(u"history ../20240229-120000-0af3"_s).status, 2);
        QCOMPARE(run(u"history 20240229-120000-0af3 20240229-120000-0af4"_s).status, 2);
        QCOMPARE(run(u"history 20240229-120000-ffff"_s).status, 1);
    }
};

QTEST_GUILESS_MAIN(HistoryCommandTest)
#include "tst_historycommand.moc"
