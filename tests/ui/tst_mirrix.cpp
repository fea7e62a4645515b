#include "ui/mirrix.h"

#include "app/translations.h"
#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTest>
#include <QTreeView>

using MirrixTest::ScriptedPrompts;
using MirrixTest::TempTree;

namespace {

/// A window over its own files and its own data folder.
struct Stage
{
    TempTree tree;
    Mirrix::Settings settings;
    ScriptedPrompts prompts;
    std::unique_ptr<MirrixUi::Mirrix> window;

    Stage()
        : settings(Mirrix::defaultSettings(tree.path(u"data"_qs)))
    {
        settings.trayEnabled = false;
        tree.makeFolder(u"data"_qs);
        tree.write(u"in/a.txt"_qs, "the same");
        tree.write(u"in/b.txt"_qs, "the same");
        tree.write(u"in/deep/c.txt"_qs, "the same");
        tree.write(u"in/d.txt"_qs, "alone");
        open();
    }

    void open()
    {
        window = std::make_unique<MirrixUi::Mirrix>(settings, prompts);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    template <typename Widget>
    Widget *find(const QString &name) const
    {
        return window->findChild<Widget *>(name);
    }

    /// The texts of all labels of a name: pages share names.
    QStringList texts(const QString &name) const
    {
        QStringList found;
        const auto labels = window->findChildren<QLabel *>(name);
        for (const QLabel *label : labels)
            found.append(label->text());
        return found;
    }

    void click(const QString &button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    void start() const { click(u"PrimaryButton"_qs); }
    void accept(bool dontAskAgain = false) { prompts.confirmations.append({true, dontAskAgain}); }
    bool waitForEnd() const
    {
        return QTest::qWaitFor([this] { return !window->isScanning(); }, 60000);
    }

    QStringList logged() const
    {
        QStringList records;
        const auto entries = Mirrix::OperationsLog(Mirrix::operationsLogPath(settings.directory)).entries();
        for (const Mirrix::LogEntry &entry : entries)
            records.append(entry.action + u'|' + entry.detail);
        return records;
    }
};

QAction *actionOf(const QMenuBar *bar, const QString &text)
{
    const auto actions = bar->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class TestMirrix : public QObject
{
    Q_OBJECT

private slots:
    void showsItsTexts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("brand") << u"BrandTitle"_qs << u"Mirrix"_qs;
        QTest::newRow("badge") << u"BrandBadge"_qs << u"重复文件清理"_qs;
        QTest::newRow("trail") << u"WizardTrail"_qs << u"① 选择位置 → ② 匹配规则 → ③ 预览并清理"_qs;
        QTest::newRow("title") << u"WizardPageTitle"_qs << u"选择一个路径开始查重"_qs;
        QTest::newRow("hint") << u"WizardPageHint"_qs << u"选好后点击左侧「开始扫描」"_qs;
        QTest::newRow("step") << u"WizardStepTitle"_qs << u"选择位置"_qs;
        QTest::newRow("summary") << u"SummaryLabel"_qs << u"尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。"_qs;
        QTest::newRow("status") << u"StatusLabel"_qs << u"就绪"_qs;
    }

    void showsItsTexts()
    {
        const Stage stage;
        QFETCH(QString, name);
        QFETCH(QString, text);
        QVERIFY2(stage.texts(name).contains(text), qUtf8Printable(stage.texts(name).join(u'|')));
    }

    void goesFromStepToStep()
    {
        const Stage stage;
        const auto *pages = stage.find<QStackedWidget>(u"WizardPages"_qs);
        QCOMPARE(pages->count(), 3);
        QCOMPARE(stage.window->statusBar()->currentMessage(),
                 u"标准模式 · 本地运行 · 零广告 · 图片哈希: OpenCV-pHash"_qs);
        const auto rows = stage.window->findChildren<QLabel *>(u"WizardStepTitle"_qs);
        QCOMPARE(rows.size(), 3);
        QTest::mouseClick(rows[1], Qt::LeftButton);
        QCOMPARE(pages->currentIndex(), 1);
        QStatusTipEvent passing({}); // as from a mouse over the menus
        QCoreApplication::sendEvent(stage.window.get(), &passing);
        QCOMPARE(stage.window->statusBar()->currentMessage(), u"配置规则后点击「开始扫描」"_qs);
        QVERIFY(rows[1]->parentWidget()->property("activeStep").toBool());
        QVERIFY(!rows[0]->parentWidget()->property("activeStep").toBool());
        QTest::keyClick(rows[2]->parentWidget(), Qt::Key_Space);
        QCOMPARE(pages->currentIndex(), 2);
        stage.window->goToStep(-5);
        QCOMPARE(pages->currentIndex(), 0);
    }

    void asksForALocation()
    {
        const Stage stage;
        stage.start();
        QCOMPARE(stage.prompts.asked, QStringList{u"提示|请先勾选启用至少一个扫描位置。"_qs});
        QVERIFY(!stage.window->isScanning());
    }

    void scansWhatWasChosen()
    {
        Stage stage;
        stage.window->addLocation(stage.tree.path(u"in"_qs));
        stage.prompts.confirmations.append({false, true}); // "don't show again", then "cancel": nothing remembered
        stage.start();
        QVERIFY(!stage.window->isScanning());
        QVERIFY(!stage.settings.skipScanConfirm);
        QVERIFY(stage.prompts.asked.last().startsWith(u"确认开始扫描|请确认以下扫描设置："));

        stage.accept(true);
        stage.start();
        QVERIFY(stage.window->isScanning());
        QVERIFY(!stage.find<QPushButton>(u"PrimaryButton"_qs)->isEnabled());
        QVERIFY(stage.find<QPushButton>(u"StopButton"_qs)->isEnabled());
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.settings.skipScanConfirm);
        const QString summary = stage.find<QLabel>(u"SummaryLabel"_qs)->text();
        QVERIFY2(summary.startsWith(u"文件 4 · 重复组 1 · 文件夹组 0 · 其余 0 · 可回收约 16 B · 耗时 "),
                 qUtf8Printable(summary));
        const auto *tree = stage.find<QTreeView>(u"DuplicateFilesTree"_qs);
        QCOMPARE(tree->model()->rowCount(), 1);
        QCOMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 3);
        QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
        QCOMPARE(stage.find<QStackedWidget>(u"WizardPages"_qs)->currentIndex(), 2);
        auto *hint = stage.find<QTreeView>(u"DuplicateFilesTree"_qs)->viewport()->findChild<QLabel *>();
        QVERIFY(!hint->isVisible());
        stage.click(u"ClearResultsButton"_qs);
        QCOMPARE(tree->model()->rowCount(), 0);
        QCOMPARE(stage.find<QLabel>(u"SummaryLabel"_qs)->text(), u"结果已清空。切换Tab调整规则后可重新开始扫描。"_qs);
        QVERIFY(hint->isVisible());
        QCOMPARE(hint->text(), u"扫描后在这里显示结果。"_qs);
        QCOMPARE(stage.logged(),
                 QStringList({u"app_start|Mirrix started"_qs, u"scan_start|"_qs + stage.tree.path(u"in"_qs),
                              u"scan_done|groups=1 wasted=16 candidates=3"_qs}));
        const Mirrix::Settings stored = Mirrix::readSettings(stage.settings.directory);
        QCOMPARE(stored.lastRoots, QStringList{stage.tree.path(u"in"_qs)});
        QVERIFY(stored.skipScanConfirm);
    }

    /// A scan of less than was chosen must not look like one of all.
    void namesWhatWasNotRead()
    {
        Stage stage;
        const QString gone = stage.tree.makeFolder(u"gone"_qs);
        stage.window->addLocation(stage.tree.path(u"in"_qs));
        stage.window->addLocation(gone);
        QVERIFY(QDir().rmdir(gone));
        stage.accept();
        stage.start();
        QVERIFY(stage.waitForEnd());
        const auto *status = stage.find<QLabel>(u"StatusLabel"_qs);
        const QString note = u" · 未能读取 1 项："_qs + QDir::toNativeSeparators(gone);
        QVERIFY2(status->toolTip().endsWith(note), qUtf8Printable(status->toolTip()));
        actionOf(stage.window->menuBar(), u"English"_qs)->trigger();
        QTRY_VERIFY(status->toolTip().contains(u"Could not be read (1): "));
        actionOf(stage.window->menuBar(), u"简体中文"_qs)->trigger();
    }

    void stopsAndStartsAgain()
    {
        Stage stage;
        // Two equal files without content of their own, long enough to be caught in the middle.
        for (const QString &name : {u"in/long1"_qs, u"in/long2"_qs}) {
            stage.tree.write(name, {});
            QVERIFY(QFile::resize(stage.tree.path(name), qint64(20) << 30));
        }
        stage.settings.skipScanConfirm = true;
        stage.window->addLocation(stage.tree.path(u"in"_qs));
        stage.start();
        QTRY_VERIFY(stage.find<QLabel>(u"StatusLabel"_qs)->text() != u"就绪");
        QVERIFY(stage.window->windowTitle().endsWith(u" % - Mirrix · 重复文件查找与清理"));
        stage.click(u"StopButton"_qs);
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.find<QLabel>(u"StatusLabel"_qs)->text(), u"扫描已取消"_qs);
        QCOMPARE(stage.window->windowTitle(), u"Mirrix · 重复文件查找与清理"_qs);
        QVERIFY(stage.prompts.asked.isEmpty()); // a cancelled scan ends without a box
        QVERIFY(QFile::remove(stage.tree.path(u"in/long1"_qs)));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.find<QTreeView>(u"DuplicateFilesTree"_qs)->model()->rowCount(), 1);
    }

    void keepsLocationsBetweenRuns()
    {
        Stage stage;
        stage.window->addLocation(stage.tree.path(u"in"_qs));
        // On the page of locations and in the batch panel: kept at once, so that the removal dialog opens with it.
        for (QCheckBox *box : stage.window->findChildren<QCheckBox *>(u"AutoBackupCheck"_qs)) {
            box->click();
            QCOMPARE(Mirrix::readSettings(stage.settings.directory).autoBackupBeforeDelete, box->isChecked());
        }
        stage.window->close();
        QCOMPARE(stage.logged().last(), u"app_quit|user quit"_qs);
        QCOMPARE(stage.logged().size(), 2);
        stage.settings = Mirrix::readSettings(stage.settings.directory);
        stage.settings.trayEnabled = false;
        stage.settings.skipScanConfirm = true;
        stage.open();
        stage.start();
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.prompts.asked.isEmpty());
    }

    void keepsItsPlaceBetweenRuns()
    {
        Stage stage;
        const QRect place(20, 60, 720, 600);
        stage.window->setGeometry(place);
        stage.window->goToStep(2);
        auto *splitter = stage.find<QSplitter>(u"ResultsSplitter"_qs);
        auto *header = stage.find<QTreeView>(u"DuplicateFilesTree"_qs)->header();
        const int wider = header->sectionSize(0) + 25;
        header->resizeSection(0, wider);
        const QList<int> sizes = splitter->sizes();
        stage.window->close();

        stage.settings = Mirrix::readSettings(stage.settings.directory);
        stage.settings.trayEnabled = false;
        stage.open();
        QCOMPARE(stage.window->geometry(), place);
        stage.window->goToStep(2);
        QCOMPARE(stage.find<QTreeView>(u"DuplicateFilesTree"_qs)->header()->sectionSize(0), wider);
        QCOMPARE(stage.find<QSplitter>(u"ResultsSplitter"_qs)->sizes(), sizes);
    }

    void endsInTheMiddleOfAScan()
    {
        Stage stage;
        for (const QString &name : {u"in/long1"_qs, u"in/long2"_qs}) {
            stage.tree.write(name, {});
            QVERIFY(QFile::resize(stage.tree.path(name), qint64(1) << 40));
        }
        stage.settings.skipScanConfirm = true;
        stage.window->addLocation(stage.tree.path(u"in"_qs));
        stage.start();
        QVERIFY(stage.window->isScanning());
        stage.window.reset(); // would take hours if the scan were not stopped
    }

    void changesTheLanguageAtOnce()
    {
        Stage stage;
        QAction *english = actionOf(stage.window->menuBar(), u"English"_qs);
        QVERIFY(english);
        english->trigger();
        QCOMPARE(stage.settings.uiLanguage, u"en"_qs);
        QTRY_COMPARE(stage.find<QPushButton>(u"PrimaryButton"_qs)->text(), u"Start scan"_qs);
        QVERIFY(stage.texts(u"WizardPageTitle"_qs).contains(u"Choose a folder to start"_qs));
        stage.window->goToStep(0);
        QCOMPARE(stage.window->statusBar()->currentMessage(), u"请选择要扫描的位置"_qs);
        actionOf(stage.window->menuBar(), u"简体中文"_qs)->trigger();
        QTRY_COMPARE(stage.find<QPushButton>(u"PrimaryButton"_qs)->text(), u"开始扫描"_qs);
    }
};

QTEST_MAIN(TestMirrix)
#include "tst_mirrix.moc"
