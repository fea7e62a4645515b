#include "ui/dialogs/hashtooldialog.h"

#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QThreadPool>
#include <QTreeWidget>
#include <QUrl>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class HashToolDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void knownDigests_data();
    void knownDigests();
    void marksEqualFiles();
    void dropsAndFolders();
    void copiesRows();
    void cancelLeavesRowsWhole();
    void summaries();

private:
    static QTreeWidget *table(HashToolDialog &dialog) { return dialog.findChild<QTreeWidget *>(u"HashTable"_s); }
    static QStringList column(HashToolDialog &dialog, int number)
    {
        QStringList texts;
        for (int row = 0; row < table(dialog)->topLevelItemCount(); ++row)
            texts.append(table(dialog)->topLevelItem(row)->text(number));
        return texts;
    }
    static void click(HashToolDialog &dialog, const QString &button)
    {
        QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
    }
};

// What md5sum, sha1sum, sha256sum and b3sum say of "abc" and of the empty file.
void HashToolDialogTest::knownDigests_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ofAbc");
    QTest::addColumn<QString>("ofNothing");
    QTest::newRow("MD5") << 0 << u"MD5"_s << u"900150983cd24fb0d6963f7d28e17f72"_s
                         << u"d41d8cd98f00b204e9800998ecf8427e"_s;
    QTest::newRow("SHA-1") << 1 << u"SHA-1"_s << u"a9993e364706816aba3e25717850c26c9cd0d89d"_s
                           << u"da39a3ee5e6b4b0d3255bfef95601890afd80709"_s;
    QTest::newRow("SHA-256") << 2 << u"SHA-256"_s
                             << u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s
                             << u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
    QTest::newRow("BLAKE3") << 3 << u"BLAKE3"_s << u"6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85"_s
                            << u"af1349b9f5f9a1a6a0404dea36dcc9499bcb25c9adc112b7cc9a93cae41f3262"_s;
}

void HashToolDialogTest::knownDigests()
{
    QFETCH(const int, index);
    QFETCH(const QString, name);
    QFETCH(const QString, ofAbc);
    QFETCH(const QString, ofNothing);
    const TempTree tree;
    ScriptedPrompts prompts;
    HashToolDialog dialog(prompts);
    const QStringList paths = {tree.write(u"abc"_s, "abc"), tree.write(u"nothing"_s, "")};
    prompts.chosenFiles = {paths};
    click(dialog, u"HashAddFilesButton"_s);
    QCOMPARE(column(dialog, 2), (QStringList{u"MD5"_s, u"MD5"_s}));
    auto *combo = dialog.findChild<QComboBox *>();
    QCOMPARE(combo->count(), 4);
    combo->setCurrentIndex(index);
    click(dialog, u"HashRecalculateButton"_s);
    QCOMPARE(column(dialog, 0), (QStringList{QDir::toNativeSeparators(paths[0]), QDir::toNativeSeparators(paths[1])}));
    QCOMPARE(column(dialog, 1), (QStringList{ofAbc, ofNothing}));
    QCOMPARE(column(dialog, 2), (QStringList{name, name}));
    QCOMPARE(column(dialog, 3), (QStringList{u"3 B"_s, u"0 B"_s}));
}

void HashToolDialogTest::marksEqualFiles()
{
    const TempTree tree;
    ScriptedPrompts prompts;
    HashToolDialog dialog(prompts);
    const QString third = tree.write(u"3"_s, "same");
    dialog.addPaths({tree.write(u"1"_s, "same"), tree.write(u"2"_s, "other"), third});
    const auto colours = [&dialog](int row) {
        QSet<QRgb> found;
        for (int column = 0; column < 4; ++column) {
            const QBrush brush = table(dialog)->topLevelItem(row)->background(column);
            found.insert(brush.style() == Qt::NoBrush ? 0 : brush.color().rgb());
        }
        return found;
    };
    const QSet<QRgb> marked = {qRgb(255, 246, 217)};
    QCOMPARE(colours(0), marked);
    QCOMPARE(colours(1), QSet<QRgb>{0});
    QCOMPARE(colours(2), marked);
    QVERIFY(table(dialog)->topLevelItem(0)->foreground(1).color().lightness() < 80);

    // A file that is gone has no hash, and the one that was its equal stands alone.
    QVERIFY(QFile::remove(third));
    dialog.computeRows(false);
    QCOMPARE(column(dialog, 1).at(2), QString());
    QCOMPARE(colours(0), QSet<QRgb>{0});
    QCOMPARE(colours(2), QSet<QRgb>{0});
}

void HashToolDialogTest::dropsAndFolders()
{
    const TempTree tree;
    const QString file = tree.write(u"top/a"_s, "a");
    tree.write(u"top/sub/b"_s, "b");
    ScriptedPrompts prompts;
    HashToolDialog dialog(prompts);
    dialog.show();
    const auto drop = [&dialog](const QStringList &paths) {
        QMimeData data;
        QList<QUrl> urls = {QUrl(u"https://example.org/x"_s)};
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&dialog, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&dialog, &event);
        QCOMPARE(event.dropAction(), Qt::CopyAction);
    };
    auto *summary = dialog.findChild<QLabel *>(u"SecondaryHintLabel"_s);
    QCOMPARE(summary->text(), u"共 0 个文件"_s);
    dialog.findChild<QCheckBox *>()->setChecked(false);
    drop({tree.path(u"top"_s), file, tree.path(u"none"_s)});
    QTRY_COMPARE(column(dialog, 1), QStringList(u"0cc175b9c0f1b6a831c399e269772661"_s));
    QVERIFY(summary->text().startsWith(u"共 1 个文件 @ "_s));
    drop({file});
    dialog.findChild<QCheckBox *>()->setChecked(true);
    prompts.folders = {tree.path(u"top"_s)};
    QTRY_COMPARE(table(dialog)->topLevelItemCount(), 1);
    click(dialog, u"HashAddFolderButton"_s);
    QCOMPARE(column(dialog, 0).size(), 2);
    QVERIFY(column(dialog, 0).last().endsWith(QDir::toNativeSeparators(u"/top/sub/b"_s)));
    click(dialog, u"HashClearButton"_s);
    QCOMPARE(table(dialog)->topLevelItemCount(), 0);
    QCOMPARE(summary->text(), u"共 0 个文件"_s);
    dialog.addPaths({file});
    QCOMPARE(table(dialog)->topLevelItemCount(), 1);
}

void HashToolDialogTest::copiesRows()
{
    const TempTree tree;
    ScriptedPrompts prompts;
    HashToolDialog dialog(prompts);
    dialog.show();
    dialog.addPaths({tree.write(u"a"_s, "a"), tree.write(u"b"_s, "b")});
    table(dialog)->selectAll();
    const auto trigger = [&dialog](int index) {
        emit table(dialog)->customContextMenuRequested(QPoint(5, 5));
        auto *menu = dialog.findChild<QMenu *>(u"HashMenu"_s);
        menu->actions().at(index)->trigger();
        delete menu;
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(trigger(0), u"0cc175b9c0f1b6a831c399e269772661\n92eb5ffee6ae2fec3ad71c777531578f"_s);
    QCOMPARE(trigger(1),
             QDir::toNativeSeparators(tree.path(u"a"_s)) + u'\n' + QDir::toNativeSeparators(tree.path(u"b"_s)));
}

void HashToolDialogTest::cancelLeavesRowsWhole()
{
    const TempTree tree;
    ScriptedPrompts prompts;
    HashToolDialog dialog(prompts);
    QStringList paths;
    for (int i = 0; i < 20; ++i)
        paths.append(tree.write(QString::number(i), QByteArray(1000, char('a' + i))));
    dialog.addPaths(paths);
    const QStringList before = column(dialog, 1);
    dialog.findChild<QComboBox *>()->setCurrentIndex(2);

    // One thread and the spare one, both held up until it is cancelled: nothing is hashed before.
    QThreadPool *pool = QThreadPool::globalInstance();
    const int threads = pool->maxThreadCount();
    pool->setMaxThreadCount(1);
    QSemaphore gate;
    for (int thread = 0; thread < 2; ++thread)
        pool->start([&gate] { gate.acquire(); });
    QTimer::singleShot(0, &dialog, [&] {
        dialog.computeRows(false); // refused: one is under way
        emit dialog.findChild<QProgressDialog *>(u"HashProgress"_s)->canceled();
        gate.release(2);
    });
    dialog.computeRows(false);
    pool->setMaxThreadCount(threads);
    QCOMPARE(column(dialog, 1), before);
    QCOMPARE(column(dialog, 2).count(u"MD5"_s), 20);
    QCOMPARE(dialog.findChild<QLabel *>(u"SecondaryHintLabel"_s)->text(), u"共 20 个文件"_s);
    dialog.computeRows(false);
    QCOMPARE(column(dialog, 2).count(u"SHA-256"_s), 20);
}

void HashToolDialogTest::summaries()
{
    QCOMPARE(hashSummary(3, 1234), u"共 3 个文件 @ 1.234 秒"_s);
    QCOMPARE(hashSummary(1, 50), u"共 1 个文件 @ 0.050 秒"_s);
}

QTEST_MAIN(HashToolDialogTest)
#include "tst_hashtooldialog.moc"
