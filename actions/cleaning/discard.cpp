#include "actions/cleaning/discard.h"

#include "actions/cleaning/backupcheck.h"
#include "actions/cleaning/folderaliases.h"
#include "actions/cleaning/itemchecks.h"
#include "actions/files/fileoperations.h"
#include "actions/files/movefile.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

QString undeletableText(const CleaningItem &item)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "无法删除: %1"), item.file.path);
}

/// One surplus file that has been set aside, and what is done with it.
class Discard
{
public:
    Discard(const CleaningItem &item, CleaningMethod method, const QString &asidePath)
        : m_item(item)
        , m_method(method)
        , m_asidePath(asidePath)
    {}

    /// Why the file may not be removed, everything up to the flush checked; empty when it may.
    [[nodiscard]] QString proofProblem(DurableFiles &durable, VolumeTraits &volumes, const StopQuery &isStopped)
    {
        QString problem = isBesideKept() ? sameFileText(m_item.file.path) : keptProblem(m_item, volumes);
        if (!problem.isEmpty())
            return problem;
        if (!m_surplus.open(m_asidePath, HeldFile::Purpose::Remove))
            return m_surplus.isInUse() ? inUseText(m_item.file.path) : undeletableText(m_item);
        if (!isAsScanned(m_surplus.state(), m_item.file)) // replaced just before it was set aside
            return changedText(m_item.file.path);
        if (!m_item.hasKept())
            return {};
        const bool isKeptOpen = m_kept.open(m_item.kept.path, HeldFile::Purpose::Keep);
        if (!isKeptOpen || !isAsScanned(m_kept.state(), m_item.kept))
            return m_kept.isInUse() ? inUseText(m_item.kept.path) : keptChangedText(m_item);
        problem = comparisonProblem(isStopped);
        if (problem.isEmpty() && !durable.ensure(m_kept, m_item.kept.path))
            problem = text(QT_TRANSLATE_NOOP("Mirrix", "无法确保要保留的文件已写入磁盘，未处理: %1"), m_item.file.path);
        return problem.isEmpty() ? changeProblem() : problem;
    }

    /// Removes the file, once the link, if there is to be one, is in place.
    [[nodiscard]] QString act()
    {
        if (isLinking(m_method)) {
            QString problem = linkProblem();
            if (!problem.isEmpty())
                return problem;
        }
        // A network drive may remove the file and report an error.
        if (m_surplus.remove(m_asidePath) || pathState(m_asidePath).kind == PathState::Kind::Missing)
            return {};
        if (isLinking(m_method) && leadsTo(m_item.file.path, linkTarget())) // ours, not another program's
            static_cast<void>(removeFile(m_item.file.path));
        return undeletableText(m_item);
    }

    /// Of the content that both files have; empty where they were not compared.
    [[nodiscard]] const QString &digest() const { return m_digest; }

    [[nodiscard]] CleaningOutcome putBack(const QString &problem)
    {
        m_surplus.close(); // Windows does not rename a file that is open
        m_kept.close();
        // A second try, since the obstacle may have been temporary, and the user would not look for the file under the
        // temporary name.
        for (int attempt = 0; attempt < 2; ++attempt) {
            if (renameExclusively(m_asidePath, m_item.file.path) == FileFault::None)
                return {problem, {}};
        }
        const QString where = text(QT_TRANSLATE_NOOP("Mirrix", "原文件未能放回，可从备份中恢复: %1"), m_item.file.path);
        return {problem + QLatin1Char('\n') + where, m_asidePath};
    }

private:
    /// Whether the name under which the file is set aside appears in the kept file's folder, too: then both folders are
    /// one, and so are files of one name. A file system on top of another may remember a name that is gone, but not one
    /// that it has never seen.
    [[nodiscard]] bool isBesideKept() const
    {
        const QString keptFolder = folderOf(m_item.kept.path);
        return m_item.hasKept() && haveSameNameElsewhere(m_item.file.path, m_item.kept.path) &&
               pathState(joinedPath(keptFolder, fileNameOf(m_asidePath))).kind != PathState::Kind::Missing;
    }

    [[nodiscard]] QString comparisonProblem(const StopQuery &isStopped)
    {
        if (!m_item.isEqualContent)
            return {};
        QByteArray digest;
        const Comparison comparison = compareContents(m_surplus, m_kept, isStopped, &digest);
        if (comparison == Comparison::Stopped)
            return stoppedText(m_item.file.path);
        if (comparison != Comparison::Equal)
            return differsText(m_item.file.path);
        m_digest = backupDigest(digest, MirrixCore::ContentHashAlgorithm::Blake3);
        return {};
    }

    /// Whether both are still what was compared, and in their places.
    [[nodiscard]] QString changeProblem() const
    {
        if (!m_surplus.isUnchanged())
            return changedText(m_item.file.path);
        if (!m_kept.isUnchanged() || !m_kept.isAt(m_item.kept.path))
            return keptChangedText(m_item);
        return {};
    }

    [[nodiscard]] QString linkProblem() const
    {
        QString problem;
        const bool isMade = m_method == CleaningMethod::HardLink
                                ? createHardLink(m_item.file.path, linkTarget(), &problem)
                                : createSymbolicLink(m_item.file.path, linkTarget(), &problem);
        // Between the last check of the kept file and the creation of the link, another file may have taken its place.
        if (isMade && m_kept.isAt(m_item.kept.path))
            return {};
        if (isMade)
            static_cast<void>(removeFile(m_item.file.path));
        return isMade ? keptChangedText(m_item) : problem;
    }

    [[nodiscard]] QString linkTarget() const { return m_item.kept.path; }

    const CleaningItem &m_item;
    CleaningMethod m_method;
    QString m_asidePath;
    QString m_digest;
    HeldFile m_surplus;
    HeldFile m_kept;
};

} // namespace

CleaningOutcome discard(const CleaningItem &item, CleaningMethod method, const QString &asidePath,
                        DurableFiles &durable, VolumeTraits &volumes, const StopQuery &isStopped)
{
    PathState before;
    QString problem = itemProblem(item, &before);
    if (problem.isEmpty() && isLinking(method))
        problem = accessProblem(item.file.path, item.kept.path);
    if (!problem.isEmpty())
        return {problem, {}};
    // Set aside before the proof: if the kept path leads to this very file, it is gone now; and another program with
    // the opposite rule can no longer find this file as its kept copy.
    if (before.isUndeletable || renameExclusively(item.file.path, asidePath) != FileFault::None)
        return {undeletableText(item), {}};
    Discard step(item, method, asidePath);
    problem = step.proofProblem(durable, volumes, isStopped);
    if (problem.isEmpty())
        problem = step.act();
    return problem.isEmpty() ? CleaningOutcome{{}, {}, step.digest(), before} : step.putBack(problem);
}

} // namespace Mirrix
