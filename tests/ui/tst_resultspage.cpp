#include "tests/ui/uitest.h"
#include "ui/results/previewpane.h"
#include "ui/results/resultspage.h"
#include "ui/results/resultstree.h"
#include "ui/results/thumbnailview.h"

#include <QtEndian>

using MirrixCore::FileEntry;

namespace {

FileEntry file(const QString &path)
{
    FileEntry entry;
    entry.path = path;
    entry.size = 10;
    return entry;
}

/// A page with `groups` groups of three files, twelve folder groups of two and the given remaining files.
struct Shown
{
    ResultSet results;
    ResultsPage page{results};
    ResultsTree *tree = child<ResultsTree>(u"DuplicateFilesTree"_s);

    explicit Shown(int groups, const QStringList &remaining = {})
    {
        for (int i = 0; i < groups; ++i) {
            const QString base = u"/photos/%1/"_s.arg(i);
            results.groups.append({u"k"_s, {file(base + u"a"_s), file(base + u"b"_s), file(base + u"c"_s)}, 20});
        }
        results.folderGroups.fill({{{u"/one"_s, 1, 10}, {u"/two"_s, 1, 10}}, 1, 10}, 12);
        for (const QString &path : remaining)
            results.remaining.append(file(path));
        results.marks.reset(results.groups);
        page.resize(1000, 700);
        page.show();
        page.showResults();
    }

    template <typename Widget>
    [[nodiscard]] Widget *child(const QString &name) const
    {
        return part<Widget>(page, name);
    }

    [[nodiscard]] QString text(const QString &label) const { return child<QLabel>(label)->text(); }

    /// The selected files in order, "group.file".
    [[nodiscard]] QString selected() const
    {
        QStringList files;
        for (const auto &[group, number] : page.selectedFiles())
            files.append(u"%1.%2"_s.arg(group).arg(number));
        files.sort();
        return files.join(u' ');
    }
};

/// The head of a bitmap of 200 megapixels, without the pixels.
QByteArray hugeBitmap()
{
    QByteArray bytes = "BM" + QByteArray(52, '\0');
    for (const auto &[at, value] : {std::pair(10, 54), {14, 40}, {18, 20'000}, {22, 10'000}, {26, 1 | 24 << 16}})
        qToLittleEndian(value, bytes.data() + at);
    return bytes;
}

} // namespace

class TestResultsPage : public QObject
{
    Q_OBJECT

private slots:
    void expandsTheFirstGroups()
    {
        Shown shown(25);
        const ResultsTree *tree = shown.tree;
        for (int row = 0; row < 25; ++row)
            QCOMPARE(tree->isExpanded(tree->model()->index(row, 0)), row < 20);
        const auto *folders = shown.child<ResultsTree>(u"DuplicateFoldersTree"_s);
        for (int row = 0; row < 12; ++row)
            QCOMPARE(folders->isExpanded(folders->model()->index(row, 0)), row < 10);
    }

    void expandsEverythingAsFarAsSeen()
    {
        Shown shown(5000);
        ResultsTree *tree = shown.tree;
        tree->expandEverything();
        for (const int percent : {0, 100, 50, 49}) {
            tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum() * percent / 100);
            int rows = 0;
            for (QModelIndex index = tree->indexAt({0, 0});
                 tree->visualRect(index).top() < tree->viewport()->height() && index.isValid();
                 index = tree->indexBelow(index), ++rows)
                QVERIFY(tree->model()->hasChildren(index) == tree->isExpanded(index));
            QVERIFY(rows > 10);
        }
        const QModelIndex top = tree->indexAt({0, 0});
        const QModelIndex closed = top.parent().isValid() ? top.parent() : top;
        tree->collapse(closed);
        tree->verticalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
        QVERIFY(!tree->isExpanded(closed)); // what the user closed stays closed
        tree->collapseEverything();
        tree->verticalScrollBar()->setValue(0);
        QVERIFY(!tree->isExpanded(tree->model()->index(0, 0)));
    }

    void ticksByMouseAndKeys()
    {
        Shown shown(3);
        QSignalSpy changed(&shown.page, &ResultsPage::markChanged);
        ResultsTree *tree = shown.tree;
        const QModelIndex box = tree->model()->index(1, 0, tree->model()->index(0, 0));
        QStyleOptionViewItem option;
        option.initFrom(tree);
        option.rect = tree->visualRect(box);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect check = tree->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, check.center());
        QVERIFY(shown.results.marks.isMarked(0, 1));
        tree->setCurrentIndex(box);
        QTest::keyClick(tree, Qt::Key_Down);
        QTest::keyClick(tree, Qt::Key_Space);
        QVERIFY(shown.results.marks.isMarked(0, 2));
        QTest::keyClick(tree, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(tree, Qt::Key_Space); // both, to what the current one becomes
        QCOMPARE(shown.results.marks.markedInAll(), 0);
        QCOMPARE(changed.size(), 3);
        QCOMPARE(shown.selected(), u"0.1 0.2"_s);
        QSignalSpy remove(&shown.page, &ResultsPage::removeRequested);
        QTest::keyClick(tree, Qt::Key_Delete);
        QCOMPARE(remove.size(), 1);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(box.siblingAtColumn(1)).center());
        QTest::keySequence(tree, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QDir::toNativeSeparators(u"/photos/0/b"_s));
    }

    void sortsByTheHeader()
    {
        Shown shown(3);
        shown.results.groups[2].wastedBytes = 99;
        ResultsTree *tree = shown.tree;
        const auto firstGroup = [tree] { return tree->model()->index(0, 1).data().toString().section(u' ', 1, 1); };
        const QPoint header(tree->header()->sectionViewportPosition(2) + 10, tree->header()->height() / 2);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTRY_COMPARE(firstGroup(), u"#3"_s);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTRY_COMPARE(firstGroup(), u"#1"_s);
    }

    void ticksAGroupByItsMenu()
    {
        Shown shown(3);
        ResultsTree *tree = shown.tree;
        emit tree->customContextMenuRequested(tree->visualRect(tree->model()->index(1, 0)).center());
        const auto *menu = shown.child<QMenu>(u"ResultMenu"_s);
        QStringList texts;
        for (QAction *action : menu->actions())
            texts.append(action->text());
        QVERIFY(!menu->actions().first()->isEnabled()); // a group is no file
        menu->actions().at(texts.indexOf(u"全选本组重复项"_s))->trigger();
        QCOMPARE(shown.results.marks.markedIn(1), 2);
        QCOMPARE(shown.results.marks.markedInAll(), 2);
        QVERIFY(!shown.results.marks.isMarked(1, 0));
    }

    void ticksThumbnails()
    {
        Shown shown(50'000);
        shown.child<QComboBox>(u"ResultsViewCombo"_s)->setCurrentIndex(1);
        auto *view = shown.child<ThumbnailView>(u"DuplicateThumbnails"_s);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->checkRect({0, 1}).center());
        QVERIFY(shown.results.marks.isMarked(0, 1));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cellRect({0, 0}).center());
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Down); // the next group, same column
        QTest::keyClick(view, Qt::Key_Space);
        QVERIFY(shown.results.marks.isMarked(1, 1));
        QCOMPARE(shown.selected(), u"1.1"_s);
        QTest::keyClick(view, Qt::Key_Up);
        QTest::keyClick(view, Qt::Key_Left);
        QCOMPARE(shown.selected(), u"0.0"_s);
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        QVERIFY(view->viewport()->rect().contains(view->cellRect({49'999, 2})));
    }

    void showsNotesOnEachTab()
    {
        Shown shown(1);
        auto *tabs = shown.child<QTabWidget>(u"ResultsTabs"_s);
        const auto *remove = shown.child<QPushButton>(u"DeleteSelectedButton"_s);
        QVERIFY(remove->isEnabled());
        tabs->setCurrentIndex(1);
        QVERIFY(shown.text(u"BatchNoteLabel"_s).startsWith(u"「重复文件夹」为只读视图"));
        QVERIFY(!remove->isEnabled());
        auto *folders = shown.child<ResultsTree>(u"DuplicateFoldersTree"_s);
        folders->setCurrentIndex(folders->model()->index(1, 1, folders->model()->index(0, 0)));
        QCOMPARE(shown.text(u"PreviewText"_s), u"文件夹: "_s + QDir::toNativeSeparators(u"/two"_s));
        tabs->setCurrentIndex(2);
        QVERIFY(shown.text(u"BatchNoteLabel"_s).startsWith(u"「其余文件」为只读视图"));
        shown.page.setScanning(true);
        tabs->setCurrentIndex(0);
        QVERIFY(!remove->isEnabled());
    }

    void previewsPictures()
    {
        const MirrixTest::TempTree folder;
        QVERIFY(QImage(400, 200, QImage::Format_RGB32).save(folder.path(u"good.png"_s)));
        const QStringList paths{folder.path(u"good.png"_s), folder.write(u"broken.jpg"_s, "no picture"),
                                folder.write(u"huge.bmp"_s, hugeBitmap()), folder.path(u"vanished.png"_s),
                                folder.write(u"text.xyz"_s, "text")};
        const QStringList texts{QString(), u"无法读取此图片"_s, u"图片过大，无法预览"_s, u"文件已不存在或无法访问"_s,
                                u"无图像预览\n"_s + QDir::toNativeSeparators(paths[4])};
        Shown shown(1, paths);
        shown.page.setFactsReader([](FileEntry entry) {
            entry.title = u"T"_s;
            return entry;
        });
        shown.child<QTabWidget>(u"ResultsTabs"_s)->setCurrentIndex(2);
        auto *tree = shown.child<ResultsTree>(u"RemainingFilesTree"_s);
        const auto *canvas = shown.child<PreviewCanvas>(u"PreviewCanvas"_s);
        for (int row : {1, 2, 3, 4, 0}) {
            tree->setCurrentIndex(tree->model()->index(row, 0));
            QTRY_VERIFY(shown.text(u"PreviewText"_s).endsWith(u"\n标题: T"_s));
            QVERIFY(shown.text(u"PreviewText"_s).startsWith(u"路径: "_s + QDir::toNativeSeparators(paths[row])));
            QCOMPARE(canvas->text(), texts[row]);
            QCOMPARE(canvas->hasPicture(), row == 0);
        }
        shown.page.clearResults();
        QVERIFY(!canvas->hasPicture());
        QCOMPARE(shown.text(u"PreviewText"_s), u"选择文件以预览"_s);
    }

    void showsStateAndClears()
    {
        Shown shown(3, {u"/r"_s});
        const QString status(500, u'x');
        shown.page.setStatusText(status);
        QVERIFY(shown.text(u"StatusLabel"_s).contains(QChar(0x2026)));
        QCOMPARE(shown.child<QLabel>(u"StatusLabel"_s)->toolTip(), status);
        shown.page.setProgress(70);
        shown.results = {};
        shown.page.clearResults();
        for (const QString &name : {u"DuplicateFilesTree"_s, u"DuplicateFoldersTree"_s, u"RemainingFilesTree"_s})
            QCOMPARE(shown.child<ResultsTree>(name)->model()->rowCount(), 0);
        QCOMPARE(shown.child<QProgressBar>(u"ScanProgressBar"_s)->value(), 0);
        QVERIFY(!shown.child<QPushButton>(u"ClearResultsButton"_s)->isEnabled());
    }
};

QTEST_MAIN(TestResultsPage)
#include "tst_resultspage.moc"
