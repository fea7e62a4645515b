#include "actions/export/exporttexts.h"

#include "app/sizetext.h"
#include "app/text.h"
#include "core/platform/nativepath.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace Mirrix {

namespace {

using MirrixCore::pathBytes;

QByteArray quoted(QByteArray text)
{
    return '"' + text.replace('"', "\"\"") + '"';
}

bool endsField(QChar character)
{
    return character == u',' || character == u'"' || character == u'\n' || character == u'\r';
}

QByteArray keyField(const QString &key)
{
    const QByteArray bytes = pathBytes(key); // keys of rules hold names
    return std::any_of(key.begin(), key.end(), endsField) ? quoted(bytes) : bytes;
}

QString shownPath(const QString &path, const ExportOptions &options)
{
    return options.redactPaths ? redactedPath(path) : path;
}

QString shownKey(const QString &key, const ExportOptions &options)
{
    return options.redactPaths ? redactedKey(key) : key;
}

QByteArray csvRow(const ListedFile &listed, const ExportOptions &options)
{
    QByteArray row = QByteArray::number(listed.groupIndex + 1) + ',';
    row += quoted(pathBytes(shownPath(listed.file.path, options))) + ',';
    row += QByteArray::number(listed.file.size) + ',';
    if (options.includeKeyAndTime)
        row += QByteArray::number(listed.file.modifiedMs) + ',' + keyField(shownKey(listed.group.key, options));
    else
        row += "0,";
    return row + '\n';
}

QByteArray reportHead(const ExportOptions &options, const QString &modeName, const QDateTime &now)
{
    QStringList lines = {Text::tr("Mirrix 重复文件扫描报告"),
                         Text::tr("生成时间: %1").arg(now.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))),
                         Text::tr("扫描模式: %1").arg(modeName)};
    if (options.onlyChecked)
        lines.append(Text::tr("范围: 仅已勾选文件"));
    if (options.redactPaths)
        lines.append(Text::tr("说明: 路径已脱敏（用户名已隐藏）"));
    return lines.join(u'\n').toUtf8() + '\n';
}

QByteArray groupHeading(const ListedFile &listed, qsizetype fileCount, const ExportOptions &options)
{
    QString line = Text::tr("[组 %1]").arg(listed.groupIndex + 1);
    if (options.includeKeyAndTime && !listed.group.key.isEmpty())
        line += Text::tr(" 键: %1").arg(shownKey(listed.group.key, options));
    return pathBytes(line + Text::tr("  (%1 个文件)").arg(fileCount)) + '\n';
}

QByteArray reportLine(const MirrixCore::FileEntry &file, const ExportOptions &options)
{
    QString line = QStringLiteral("  • %1 (%2)").arg(shownPath(file.path, options), sizeText(file.size));
    if (options.includeKeyAndTime && file.modifiedMs > 0)
        line += QLatin1String("  ") +
                QDateTime::fromMSecsSinceEpoch(file.modifiedMs).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    return pathBytes(line) + '\n';
}

} // namespace

QString redactedPath(const QString &path)
{
    static const QRegularExpression userFolder(QStringLiteral("([A-Za-z]:\\\\Users\\\\)([^\\\\]+)"),
                                               QRegularExpression::CaseInsensitiveOption);
    return QDir::toNativeSeparators(path).replace(userFolder, QStringLiteral("\\1***"));
}

QString redactedKey(const QString &key)
{
    // Keys join their parts by bars, and their paths have forward slashes.
    static const QRegularExpression userFolder(QStringLiteral("([A-Za-z]:[\\\\/]Users[\\\\/])([^\\\\/|]+)"),
                                               QRegularExpression::CaseInsensitiveOption);
    return QString(key).replace(userFolder, QStringLiteral("\\1***"));
}

bool writeCsv(const ExportRecords &records, const ExportOptions &options, const ByteSink &sink,
              const BatchProgress &progress)
{
    return sink("group,path,size,modified,key\n") &&
           visitListedFiles(records, options, progress,
                            [&](const ListedFile &listed) { return sink(csvRow(listed, options)); });
}

bool writeTextReport(const ExportRecords &records, const ExportOptions &options, const QString &modeName,
                     const QDateTime &now, const ByteSink &sink, const BatchProgress &progress)
{
    const auto write = [&](const ListedFile &listed) {
        if (listed.isFirstOfGroup && !sink(groupHeading(listed, records.countIn(listed.groupIndex, options), options)))
            return false;
        return sink(reportLine(listed.file, options));
    };
    return sink(reportHead(options, modeName, now)) && visitListedFiles(records, options, progress, write);
}

} // namespace Mirrix
