#pragma once

#include "actions/backupindex.h"
#include "actions/fileoperations.h"
#include "actions/operationslog.h"
#include "app/settings.h"
#include "core/platform/filestatus.h"
#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"
#include "ui/batchcommands.h"
#include "ui/dialogs/fileremovaldialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace MirrixTest {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// The commands on the scan of a real folder, and everything around them.
struct CleaningScene
{
    TempTree tree;
    Mirrix::ResultSet results;
    Mirrix::Settings settings;
    ScriptedPrompts prompts;
    Mirrix::OperationsLog log{tree.path(QStringLiteral("data/ops.log.enc"))};
    QWidget window;
    Mirrix::BatchCommands commands{results, settings, prompts, log, &window};

    CleaningScene()
    {
        settings.directory = path("data");
        settings.backupRoot = backup();
        commands.setBackupFolder(backup());
    }

    [[nodiscard]] QString backup() const { return tree.path(QStringLiteral("backup")); }
    [[nodiscard]] QString path(const char *name) const { return tree.path(QLatin1String(name)); }
    [[nodiscard]] bool has(const char *name) const { return QFile::exists(path(name)); }

    /// Writes files of one content and takes them for a group; the names with a star are ticked.
    void addGroup(const QStringList &names, const QByteArray &content)
    {
        MirrixCore::DuplicateGroup group;
        group.isEqualContent = true;
        for (QString name : names) {
            const QString path = tree.write(name.remove(QLatin1Char('*')), content);
            const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
            MirrixCore::FileEntry file;
            file.path = path;
            file.size = status.sizeBytes;
            file.modifiedMs = status.modifiedMs;
            group.files.append(file);
        }
        Mirrix::SelectionMarks earlier = results.marks;
        results.groups.append(group);
        results.marks.reset(results.groups);
        for (qsizetype g = 0; g < results.groups.size(); ++g) {
            for (qsizetype i = 0; i < results.groups[g].files.size(); ++i)
                results.marks.setMarked(
                    g, i, g < earlier.groupCount() ? earlier.isMarked(g, i) : names[i].endsWith(QLatin1Char('*')));
        }
    }

    /// The user's choice in the removal dialog.
    void choose(Mirrix::RemovalMethod method, bool backsUp, const QString &folder = {}, const QString &target = {})
    {
        prompts.onRun = [=](QDialog &dialog) {
            QVERIFY(qobject_cast<Mirrix::FileRemovalDialog *>(&dialog));
            const QString button = QStringLiteral("RemovalMethod%1").arg(static_cast<int>(method));
            dialog.findChild<QAbstractButton *>(button)->click();
            dialog.findChild<QCheckBox *>()->setChecked(backsUp);
            dialog.findChild<QLineEdit *>(QStringLiteral("TargetFolderEdit"))->setText(folder);
            dialog.findChild<QLineEdit *>(QStringLiteral("LinkTargetEdit"))->setText(target);
        };
        prompts.answers.append(true);
    }

    [[nodiscard]] QStringList logged() const
    {
        QStringList lines;
        for (const Mirrix::LogEntry &entry : log.readAll())
            lines.append(entry.action + QLatin1Char(' ') + entry.detail);
        return lines;
    }

    [[nodiscard]] QByteArray content(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    [[nodiscard]] QString marks() const
    {
        QStringList groups;
        for (qsizetype g = 0; g < results.groups.size(); ++g) {
            QString text;
            for (qsizetype i = 0; i < results.groups[g].files.size(); ++i)
                text += results.marks.isMarked(g, i) ? QLatin1Char('1') : QLatin1Char('0');
            groups.append(text);
        }
        return groups.join(QLatin1Char(' '));
    }
};

} // namespace MirrixTest
