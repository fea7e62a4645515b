#include "actions/cleaning/keeprule.h"

#include <QDir>

namespace Mirrix {

namespace {

using MirrixCore::FileEntry;

qsizetype depthOf(const FileEntry &file)
{
    const QString path = QDir::cleanPath(file.path);
    return path.count(QLatin1Char('/')) + path.count(QLatin1Char('\\'));
}

bool isPreferred(const FileEntry &file, const FileEntry &best, KeepRule rule)
{
    switch (rule) {
    case KeepRule::Newest:
        return file.modifiedMs > best.modifiedMs;
    case KeepRule::Oldest:
        return file.modifiedMs < best.modifiedMs;
    case KeepRule::Shallowest:
        return depthOf(file) < depthOf(best);
    case KeepRule::Deepest:
        return depthOf(file) > depthOf(best);
    }
    return false;
}

} // namespace

qsizetype chooseKeeper(const QList<FileEntry> &files, KeepRule rule)
{
    if (files.isEmpty())
        return -1;
    qsizetype best = 0;
    for (qsizetype i = 1; i < files.size(); ++i) {
        if (isPreferred(files[i], files[best], rule))
            best = i;
    }
    return best;
}

} // namespace Mirrix
