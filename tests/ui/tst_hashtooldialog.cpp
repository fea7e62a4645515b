#include "ui/dialogs/hashtooldialog.h"

#include "tests/ui/uitest.h"

namespace {

struct HashScene
{
    TempTree tree;
    ScriptedPrompts prompts;
    HashToolDialog dialog{prompts};

    [[nodiscard]] QTreeWidget *table() const { return part<QTreeWidget>(dialog, u"HashTable"_s); }
    [[nodiscard]] QString column(int number) const { return columnText(*table()->model(), number); }
    [[nodiscard]] QString summary() const { return part<QLabel>(dialog, u"SecondaryHintLabel"_s)->text(); }
    [[nodiscard]] bool isMarked(int row) const
    {
        const QTreeWidgetItem *item = table()->topLevelItem(row);
        return item->background(0).style() != Qt::NoBrush && item->background(3) == item->background(0);
    }
};

} // namespace

class TestHashToolDialog : public QObject
{
    Q_OBJECT

private slots:
    // What md5sum, sha1sum, sha256sum and b3sum say of "abc" and of the empty file.
    void knownDigests_data()
    {
        QTest::addColumn<QString>("digests");
        QTest::newRow("MD5") << u"900150983cd24fb0d6963f7d28e17f72|d41d8cd98f00b204e9800998ecf8427e"_s;
        QTest::newRow("SHA-1")
            << u"a9993e364706816aba3e25717850c26c9cd0d89d|da39a3ee5e6b4b0d3255bfef95601890afd80709"_s;
        QTest::newRow("SHA-256") << u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad|"
                                    "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
        QTest::newRow("BLAKE3") << u"6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85|"
                                   "af1349b9f5f9a1a6a0404dea36dcc9499bcb25c9adc112b7cc9a93cae41f3262"_s;
    }

    void knownDigests()
    {
        QFETCH(const QString, digests);
        const auto name = QString::fromLatin1(QTest::currentDataTag());
        HashScene scene;
        const QStringList paths = {scene.tree.write(u"abc"_s, "abc"), scene.tree.write(u"nothing"_s, "")};
        scene.prompts.chosenFiles = {paths};
        click(scene.dialog, u"HashAddFilesButton"_s);
        QCOMPARE(scene.column(2), u"MD5|MD5"_s);
        auto *combo = part<QComboBox>(scene.dialog);
        combo->setCurrentIndex(combo->findText(name));
        click(scene.dialog, u"HashRecalculateButton"_s);
        QCOMPARE(scene.column(0), QDir::toNativeSeparators(paths.join(u'|')));
        QCOMPARE(scene.column(1), digests);
        QCOMPARE(scene.column(2), name + u'|' + name);
        QCOMPARE(scene.column(3), u"3 B|0 B"_s);
    }

    void marksEqualFiles()
    {
        HashScene scene;
        const QString third = scene.tree.write(u"3"_s, "same");
        scene.dialog.addPaths({scene.tree.write(u"1"_s, "same"), scene.tree.write(u"2"_s, "other"), third});
        QVERIFY(scene.isMarked(0) && !scene.isMarked(1) && scene.isMarked(2));
        QVERIFY(scene.table()->topLevelItem(0)->foreground(1).color().lightness() < 80);

        // A file that is gone has no hash, and the one that was equal to it has no match.
        QVERIFY(QFile::remove(third));
        scene.dialog.computeRows(false);
        QVERIFY(scene.column(1).endsWith(u'|'));
        QVERIFY(!scene.isMarked(0) && !scene.isMarked(2));
    }

    void dropsAndFolders()
    {
        HashScene scene;
        const QString file = scene.tree.write(u"top/a"_s, "a");
        const QString deep = scene.tree.write(u"top/sub/b"_s, "b");
        scene.dialog.show();
        QCOMPARE(scene.summary(), u"共 0 个文件"_s);
        part(scene.dialog, u"HashSubfoldersCheck"_s)->setChecked(false);
        dropOn(scene.dialog, {scene.tree.path(u"top"_s), file, scene.tree.path(u"none"_s)});
        QTRY_COMPARE(scene.column(1), u"0cc175b9c0f1b6a831c399e269772661"_s);
        QVERIFY(scene.summary().startsWith(u"共 1 个文件 @ "));
        part(scene.dialog, u"HashSubfoldersCheck"_s)->setChecked(true);
        scene.prompts.folders = {scene.tree.path(u"top"_s)};
        click(scene.dialog, u"HashAddFolderButton"_s);
        QCOMPARE(scene.column(0), QDir::toNativeSeparators(file + u'|' + deep));
        click(scene.dialog, u"HashClearButton"_s);
        QCOMPARE(scene.column(0), QString());
        QCOMPARE(scene.summary(), u"共 0 个文件"_s);
        scene.dialog.addPaths({file});
        QCOMPARE(scene.column(0), QDir::toNativeSeparators(file));
    }

    void copiesRows()
    {
        HashScene scene;
        scene.dialog.show();
        const QString a = scene.tree.write(u"a"_s, "a");
        const QString b = scene.tree.write(u"b"_s, "b");
        scene.dialog.addPaths({a, b});
        scene.table()->selectAll();
        const auto trigger = [&scene](int index) {
            emit scene.table()->customContextMenuRequested(QPoint(5, 5));
            auto *menu = part<QMenu>(scene.dialog, u"HashMenu"_s);
            menu->actions().at(index)->trigger();
            delete menu;
            return QGuiApplication::clipboard()->text();
        };
        QCOMPARE(trigger(0), u"0cc175b9c0f1b6a831c399e269772661\n92eb5ffee6ae2fec3ad71c777531578f"_s);
        QCOMPARE(trigger(1), QDir::toNativeSeparators(a + u'\n' + b));
    }

    void cancelLeavesRowsWhole()
    {
        HashScene scene;
        QStringList paths;
        for (int i = 0; i < 20; ++i)
            paths.append(scene.tree.write(QString::number(i), QByteArray(1000, char('a' + i))));
        scene.dialog.addPaths(paths);
        const QString before = scene.column(1);
        part<QComboBox>(scene.dialog)->setCurrentIndex(2);

        // One thread and the spare one, both held up until it is cancelled: nothing is hashed before.
        QThreadPool *pool = QThreadPool::globalInstance();
        const int threads = pool->maxThreadCount();
        pool->setMaxThreadCount(1);
        QSemaphore gate;
        for (int thread = 0; thread < 2; ++thread)
            pool->start([&gate] { gate.acquire(); });
        QTimer::singleShot(0, &scene.dialog, [&] {
            scene.dialog.computeRows(false); // refused: one is running
            emit part<QProgressDialog>(scene.dialog, u"HashProgress"_s)->canceled();
            gate.release(2);
        });
        scene.dialog.computeRows(false);
        pool->setMaxThreadCount(threads);
        QCOMPARE(scene.column(1), before);
        QCOMPARE(scene.column(2).count(u"MD5"), 20);
        QCOMPARE(scene.summary(), u"共 20 个文件"_s);
        scene.dialog.computeRows(false);
        QCOMPARE(scene.column(2).count(u"SHA-256"), 20);
    }
};

QTEST_MAIN(TestHashToolDialog)
#include "tst_hashtooldialog.moc"
