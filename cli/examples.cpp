#include "cli/examples.h"

#include <QHash>

namespace MirrixCli {

QList<Example> examplesOf(const QString &command)
{
    static const QHash<QString, QList<Example>> table = {
        {QStringLiteral("scan"),
         {{QStringLiteral("Identical files in two folders"), QStringLiteral("mirrix-cli scan Pictures Downloads")},
          {QStringLiteral("Large files of the last month, as JSON"),
           QStringLiteral("mirrix-cli scan --min-size 1M --newer 30d --format json --output dup.json Downloads")},
          {QStringLiteral("Similar pictures, including rotated ones"),
           QStringLiteral("mirrix-cli scan --mode images --set imageFindRotated=true Pictures")},
          {QStringLiteral("Files with similar names, whatever their contents"),
           QStringLiteral("mirrix-cli scan --mode rules --set similarNames=true Downloads")},
          {QStringLiteral("Files found by another program"),
           QStringLiteral("find Downloads -name '*.jpg' -print0 | mirrix-cli scan --files-from -")},
          {QStringLiteral("Empty files and folders"),
           QStringLiteral("mirrix-cli scan --empty-files --empty-folders Downloads")}}},
        {QStringLiteral("clean"),
         {{QStringLiteral("Show what would be backed up"),
           QStringLiteral("mirrix-cli clean --keep newest --method backup Pictures")},
          {QStringLiteral("Replace copies by hard links"),
           QStringLiteral("mirrix-cli clean --keep oldest --method hardlink --apply Downloads")},
          {QStringLiteral("Remove empty folders"),
           QStringLiteral("mirrix-cli clean --empty-folders --apply Downloads")},
          {QStringLiteral("Recycle empty files"),
           QStringLiteral("mirrix-cli clean --empty-files --method recycle --apply Downloads")}}},
        {QStringLiteral("restore"),
         {{QStringLiteral("List what can be restored"), QStringLiteral("mirrix-cli restore --list")}}},
        {QStringLiteral("history"), {{QStringLiteral("List the cleaning runs"), QStringLiteral("mirrix-cli history")}}},
        {QStringLiteral("undo"),
         {{QStringLiteral("Clean, then undo the run"),
           QStringLiteral("mirrix-cli clean --keep oldest --method delete --apply Downloads; "
                          "mirrix-cli undo --apply last")}}},
        {QStringLiteral("log"), {{QStringLiteral("The log as JSON"), QStringLiteral("mirrix-cli log --format json")}}},
        {QStringLiteral("hash"),
         {{QStringLiteral("A list for sha256sum --check"),
           QStringLiteral("mirrix-cli hash --algorithm sha256 Pictures > sums")}}},
        {QStringLiteral("info"),
         {{QStringLiteral("What is known about a file"), QStringLiteral("mirrix-cli info Downloads/film.mkv")}}},
        {QStringLiteral("options"),
         {{QStringLiteral("Describe one option"), QStringLiteral("mirrix-cli options similarPercent")}}},
    };
    return table.value(command);
}

} // namespace MirrixCli
