#include "ui/models/foldergroupsmodel.h"
#include "ui/models/remainingmodel.h"
#include "ui/models/resultsmodel.h"
#include "ui/texts/resulttexts.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace {

MirrixCore::FileEntry file(const QString &path, qint64 size, qint64 modifiedMs = 1)
{
    MirrixCore::FileEntry entry;
    entry.path = path;
    entry.size = size;
    entry.modifiedMs = modifiedMs;
    return entry;
}

/// Three groups; by reclaimable size they already stand in order.
ResultSet made()
{
    ResultSet results;
    results.groups = {{u"k1"_s, {file(u"/c/1.jpg"_s, 4096, 10), file(u"/c/2.jpg"_s, 4096, 90)}, 4096},
                      {u"k2"_s, {file(u"/a/1.JPG"_s, 512, 50), file(u"/a/2"_s, 512), file(u"/a/3"_s, 512)}, 1024},
                      {u"k3"_s, {file(u"/B/1.txt"_s, 1024, 20), file(u"/B/2.txt"_s, 1024, 30)}, 1024}};
    results.folderGroups = {{{{u"/x/one"_s, 3, 2048}, {u"/y/two"_s, 3, 2048}}, 3, 2048}};
    results.remaining = {file(u"/r/b"_s, 1), file(u"/r/A"_s, 3), file(u"/r/c"_s, 2)};
    results.marks.reset(results.groups);
    return results;
}

constexpr auto testerMode = QAbstractItemModelTester::FailureReportingMode::QtTest;

/// The model over the made results, watched by Qt's own tester.
struct Shown
{
    ResultSet results = made();
    QStringList iconsAsked;
    SuffixIcons icons{[this](const QString &suffix) {
        iconsAsked.append(suffix);
        return QIcon();
    }};
    ResultsModel model{results, icons};
    QAbstractItemModelTester tester{&model, testerMode};

    Shown() { model.reload(); }

    /// The numbers of the groups that are shown, in their order.
    [[nodiscard]] QString groups() const
    {
        QString numbers;
        for (int row = 0; row < model.rowCount(); ++row)
            numbers += QString::number(model.itemOf(model.index(row, 0)));
        return numbers;
    }
};

} // namespace

class TestResultsModel : public QObject
{
    Q_OBJECT

private slots:
    void showsGroupsAndFiles()
    {
        Shown shown;
        const QModelIndex second = shown.model.index(1, 0);
        QCOMPARE(second.siblingAtColumn(ResultsModel::FileColumn).data().toString(),
                 u"分组 #2  (3 个文件, 可回收 1.0 KB)"_s);
        QCOMPARE(shown.model.rowCount(second), 3);
        const QModelIndex name = shown.model.index(0, ResultsModel::FileColumn, second);
        QCOMPARE(name.data().toString(), shownPath(u"/a/1.JPG"_s));
        QCOMPARE(name.data(Qt::ToolTipRole), name.data());
        for (const auto &[place, text] : {std::pair(MirrixCore::FilePlace::RecycleBin, u"位于回收站中"_s),
                                          {MirrixCore::FilePlace::BackupFolder, u"位于备份文件夹中"_s},
                                          {MirrixCore::FilePlace::Snapshot, u"位于快照中"_s}}) {
            shown.results.groups[1].files[0].place = place;
            QCOMPARE(name.data(Qt::ToolTipRole).toString(), name.data().toString() + u'\n' + text);
        }
        QCOMPARE(name.siblingAtColumn(ResultsModel::SizeColumn).data().toString(), u"512 B"_s);
        QCOMPARE(name.siblingAtColumn(ResultsModel::ModifiedColumn).data().toString(),
                 QDateTime::fromMSecsSinceEpoch(50).toString(u"yyyy-MM-dd HH:mm"_s));
        for (int i = 0; i < 2; ++i) {
            (void)shown.model.index(i, ResultsModel::FileColumn, shown.model.index(0, 0)).data(Qt::DecorationRole);
            (void)name.data(Qt::DecorationRole);
        }
        QCOMPARE(shown.iconsAsked, QStringList({u"jpg"_s})); // once a suffix, whatever its case
    }

    void writesMarks()
    {
        Shown shown;
        QSignalSpy changed(&shown.model, &ResultsModel::markChanged);
        SelectionMarks &marks = shown.results.marks;
        const QModelIndex group = shown.model.index(1, 0);
        const QModelIndex box = shown.model.index(2, 0, group);
        QVERIFY(box.flags().testFlag(Qt::ItemIsUserCheckable));
        QVERIFY(shown.model.setData(box, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(marks.isMarked(1, 2));
        QCOMPARE(box.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(group.data().toString(), u"1 / 3"_s);
        QVERIFY(!shown.model.setData(group, Qt::Checked, Qt::CheckStateRole));
        shown.model.markDuplicatesOf(1);
        QVERIFY(!marks.isMarked(1, 0) && marks.isMarked(1, 1) && marks.isMarked(1, 2));
        QCOMPARE(changed.size(), 2);

        QVERIFY(group.data(Qt::ToolTipRole).toString().isEmpty());
        marks.setMarked(1, 0, true);
        QVERIFY(!group.data(Qt::ToolTipRole).toString().isEmpty()); // nothing would be kept
        marks.invert();
        QCOMPARE(marks.markedInAll(), 4);
        QCOMPARE(shown.model.index(0, 0).data(ResultsModel::MarkedCountRole).toInt(), 2);
    }

    void sorts_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("isDescending");
        QTest::addColumn<QString>("groups");
        QTest::newRow("files") << int(ResultsModel::SelectColumn) << true << u"102"_s;
        QTest::newRow("name") << int(ResultsModel::FileColumn) << false << u"120"_s;
        QTest::newRow("size, equals keep their order") << int(ResultsModel::SizeColumn) << false << u"120"_s;
        QTest::newRow("size downwards") << int(ResultsModel::SizeColumn) << true << u"012"_s;
        QTest::newRow("latest date") << int(ResultsModel::ModifiedColumn) << false << u"210"_s;
        QTest::newRow("result order") << -1 << true << u"012"_s;
    }

    void sorts()
    {
        QFETCH(int, column);
        QFETCH(bool, isDescending);
        QFETCH(QString, groups);
        Shown shown;
        const QPersistentModelIndex group = shown.model.index(1, 0);
        const QPersistentModelIndex child = shown.model.index(1, 0, group);
        QSignalSpy moved(&shown.model, &QAbstractItemModel::layoutChanged);
        shown.model.sort(ResultsModel::ModifiedColumn, Qt::AscendingOrder); // overtaken by the next
        shown.model.sort(column, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
        QTRY_COMPARE(moved.size(), 1);
        QCOMPARE(shown.groups(), groups);
        QCOMPARE(group.row(), groups.indexOf(u'1'));
        QCOMPARE(child.parent(), QModelIndex(group));
        QVERIFY(shown.model.setData(child, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(shown.results.marks.isMarked(1, 1)); // the mark of the group, not of the row
    }

    void filtersByPath()
    {
        Shown shown;
        shown.results.marks.setMarked(2, 1, true);
        QSignalSpy filtered(&shown.model, &ResultsModel::filtered);
        shown.model.setPathFilter(u"/b/"_s); // overtaken by the next
        shown.model.setPathFilter(u"1.jp"_s);
        QTRY_COMPARE(filtered.size(), 1);
        QCOMPARE(shown.groups(), u"01"_s);
        QCOMPARE(shown.model.rowCount(shown.model.index(1, 0)), 3); // with the copies that do not match
        QVERIFY(!shown.model.itemIndex(2).isValid());
        shown.model.sort(ResultsModel::FileColumn);
        QTRY_COMPARE(shown.groups(), u"10"_s);
        const QModelIndex box = shown.model.index(0, 0, shown.model.index(0, 0));
        QVERIFY(shown.model.setData(box, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(shown.results.marks.isMarked(1, 0));
        shown.model.setPathFilter(u"nowhere"_s);
        QTRY_COMPARE(shown.groups(), QString());
        shown.model.setPathFilter({});
        QTRY_COMPARE(shown.groups(), u"120"_s);
        QCOMPARE(shown.results.marks.markedInAll(), 2);
        shown.model.setPathFilter(u"/a/"_s);
        shown.model.reload(); // new results clear the filter
        QCOMPARE(shown.groups(), u"012"_s);
    }

    void showsFoldersAndRemaining()
    {
        ResultSet results = made();
        const SuffixIcons icons;
        FolderGroupsModel folders(results);
        RemainingModel remaining(results, icons);
        folders.reload();
        remaining.reload();
        const QAbstractItemModelTester folderTester(&folders, testerMode);
        const QAbstractItemModelTester remainingTester(&remaining, testerMode);
        const QModelIndex group = folders.index(0, 0);
        QCOMPARE(group.data().toString(), u"文件夹组 #1"_s);
        QCOMPARE(group.siblingAtColumn(2).data().toString(), u"3"_s);
        QCOMPARE(folders.index(1, 1, group).data().toString(), shownPath(u"/y/two"_s));
        QCOMPARE(folders.index(1, 3, group).data().toString(), u"2.0 KB"_s);
        remaining.sort(RemainingModel::FileColumn, Qt::AscendingOrder);
        QTRY_COMPARE(remaining.index(0, 1).data().toString(), u"3 B"_s);
        QCOMPARE(remaining.index(2, 1).data().toString(), u"2 B"_s);
        results = {};
        remaining.reload();
        QCOMPARE(remaining.rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestResultsModel)
#include "tst_resultsmodel.moc"
