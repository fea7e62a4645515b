#include "ui/dialogs/exportdialog.h"

#include "tests/ui/cleaningscene.h"
#include "ui/exportcommand.h"

namespace {

void chooseFormat(QDialog &dialog, ExportFormat format)
{
    auto *button = part(dialog, u"ExportFormat%1"_s.arg(int(format)));
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2}); // its middle is blank
}

struct ExportScene : CleaningScene
{
    /// Exports; without a format the dialog is cancelled.
    void run(std::optional<ExportFormat> format = {}, const QString &path = {}, bool onlyChecked = false)
    {
        prompts.onRun = [=](QDialog &dialog) {
            dialog.show();
            chooseFormat(dialog, format.value_or(ExportFormat::Csv));
            QTest::keyClicks(part<QLineEdit>(dialog, u"OutputPathEdit"_s), path);
            part(dialog, u"OnlyCheckedBox"_s)->setChecked(onlyChecked);
        };
        prompts.answers.prepend(format.has_value());
        exportResults(&window, results, u"常规模式"_s, prompts, log);
    }
};

} // namespace

class TestExportDialog : public QObject
{
    Q_OBJECT

private slots:
    void choices()
    {
        ScriptedPrompts prompts;
        ExportDialog dialog({}, prompts);
        dialog.show();
        ExportRequest expected{ExportFormat::Csv, {}, {false, true, false}};
        QCOMPARE(dialog.request(), expected);
        for (auto [name, option] : {std::pair(u"OnlyCheckedBox"_s, &expected.options.onlyChecked),
                                    std::pair(u"IncludeKeyAndTimeBox"_s, &expected.options.includeKeyAndTime),
                                    std::pair(u"RedactPathsBox"_s, &expected.options.redactPaths)}) {
            QTest::keyClick(part(dialog, name), Qt::Key_Space);
            *option = !*option;
            QCOMPARE(dialog.request(), expected);
        }
        QTest::mouseClick(part<QDialogButtonBox>(dialog)->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void browsing()
    {
        const QString stamp = u"^保存\\|.*/Mirrix_20[0-9]{6}_[0-9]{4}\\."_s;
        const QStringList questions = {stamp + u"csv\\|CSV \\(\\*\\.csv\\)$"_s,
                                       stamp + u"txt\\|文本 \\(\\*\\.txt\\)$"_s, u"^选择目标文件夹\\|$"_s,
                                       stamp + u"bat\\|批处理 \\(\\*\\.bat\\)$"_s};
        for (int format = 0; format < questions.size(); ++format) {
            ScriptedPrompts prompts;
            prompts.folders = prompts.files = {QString(), u"/chosen"_s};
            ExportDialog dialog({static_cast<ExportFormat>(format), {}, {}}, prompts);
            for (const QString &expected : {QString(), u"/chosen"_s}) {
                click(dialog, u"BrowseOutputButton"_s);
                QCOMPARE(dialog.request().path, expected);
            }
            QVERIFY(dialog.isPathChosen());
            part<QLineEdit>(dialog, u"OutputPathEdit"_s)->insert(u"x"_s);
            QVERIFY(!dialog.isPathChosen());
            const QString asked = prompts.asked.first();
            QVERIFY2(QRegularExpression(questions[format]).match(asked).hasMatch(), qPrintable(asked));
        }
    }

    void pathFollowsFormat()
    {
        ScriptedPrompts prompts;
        ExportDialog dialog({ExportFormat::Csv, u"/x/list.CSV"_s, {}}, prompts);
        dialog.show();
        chooseFormat(dialog, ExportFormat::DeletionScript);
        QCOMPARE(dialog.request().path, u"/x/list.bat"_s);
        part<QLineEdit>(dialog, u"OutputPathEdit"_s)->setText(u"/x/own.log"_s);
        chooseFormat(dialog, ExportFormat::TextReport);
        QCOMPARE(dialog.request().path, u"/x/own.log"_s);
        chooseFormat(dialog, ExportFormat::Copies);
        QCOMPARE(dialog.request().path, QString());
    }

    void exports()
    {
        ExportScene scene;
        scene.addGroup(u"kept.dat ticked.dat*"_s, "abc");
        const QString path = scene.path("out.file");
        const QString shown = QDir::toNativeSeparators(path);
        const QString question = u"确认替换|文件已存在，是否替换？\n%1"_s.arg(shown);
        const QString done = u"完成|已导出：%1"_s.arg(shown);
        scene.run(ExportFormat::Csv, path);
        QCOMPARE(scene.takeAsked(), QStringList{done});
        QByteArray content = scene.content(path);
        QVERIFY(content.startsWith("group,path") && content.contains("kept.dat"));
        for (const auto &[format, start] : {std::pair(ExportFormat::TextReport, "Mirrix 重复文件扫描报告"),
                                            std::pair(ExportFormat::DeletionScript, "@echo off")}) {
            scene.run(format, path, true); // the file is there, and its name was typed
            QCOMPARE(scene.takeAsked(), QStringList{question});
            QCOMPARE(scene.content(path), content);
            scene.prompts.answers = {true};
            scene.run(format, path, true);
            QCOMPARE(scene.takeAsked(), QStringList({question, done}));
            content = scene.content(path);
            QVERIFY2(content.startsWith(start), content.constData());
            QVERIFY(content.contains("ticked.dat") && !content.contains("kept.dat"));
        }
        QCOMPARE(scene.logged(), QStringList(3, u"export "_s + shown));
    }

    void copies()
    {
        ExportScene scene;
        scene.addGroup(u"a/x.dat b/x.dat*"_s, "abc");
        scene.run(ExportFormat::Copies, scene.path("copies"));
        const QString shown = QDir::toNativeSeparators(scene.path("copies"));
        const QStringList asked = scene.takeAsked();
        QCOMPARE(asked.size(), 2); // one name was taken
        QVERIFY(asked.first().startsWith(u"导出警告|部分文件未能导出：\n"));
        QCOMPARE(asked.last(), u"完成|已复制文件到：%1\n已复制 1 个文件"_s.arg(shown));
        QCOMPARE(scene.logged(), QStringList{u"export_copy "_s + shown});
        QCOMPARE(scene.there(u"copies/x.dat a/x.dat b/x.dat"_s), u"copies/x.dat a/x.dat b/x.dat"_s);
    }

    void notices()
    {
        ExportScene scene;
        scene.run();
        scene.run(ExportFormat::Csv, scene.path("out.csv"));
        scene.addGroup(u"a b"_s, "abc");
        scene.run(ExportFormat::Csv);
        scene.run(ExportFormat::DeletionScript, scene.path("missing/out.bat"));
        QCOMPARE(scene.takeAsked(), QStringList({u"提示|没有可导出的结果。"_s, u"提示|请指定输出路径。"_s,
                                                 u"错误|导出失败。\n无法写入脚本。"_s}));
        QVERIFY(scene.logged().isEmpty() && !scene.has("out.csv"));
    }
};

QTEST_MAIN(TestExportDialog)
#include "tst_exportdialog.moc"
