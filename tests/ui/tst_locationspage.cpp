#include "actions/backupindex.h"
#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"
#include "ui/locations/drivepicker.h"
#include "ui/locations/locationspage.h"
#include "ui/logic/locationtext.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QUrl>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

/// Gives every text in brackets.
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) == "Mirrix"_L1 ? u'<' + QString::fromUtf8(source) + u'>' : QString();
    }
    bool isEmpty() const override { return false; }
};

const QList<Drive> threeDrives = {
    {u"C:/"_s, DriveType::Fixed, u"Windows"_s, u"NTFS"_s, qint64(1) << 40, qint64(3) << 29, true},
    {u"D:/"_s, DriveType::Fixed, QString(), u"exFAT"_s, 1048576, 1024, false},
    {u"E:/"_s, DriveType::Optical, QString(), QString(), 0, 0, false},
    {u"Z:/"_s, DriveType::Remote, QString(), QString(), 0, 0, false},
};

} // namespace

class LocationsPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_page.reset(); }
    void addsByChooserQuickButtonAndBrowser();
    void takesDrops();
    void switches();
    void removes();
    void showsVanishedFolders();
    void driveLines();
    void picksDrives_data();
    void picksDrives();
    void noDrives();
    void exclusionsAndAdvanced();
    void locks();
    void translatesAgain();

private:
    template <typename Widget = QAbstractButton>
    [[nodiscard]] Widget *find(const QString &name) const
    {
        return m_page->findChild<Widget *>(name);
    }
    void click(const QString &name) const { QTest::mouseClick(find(name), Qt::LeftButton); }
    [[nodiscard]] QTableWidget *table() const { return find<QTableWidget>(u"LocationTable"_s); }
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

void LocationsPageTest::init()
{
    m_prompts = {};
    m_drives = threeDrives;
    m_page = std::make_unique<LocationsPage>(m_prompts, nullptr, [this] { return m_drives; });
    m_page->resize(1000, 700);
    m_page->show();
    QTRY_COMPARE(m_page->findChildren<QPushButton *>(u"QuickDrive"_s).size(), 2);
}

void LocationsPageTest::addsByChooserQuickButtonAndBrowser()
{
    const QString folder = m_tree.makeFolder(u"a/b"_s);
    QSignalSpy changed(m_page.get(), &LocationsPage::changed);
    m_prompts.folders = {folder, QString(), folder + u'/'};
    for (int i = 0; i < 3; ++i)
        click(u"AddFolderButton"_s);
    QCOMPARE(paths(), QStringList{folder});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_page->state().rows, (QList{LocationRow{folder}}));
    QCOMPARE(table()->item(0, 0)->text(), u"b"_s);
    QCOMPARE(table()->item(0, 0)->toolTip(), QDir::toNativeSeparators(folder));

    const QString desktop = QDir::fromNativeSeparators(find(u"QuickDesktop"_s)->toolTip());
    click(u"QuickDesktop"_s);
    click(u"QuickDesktop"_s);
    QCOMPARE(paths(), (QStringList{folder, desktop}));

    auto *tree = find<QTreeView>(u"FolderTree"_s);
    QVERIFY(!find(u"LocationTreeAddButton"_s)->isEnabled());
    QTRY_VERIFY(tree->model()->rowCount() > 0);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    click(u"LocationTreeAddButton"_s);
    QCOMPARE(paths().size(), 3);
    QVERIFY2(QDir(paths()[2]).isRoot(), qPrintable(paths()[2]));
}

void LocationsPageTest::takesDrops()
{
    const QString first = m_tree.makeFolder(u"drop/one"_s);
    const QString second = m_tree.makeFolder(u"drop/zwei ä"_s);
    const QString file = m_tree.write(u"drop/file"_s, "x");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(first), QUrl::fromLocalFile(file), QUrl(u"https://localhost/a"_s),
                  QUrl::fromLocalFile(second), QUrl::fromLocalFile(first)});
    // A drop reaches only a widget that has taken the drag before.
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table()->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(table()->viewport(), &event);
    QCOMPARE(paths(), (QStringList{first, second}));
    QCOMPARE(event.dropAction(), Qt::CopyAction);
}

/// Each switch changes its own member and text; the name of a row that is off is grey.
void LocationsPageTest::switches()
{
    m_page->addLocation(m_tree.path());
    const LocationRow before = m_page->state().rows[0];
    const QStringList on = {u"已包含"_s, u"🔒 已保护"_s, u"📂 是"_s, {}, u"是"_s};
    const QStringList off = {u"否"_s, u"锁 否"_s, u"📂 否"_s, {}, u"否"_s};
    const QList<bool> initial = {true, false, true, false, false};
    const QColor grey(138, 151, 163);
    for (const int column : {1, 2, 3, 5}) {
        const bool isOn = initial[column - 1];
        QCOMPARE(toggle(0, column)->text(), (isOn ? on : off)[column - 1]);
        QSignalSpy changed(m_page.get(), &LocationsPage::changed);
        QTest::mouseClick(toggle(0, column), Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(toggle(0, column)->text(), (isOn ? off : on)[column - 1]);
        QCOMPARE(table()->item(0, 0)->foreground().color() == grey, true);
    }
    auto *combo = qobject_cast<QComboBox *>(table()->cellWidget(0, 4));
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(m_page->state().rows[0], (LocationRow{before.path, false, true, false, 1, true}));
    QTest::keyClick(toggle(0, 1), Qt::Key_Space);
    QVERIFY(m_page->state().rows[0].enabled);
    QVERIFY(table()->item(0, 0)->foreground().color() != grey);
}

void LocationsPageTest::removes()
{
    LocationsState state;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        state.rows.append({m_tree.path(name)});
    state.rows[3].findKind = -7;
    m_page->setState(state);
    table()->selectionModel()->select(table()->model()->index(0, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    table()->selectionModel()->select(table()->model()->index(2, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    click(u"RemoveLocationsButton"_s);
    QCOMPARE(paths(), (QStringList{m_tree.path(u"b"_s), m_tree.path(u"d"_s)}));
    QTest::mouseClick(toggle(1, 2), Qt::LeftButton); // still bound to its own row
    QCOMPARE(m_page->state().rows[1], (LocationRow{m_tree.path(u"d"_s), true, true}));
    click(u"ClearLocationsButton"_s);
    QVERIFY(paths().isEmpty());
}

void LocationsPageTest::showsVanishedFolders()
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

void LocationsPageTest::driveLines()
{
    m_prompts.onRun = [](QDialog &dialog) {
        const auto *list = dialog.findChild<QListWidget *>(u"DriveList"_s);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(0)->text(), u"C:/  Windows  [NTFS]  本地磁盘  1.00 TB / 可用 1.50 GB  ·系统盘"_s);
        QCOMPARE(list->item(1)->text(), u"D:/  无标签  [exFAT]  本地磁盘  1.0 MB / 可用 1 KB"_s);
        QCOMPARE(list->item(2)->text(), u"Z:/  无标签  [-]  网络驱动器  容量未知"_s);
        QCOMPARE(list->item(0)->checkState(), Qt::Unchecked);
    };
    QVERIFY(pickDrives(m_prompts, threeDrives, m_page.get()).isEmpty());
}

void LocationsPageTest::picksDrives_data()
{
    QTest::addColumn<QList<int>>("ticked");
    QTest::addColumn<QList<bool>>("answers");
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QStringList>("added");
    const QString system = u"系统盘确认"_s;
    const QString sure = u"确认添加"_s;
    QTest::newRow("none") << QList<int>{} << QList<bool>{} << QStringList{u"提示"_s} << QStringList{};
    QTest::newRow("plain") << QList{1, 2} << QList{true} << QStringList{sure} << QStringList{u"D:/"_s, u"Z:/"_s};
    QTest::newRow("plain refused") << QList{1} << QList{false} << QStringList{sure} << QStringList{};
    QTest::newRow("system") << QList{0} << QList{true, true} << QStringList{system, sure} << QStringList{u"C:/"_s};
    QTest::newRow("system refused") << QList{0, 1} << QList{false} << QStringList{system} << QStringList{};
    QTest::newRow("second refused") << QList{0} << QList{true, false} << QStringList{system, sure} << QStringList{};
}

/// The dialog goes away only when every question was answered with Yes.
void LocationsPageTest::picksDrives()
{
    QFETCH(QList<int>, ticked);
    QFETCH(QList<bool>, answers);
    QFETCH(QStringList, titles);
    QFETCH(QStringList, added);
    QStringList chosen;
    bool isAccepted = false;
    m_prompts.answers = answers;
    m_prompts.onRun = [&](QDialog &dialog) {
        auto *list = dialog.findChild<QListWidget *>(u"DriveList"_s);
        for (const int row : ticked)
            list->item(row)->setCheckState(Qt::Checked);
        connect(&dialog, &QDialog::accepted, this, [&] { isAccepted = true; });
        dialog.findChild<QPushButton *>(u"DrivePickerAddButton"_s)->click();
        m_prompts.answers = {isAccepted};
    };
    click(u"AddDriveButton"_s);
    QTRY_COMPARE(m_prompts.asked.size(), titles.size());
    for (int i = 0; i < titles.size(); ++i)
        QVERIFY2(m_prompts.asked[i].startsWith(titles[i] + u'|'), qPrintable(m_prompts.asked[i]));
    QCOMPARE(isAccepted, !added.isEmpty());
    // Where the system has no drive letters, such a root is a folder below the current one.
    for (const QString &root : added)
        chosen.append(locationPath(root));
    QCOMPARE(paths(), chosen);
}

void LocationsPageTest::noDrives()
{
    m_drives = {threeDrives[2]};
    click(u"AddDriveButton"_s);
    QTRY_COMPARE(m_prompts.asked, QStringList{u"提示|未检测到可扫描的磁盘或分区。"_s});
    QVERIFY(find(u"AddDriveButton"_s)->isEnabled());
}

void LocationsPageTest::exclusionsAndAdvanced()
{
    const QString folder = m_tree.path(u"x"_s);
    m_prompts.folders = {folder, folder + u'/', m_tree.path(u"y"_s), QString(), m_tree.path(u"safe"_s)};
    QSignalSpy changed(m_page.get(), &LocationsPage::changed);
    for (int i = 0; i < 4; ++i)
        click(u"ExcludeAddButton"_s);
    QCOMPARE(m_page->state().excludeFolders, (QStringList{folder, m_tree.path(u"y"_s)}));
    find<QListWidget>(u"ExcludedFoldersList"_s)->setCurrentRow(0);
    click(u"ExcludeRemoveButton"_s);
    QCOMPARE(m_page->state().excludeFolders, QStringList{m_tree.path(u"y"_s)});
    QCOMPARE(changed.count(), 3);

    const AdvancedOptions expected{3, false, true, false, m_tree.path(u"safe"_s)};
    QTest::keyClick(find<QComboBox>(u"KeepRuleCombo"_s), Qt::Key_End);
    find(u"SkipHiddenCheck"_s)->click();
    find(u"AutoBackupCheck"_s)->click();
    click(u"BackupFolderButton"_s);
    QCOMPARE(m_prompts.asked.last(), u"选择备份目录|"_s);
    QCOMPARE(find<QLineEdit>(u"BackupFolderEdit"_s)->text(), expected.backupFolder);
    QCOMPARE(m_page->state().advanced, expected);

    LocationsState state;
    state.excludeFolders = {folder};
    state.advanced = {2, true, false, true, u"B"_s};
    changed.clear();
    m_page->setState(state);
    QCOMPARE(m_page->state(), state);
    QCOMPARE(changed.count(), 0);

    const QString held = m_tree.write(u"safe/held"_s, "abc");
    QVERIFY(Mirrix::saveBackupIndex(expected.backupFolder, {{u"/a"_s, held, 3, 1}, {u"/b"_s, held + u'x', 9, 1}}));
    state.advanced.backupFolder = expected.backupFolder;
    m_page->setState(state);
    QTRY_COMPARE(find<QLabel>(u"HeldBackupsLabel"_s)->text(), u"备份中保留：3 B"_s);
    QSignalSpy history(m_page.get(), &LocationsPage::historyRequested);
    click(u"OpenHistoryButton"_s);
    QCOMPARE(history.count(), 1);
}

void LocationsPageTest::locks()
{
    m_page->addLocation(m_tree.path());
    m_page->setLocked(true);
    for (const QString &name : {u"AddFolderButton"_s, u"AddDriveButton"_s, u"ClearLocationsButton"_s, u"QuickDesktop"_s,
                                u"ExcludeAddButton"_s, u"LocationTreeAddButton"_s})
        QVERIFY2(!find(name)->isEnabled(), qPrintable(name));
    QTest::mouseClick(toggle(0, 1), Qt::LeftButton);
    click(u"ClearLocationsButton"_s);
    QCOMPARE(m_page->state().rows, (QList{LocationRow{m_tree.path()}}));
    m_page->setLocked(false);
    click(u"ClearLocationsButton"_s);
    QVERIFY(m_page->state().rows.isEmpty());
}

void LocationsPageTest::translatesAgain()
{
    LocationsState state;
    state.rows = {{m_tree.path(), false, true, true, 2, true}};
    state.advanced = {1, false, true, false, u"B"_s};
    m_page->setState(state);
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(table()->horizontalHeaderItem(0)->text(), u"<文件夹名称>"_s);
    QCOMPARE(toggle(0, 1)->text(), u"否"_s); // the same in every language
    QCOMPARE(toggle(0, 2)->text(), u"<🔒 已保护>"_s);
    QCOMPARE(toggle(0, 5)->text(), u"是"_s);
    QCOMPARE(find(u"AddFolderButton"_s)->text(), u"<+文件夹>"_s);
    QCOMPARE(find(u"QuickMusic"_s)->text(), u"<音乐>"_s);
    QCOMPARE(find<QComboBox>(u"KeepRuleCombo"_s)->currentText(), u"<保留最旧文件>"_s);
    QStringList drives;
    for (const auto *button : m_page->findChildren<QPushButton *>(u"QuickDrive"_s))
        drives.append(button->text().remove(u'<').remove(u'>'));
    drives.sort();
    QCOMPARE(drives, (QStringList{u"本地磁盘 (C:/)"_s, u"本地磁盘 (D:/)"_s}));
    QCOMPARE(m_page->state(), state);
}

QTEST_MAIN(LocationsPageTest)
#include "tst_locationspage.moc"
