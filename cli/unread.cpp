#include "cli/unread.h"

#include "cli/output.h"
#include "core/platform/pathtext.h"
#include "core/walk/systemplaces.h"

#include <algorithm>

namespace MirrixCli {

using namespace MirrixCore;

void printUnread(const QList<UnreadPath> &unread)
{
    for (const UnreadPath &each : unread)
        printError(QStringLiteral("%1: %2").arg(each.path, each.reason));
}

bool isAnyWanted(const QList<UnreadPath> &unread, const ScanOptions &options)
{
    const QStringList named = options.roots + options.files;
    return std::any_of(unread.begin(), unread.end(), [&](const UnreadPath &each) {
        if (!isSystemPlace(each.path))
            return true;
        return std::any_of(named.begin(), named.end(), [&](const QString &root) {
            return isUnderFolder(each.path, root) && (root == each.path || isSystemPlace(root));
        });
    });
}

} // namespace MirrixCli
