#include "ui/dialogs/optionsdialog.h"

#include "app/settings.h"
#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "tests/ui/uitest.h"

namespace {

/// A dialog over a data folder of its own.
struct Stage
{
    TempTree tree;
    Settings settings{defaultSettings(tree.makeFolder(u"data"_s))};
    ScriptedPrompts prompts;
    std::unique_ptr<OptionsDialog> dialog;

    Stage() { open(); }

    void open()
    {
        dialog = std::make_unique<OptionsDialog>(settings, prompts);
        dialog->show();
    }

    void press(const QString &button) const { part(*dialog, button)->click(); }
    [[nodiscard]] Settings stored() const { return readSettings(settings.directory); }
};

} // namespace

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void everyBoxIsStoredAtOnce()
    {
        struct Box
        {
            QString button;
            QString back; ///< the button that takes it back
            bool Settings::*member;
        };
        for (const Box &box : {Box{u"CloseExitsRadio"_s, u"CloseToTrayRadio"_s, &Settings::closeToTray},
                               {u"ScanDoneBeepBox"_s, u"ScanDoneBeepBox"_s, &Settings::scanDoneBeep},
                               {u"ScanConfirmBox"_s, u"ScanConfirmBox"_s, &Settings::skipScanConfirm},
                               {u"CompareContentsBox"_s, u"CompareContentsBox"_s, &Settings::compareWholeContents}}) {
            Stage stage;
            const bool initial = stage.settings.*box.member;
            stage.press(box.button);
            QVERIFY2(stage.settings.*box.member != initial, qPrintable(box.button));
            QVERIFY2(stage.stored().*box.member != initial, qPrintable(box.button));
            stage.open(); // shows what is stored
            stage.press(box.back);
            QVERIFY2(stage.stored().*box.member == initial, qPrintable(box.button));
        }
    }

    void algorithmAndTheme()
    {
        Stage stage;
        const QSignalSpy algorithm(stage.dialog.get(), &OptionsDialog::contentHashAlgorithmChanged);
        QTest::keyClick(part<QComboBox>(*stage.dialog, u"ContentHashCombo"_s), Qt::Key_Down);
        QCOMPARE(stage.stored().contentHashAlgorithm, MirrixCore::ContentHashAlgorithm::Blake3);
        QCOMPARE(algorithm.count(), 1);
        const QSignalSpy theme(stage.dialog.get(), &OptionsDialog::themeChanged);
        stage.press(u"LightThemeRadio"_s); // as before
        QCOMPARE(theme.count(), 0);
        stage.press(u"DarkThemeRadio"_s);
        QCOMPARE(theme.count(), 1);
        QCOMPARE(stage.stored().appTheme, u"dark"_s);
        stage.open();
        QCOMPARE(part<QComboBox>(*stage.dialog, u"ContentHashCombo"_s)->currentIndex(), 1);
        QVERIFY(part(*stage.dialog, u"DarkThemeRadio"_s)->isChecked());
    }

    void clearsTheImageCache()
    {
        Stage stage;
        MirrixCore::setCacheRoot(stage.settings.directory);
        const QString picture = stage.tree.path(u"a.jpg"_s);
        MirrixCore::ImageFeature feature{1, {1}, true, {}};
        MirrixCore::storeImageFeature(picture, 1, 1, feature);
        const QString folder = QDir(stage.settings.directory).filePath(u"image_feature_cache"_s);
        stage.press(u"ClearImageCacheButton"_s); // answered with No
        const QString question = u"清空图片特征缓存|将删除目录下的全部图片哈希/直方图缓存：\n%1\n\n"
                                 "下次图片扫描会重新计算，可能稍慢。是否继续？"_s.arg(QDir::toNativeSeparators(folder));
        QCOMPARE(stage.prompts.asked, QStringList(question));
        QVERIFY(MirrixCore::loadImageFeature(picture, 1, 1, feature));
        stage.prompts.answers.append(true);
        stage.press(u"ClearImageCacheButton"_s);
        QTRY_COMPARE(stage.prompts.asked, QStringList({question, question, u"完成|图片特征缓存已清空。"_s}));
        QVERIFY(!QDir(folder).exists() && part(*stage.dialog, u"ClearImageCacheButton"_s)->isEnabled());
    }

    void pages()
    {
        Stage stage;
        const auto *pages = part<QStackedWidget>(*stage.dialog, u"OptionsPages"_s);
        for (int page = 0; page < pages->count(); ++page) {
            part<QListWidget>(*stage.dialog, u"OptionsNavList"_s)->setCurrentRow(page);
            QCOMPARE(pages->currentIndex(), page);
        }
        const auto *libraries = part<QTreeWidget>(*stage.dialog, u"LibraryTable"_s);
        QTRY_VERIFY(libraries->topLevelItemCount() > 0); // the page at the front is "About"
        const auto qt = libraries->findItems(u"Qt"_s, Qt::MatchExactly);
        QCOMPARE(qt.size(), 1);
        QCOMPARE(qt.first()->text(1), QString::fromLatin1(qVersion()));
        QVERIFY(!columnText(*libraries->model(), 2).split(u'|').contains(QString())); // each has a licence
    }
};

QTEST_MAIN(TestOptionsDialog)
#include "tst_optionsdialog.moc"
