#include "actions/linkreplacement.h"

#include "actions/backupstore.h"
#include "actions/fileoperations.h"
#include "actions/movefile.h"
#include "core/platform/nativepath.h"
#include "core/walk/pathrules.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

/// What the last step of one file came to.
struct Outcome
{
    QString problem;      ///< empty when the link stands
    bool isMoved = false; ///< the original is at its backup path
};

class Replacer
{
public:
    Replacer(LinkKind kind, Originals originals)
        : m_kind(kind)
        , m_originals(originals)
    {}

    [[nodiscard]] Outcome replace(const LinkReplacement &file, const BackupEntry &entry) const
    {
        const PathState before = pathState(file.path);
        const QString obstacle = obstacleFor(file, before);
        if (!obstacle.isEmpty())
            return {obstacle, false};
        if (moveFile(file.path, entry.backup) != FileFault::None)
            return {m_originals == Originals::Discard ? text(QT_TRANSLATE_NOOP("Mirrix", "无法移动: %1"), file.path)
                                                      : backupFailureText(file.path),
                    false};
        QString error;
        const bool isLinked = m_kind == LinkKind::Hard ? createHardLink(file.path, file.target, &error)
                                                       : createSymbolicLink(file.path, file.target, &error);
        if (!isLinked)
            return putBack(file.path, entry, error);
        if (m_originals == Originals::KeepInBackup)
            return {{}, true};
        // A program that had the file open may have written into it since.
        if (pathState(entry.backup).isSameFileAs(before) && removeFile(entry.backup) == FileFault::None)
            return {};
        if (leadsTo(file.path, file.target)) // ours, not what another program has put there
            static_cast<void>(removeFile(file.path));
        return putBack(file.path, entry, text(QT_TRANSLATE_NOOP("Mirrix", "无法删除: %1"), file.path));
    }

private:
    /// What speaks against touching the file at all.
    [[nodiscard]] QString obstacleFor(const LinkReplacement &file, const PathState &before) const
    {
        const PathState target = pathState(file.target);
        if (before.kind == PathState::Kind::Missing)
            return text(QT_TRANSLATE_NOOP("Mirrix", "文件不存在: %1"), file.path);
        if (target.kind != PathState::Kind::File)
            return text(QT_TRANSLATE_NOOP("Mirrix", "链接目标不是可用的文件: %1"), file.target);
        if (!before.identity.isOtherThan(target.identity))
            return text(QT_TRANSLATE_NOOP("Mirrix", "与要保留的文件可能是同一个文件，未处理: %1"), file.path);
        if (m_originals == Originals::Discard && before.isUndeletable)
            return text(QT_TRANSLATE_NOOP("Mirrix", "无法删除: %1"), file.path);
        return {};
    }

    [[nodiscard]] static Outcome putBack(const QString &path, const BackupEntry &entry, const QString &problem)
    {
        if (moveFile(entry.backup, path) == FileFault::None)
            return {problem, false};
        const QString kept = text(QT_TRANSLATE_NOOP("Mirrix", "原文件未能放回，可从备份中恢复: %1"), path);
        return {problem + QLatin1Char('\n') + kept, true};
    }

    LinkKind m_kind;
    Originals m_originals;
};

QList<BackupEntry> plan(const QString &backupFolder, const QList<LinkReplacement> &files, Originals originals)
{
    QStringList paths;
    for (const LinkReplacement &file : files)
        paths.append(file.path);
    QList<BackupEntry> planned = plannedBackups(backupFolder, paths);
    if (originals == Originals::Discard) {
        for (BackupEntry &entry : planned)
            entry.backup = passingName(entry.original, QStringLiteral(".aside"));
    }
    return planned;
}

} // namespace

BatchResult replaceByLinks(const QString &backupFolder, const QList<LinkReplacement> &files, LinkKind kind,
                           Originals originals, const BatchControl &control)
{
    BatchResult result;
    BackupIndexSession session(backupFolderPath(backupFolder));
    const QList<BackupEntry> planned = plan(backupFolder, files, originals);
    if (!session.announce(planned)) {
        for (const LinkReplacement &file : files)
            result.errors.append(backupFailureText(file.path));
        return result;
    }
    const Replacer replacer(kind, originals);
    QList<BackupEntry> kept;
    for (qsizetype i = 0; i < files.size(); ++i) {
        result.isCancelled = !control.mayGoOn(i, files.size());
        if (result.isCancelled)
            break;
        Outcome outcome = {control.refusal(files[i].path), false};
        if (outcome.problem.isEmpty())
            outcome = replacer.replace(files[i], planned[i]);
        if (outcome.isMoved)
            kept.append(planned[i]);
        if (outcome.problem.isEmpty())
            ++result.count;
        else
            result.errors.append(outcome.problem);
    }
    session.conclude(kept);
    return result;
}

} // namespace Mirrix
