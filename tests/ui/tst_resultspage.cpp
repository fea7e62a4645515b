#include "tests/support/temptree.h"
#include "ui/results/previewpane.h"
#include "ui/results/resultspage.h"
#include "ui/results/resultstree.h"
#include "ui/results/thumbnailview.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>
#include <QtEndian>

using Mirrix::ResultsPage;
using Mirrix::ResultsTree;
using MirrixCore::DuplicateGroup;
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
    explicit Shown(int groups, const QStringList &remaining = {})
    {
        for (int i = 0; i < groups; ++i) {
            const QString base = u"/photos/%1/"_qs.arg(i);
            results.groups.append(
                {u"k"_qs, {file(base + u"a.txt"_qs), file(base + u"b.txt"_qs), file(base + u"c.txt"_qs)}, 20});
        }
        for (int i = 0; i < 12; ++i)
            results.folderGroups.append({{{u"/one"_qs, 1, 10}, {u"/two"_qs, 1, 10}}, 1, 10});
        for (const QString &path : remaining)
            results.remaining.append(file(path));
        results.marks.reset(results.groups);
        page.resize(1000, 700);
        page.show();
        page.showResults();
    }

    template <typename T>
    T *child(const QString &name)
    {
        T *found = page.findChild<T *>(name);
        return found ? found : throw std::runtime_error(qPrintable(name));
    }

    ResultsTree *tree() { return child<ResultsTree>(u"DuplicateFilesTree"_qs); }
    QString text(const QString &label) { return child<QLabel>(label)->text(); }

    Mirrix::ResultSet results;
    ResultsPage page{results};
};

/// Gives every text of the program a star.
class Stars : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "Mirrix") == 0 ? QString::fromUtf8(source) + u'*' : QString();
    }
    bool isEmpty() const override { return false; }
};

/// The head of a bitmap of 200 megapixels, without the pixels.
QByteArray hugeBitmap()
{
    QByteArray bytes(54, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    const auto put = [&bytes](int at, quint32 value) { qToLittleEndian(value, bytes.data() + at); };
    put(10, 54);
    put(14, 40);
    put(18, 20'000);
    put(22, 10'000);
    put(26, 1 | 24 << 16);
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
        const ResultsTree *tree = shown.tree();
        for (int row = 0; row < 25; ++row)
            QCOMPARE(tree->isExpanded(tree->model()->index(row, 0)), row < 20);
        const auto *folders = shown.child<ResultsTree>(u"DuplicateFoldersTree"_qs);
        for (int row = 0; row < 12; ++row)
            QCOMPARE(folders->isExpanded(folders->model()->index(row, 0)), row < 10);
    }

    void expandsEverythingAsFarAsSeen()
    {
        Shown shown(5000);
        ResultsTree *tree = shown.tree();
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
        const QModelIndex closed =
            tree->indexAt({0, 0}).parent().isValid() ? tree->indexAt({0, 0}).parent() : tree->indexAt({0, 0});
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
        ResultsTree *tree = shown.tree();
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
        const QList<QPair<qsizetype, qsizetype>> both{{0, 1}, {0, 2}};
        QList<QPair<qsizetype, qsizetype>> selected = shown.page.selectedFiles();
        std::sort(selected.begin(), selected.end());
        QCOMPARE(selected, both);

        QSignalSpy remove(&shown.page, &ResultsPage::removeRequested);
        QTest::keyClick(tree, Qt::Key_Delete);
        QCOMPARE(remove.size(), 1);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(box.siblingAtColumn(1)).center());
        QTest::keySequence(tree, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QDir::toNativeSeparators(u"/photos/0/b.txt"_qs));

        shown.results.marks.setMarked(2, 0, true);
        shown.page.showResults();
        QCOMPARE(tree->model()->index(0, 0, tree->model()->index(2, 0)).data(Qt::CheckStateRole).toInt(),
                 int(Qt::Checked));
    }

    void sortsByTheHeader()
    {
        Shown shown(3);
        shown.results.groups[2].wastedBytes = 99;
        ResultsTree *tree = shown.tree();
        const auto firstGroup = [tree] { return tree->model()->index(0, 1).data().toString().section(u' ', 1, 1); };
        const QPoint header(tree->header()->sectionViewportPosition(2) + 10, tree->header()->height() / 2);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTRY_COMPARE(firstGroup(), u"#3"_qs);
        QTest::mouseClick(tree->header()->viewport(), Qt::LeftButton, {}, header);
        QTRY_COMPARE(firstGroup(), u"#1"_qs);
    }

    void ticksAGroupByItsMenu()
    {
        Shown shown(3);
        ResultsTree *tree = shown.tree();
        emit tree->customContextMenuRequested(tree->visualRect(tree->model()->index(1, 0)).center());
        const auto *menu = shown.child<QMenu>(u"ResultMenu"_qs);
        QStringList texts;
        for (QAction *action : menu->actions())
            texts.append(action->text());
        QVERIFY(texts.contains(u"对比图片 (选 2 个)"_qs) && texts.contains(u"在资源管理器中打开"_qs));
        QVERIFY(!menu->actions().first()->isEnabled()); // a group is no file
        menu->actions().at(texts.indexOf(u"全选本组重复项"_qs))->trigger();
        QCOMPARE(shown.results.marks.markedIn(1), 2);
        QCOMPARE(shown.results.marks.markedInAll(), 2);
        QVERIFY(!shown.results.marks.isMarked(1, 0));
    }

    void ticksThumbnails()
    {
        Shown shown(50'000);
        shown.child<QComboBox>(u"ResultsViewCombo"_qs)->setCurrentIndex(1);
        auto *view = shown.child<Mirrix::ThumbnailView>(u"DuplicateThumbnails"_qs);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->checkRect({0, 1}).center());
        QVERIFY(shown.results.marks.isMarked(0, 1));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cellRect({0, 0}).center());
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Down); // the next group, same column
        QTest::keyClick(view, Qt::Key_Space);
        QVERIFY(shown.results.marks.isMarked(1, 1));
        QCOMPARE(shown.page.selectedFiles(), (QList<QPair<qsizetype, qsizetype>>{{1, 1}}));
        QTest::keyClick(view, Qt::Key_Up);
        QTest::keyClick(view, Qt::Key_Left);
        QCOMPARE(shown.page.selectedFiles(), (QList<QPair<qsizetype, qsizetype>>{{0, 0}}));
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        QVERIFY(view->viewport()->rect().contains(view->cellRect({49'999, 2})));
    }

    void showsNotesOnEachTab()
    {
        Shown shown(1);
        auto *tabs = shown.child<QTabWidget>(u"ResultsTabs"_qs);
        const auto *remove = shown.child<QPushButton>(u"DeleteSelectedButton"_qs);
        QVERIFY(remove->isEnabled());
        tabs->setCurrentIndex(1);
        QCOMPARE(shown.text(u"BatchNoteLabel"_qs), u"「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。"_qs);
        QVERIFY(!remove->isEnabled());
        auto *folders = shown.child<ResultsTree>(u"DuplicateFoldersTree"_qs);
        folders->setCurrentIndex(folders->model()->index(1, 1, folders->model()->index(0, 0)));
        QCOMPARE(shown.text(u"PreviewText"_qs), u"文件夹: "_qs + QDir::toNativeSeparators(u"/two"_qs));
        tabs->setCurrentIndex(2);
        QCOMPARE(shown.text(u"BatchNoteLabel"_qs), u"「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。"_qs);
        shown.page.setScanning(true);
        tabs->setCurrentIndex(0);
        QCOMPARE(shown.text(u"BatchNoteLabel"_qs), u"扫描进行中，批量操作已暂停。"_qs);
        QVERIFY(!remove->isEnabled());
    }

    void previewsPictures()
    {
        const MirrixTest::TempTree folder;
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(folder.path(u"good.png"_qs)));
        const QStringList paths{folder.path(u"good.png"_qs), folder.write(u"broken.jpg"_qs, "no picture"),
                                folder.write(u"huge.bmp"_qs, hugeBitmap()), folder.path(u"vanished.png"_qs),
                                folder.write(u"text.xyz"_qs, "text")};
        const QStringList texts{QString(), u"无法读取此图片"_qs, u"图片过大，无法预览"_qs, u"文件已不存在或无法访问"_qs,
                                u"无图像预览\n"_qs + QDir::toNativeSeparators(paths[4])};
        Shown shown(1, paths);
        shown.page.setFactsReader([](FileEntry entry) {
            entry.title = u"T"_qs;
            return entry;
        });
        shown.child<QTabWidget>(u"ResultsTabs"_qs)->setCurrentIndex(2);
        auto *tree = shown.child<ResultsTree>(u"RemainingFilesTree"_qs);
        const auto *canvas = shown.child<Mirrix::PreviewCanvas>(u"PreviewCanvas"_qs);
        for (int row : {1, 2, 3, 4, 0}) {
            tree->setCurrentIndex(tree->model()->index(row, 0));
            QTRY_VERIFY(shown.text(u"PreviewText"_qs).endsWith(u"\n标题: T"_qs));
            QVERIFY(shown.text(u"PreviewText"_qs).startsWith(u"路径: "_qs + QDir::toNativeSeparators(paths[row])));
            QCOMPARE(canvas->text(), texts[row]);
            QCOMPARE(canvas->hasPicture(), row == 0);
        }
        shown.page.clearResults();
        QVERIFY(!canvas->hasPicture());
        QCOMPARE(shown.text(u"PreviewText"_qs), u"选择文件以预览"_qs);
    }

    void showsStateAndClears()
    {
        Shown shown(3, {u"/r"_qs});
        QCOMPARE(shown.text(u"SummaryLabel"_qs), u"尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。"_qs);
        QCOMPARE(shown.text(u"StatusLabel"_qs), u"就绪"_qs);
        const QString status(500, u'x');
        shown.page.setStatusText(status);
        QVERIFY(shown.text(u"StatusLabel"_qs).contains(QChar(0x2026)));
        QCOMPARE(shown.child<QLabel>(u"StatusLabel"_qs)->toolTip(), status);
        shown.page.setProgress(70);
        shown.page.setSummary(u"sum"_qs);
        shown.results = {};
        shown.page.clearResults();
        for (const QString &name : {u"DuplicateFilesTree"_qs, u"DuplicateFoldersTree"_qs, u"RemainingFilesTree"_qs})
            QCOMPARE(shown.child<ResultsTree>(name)->model()->rowCount(), 0);
        QCOMPARE(shown.child<QProgressBar>(u"ScanProgressBar"_qs)->value(), 0);
        QCOMPARE(shown.text(u"BatchNoteLabel"_qs), u"扫描完成后，在左侧勾选重复项再执行批量操作。"_qs);
        QVERIFY(!shown.child<QPushButton>(u"ClearResultsButton"_qs)->isEnabled());
    }

    void changesItsLanguage()
    {
        Shown shown(1);
        shown.page.setSummary(u"sum"_qs);
        shown.page.setBackupBeforeDelete(true);
        Stars stars;
        QCoreApplication::installTranslator(&stars);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(shown.text(u"StatusLabel"_qs), u"就绪*"_qs);
        QCOMPARE(shown.text(u"SummaryLabel"_qs), u"sum"_qs);
        QCOMPARE(shown.text(u"PreviewTitle"_qs), u"文件预览*"_qs);
        QCOMPARE(shown.child<QComboBox>(u"ResultsViewCombo"_qs)->itemText(1), u"缩略图*"_qs);
        QCOMPARE(shown.child<QTabWidget>(u"ResultsTabs"_qs)->tabText(2), u"其余 / 唯一文件*"_qs);
        QCOMPARE(shown.tree()->model()->headerData(1, Qt::Horizontal).toString(), u"文件 / 分组*"_qs);
        for (const QPushButton *button : shown.page.findChildren<QPushButton *>())
            QVERIFY2(button->text().endsWith(u'*'), qPrintable(button->objectName()));
        QVERIFY(shown.page.backupBeforeDelete());
        QCoreApplication::removeTranslator(&stars);
    }
};

QTEST_MAIN(TestResultsPage)
#include "tst_resultspage.moc"
