#pragma once

#include "actions/files/fileoperations.h"
#include "actions/records/backupindex.h"
#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "core/platform/filestatus.h"
#include "tests/support/disk.h"
#include "tests/ui/uitest.h"
#include "ui/batchcommands.h"
#include "ui/dialogs/fileremovaldialog.h"

namespace MirrixTest {

/// The commands on the scan of a real folder, and everything around them.
struct CleaningScene
{
    TempTree tree;
    ResultSet results;
    Settings settings;
    ScriptedPrompts prompts;
    OperationsLog log{path("data/ops.log.enc")};
    QWidget window;
    BatchCommands commands{results, settings, prompts, log, &window};

    CleaningScene()
    {
        settings.directory = path("data");
        settings.backupRoot = backup();
        commands.setBackupFolder(backup());
    }

    [[nodiscard]] QString backup() const { return path("backup"); }
    [[nodiscard]] QString path(const char *name) const { return tree.path(QLatin1String(name)); }
    [[nodiscard]] bool has(const char *name) const { return QFile::exists(path(name)); }
    [[nodiscard]] QByteArray content(const QString &path) const { return contentOf(path); }

    /// Those of the names that are on the disk.
    [[nodiscard]] QString there(const QString &names) const
    {
        QStringList found = names.split(u' ');
        found.removeIf([this](const QString &name) { return !QFile::exists(tree.path(name)); });
        return found.join(u' ');
    }

    /// Writes files of one content and takes them for a group; the names with a star are ticked.
    void addGroup(const QString &names, const QByteArray &content)
    {
        MirrixCore::DuplicateGroup group;
        group.isEqualContent = true;
        const QStringList words = names.split(u' ', Qt::SkipEmptyParts);
        for (QString name : words) {
            MirrixCore::FileEntry file;
            file.path = tree.write(name.remove(u'*'), content);
            const MirrixCore::FileStatus status = MirrixCore::fileStatus(file.path);
            file.size = status.sizeBytes;
            file.modifiedMs = status.modifiedMs;
            group.files.append(file);
        }
        const SelectionMarks earlier = results.marks;
        const qsizetype added = results.groups.size();
        results.groups.append(group);
        results.marks.reset(results.groups);
        for (qsizetype g = 0; g <= added; ++g) {
            for (qsizetype i = 0; i < results.groups[g].files.size(); ++i)
                results.marks.setMarked(g, i, g < added ? earlier.isMarked(g, i) : words[i].endsWith(u'*'));
        }
    }

    /// The user's choice in the removal dialog.
    void choose(RemovalMethod method, bool backsUp, const QString &folder = {}, const QString &target = {})
    {
        prompts.onRun = [=](QDialog &dialog) {
            QVERIFY(qobject_cast<FileRemovalDialog *>(&dialog));
            part(dialog, u"RemovalMethod%1"_s.arg(int(method)))->click();
            part<QCheckBox>(dialog)->setChecked(backsUp);
            part<QLineEdit>(dialog, u"TargetFolderEdit"_s)->setText(folder);
            part<QLineEdit>(dialog, u"LinkTargetEdit"_s)->setText(target);
        };
        prompts.answers.append(true);
    }

    [[nodiscard]] QStringList logged() const
    {
        QStringList lines;
        for (const LogEntry &entry : log.readAll())
            lines.append(entry.action + u' ' + entry.detail);
        return lines;
    }

    /// What was asked since the last call.
    [[nodiscard]] QStringList takeAsked() { return std::exchange(prompts.asked, {}); }

    /// A digit a file: 1 when it is ticked.
    [[nodiscard]] QString marks() const
    {
        QStringList groups;
        for (qsizetype g = 0; g < results.groups.size(); ++g) {
            QString text;
            for (qsizetype i = 0; i < results.groups[g].files.size(); ++i)
                text += results.marks.isMarked(g, i) ? u'1' : u'0';
            groups.append(text);
        }
        return groups.join(u' ');
    }
};

} // namespace MirrixTest
