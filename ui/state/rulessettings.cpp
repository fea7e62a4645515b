#include "ui/state/rulessettings.h"

#include "ui/state/scanoptionsfrom.h"

#include <algorithm>
#include <limits>

namespace Mirrix {

namespace {

constexpr qint64 bytesPerMegabyte = 1 << 20;

/// Whether a scan with "the mode's own extensions" looks for exactly these, with or without RAW files.
bool isListOfMode(const QStringList &extensions, qint32 mode, bool withRaw)
{
    RulesState rules;
    rules.mode = mode;
    rules.fileTypes.includeRaw = withRaw;
    return scanOptionsFrom({}, rules).includeExtensions == extensions;
}

void showExtensions(const QStringList &extensions, FileTypeFilters &filters)
{
    filters.useModeExtensions = false;
    filters.includeText = extensions.join(QStringLiteral(", "));
    for (qint32 mode = 0; mode <= qint32(MirrixCore::SearchMode::Video); ++mode) {
        for (const bool withRaw : {true, false}) {
            if (!isListOfMode(extensions, mode, withRaw))
                continue;
            filters.useModeExtensions = true;
            filters.includeText.clear();
            filters.includeRaw = withRaw;
            return;
        }
    }
}

/// Whole MB of a limit, a broken MB counting as nothing or, with `up`, as one. Below 1 byte there is no limit.
qint32 megabytes(qint64 bytes, bool up)
{
    if (bytes < 1)
        return 0;
    const qint64 whole = bytes / bytesPerMegabyte + (up && bytes % bytesPerMegabyte != 0 ? 1 : 0);
    return qint32(std::min<qint64>(whole, std::numeric_limits<qint32>::max()));
}

} // namespace

RulesState rulesStateFrom(const Settings &settings)
{
    RulesState rules;
    FileTypeFilters &filters = rules.fileTypes;
    showExtensions(settings.includeExts, filters);
    filters.excludeText = settings.excludeExts.join(QStringLiteral(", "));
    filters.anySize = settings.minFileBytes < 1 && settings.maxFileBytes < 1;
    filters.minMegabytes = megabytes(settings.minFileBytes, false);
    filters.maxMegabytes = megabytes(settings.maxFileBytes, true);
    return rules;
}

void storeRules(const MirrixCore::ScanOptions &options, Settings &settings)
{
    settings.skipHidden = options.skipHidden;
    settings.skipSystemDirs = options.skipSystemFolders;
    settings.keepRule = options.keepRule;
    settings.similarThreshold = options.imageMaxDistance;
    settings.largeFileMinBytes = options.largeFileMinBytes;
    settings.includeExts = options.includeExtensions;
    settings.excludeExts = options.excludeExtensions;
    settings.minFileBytes = options.minSize;
    settings.maxFileBytes = options.maxSize;
}

} // namespace Mirrix
