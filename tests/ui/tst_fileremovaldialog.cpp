#include "ui/dialogs/fileremovaldialog.h"

#include "tests/ui/uitest.h"

class TestFileRemovalDialog : public QObject
{
    Q_OBJECT

private slots:
    void untouched()
    {
        ScriptedPrompts prompts;
        Settings settings;
        settings.backupRoot = u"/store/Backup"_s;
        for (bool backsUp : {true, false}) {
            settings.autoBackupBeforeDelete = backsUp;
            FileRemovalDialog dialog(1234, initialRemovalChoice(settings), prompts);
            QCOMPARE(part<QLabel>(dialog, u"RemovalQuestion"_s)->text(), u"即将处理 1234 个文件。请选择移除方式："_s);
            dialog.show();
            QTest::mouseClick(part<QDialogButtonBox>(dialog)->button(QDialogButtonBox::Ok), Qt::LeftButton);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(dialog.choice(), (RemovalChoice{RemovalMethod::Recycle, settings.backupRoot, {}, backsUp}));
        }
    }

    /// Each method with and without the box gives a sentence of its own, but for the two kinds of links; only what is
    /// equal to a kept copy can be made again.
    void choices()
    {
        ScriptedPrompts prompts;
        FileRemovalDialog dialog(391, {RemovalMethod::Recycle, u"/x"_s, {}, true}, prompts);
        dialog.setFiles(qint64(164) << 20, true);
        dialog.show();
        const auto *outcome = part<QLabel>(dialog, u"RemovalOutcome"_s);
        QCOMPARE(outcome->text(), u"391 个文件（164.00 MB）将移动到备份文件夹，不使用回收站。"_s);
        auto *box = part<QCheckBox>(dialog);
        QSet<QString> sentences;
        for (int method = 0; method < 5; ++method) {
            part(dialog, u"RemovalMethod%1"_s.arg(method))->click();
            QCOMPARE(int(dialog.choice().method), method);
            for (const bool backsUp : {true, false}) {
                box->setChecked(backsUp);
                sentences.insert(outcome->text());
                QCOMPARE(outcome->text().contains(u"备份文件夹"), backsUp);
            }
        }
        QCOMPARE(sentences.size(), 8);
        part<QLineEdit>(dialog, u"TargetFolderEdit"_s)->clear();
        QTest::keyClicks(part<QLineEdit>(dialog, u"LinkTargetEdit"_s), u"/kept file"_s);
        QCOMPARE(dialog.choice(), (RemovalChoice{RemovalMethod::HardLink, {}, u"/kept file"_s, false}));

        part(dialog, u"RemovalMethod1"_s)->click();
        QVERIFY(outcome->text().contains(u"重新生成"));
        dialog.setFiles(1, false);
        QVERIFY(outcome->text().contains(u"无法找回"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void browsing()
    {
        ScriptedPrompts prompts;
        prompts.folders = {QString(), u"/chosen"_s};
        FileRemovalDialog dialog(2, {RemovalMethod::Move, u"/first"_s, {}, true}, prompts);
        for (const QString &expected : {u"/first"_s, u"/chosen"_s}) {
            click(dialog, u"BrowseTargetButton"_s);
            QCOMPARE(dialog.choice().targetFolder, expected);
        }
    }
};

QTEST_MAIN(TestFileRemovalDialog)
#include "tst_fileremovaldialog.moc"
