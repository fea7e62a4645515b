#include "actions/cleaning/undoitem.h"

#include "actions/cleaning/backupcheck.h"
#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/createdlink.h"
#include "actions/cleaning/itemchecks.h"
#include "actions/cleaning/undotexts.h"
#include "actions/files/movefile.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

using Way = UndoSource::Way;

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

/// One file being restored.
class Returning
{
public:
    Returning(const RunItem &item, CleaningMethod method, const UndoSource &source, const StopQuery &isStopped)
        : m_item(item)
        , m_source(source)
        , m_isStopped(isStopped)
        , m_link(item, method)
        , m_part(m_link.partPath())
    {}

    [[nodiscard]] UndoneItem run()
    {
        m_result.problem = prepare();
        if (m_result.problem.isEmpty() && !m_link.setAside())
            m_result.problem = occupiedText(m_item.original);
        else if (m_result.problem.isEmpty()) {
            m_result.problem = place();
            if (!m_result.problem.isEmpty())
                m_link.putBack();
        }
        if (m_result.problem.isEmpty())
            tidyUp();
        else if (m_source.way == Way::Copy || m_source.way == Way::EmptyFile)
            static_cast<void>(removeOwnCopy(m_part));
        return m_result;
    }

private:
    /// Everything that can fail before the link is touched.
    [[nodiscard]] QString prepare()
    {
        if (!makeFolders(folderOf(m_item.original)))
            return notBackText(m_item.original);
        if (m_source.way == Way::Backup)
            return backupProblem();
        if (m_source.way == Way::EmptyFile)
            return emptyFileProblem();
        return m_source.way == Way::Copy ? copyProblem() : QString();
    }

    [[nodiscard]] QString emptyFileProblem() const
    {
        static_cast<void>(removeOwnCopy(m_part)); // of an undo that was killed
        return makeEmptyFile(m_part) == FileFault::None ? QString() : notBackText(m_item.original);
    }

    [[nodiscard]] QString backupProblem() const
    {
        const BackupState state = backupState(backup(), m_isStopped);
        if (state == BackupState::Damaged)
            return text(QT_TRANSLATE_NOOP("Mirrix", "备份文件已损坏，未恢复: %1"), m_item.original);
        return state == BackupState::Intact ? QString() : unreadText();
    }

    [[nodiscard]] QString copyProblem() const
    {
        static_cast<void>(removeOwnCopy(m_part)); // of an undo that was killed
        const FileMarks marks{m_item.modifiedExact, m_item.mode};
        if (copyToNewFile(m_source.from, m_part, &marks) != FileFault::None)
            return pathState(m_source.from).kind == PathState::Kind::File
                       ? notBackText(m_item.original)
                       : keptCopyGoneText(m_item.original, m_source.from);
        switch (checkDigest(m_part, m_source.digest, m_isStopped)) {
        case DigestCheck::Equal:
            return {};
        case DigestCheck::Different:
            return keptCopyGoneText(m_item.original, m_source.from);
        case DigestCheck::Unreadable:
            return unreadText();
        case DigestCheck::UnknownKind:
            break;
        }
        return notComparedText(m_item.original);
    }

    [[nodiscard]] QString unreadText() const
    {
        return m_isStopped && m_isStopped() ? stoppedText(m_item.original) : notBackText(m_item.original);
    }

    [[nodiscard]] QString place()
    {
        const FileFault fault =
            pathState(m_item.original).kind == PathState::Kind::Missing ? moveIn() : FileFault::Occupied;
        if (fault == FileFault::Occupied)
            return occupiedText(m_item.original);
        return fault == FileFault::None ? QString() : notBackText(m_item.original);
    }

    [[nodiscard]] FileFault moveIn()
    {
        switch (m_source.way) {
        case Way::Backup:
            return restoreFile(m_source.from, m_item.original, m_result.isLeft);
        case Way::Folder:
            return moveFile(m_source.from, m_item.original);
        case Way::Bin:
            return putBackFromBin(m_source.bin);
        case Way::Aside:
            return renameExclusively(m_source.from, m_item.original);
        case Way::Copy:
        case Way::EmptyFile:
            return renameExclusively(m_part, m_item.original);
        case Way::EmptyFolder:
            return makeFolder(m_item.original);
        case Way::None:
        case Way::Home:
            break;
        }
        return FileFault::Failed;
    }

    void tidyUp()
    {
        // The link is removed only now, with the file in place.
        const PathState now = pathState(m_item.original);
        const bool hasMarks = now.modifiedExact == m_item.modifiedExact && now.mode == m_item.mode;
        if (!m_link.removeAside())
            m_result.note = text(QT_TRANSLATE_NOOP("Mirrix", "已恢复，但原链接无法删除: %1"), m_item.original);
        else if (m_result.isLeft)
            m_result.note = text(QT_TRANSLATE_NOOP("Mirrix", "已恢复，但备份无法删除: %1"), m_source.from);
        else if (!hasMarks && m_source.way != Way::EmptyFolder && // whose time its contents change
                 !setFileMarks(m_item.original, {m_item.modifiedExact, m_item.mode}))
            m_result.note = unmarkedText(m_item.original);
    }

    [[nodiscard]] BackupEntry backup() const
    {
        const QString original = MirrixCore::cleanedPath(MirrixCore::absolutePath(m_item.original));
        return {original, m_source.from, m_item.sizeBytes, 0, m_source.digest};
    }

    const RunItem &m_item;
    const UndoSource &m_source;
    const StopQuery &m_isStopped;
    CreatedLink m_link;
    QString m_part;
    UndoneItem m_result;
};

} // namespace

UndoneItem undoItem(const RunItem &item, CleaningMethod method, const UndoSource &source, const StopQuery &isStopped)
{
    return Returning(item, method, source, isStopped).run();
}

} // namespace Mirrix
