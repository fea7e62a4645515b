#include "actions/export/exportrecords.h"

namespace Mirrix {

qsizetype ExportRecords::countIn(qsizetype group, const ExportOptions &options) const
{
    const qsizetype size = groups[group].files.size();
    if (!options.onlyChecked)
        return size;
    qsizetype count = 0;
    for (qsizetype file = 0; file < size; ++file)
        count += isListed(group, file, options) ? 1 : 0;
    return count;
}

qsizetype ExportRecords::count(const ExportOptions &options) const
{
    qsizetype count = 0;
    for (qsizetype group = 0; group < groups.size(); ++group)
        count += countIn(group, options);
    return count;
}

bool visitListedFiles(const ExportRecords &records, const ExportOptions &options, const BatchProgress &progress,
                      const std::function<bool(const ListedFile &)> &visit)
{
    const qsizetype total = progress ? records.count(options) : 0;
    qsizetype done = 0;
    for (qsizetype index = 0; index < records.groups.size(); ++index) {
        const MirrixCore::DuplicateGroup &group = records.groups[index];
        bool isFirst = true;
        for (qsizetype file = 0; file < group.files.size(); ++file) {
            if (!records.isListed(index, file, options))
                continue;
            if ((progress && !progress(done++, total)) || !visit({group, group.files[file], index, isFirst}))
                return false;
            isFirst = false;
        }
    }
    return !progress || progress(total, total);
}

} // namespace Mirrix
