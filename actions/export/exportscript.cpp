#include "actions/export/exportscript.h"

#include "actions/export/exporttexts.h"
#include "app/text.h"
#include "core/platform/nativepath.h"

#include <QDir>
#include <QStringView>

#include <algorithm>

namespace Mirrix {

namespace {

constexpr qsizetype longestPath = 8000;   // in characters; cmd.exe takes lines of 8191
constexpr qsizetype longestRemark = 1000; // in characters

bool isSeparator(QChar character)
{
    return character == u'\\' || character == u'/';
}

/// Neither wildcards, "<" and ">" are such to the file system too, nor what ends a quoted text or a line. DEL is legal.
bool isPlain(QChar character)
{
    return character >= u' ' && !QStringView(u"\"*<>?|").contains(character);
}

/// Whether Windows takes the path literally. It cuts dots and blanks off the ends of names, and what follows a colon is
/// a stream of the file.
bool isNameable(QStringView path)
{
    if (!std::all_of(path.begin(), path.end(), isPlain) || path.indexOf(u':', 2) >= 0 || path.startsWith(u':'))
        return false;
    for (qsizetype i = 1; i <= path.size(); ++i) {
        const bool endsName = i == path.size() || isSeparator(path[i]);
        if (endsName && (path[i - 1] == u'.' || path[i - 1] == u' '))
            return false;
    }
    return !path.isEmpty();
}

QString shownPath(const QString &path, const ExportOptions &options)
{
    return options.redactPaths ? redactedPath(path) : QDir::toNativeSeparators(path);
}

QString escaped(QString path)
{
    return path.replace(u'%', QLatin1String("%%"));
}

/// Whether `shown`, the form of `path` to be written, hits no other file. The asterisks of a redacted folder lead
/// nowhere; those of a redacted last name would mean all that is in the folder.
bool isSafe(const QString &path, const QString &shown)
{
    const auto lastSeparator = std::find_if(shown.rbegin(), shown.rend(), isSeparator);
    const bool endsInWildcard = std::find(shown.rbegin(), lastSeparator, u'*') != lastSeparator;
    return isNameable(path) && !endsInWildcard && escaped(shown).size() <= longestPath;
}

QString command(const QString &path)
{
    return QStringLiteral("del /f /q \"%1\"\r\n").arg(escaped(path));
}

QString remark(QString path)
{
    path.truncate(longestRemark);
    std::replace_if(
        path.begin(), path.end(), [](QChar character) { return !isPlain(character); }, u'?');
    return QLatin1String("rem ") + command(path);
}

/// What cmd.exe must know before it reads the paths; nothing for plain ones.
QByteArray preparation(const ExportRecords &records, const ExportOptions &options)
{
    bool hasForeign = false;
    bool hasExclamation = false;
    static_cast<void>(visitListedFiles(records, options, {}, [&](const ListedFile &listed) {
        const QString &path = listed.file.path;
        hasForeign = hasForeign || std::any_of(path.begin(), path.end(), [](QChar c) { return c > u'~'; });
        hasExclamation = hasExclamation || path.contains(u'!');
        return !(hasForeign && hasExclamation);
    }));
    QByteArray lines;
    // In other code pages bytes of UTF-8 may read as wildcards, or swallow the quote behind them.
    if (hasForeign)
        lines += "chcp 65001 >nul\r\nif errorlevel 1 exit /b 1\r\n";
    // On by the machine's settings, it takes exclamation marks and carets out of names; no escape is right both ways.
    if (hasExclamation)
        lines += "setlocal DisableDelayedExpansion\r\n";
    return lines;
}

} // namespace

bool writeDeletionScript(const ExportRecords &records, const ExportOptions &options, const ByteSink &sink,
                         QStringList &refusals, const BatchProgress &progress)
{
    const auto write = [&](const ListedFile &listed) {
        const QString shown = shownPath(listed.file.path, options);
        const bool isCommand = isSafe(listed.file.path, shown);
        if (!isCommand)
            refusals.append(Text::tr("批处理脚本无法准确指明该文件，已写为注释: %1").arg(listed.file.path));
        return sink(MirrixCore::pathBytes(isCommand ? command(shown) : remark(shown)));
    };
    return sink("@echo off\r\n" + preparation(records, options)) && visitListedFiles(records, options, progress, write);
}

} // namespace Mirrix
