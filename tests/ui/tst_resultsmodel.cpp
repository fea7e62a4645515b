#include "ui/logic/batchstate.h"
#include "ui/logic/foldergroupsmodel.h"
#include "ui/logic/remainingmodel.h"
#include "ui/logic/resultsmodel.h"
#include "ui/logic/resulttexts.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

using Mirrix::ResultsModel;
using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

namespace {

FileEntry file(const QString &path, qint64 size, qint64 modifiedMs = 1)
{
    FileEntry entry;
    entry.path = path;
    entry.size = size;
    entry.modifiedMs = modifiedMs;
    return entry;
}

/// Three groups; by reclaimable size they already stand in order.
Mirrix::ResultSet made()
{
    Mirrix::ResultSet results;
    results.groups = {{u"k1"_qs, {file(u"/c/1.jpg"_qs, 4096, 10), file(u"/c/2.jpg"_qs, 4096, 90)}, 4096},
                      {u"k2"_qs, {file(u"/a/1.JPG"_qs, 512, 50), file(u"/a/2"_qs, 512), file(u"/a/3"_qs, 512)}, 1024},
                      {u"k3"_qs, {file(u"/B/1.txt"_qs, 1024, 20), file(u"/B/2.txt"_qs, 1024, 30)}, 1024}};
    results.folderGroups = {{{{u"/x/one"_qs, 3, 2048}, {u"/y/two"_qs, 3, 2048}}, 3, 2048}};
    results.remaining = {file(u"/r/b"_qs, 1), file(u"/r/A"_qs, 3), file(u"/r/c"_qs, 2)};
    results.marks.reset(results.groups);
    return results;
}

/// One column's texts, top rows only.
QStringList column(const QAbstractItemModel &model, int number)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, number).data().toString());
    return texts;
}

} // namespace

class TestResultsModel : public QObject
{
    Q_OBJECT

private slots:
    void showsGroupsAndFiles()
    {
        Mirrix::ResultSet results = made();
        QStringList asked;
        const auto icon = [&asked](const QString &suffix) {
            asked.append(suffix);
            return QIcon();
        };
        const Mirrix::SuffixIcons icons(icon);
        ResultsModel model(results, icons);
        model.reload();
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(column(model, ResultsModel::FileColumn),
                 QStringList({u"分组 #1  (2 个文件, 可回收 4.0 KB)"_qs, u"分组 #2  (3 个文件, 可回收 1.0 KB)"_qs,
                              u"分组 #3  (2 个文件, 可回收 1.0 KB)"_qs}));
        const QModelIndex second = model.index(1, 0);
        QCOMPARE(model.rowCount(second), 3);
        const QModelIndex name = model.index(0, ResultsModel::FileColumn, second);
        QCOMPARE(name.data().toString(), Mirrix::shownPath(u"/a/1.JPG"_qs));
        QCOMPARE(name.data(Qt::ToolTipRole), name.data());
        for (const auto &[place, text] : {std::pair(MirrixCore::FilePlace::RecycleBin, u"位于回收站中"_qs),
                                          {MirrixCore::FilePlace::BackupFolder, u"位于备份文件夹中"_qs},
                                          {MirrixCore::FilePlace::Snapshot, u"位于快照中"_qs}}) {
            results.groups[1].files[0].place = place;
            QCOMPARE(name.data(Qt::ToolTipRole).toString(), name.data().toString() + u'\n' + text);
        }
        QCOMPARE(name.siblingAtColumn(ResultsModel::SizeColumn).data().toString(), u"512 B"_qs);
        QCOMPARE(name.siblingAtColumn(ResultsModel::ModifiedColumn).data().toString(),
                 QDateTime::fromMSecsSinceEpoch(50).toString(u"yyyy-MM-dd HH:mm"_qs));
        for (int row = 0; row < 2; ++row) {
            (void)model.index(row, ResultsModel::FileColumn, model.index(0, 0)).data(Qt::DecorationRole);
            (void)name.data(Qt::DecorationRole);
        }
        QCOMPARE(asked, QStringList({u"jpg"_qs})); // once a suffix, whatever its case
    }

    void writesMarks()
    {
        Mirrix::ResultSet results = made();
        const Mirrix::SuffixIcons icons;
        ResultsModel model(results, icons);
        model.reload();
        QSignalSpy changed(&model, &ResultsModel::markChanged);
        const QModelIndex group = model.index(1, 0);
        const QModelIndex box = model.index(2, 0, group);
        QVERIFY(box.flags().testFlag(Qt::ItemIsUserCheckable));
        QVERIFY(model.setData(box, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(results.marks.isMarked(1, 2));
        QCOMPARE(box.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(group.data().toString(), u"1 / 3"_qs);
        QVERIFY(!model.setData(group, Qt::Checked, Qt::CheckStateRole));
        model.markDuplicatesOf(1);
        QCOMPARE(results.marks.markedInAll(), 2);
        QVERIFY(!results.marks.isMarked(1, 0));
        QCOMPARE(changed.size(), 2);

        QVERIFY(group.data(Qt::ToolTipRole).toString().isEmpty());
        results.marks.setMarked(1, 0, true);
        QVERIFY(!group.data(Qt::ToolTipRole).toString().isEmpty()); // nothing would be kept

        results.marks.invert();
        QCOMPARE(results.marks.markedInAll(), 4);
        QCOMPARE(model.index(0, 0).data(ResultsModel::MarkedCountRole).toInt(), 2);
    }

    void sorts_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("isDescending");
        QTest::addColumn<QList<int>>("groups");
        QTest::newRow("files") << int(ResultsModel::SelectColumn) << true << QList<int>{1, 0, 2};
        QTest::newRow("name") << int(ResultsModel::FileColumn) << false << QList<int>{1, 2, 0};
        QTest::newRow("size, equals keep their order") << int(ResultsModel::SizeColumn) << false << QList<int>{1, 2, 0};
        QTest::newRow("size downwards") << int(ResultsModel::SizeColumn) << true << QList<int>{0, 1, 2};
        QTest::newRow("latest date") << int(ResultsModel::ModifiedColumn) << false << QList<int>{2, 1, 0};
        QTest::newRow("result order") << -1 << true << QList<int>{0, 1, 2};
    }

    void sorts()
    {
        QFETCH(int, column);
        QFETCH(bool, isDescending);
        QFETCH(QList<int>, groups);
        Mirrix::ResultSet results = made();
        const Mirrix::SuffixIcons icons;
        ResultsModel model(results, icons);
        model.reload();
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QPersistentModelIndex group = model.index(1, 0);
        const QPersistentModelIndex child = model.index(1, 0, group);
        QSignalSpy moved(&model, &QAbstractItemModel::layoutChanged);
        model.sort(ResultsModel::ModifiedColumn, Qt::AscendingOrder); // overtaken by the next
        model.sort(column, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
        QTRY_COMPARE(moved.size(), 1);
        QList<int> order;
        for (int row = 0; row < model.rowCount(); ++row)
            order.append(int(model.itemOf(model.index(row, 0))));
        QCOMPARE(order, groups);
        QCOMPARE(group.row(), groups.indexOf(1));
        QCOMPARE(child.parent(), QModelIndex(group));
        QVERIFY(model.setData(child, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(results.marks.isMarked(1, 1)); // the mark of the group, not of the row
    }

    void filtersByPath()
    {
        Mirrix::ResultSet results = made();
        results.marks.setMarked(2, 1, true);
        const Mirrix::SuffixIcons icons;
        ResultsModel model(results, icons);
        model.reload();
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy filtered(&model, &ResultsModel::filtered);
        const auto shown = [&model] {
            QList<int> groups;
            for (int row = 0; row < model.rowCount(); ++row)
                groups.append(int(model.itemOf(model.index(row, 0))));
            return groups;
        };
        model.setPathFilter(u"/b/"_qs); // overtaken by the next
        model.setPathFilter(u"1.jp"_qs);
        QTRY_COMPARE(filtered.size(), 1);
        QCOMPARE(shown(), QList({0, 1}));
        QCOMPARE(model.rowCount(model.index(1, 0)), 3); // with the copies that do not match
        QVERIFY(!model.itemIndex(2).isValid());
        model.sort(ResultsModel::FileColumn);
        QTRY_COMPARE(shown(), QList({1, 0}));
        QVERIFY(model.setData(model.index(0, 0, model.index(0, 0)), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(results.marks.isMarked(1, 0));
        model.setPathFilter(u"nowhere"_qs);
        QTRY_COMPARE(shown(), QList<int>());
        model.setPathFilter({});
        QTRY_COMPARE(shown(), QList({1, 2, 0}));
        QCOMPARE(results.marks.markedInAll(), 2);
        model.setPathFilter(u"/a/"_qs);
        model.reload(); // new results forget the filter
        QCOMPARE(shown(), QList({0, 1, 2}));
    }

    void showsFoldersAndRemaining()
    {
        Mirrix::ResultSet results = made();
        const Mirrix::SuffixIcons icons;
        Mirrix::FolderGroupsModel folders(results);
        Mirrix::RemainingModel remaining(results, icons);
        folders.reload();
        remaining.reload();
        const auto mode = QAbstractItemModelTester::FailureReportingMode::QtTest;
        const QAbstractItemModelTester folderTester(&folders, mode);
        const QAbstractItemModelTester remainingTester(&remaining, mode);
        const QModelIndex group = folders.index(0, 0);
        QCOMPARE(group.data().toString(), u"文件夹组 #1"_qs);
        QCOMPARE(group.siblingAtColumn(2).data().toString(), u"3"_qs);
        QCOMPARE(folders.index(1, 1, group).data().toString(), Mirrix::shownPath(u"/y/two"_qs));
        QCOMPARE(folders.index(1, 3, group).data().toString(), u"2.0 KB"_qs);
        QSignalSpy moved(&remaining, &QAbstractItemModel::layoutChanged);
        remaining.sort(Mirrix::RemainingModel::FileColumn, Qt::AscendingOrder);
        QTRY_COMPARE(moved.size(), 1);
        QCOMPARE(column(remaining, 1), QStringList({u"3 B"_qs, u"1 B"_qs, u"2 B"_qs}));
        results = {};
        remaining.reload();
        QCOMPARE(remaining.rowCount(), 0);
    }

    void saysWhyActionsRest()
    {
        using Mirrix::BatchState;
        using Mirrix::ResultsTab;
        const BatchState scanning{ResultsTab::Folders, true, true, 0};
        const BatchState nothing;
        const BatchState ready{ResultsTab::Duplicates, false, true, 7};
        QCOMPARE(batchNote(scanning), u"扫描进行中，批量操作已暂停。"_qs);
        QCOMPARE(batchNote(nothing), u"扫描完成后，在左侧勾选重复项再执行批量操作。"_qs);
        QCOMPARE(batchNote(ready), u"已勾选 7 个文件"_qs);
        QVERIFY(!scanning.isActive() && !nothing.isActive() && ready.isActive());
    }

    void listsFacts()
    {
        FileEntry entry = file(u"/p/My.Photo.JPG"_qs, 1536, 0);
        const QString plain = u"路径: %1\n大小: 1.5 KB\n修改: \n后缀: jpg"_qs.arg(Mirrix::shownPath(entry.path));
        QCOMPARE(Mirrix::previewText(entry), plain);
        entry.width = 640;
        entry.height = 480;
        entry.cameraMake = u"Make"_qs;
        entry.cameraModel = u"Model"_qs;
        entry.artist = u"Someone"_qs;
        entry.title = u"Dawn"_qs;
        entry.dateTaken = u"2020:01:02"_qs;
        QCOMPARE(Mirrix::previewText(entry),
                 plain + u"\n尺寸: 640 × 480\n相机: Make Model\n拍摄: 2020:01:02\n艺术家: Someone\n标题: Dawn"_qs);
    }
};

QTEST_GUILESS_MAIN(TestResultsModel)
#include "tst_resultsmodel.moc"
