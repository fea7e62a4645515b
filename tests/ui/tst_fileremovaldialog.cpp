#include "ui/dialogs/fileremovaldialog.h"

#include "tests/ui/scriptedprompts.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using Mirrix::FileRemovalDialog;
using Mirrix::RemovalChoice;
using Mirrix::RemovalMethod;

class TestFileRemovalDialog : public QObject
{
    Q_OBJECT

private slots:
    void untouched();
    void choices();
    void browsing();
    void saysWhatWillHappen();
};

void TestFileRemovalDialog::untouched()
{
    MirrixTest::ScriptedPrompts prompts;
    Mirrix::Settings settings;
    settings.backupRoot = QStringLiteral("/store/Backup");
    for (bool backsUp : {true, false}) {
        settings.autoBackupBeforeDelete = backsUp;
        FileRemovalDialog dialog(1234, Mirrix::initialRemovalChoice(settings), prompts);
        const auto *question = dialog.findChild<QLabel *>(QStringLiteral("RemovalQuestion"));
        QCOMPARE(question->text(), QString::fromUtf8("即将处理 1234 个文件。请选择移除方式："));
        dialog.show();
        QVERIFY(dialog.width() >= 480);
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.choice(), (RemovalChoice{RemovalMethod::Recycle, settings.backupRoot, {}, backsUp}));
    }
}

void TestFileRemovalDialog::choices()
{
    MirrixTest::ScriptedPrompts prompts;
    FileRemovalDialog dialog(2, {RemovalMethod::Recycle, QStringLiteral("/x"), {}, true}, prompts);
    dialog.show();
    const auto buttons = dialog.findChildren<QRadioButton *>();
    QCOMPARE(buttons.size(), 5);
    for (int number = 0; number < buttons.size(); ++number) {
        QCOMPARE(buttons[number]->property("removeMethod").toInt(), number);
        buttons[number]->click();
        QCOMPARE(static_cast<int>(dialog.choice().method), number);
        for (const QLineEdit *edit : dialog.findChildren<QLineEdit *>())
            QVERIFY(edit->isEnabled());
    }
    dialog.findChild<QLineEdit *>(QStringLiteral("TargetFolderEdit"))->clear();
    QTest::keyClicks(dialog.findChild<QLineEdit *>(QStringLiteral("LinkTargetEdit")), QStringLiteral("/kept file"));
    QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Space);
    QCOMPARE(dialog.choice(), (RemovalChoice{RemovalMethod::HardLink, {}, QStringLiteral("/kept file"), false}));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestFileRemovalDialog::browsing()
{
    MirrixTest::ScriptedPrompts prompts;
    prompts.folders = {QString(), QStringLiteral("/chosen")};
    FileRemovalDialog dialog(2, {RemovalMethod::Move, QStringLiteral("/first"), {}, true}, prompts);
    auto *browse = dialog.findChild<QPushButton *>(QStringLiteral("BrowseTargetButton"));
    QTest::mouseClick(browse, Qt::LeftButton);
    QCOMPARE(dialog.choice().targetFolder, QStringLiteral("/first"));
    QTest::mouseClick(browse, Qt::LeftButton);
    QCOMPARE(dialog.choice().targetFolder, QStringLiteral("/chosen"));
    QCOMPARE(prompts.asked.last(), QString::fromUtf8("选择目标文件夹|"));
}

/// Each method with and without the box gives a sentence of its own, but for the two kinds of links; only what is equal
/// to a kept copy can be made again.
void TestFileRemovalDialog::saysWhatWillHappen()
{
    MirrixTest::ScriptedPrompts prompts;
    FileRemovalDialog dialog(391, {RemovalMethod::Recycle, {}, {}, true}, prompts);
    dialog.setFiles(qint64(164) << 20, true);
    const auto *outcome = dialog.findChild<QLabel *>(QStringLiteral("RemovalOutcome"));
    QCOMPARE(outcome->text(), QString::fromUtf8("391 个文件（164.00 MB）将移动到备份文件夹，不使用回收站。"));
    auto *box = dialog.findChild<QCheckBox *>();
    QSet<QString> sentences;
    for (QRadioButton *button : dialog.findChildren<QRadioButton *>()) {
        button->click();
        for (const bool backsUp : {true, false}) {
            box->setChecked(backsUp);
            sentences.insert(outcome->text());
            QCOMPARE(outcome->text().contains(QString::fromUtf8("备份文件夹")), backsUp);
        }
    }
    QCOMPARE(sentences.size(), 8);
    dialog.findChildren<QRadioButton *>()[1]->click();
    const QString remakable = outcome->text();
    dialog.setFiles(1, false);
    QVERIFY(remakable.contains(QString::fromUtf8("重新生成")) &&
            outcome->text().contains(QString::fromUtf8("无法找回")));
}

QTEST_MAIN(TestFileRemovalDialog)
#include "tst_fileremovaldialog.moc"
