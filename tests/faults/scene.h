#pragma once

#include "tests/support/disk.h"
#include "tests/support/program.h"
#include "tests/support/temptree.h"

#include <QProcess>
#include <QStringList>

#include <memory>
#include <utility>

namespace MirrixTest {

/// A small tree with duplicates, the program's folders beside it, and the oracle: what a run of `clean` or `restore`
/// says is compared with where every byte really is.
class Scene
{
public:
    /// `method` is one of clean's, or "restore", for which the surplus files are backed up already. The folder into
    /// which files go lies on another volume when `isOnOtherVolume`.
    Scene(const QString &method, bool isOnOtherVolume);
    Q_DISABLE_COPY_MOVE(Scene)
    ~Scene();

    [[nodiscard]] const QString &target() const { return m_target; }
    [[nodiscard]] QString path(const QString &relative) const { return m_tree.path(relative); }

    /// Everything that belongs to the scene.
    [[nodiscard]] QStringList folders() const { return {m_tree.path(), m_target}; }

    /// From now on a file in the bin whose note is empty counts as recycled: the notes are not flushed one by one, so a
    /// power failure may take what they say.
    void acceptEmptyNotes() { m_mayLoseNotes = true; }

    /// The files that stay were not flushed before the run, so a power failure may take them as long as other copies
    /// of what they hold are left.
    void acceptLossOfKeepers() { m_mayLoseKeepers = true; }

    /// Command line of the flow.
    [[nodiscard]] QStringList arguments() const;

    /// Gives a process the scene's home.
    void prepare(QProcess &process) const;

    /// Runs mirrix-cli undisturbed; its standard output.
    [[nodiscard]] QByteArray run(const QStringList &arguments) const;

    /// The paths, below the scene, of the files that the flow is to handle.
    [[nodiscard]] static QStringList victims();

    /// Runs the flow undisturbed; from then on the flow is to undo it.
    void turnToUndo();

    /// Lets the program remember all digests, and then gives a surplus file and a file that stays other contents under
    /// the old sizes and times: one of three surplus files still is one.
    void makeDigestsStale();

    /// What is wrong on the disk after an undo, and after it was repeated. A link that could not be removed may be
    /// left, if that was said.
    [[nodiscard]] QString problemAfterUndo(const ProgramRun &undo, bool mayLeave) const;

    /// What is wrong on the disk after a run that ended with `status` and printed `output`; empty when all is well.
    /// `mayMiss`: the scan may not have seen every file. `mayLeave`: the program was kept from tidying up.
    [[nodiscard]] QString problem(int status, const QByteArray &output, bool mayMiss, bool mayLeave) const;

    /// Puts back what the index lists; what is wrong afterwards.
    [[nodiscard]] QString problemAfterRecovery() const;

private:
    enum class Place
    {
        AtHome, ///< as it was
        Gone,   ///< where the method puts it
        Listed, ///< on its way, and in the backup index
        Lost
    };

    [[nodiscard]] Place placeOf(const QString &victim) const;
    [[nodiscard]] bool isHandled(const QString &victim) const;
    [[nodiscard]] bool isInBin(const QString &victim) const;
    [[nodiscard]] QList<std::pair<QString, QString>> binned() const;
    [[nodiscard]] bool isListed(const QString &victim) const;
    [[nodiscard]] bool isAtHome(const QString &relative) const;
    [[nodiscard]] bool isAsBefore(const QString &path, const QString &relative) const;
    [[nodiscard]] bool hasWholeCopies() const;
    [[nodiscard]] QString problemOfOthers() const;
    [[nodiscard]] QString leftover() const;

    QString m_method;
    TempTree m_tree;
    std::unique_ptr<QTemporaryDir> m_other;
    QString m_target;
    QString m_store; ///< holds the index of backups and of files set aside
    DiskTree m_before;
    bool m_mayLoseNotes = false;
    bool m_mayLoseKeepers = false;
    bool m_isUndo = false;
};

} // namespace MirrixTest
