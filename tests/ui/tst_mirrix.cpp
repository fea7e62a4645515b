#include "ui/mirrix.h"

#include "app/translations.h"
#include "tests/ui/uitest.h"

namespace {

/// A window over its own files and its own data folder.
struct Stage
{
    TempTree tree;
    Settings settings{defaultSettings(tree.makeFolder(u"data"_s))};
    ScriptedPrompts prompts;
    std::unique_ptr<MirrixUi::Mirrix> window;
    const QString in = tree.path(u"in"_s);

    Stage()
    {
        for (const QString &copy : {u"in/a.txt"_s, u"in/b.txt"_s, u"in/deep/c.txt"_s})
            tree.write(copy, "the same");
        tree.write(u"in/d.txt"_s, "alone");
        open();
    }

    /// Opens the window with what is stored in the data folder.
    void open()
    {
        settings = readSettings(settings.directory);
        settings.trayEnabled = false;
        window = std::make_unique<MirrixUi::Mirrix>(settings, prompts);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    /// Starts a scan of two equal files without content of their own, long enough to be caught in the middle.
    void startLongScan(qint64 bytes)
    {
        for (const QString &name : {u"in/long1"_s, u"in/long2"_s}) {
            tree.write(name, {});
            QVERIFY(QFile::resize(tree.path(name), bytes));
        }
        settings.skipScanConfirm = true;
        window->addLocation(in);
        start();
        QVERIFY(window->isScanning());
    }

    void press(const QString &button) const { click(*window, button); }
    void start() const { press(u"PrimaryButton"_s); }
    [[nodiscard]] bool waitForEnd() const
    {
        return QTest::qWaitFor([this] { return !window->isScanning(); }, 60000);
    }

    [[nodiscard]] QTreeView *groups() const { return part<QTreeView>(*window, u"DuplicateFilesTree"_s); }
    [[nodiscard]] QString text(const QString &label) const { return part<QLabel>(*window, label)->text(); }
    [[nodiscard]] QString message() const { return window->statusBar()->currentMessage(); }
    [[nodiscard]] int page() const { return part<QStackedWidget>(*window, u"WizardPages"_s)->currentIndex(); }

    [[nodiscard]] QStringList logged() const
    {
        QStringList records;
        for (const LogEntry &entry : OperationsLog(operationsLogPath(settings.directory)).entries())
            records.append(entry.action + u'|' + entry.detail);
        return records;
    }
};

} // namespace

class TestMirrix : public QObject
{
    Q_OBJECT

private slots:
    void goesFromStepToStep()
    {
        const Stage stage;
        QCOMPARE(stage.message(), u"标准模式 · 本地运行 · 零广告 · 图片哈希: OpenCV-pHash"_s);
        QCOMPARE(stage.text(u"WizardTrail"_s), u"① 选择位置 → ② 匹配规则 → ③ 预览并清理"_s);
        QCOMPARE(stage.text(u"SummaryLabel"_s), u"尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。"_s);
        QCOMPARE(stage.text(u"StatusLabel"_s), u"就绪"_s);
        const auto rows = stage.window->findChildren<QLabel *>(u"WizardStepTitle"_s);
        QCOMPARE(rows.size(), 3);
        QTest::mouseClick(rows[1], Qt::LeftButton);
        QCOMPARE(stage.page(), 1);
        QStatusTipEvent passing({}); // as from a mouse over the menus
        QCoreApplication::sendEvent(stage.window.get(), &passing);
        QCOMPARE(stage.message(), u"配置规则后点击「开始扫描」"_s);
        QVERIFY(rows[1]->parentWidget()->property("activeStep").toBool());
        QVERIFY(!rows[0]->parentWidget()->property("activeStep").toBool());
        QTest::keyClick(rows[2]->parentWidget(), Qt::Key_Space);
        QCOMPARE(stage.page(), 2);
        stage.window->goToStep(-5);
        QCOMPARE(stage.page(), 0);
        stage.start(); // without a location
        QCOMPARE(stage.prompts.asked, QStringList{u"提示|请先勾选启用至少一个扫描位置。"_s});
        QVERIFY(!stage.window->isScanning());
    }

    void scansWhatWasChosen()
    {
        Stage stage;
        stage.window->addLocation(stage.in);
        stage.prompts.confirmations = {{false, true}, {true, true}}; // cancelled, its "don't show again" is not kept
        stage.start();
        QVERIFY(!stage.window->isScanning() && !stage.settings.skipScanConfirm);
        QVERIFY(stage.prompts.asked.last().startsWith(u"确认开始扫描|请确认以下扫描设置："));

        stage.start();
        QVERIFY(stage.window->isScanning());
        QVERIFY(!part(*stage.window, u"PrimaryButton"_s)->isEnabled());
        QVERIFY(part(*stage.window, u"StopButton"_s)->isEnabled());
        QVERIFY(stage.waitForEnd());
        const QString summary = stage.text(u"SummaryLabel"_s);
        QVERIFY2(summary.startsWith(u"文件 4 · 重复组 1 · 文件夹组 0 · 其余 0 · 可回收约 16 B · 耗时 "),
                 qPrintable(summary));
        const QAbstractItemModel *model = stage.groups()->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->rowCount(model->index(0, 0)), 3);
        QCOMPARE(stage.page(), 2);
        const auto *hint = part<QLabel>(*stage.groups()->viewport());
        QVERIFY(!hint->isVisible());
        stage.press(u"ClearResultsButton"_s);
        QCOMPARE(model->rowCount(), 0);
        QCOMPARE(stage.text(u"SummaryLabel"_s), u"结果已清空。切换Tab调整规则后可重新开始扫描。"_s);
        QVERIFY(hint->isVisible());
        QCOMPARE(stage.logged(), QStringList({u"app_start|Mirrix started"_s, u"scan_start|"_s + stage.in,
                                              u"scan_done|groups=1 wasted=16 candidates=3"_s}));
        const Settings stored = readSettings(stage.settings.directory);
        QCOMPARE(stored.lastRoots, QStringList{stage.in});
        QVERIFY(stored.skipScanConfirm);
    }

    /// A scan of less than was chosen must not look like one of all.
    void namesWhatWasNotRead()
    {
        Stage stage;
        const QString gone = stage.tree.makeFolder(u"gone"_s);
        stage.window->addLocation(stage.in);
        stage.window->addLocation(gone);
        QVERIFY(QDir().rmdir(gone));
        stage.settings.skipScanConfirm = true;
        stage.start();
        QVERIFY(stage.waitForEnd());
        const auto *status = part<QLabel>(*stage.window, u"StatusLabel"_s);
        const QString note = u" · 未能读取 1 项："_s + QDir::toNativeSeparators(gone);
        QVERIFY2(status->toolTip().endsWith(note), qPrintable(status->toolTip()));
        triggerAction(*stage.window, u"English"_s);
        QTRY_VERIFY(status->toolTip().contains(u"Could not be read (1): "));
        QCOMPARE(stage.settings.uiLanguage, u"en"_s);
        QTRY_COMPARE(part(*stage.window, u"PrimaryButton"_s)->text(), u"Start scan"_s);
        stage.window->goToStep(0);
        QCOMPARE(stage.message(), u"请选择要扫描的位置"_s); // the same in every language
        triggerAction(*stage.window, u"简体中文"_s);
        QTRY_COMPARE(part(*stage.window, u"PrimaryButton"_s)->text(), u"开始扫描"_s);
    }

    void stopsAndStartsAgain()
    {
        Stage stage;
        stage.startLongScan(qint64(20) << 30);
        QTRY_VERIFY(stage.text(u"StatusLabel"_s) != u"就绪");
        QVERIFY(stage.window->windowTitle().endsWith(u" % - Mirrix · 重复文件查找与清理"));
        stage.press(u"StopButton"_s);
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.text(u"StatusLabel"_s), u"扫描已取消"_s);
        QCOMPARE(stage.window->windowTitle(), u"Mirrix · 重复文件查找与清理"_s);
        QVERIFY(stage.prompts.asked.isEmpty()); // a cancelled scan ends without a box
        QVERIFY(QFile::remove(stage.tree.path(u"in/long1"_s)));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.groups()->model()->rowCount(), 1);
    }

    void endsInTheMiddleOfAScan()
    {
        Stage stage;
        stage.startLongScan(qint64(1) << 40);
        stage.window.reset(); // would take hours if the scan were not stopped
    }

    void keepsItsStateBetweenRuns()
    {
        Stage stage;
        stage.window->addLocation(stage.in);
        // On the page of locations and in the batch panel: kept at once, so that the removal dialog opens with it.
        for (QCheckBox *box : stage.window->findChildren<QCheckBox *>(u"AutoBackupCheck"_s)) {
            box->click();
            QCOMPARE(readSettings(stage.settings.directory).autoBackupBeforeDelete, box->isChecked());
        }
        const QRect place(20, 60, 720, 600);
        stage.window->setGeometry(place);
        stage.window->goToStep(2);
        const int wider = stage.groups()->header()->sectionSize(0) + 25;
        stage.groups()->header()->resizeSection(0, wider);
        const QList<int> sizes = part<QSplitter>(*stage.window, u"ResultsSplitter"_s)->sizes();
        stage.window->close();
        QCOMPARE(stage.logged(), QStringList({u"app_start|Mirrix started"_s, u"app_quit|user quit"_s}));

        stage.open();
        QCOMPARE(stage.window->geometry(), place);
        stage.window->goToStep(2);
        QCOMPARE(stage.groups()->header()->sectionSize(0), wider);
        QCOMPARE(part<QSplitter>(*stage.window, u"ResultsSplitter"_s)->sizes(), sizes);
        stage.settings.skipScanConfirm = true;
        stage.start();
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.prompts.asked.isEmpty());
    }
};

QTEST_MAIN(TestMirrix)
#include "tst_mirrix.moc"
