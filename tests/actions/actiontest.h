#pragma once

// What the tests of what is done with users' files share. Included by tests only, hence the usings.

#include "actions/cleaning/cleaningrun.h"
#include "actions/files/nativefile.h"
#include "core/platform/filestatus.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QTest>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace MirrixTest {

inline const QList<CleaningMethod> allMethods = {CleaningMethod::Recycle,
                                                 CleaningMethod::Delete,
                                                 CleaningMethod::Move,
                                                 CleaningMethod::SymbolicLink,
                                                 CleaningMethod::HardLink,
                                                 CleaningMethod::Backup,
                                                 CleaningMethod::BackupAndSymbolicLink,
                                                 CleaningMethod::BackupAndHardLink};

/// A row for each method, under its name.
inline void methodRows()
{
    const auto row = columns<CleaningMethod>({"method"});
    for (const CleaningMethod method : allMethods)
        row(qPrintable(methodName(method)), method);
}

/// The file as a scan would have found it.
[[nodiscard]] inline ScannedFile scanned(const QString &path)
{
    const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
    return {path, status.sizeBytes, status.modifiedMs, status.identity, pathState(path).allocatedBytes};
}

/// A tree of files, a new one for each row.
class ActionTest : public QObject
{
protected:
    void renew() { m_tree = std::make_unique<TempTree>(); }
    [[nodiscard]] QString at(const QString &relative = {}) const { return m_tree->path(relative); }
    [[nodiscard]] DiskTree treeAt(const QString &relative = {}) const { return treeBelow(at(relative)); }

    std::unique_ptr<TempTree> m_tree;
};

} // namespace MirrixTest

Q_DECLARE_METATYPE(Mirrix::CleaningMethod)
