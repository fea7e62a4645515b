#include "ui/dialogs/exportdialog.h"

#include "tests/ui/cleaningscene.h"
#include "ui/exportcommand.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QRegularExpression>

using Mirrix::ExportDialog;
using Mirrix::ExportFormat;
using Mirrix::ExportRequest;
using MirrixTest::CleaningScene;
using MirrixTest::text;

namespace {

template <typename Widget>
Widget *part(QDialog &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QLatin1String(name));
}

void chooseFormat(QDialog &dialog, ExportFormat format)
{
    const QByteArray name = "ExportFormat" + QByteArray::number(static_cast<int>(format));
    auto *button = part<QAbstractButton>(dialog, name);
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2}); // its middle is blank
}

} // namespace

class ExportDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void choices();
    void browsing_data();
    void browsing();
    void pathFollowsFormat();
    void exports();
    void copies();
    void notices();

private:
    /// The user's choice when the dialog opens.
    static void choose(CleaningScene &scene, ExportFormat format, const QString &path, bool onlyChecked)
    {
        scene.prompts.onRun = [=](QDialog &dialog) {
            dialog.show();
            chooseFormat(dialog, format);
            QTest::keyClicks(part<QLineEdit>(dialog, "OutputPathEdit"), path);
            part<QCheckBox>(dialog, "OnlyCheckedBox")->setChecked(onlyChecked);
        };
        scene.prompts.answers.append(true);
    }

    static void run(CleaningScene &scene)
    {
        Mirrix::exportResults(&scene.window, scene.results, text("常规模式"), scene.prompts, scene.log);
    }
};

void ExportDialogTest::choices()
{
    MirrixTest::ScriptedPrompts prompts;
    ExportDialog dialog({}, prompts);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), text("导出扫描结果"));
    QCOMPARE(dialog.request(), (ExportRequest{ExportFormat::Csv, {}, {false, true, false}}));
    Mirrix::ExportOptions expected = dialog.request().options;
    for (auto [name, option] : {std::pair("OnlyCheckedBox", &expected.onlyChecked),
                                std::pair("IncludeKeyAndTimeBox", &expected.includeKeyAndTime),
                                std::pair("RedactPathsBox", &expected.redactPaths)}) {
        QTest::keyClick(part<QCheckBox>(dialog, name), Qt::Key_Space);
        *option = !*option;
        QCOMPARE(dialog.request().options, expected);
    }
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void ExportDialogTest::browsing_data()
{
    const QString stamp = QStringLiteral("^保存\\|.*/Mirrix_20[0-9]{6}_[0-9]{4}\\.");
    QTest::addColumn<QString>("asked"); // an expression; the rows are in the order of the formats
    QTest::newRow("0") << stamp + QStringLiteral("csv\\|CSV \\(\\*\\.csv\\)$");
    QTest::newRow("1") << stamp + QStringLiteral("txt\\|文本 \\(\\*\\.txt\\)$");
    QTest::newRow("2") << QStringLiteral("^选择目标文件夹\\|$");
    QTest::newRow("3") << stamp + QStringLiteral("bat\\|批处理 \\(\\*\\.bat\\)$");
}

void ExportDialogTest::browsing()
{
    QFETCH(QString, asked);
    MirrixTest::ScriptedPrompts prompts;
    const QString chosen = QStringLiteral("/somewhere/chosen");
    prompts.folders = prompts.files = QStringList{QString(), chosen};
    ExportDialog dialog({static_cast<ExportFormat>(atoi(QTest::currentDataTag())), {}, {}}, prompts);
    for (const QString &expected : {QString(), chosen}) {
        QTest::mouseClick(part<QPushButton>(dialog, "BrowseOutputButton"), Qt::LeftButton);
        QCOMPARE(dialog.request().path, expected);
    }
    QVERIFY(dialog.isPathChosen());
    part<QLineEdit>(dialog, "OutputPathEdit")->insert(QStringLiteral("x"));
    QVERIFY(!dialog.isPathChosen());
    const QString question = prompts.asked.first();
    QVERIFY2(QRegularExpression(asked).match(question).hasMatch(), qPrintable(question));
}

void ExportDialogTest::pathFollowsFormat()
{
    MirrixTest::ScriptedPrompts prompts;
    ExportDialog dialog({ExportFormat::Csv, QStringLiteral("/x/list.CSV"), {}}, prompts);
    dialog.show();
    chooseFormat(dialog, ExportFormat::DeletionScript);
    QCOMPARE(dialog.request().path, QStringLiteral("/x/list.bat"));
    part<QLineEdit>(dialog, "OutputPathEdit")->setText(QStringLiteral("/x/own.log"));
    chooseFormat(dialog, ExportFormat::TextReport);
    QCOMPARE(dialog.request().path, QStringLiteral("/x/own.log"));
    chooseFormat(dialog, ExportFormat::Copies);
    QCOMPARE(dialog.request().path, QString());
}

void ExportDialogTest::exports()
{
    CleaningScene scene;
    scene.addGroup({QStringLiteral("kept.dat"), QStringLiteral("ticked.dat*")}, "abc");
    const QString path = scene.path("out.file");
    const QString shown = QDir::toNativeSeparators(path);
    for (auto [format, start] :
         {std::pair(ExportFormat::Csv, "group,path"), std::pair(ExportFormat::TextReport, "Mirrix 重复文件扫描报告"),
          std::pair(ExportFormat::DeletionScript, "@echo off")}) {
        const bool onlyChecked = format != ExportFormat::Csv;
        choose(scene, format, path, onlyChecked);
        const QByteArray before = scene.content(path);
        if (format != ExportFormat::Csv) { // the file is there, and its name was typed
            run(scene);
            QCOMPARE(scene.prompts.asked.takeLast(), text("确认替换|文件已存在，是否替换？\n%1").arg(shown));
            QCOMPARE(scene.content(path), before);
            choose(scene, format, path, onlyChecked);
            scene.prompts.answers.append(true);
        }
        run(scene);
        scene.prompts.asked.removeIf([](const QString &asked) { return asked.startsWith(text("确认替换")); });
        const QByteArray content = scene.content(path);
        QVERIFY2(content.startsWith(start), content.constData());
        QVERIFY(content.contains("ticked.dat") && content.contains("kept.dat") != onlyChecked);
    }
    QCOMPARE(scene.prompts.asked, QStringList(3, text("完成|已导出：%1").arg(shown)));
    QCOMPARE(scene.logged(), QStringList(3, QStringLiteral("export ") + shown));
}

void ExportDialogTest::copies()
{
    CleaningScene scene;
    scene.addGroup({QStringLiteral("a/x.dat"), QStringLiteral("b/x.dat*")}, "abc");
    choose(scene, ExportFormat::Copies, scene.path("copies"), false);
    run(scene);
    const QString shown = QDir::toNativeSeparators(scene.path("copies"));
    QCOMPARE(scene.prompts.asked.size(), 2); // one name was taken
    QVERIFY(scene.prompts.asked.first().startsWith(text("导出警告|部分文件未能导出：\n")));
    QCOMPARE(scene.prompts.asked.last(), text("完成|已复制文件到：%1\n已复制 1 个文件").arg(shown));
    QCOMPARE(scene.logged(), QStringList{QStringLiteral("export_copy ") + shown});
    QVERIFY(scene.has("copies/x.dat") && scene.has("a/x.dat") && scene.has("b/x.dat"));
}

void ExportDialogTest::notices()
{
    CleaningScene scene;
    run(scene); // the dialog is cancelled
    choose(scene, ExportFormat::Csv, scene.path("out.csv"), false);
    run(scene);
    scene.addGroup({QStringLiteral("a"), QStringLiteral("b")}, "abc");
    choose(scene, ExportFormat::Csv, {}, false);
    run(scene);
    choose(scene, ExportFormat::DeletionScript, scene.path("missing/out.bat"), false);
    run(scene);
    QCOMPARE(scene.prompts.asked, (QStringList{text("提示|没有可导出的结果。"), text("提示|请指定输出路径。"),
                                               text("错误|导出失败。\n无法写入脚本。")}));
    QVERIFY(scene.logged().isEmpty());
    QVERIFY(!scene.has("out.csv"));
}

QTEST_MAIN(ExportDialogTest)
#include "tst_exportdialog.moc"
