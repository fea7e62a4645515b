#include "actions/records/backupindex.h"
#include "tests/ui/uitest.h"
#include "ui/locations/drivepicker.h"
#include "ui/locations/locationspage.h"
#include "ui/texts/locationtext.h"

namespace {

const QList<Drive> fourDrives = {
    {u"C:/"_s, DriveType::Fixed, u"Windows"_s, u"NTFS"_s, qint64(1) << 40, qint64(3) << 29, true},
    {u"D:/"_s, DriveType::Fixed, QString(), u"exFAT"_s, 1048576, 1024, false},
    {u"E:/"_s, DriveType::Optical, QString(), QString(), 0, 0, false},
    {u"Z:/"_s, DriveType::Remote, QString(), QString(), 0, 0, false},
};

} // namespace

class TestLocationsPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_prompts = {};
        m_drives = fourDrives;
        m_page = std::make_unique<LocationsPage>(m_prompts, nullptr, [this] { return m_drives; });
        m_page->resize(1000, 700);
        m_page->show();
        QTRY_COMPARE(m_page->findChildren<QPushButton *>(u"QuickDrive"_s).size(), 2);
    }

    void cleanup() { m_page.reset(); }

    void addsByChooserQuickButtonAndBrowser()
    {
        const QString folder = m_tree.makeFolder(u"a/b"_s);
        QSignalSpy changed(m_page.get(), &LocationsPage::changed);
        m_prompts.folders = {folder, QString(), folder + u'/'};
        for (int i = 0; i < 3; ++i)
            press(u"AddFolderButton"_s);
        QCOMPARE(m_page->state().rows, (QList{LocationRow{folder}}));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(table()->item(0, 0)->text(), u"b"_s);
        QCOMPARE(table()->item(0, 0)->toolTip(), QDir::toNativeSeparators(folder));

        const QString desktop = QDir::fromNativeSeparators(part(*m_page, u"QuickDesktop"_s)->toolTip());
        press(u"QuickDesktop"_s);
        press(u"QuickDesktop"_s);
        QCOMPARE(paths(), (QStringList{folder, desktop}));

        auto *tree = part<QTreeView>(*m_page, u"FolderTree"_s);
        QVERIFY(!part(*m_page, u"LocationTreeAddButton"_s)->isEnabled());
        QTRY_VERIFY(tree->model()->rowCount() > 0);
        tree->setCurrentIndex(tree->model()->index(0, 0));
        press(u"LocationTreeAddButton"_s);
        QCOMPARE(paths().size(), 3);
        QVERIFY2(QDir(paths()[2]).isRoot(), qPrintable(paths()[2]));
    }

    void takesDrops()
    {
        const QString first = m_tree.makeFolder(u"drop/one"_s);
        const QString second = m_tree.makeFolder(u"drop/zwei ä"_s);
        dropOn(*table()->viewport(), {first, m_tree.write(u"drop/file"_s, "x"), second, first});
        QCOMPARE(paths(), (QStringList{first, second}));
    }

    /// Each switch changes its own member and text; the name of a row that is off is grey.
    void switches()
    {
        m_page->addLocation(m_tree.path());
        const auto texts = [this] {
            return QStringList({toggle(0, 1)->text(), toggle(0, 2)->text(), toggle(0, 3)->text(), toggle(0, 5)->text()})
                .join(u'|');
        };
        QCOMPARE(texts(), u"已包含|锁 否|📂 是|否"_s);
        QSignalSpy changed(m_page.get(), &LocationsPage::changed);
        for (const int column : {1, 2, 3, 5})
            QTest::mouseClick(toggle(0, column), Qt::LeftButton);
        QCOMPARE(changed.count(), 4);
        QCOMPARE(texts(), u"否|🔒 已保护|📂 否|是"_s);
        const QColor grey = table()->item(0, 0)->foreground().color();
        QTest::keyClick(qobject_cast<QComboBox *>(table()->cellWidget(0, 4)), Qt::Key_Down);
        QCOMPARE(m_page->state().rows[0], (LocationRow{m_tree.path(), false, true, false, 1, true}));
        QTest::keyClick(toggle(0, 1), Qt::Key_Space);
        QVERIFY(m_page->state().rows[0].enabled);
        QVERIFY(table()->item(0, 0)->foreground().color() != grey);
    }

    void removes()
    {
        LocationsState state;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            state.rows.append({m_tree.path(name)});
        state.rows[3].findKind = -7;
        m_page->setState(state);
        for (const int row : {0, 2})
            table()->selectionModel()->select(table()->model()->index(row, 0),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
        press(u"RemoveLocationsButton"_s);
        QCOMPARE(paths(), (QStringList{m_tree.path(u"b"_s), m_tree.path(u"d"_s)}));
        QTest::mouseClick(toggle(1, 2), Qt::LeftButton); // still bound to its own row
        QCOMPARE(m_page->state().rows[1], (LocationRow{m_tree.path(u"d"_s), true, true}));

        m_page->setLocked(true);
        for (const QString &name : {u"AddFolderButton"_s, u"AddDriveButton"_s, u"ClearLocationsButton"_s,
                                    u"QuickDesktop"_s, u"ExcludeAddButton"_s, u"LocationTreeAddButton"_s})
            QVERIFY2(!part(*m_page, name)->isEnabled(), qPrintable(name));
        QTest::mouseClick(toggle(0, 1), Qt::LeftButton);
        QVERIFY(m_page->state().rows[0].enabled);
        m_page->setLocked(false);
        press(u"ClearLocationsButton"_s);
        QVERIFY(paths().isEmpty());
    }

    void showsVanishedFolders()
    {
        LocationsState state;
        state.rows = {{m_tree.makeFolder(u"here"_s)}, {m_tree.path(u"gone"_s)}};
        m_page->setState(state);
        const auto isTinted = [this](int row) { return table()->item(row, 0)->background().style() != Qt::NoBrush; };
        QTRY_VERIFY(isTinted(1));
        QVERIFY(!isTinted(0));
        QVERIFY(table()->item(1, 0)->toolTip().startsWith(QDir::toNativeSeparators(state.rows[1].path) + u'\n'));
        QCOMPARE(m_page->state().rows, state.rows);
        m_tree.makeFolder(u"gone"_s);
        m_page->hide();
        m_page->show();
        QTRY_VERIFY(!isTinted(1));
    }

    void picksDrives_data()
    {
        QTest::addColumn<QList<int>>("ticked");
        QTest::addColumn<QList<bool>>("answers");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("added");
        const auto row = [](const char *name, const QList<int> &ticked, const QList<bool> &answers,
                            const QString &titles,
                            const QString &added) { QTest::newRow(name) << ticked << answers << titles << added; };
        row("none", {}, {}, u"提示"_s, {});
        row("plain", {1, 2}, {true}, u"确认添加"_s, u"D:/ Z:/"_s);
        row("plain refused", {1}, {false}, u"确认添加"_s, {});
        row("system", {0}, {true, true}, u"系统盘确认 确认添加"_s, u"C:/"_s);
        row("system refused", {0, 1}, {false}, u"系统盘确认"_s, {});
        row("second refused", {0}, {true, false}, u"系统盘确认 确认添加"_s, {});
    }

    /// The dialog goes away only when every question was answered with Yes.
    void picksDrives()
    {
        QFETCH(QList<int>, ticked);
        QFETCH(QList<bool>, answers);
        QFETCH(QString, titles);
        QFETCH(QString, added);
        bool isAccepted = false;
        m_prompts.answers = answers;
        m_prompts.onRun = [&](QDialog &dialog) {
            auto *list = part<QListWidget>(dialog, u"DriveList"_s);
            QCOMPARE(columnText(*list->model(), 0), u"C:/  Windows  [NTFS]  本地磁盘  1.00 TB / 可用 1.50 GB  ·系统盘|"
                                                    "D:/  无标签  [exFAT]  本地磁盘  1.0 MB / 可用 1 KB|"
                                                    "Z:/  无标签  [-]  网络驱动器  容量未知"_s);
            for (const int row : ticked)
                list->item(row)->setCheckState(Qt::Checked);
            connect(&dialog, &QDialog::accepted, this, [&] { isAccepted = true; });
            part(dialog, u"DrivePickerAddButton"_s)->click();
            m_prompts.answers = {isAccepted};
        };
        press(u"AddDriveButton"_s);
        QStringList asked;
        QTRY_COMPARE(m_prompts.asked.size(), titles.split(u' ').size());
        for (const QString &box : m_prompts.asked)
            asked.append(box.section(u'|', 0, 0));
        QCOMPARE(asked.join(u' '), titles);
        QCOMPARE(isAccepted, !added.isEmpty());
        // Where the system has no drive letters, such a root is a folder below the current one.
        QStringList chosen = added.split(u' ', Qt::SkipEmptyParts);
        std::transform(chosen.begin(), chosen.end(), chosen.begin(), locationPath);
        QCOMPARE(paths(), chosen);
    }

    void noDrives()
    {
        m_drives = {fourDrives[2]};
        press(u"AddDriveButton"_s);
        QTRY_COMPARE(m_prompts.asked, QStringList{u"提示|未检测到可扫描的磁盘或分区。"_s});
        QVERIFY(part(*m_page, u"AddDriveButton"_s)->isEnabled());
    }

    void exclusionsAndAdvanced()
    {
        const QString folder = m_tree.path(u"x"_s);
        const QString other = m_tree.path(u"y"_s);
        const QString safe = m_tree.path(u"safe"_s);
        m_prompts.folders = {folder, folder + u'/', other, QString(), safe};
        QSignalSpy changed(m_page.get(), &LocationsPage::changed);
        for (int i = 0; i < 4; ++i)
            press(u"ExcludeAddButton"_s);
        QCOMPARE(m_page->state().excludeFolders, (QStringList{folder, other}));
        part<QListWidget>(*m_page, u"ExcludedFoldersList"_s)->setCurrentRow(0);
        press(u"ExcludeRemoveButton"_s);
        QCOMPARE(m_page->state().excludeFolders, QStringList{other});
        QCOMPARE(changed.count(), 3);

        QTest::keyClick(part<QComboBox>(*m_page, u"KeepRuleCombo"_s), Qt::Key_End);
        part(*m_page, u"SkipHiddenCheck"_s)->click();
        part(*m_page, u"AutoBackupCheck"_s)->click();
        press(u"BackupFolderButton"_s);
        QCOMPARE(m_prompts.asked.last(), u"选择备份目录|"_s);
        QCOMPARE(m_page->state().advanced, (AdvancedOptions{3, false, true, false, safe}));

        const QString held = m_tree.write(u"safe/held"_s, "abc");
        QVERIFY(saveBackupIndex(safe, {{u"/a"_s, held, 3, 1}, {u"/b"_s, held + u'x', 9, 1}}));
        LocationsState state;
        state.rows = {{m_tree.path(), false, true, true, 2, true}};
        state.excludeFolders = {folder};
        state.advanced = {2, true, false, true, safe};
        changed.clear();
        m_page->setState(state);
        QCOMPARE(m_page->state(), state);
        QCOMPARE(changed.count(), 0);
        QTRY_COMPARE(part<QLabel>(*m_page, u"HeldBackupsLabel"_s)->text(), u"备份中保留：3 B"_s);
        QSignalSpy history(m_page.get(), &LocationsPage::historyRequested);
        press(u"OpenHistoryButton"_s);
        QCOMPARE(history.count(), 1);

        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_page.get(), &language);
        QCOMPARE(m_page->state(), state);
    }

private:
    void press(const QString &name) const { click(*m_page, name); }
    [[nodiscard]] QTableWidget *table() const { return part<QTableWidget>(*m_page, u"LocationTable"_s); }
    [[nodiscard]] QAbstractButton *toggle(int row, int column) const
    {
        return qobject_cast<QAbstractButton *>(table()->cellWidget(row, column));
    }
    [[nodiscard]] QStringList paths() const
    {
        QStringList paths;
        for (const LocationRow &row : m_page->state().rows)
            paths.append(row.path);
        return paths;
    }

    TempTree m_tree;
    ScriptedPrompts m_prompts;
    QList<Drive> m_drives;
    std::unique_ptr<LocationsPage> m_page;
};

QTEST_MAIN(TestLocationsPage)
#include "tst_locationspage.moc"
