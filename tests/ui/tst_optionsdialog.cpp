#include "ui/dialogs/optionsdialog.h"

#include "app/settings.h"
#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"

#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

using Algorithm = MirrixCore::ContentHashAlgorithm;

namespace {

/// A dialog over a data folder of its own.
struct Stage
{
    TempTree tree;
    Settings settings;
    ScriptedPrompts prompts;
    std::unique_ptr<OptionsDialog> dialog;

    Stage()
        : settings(defaultSettings(tree.path(u"data"_s)))
    {
        tree.makeFolder(u"data"_s);
        open();
    }

    void open()
    {
        dialog = std::make_unique<OptionsDialog>(settings, prompts);
        dialog->show();
    }

    template <typename Widget>
    Widget *find(const QString &name) const
    {
        return dialog->findChild<Widget *>(name);
    }

    [[nodiscard]] Settings stored() const { return readSettings(settings.directory); }
};

} // namespace

class OptionsDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void everyControlIsStoredAtOnce_data();
    void everyControlIsStoredAtOnce();
    void algorithm();
    void theme();
    void clearsTheImageCache();
    void pages();
};

void OptionsDialogTest::everyControlIsStoredAtOnce_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("back"); // the button that takes it back
    QTest::addColumn<bool Settings::*>("member");
    QTest::newRow("close") << u"CloseExitsRadio"_s << u"CloseToTrayRadio"_s << &Settings::closeToTray;
    QTest::newRow("beep") << u"ScanDoneBeepBox"_s << u"ScanDoneBeepBox"_s << &Settings::scanDoneBeep;
    QTest::newRow("confirm") << u"ScanConfirmBox"_s << u"ScanConfirmBox"_s << &Settings::skipScanConfirm;
    QTest::newRow("compare") << u"CompareContentsBox"_s << u"CompareContentsBox"_s << &Settings::compareWholeContents;
}

void OptionsDialogTest::everyControlIsStoredAtOnce()
{
    QFETCH(QString, button);
    QFETCH(QString, back);
    QFETCH(bool Settings::*, member);
    Stage stage;
    const bool initial = stage.settings.*member;
    stage.find<QAbstractButton>(button)->click();
    QCOMPARE(stage.settings.*member, !initial);
    QCOMPARE(stage.stored().*member, !initial);
    stage.open(); // shows what is stored
    stage.find<QAbstractButton>(back)->click();
    QCOMPARE(stage.stored().*member, initial);
}

void OptionsDialogTest::algorithm()
{
    Stage stage;
    const QSignalSpy changed(stage.dialog.get(), &OptionsDialog::contentHashAlgorithmChanged);
    auto *combo = stage.find<QComboBox>(u"ContentHashCombo"_s);
    QCOMPARE(combo->currentIndex(), 0);
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(stage.stored().contentHashAlgorithm, Algorithm::Blake3);
    QCOMPARE(changed.count(), 1);
    stage.open();
    QCOMPARE(stage.find<QComboBox>(u"ContentHashCombo"_s)->currentIndex(), 1);
}

void OptionsDialogTest::theme()
{
    Stage stage;
    const QSignalSpy changed(stage.dialog.get(), &OptionsDialog::themeChanged);
    stage.dialog->showPage(OptionsDialog::Theme);
    QVERIFY(stage.find<QRadioButton>(u"LightThemeRadio"_s)->isChecked());
    stage.find<QRadioButton>(u"LightThemeRadio"_s)->click();
    QCOMPARE(changed.count(), 0);
    stage.find<QRadioButton>(u"DarkThemeRadio"_s)->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(stage.stored().appTheme, u"dark"_s);
    stage.find<QRadioButton>(u"LightThemeRadio"_s)->click();
    QCOMPARE(stage.stored().appTheme, u"light"_s);
}

void OptionsDialogTest::clearsTheImageCache()
{
    Stage stage;
    MirrixCore::setCacheRoot(stage.settings.directory);
    MirrixCore::ImageFeature feature;
    feature = {1, {1}, true, {}};
    const QString picture = stage.tree.path(u"a.jpg"_s);
    MirrixCore::storeImageFeature(picture, 1, 1, feature);
    const QString folder = QDir(stage.settings.directory).filePath(u"image_feature_cache"_s);
    QVERIFY(QDir(folder).exists());
    auto *button = stage.find<QPushButton>(u"ClearImageCacheButton"_s);

    button->click(); // answered with No
    QCOMPARE(stage.prompts.asked,
             QStringList(u"清空图片特征缓存|将删除目录下的全部图片哈希/直方图缓存：\n%1\n\n"
                         "下次图片扫描会重新计算，可能稍慢。是否继续？"_s.arg(QDir::toNativeSeparators(folder))));
    QVERIFY(MirrixCore::loadImageFeature(picture, 1, 1, feature));

    stage.prompts.answers.append(true);
    button->click();
    QTRY_COMPARE(stage.prompts.asked.size(), 3);
    QCOMPARE(stage.prompts.asked.last(), u"完成|图片特征缓存已清空。"_s);
    QVERIFY(!QDir(folder).exists());
    QVERIFY(button->isEnabled());
}

void OptionsDialogTest::pages()
{
    Stage stage;
    auto *navigation = stage.find<QListWidget>(u"OptionsNavList"_s);
    const auto *pages = stage.find<QStackedWidget>(u"OptionsPages"_s);
    for (int page = 0; page < pages->count(); ++page) {
        navigation->setCurrentRow(page);
        QCOMPARE(pages->currentIndex(), page);
    }
    const auto *libraries = stage.find<QTreeWidget>(u"LibraryTable"_s);
    QTRY_VERIFY(libraries->topLevelItemCount() > 0); // the page at the front is "About"
    const auto qt = libraries->findItems(u"Qt"_s, Qt::MatchExactly);
    QCOMPARE(qt.size(), 1);
    QCOMPARE(qt.first()->text(1), QString::fromLatin1(qVersion()));
    for (int row = 0; row < libraries->topLevelItemCount(); ++row)
        QVERIFY(!libraries->topLevelItem(row)->text(2).isEmpty());
}

QTEST_MAIN(OptionsDialogTest)
#include "tst_optionsdialog.moc"
