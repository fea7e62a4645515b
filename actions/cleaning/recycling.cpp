#include "actions/cleaning/recycling.h"

#include "actions/cleaning/itemchecks.h"
#include "actions/files/nativefile.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

QString obstacle(const RecycleBin &bin, const CleaningItem &item, const RecyclingChecks &checks, PathState &before)
{
    QString problem = itemProblem(item, &before);
    if (problem.isEmpty() && checks.isAlias(item))
        problem = sameFileText(item.file.path);
    if (problem.isEmpty() && !bin.canTake(item.file.path))
        problem = text(QT_TRANSLATE_NOOP("Mirrix", "无法放入回收站，已保留: %1"), item.file.path);
    return problem.isEmpty() ? contentProblem(item, checks.comparesWholeContents, checks.isStopped) : problem;
}

/// The outcome for a file that was handed to the bin, as the disk shows it.
CleaningOutcome outcomeOf(const RecycleBin &bin, const CleaningItem &item, const QString &placed, VolumeTraits &volumes)
{
    const PathState::Kind left = pathState(item.file.path).kind;
    const bool isInBin = left == PathState::Kind::Missing ||
                         (left == PathState::Kind::Unknown && pathState(placed).kind == PathState::Kind::File);
    if (!isInBin)
        return {text(QT_TRANSLATE_NOOP("Mirrix", "未移入回收站，仍在原处: %1"), item.file.path), {}};
    const QString problem = keptProblem(item, volumes);
    if (problem.isEmpty())
        return {{}, placed};
    if (bin.putBack && bin.putBack(item.file.path, placed))
        return {problem, {}};
    const QString where = text(QT_TRANSLATE_NOOP("Mirrix", "文件仍在回收站中，可从那里恢复: %1"), item.file.path);
    return {problem + QLatin1Char('\n') + where, placed};
}

} // namespace

QList<CleaningOutcome> recycle(const RecycleBin &bin, const QList<CleaningItem> &items, const RecyclingChecks &checks,
                               QStringList &batchErrors)
{
    QList<CleaningOutcome> outcomes(items.size());
    QStringList batch;
    QList<qsizetype> sent;
    for (qsizetype i = 0; i < items.size(); ++i) {
        outcomes[i].problem = obstacle(bin, items[i], checks, outcomes[i].before);
        if (!outcomes[i].problem.isEmpty())
            continue;
        batch.append(items[i].file.path);
        sent.append(i);
    }
    if (batch.isEmpty())
        return outcomes;
    const RecycleBin::Answer answer = bin.send(batch);
    if (answer.code != 0 || answer.isAborted)
        batchErrors.append(binFailureText(answer.code, batch.size()));
    for (qsizetype i = 0; i < sent.size(); ++i) {
        const PathState before = outcomes[sent[i]].before;
        outcomes[sent[i]] = outcomeOf(bin, items[sent[i]], answer.placed.value(i), checks.volumes);
        outcomes[sent[i]].before = before;
    }
    return outcomes;
}

} // namespace Mirrix
