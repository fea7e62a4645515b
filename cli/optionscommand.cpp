#include "cli/optionscommand.h"

#include "cli/output.h"
#include "core/model/optiontable.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString formatOption = QStringLiteral("format");

/// All options, or those of the names.
QList<ScanOptionInfo> chosen(const QStringList &names)
{
    const QList<ScanOptionInfo> all = scanOptionInfos();
    if (names.isEmpty())
        return all;
    QList<ScanOptionInfo> infos;
    for (const QString &name : names) {
        const auto found = std::find_if(all.begin(), all.end(), [&](const auto &info) { return info.name == name; });
        if (found == all.end())
            throw UsageError{QStringLiteral("unknown option \"%1\"; \"mirrix-cli options\" lists all").arg(name)};
        infos.append(*found);
    }
    return infos;
}

/// A value as --set takes it.
QString valueText(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString textOf(const ScanOptionInfo &info)
{
    const QString range = info.hasRange() ? QStringLiteral(", %1 to %2").arg(info.least).arg(info.most) : QString();
    return QStringLiteral("%1 = %2\n    %3%4. %5\n")
        .arg(info.name, valueText(info.defaultValue), info.typeName, range, info.description);
}

QJsonObject jsonOf(const ScanOptionInfo &info)
{
    QJsonObject json = {{QStringLiteral("name"), info.name},
                        {QStringLiteral("type"), info.typeName},
                        {QStringLiteral("default"), info.defaultValue},
                        {QStringLiteral("description"), info.description}};
    if (info.hasRange()) {
        json.insert(QStringLiteral("least"), info.least);
        json.insert(QStringLiteral("most"), info.most);
    }
    return json;
}

} // namespace

void addOptionsOptions(QCommandLineParser &parser)
{
    parser.addOption({formatOption, QStringLiteral("Output format: text (default) or json."), QStringLiteral("FORMAT"),
                      QStringLiteral("text")});
    parser.addPositionalArgument(QStringLiteral("NAME"), QStringLiteral("The options to describe (default: all)."),
                                 QStringLiteral("[NAME...]"));
}

ExitStatus runOptions(const QCommandLineParser &parser)
{
    const QString format = parser.value(formatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        throw UsageError{choiceProblem(formatOption, {QStringLiteral("text"), QStringLiteral("json")}, format)};
    Output output;
    const QList<ScanOptionInfo> infos = chosen(parser.positionalArguments());
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    QJsonArray json;
    for (const ScanOptionInfo &info : infos) {
        if (format == QLatin1String("json"))
            json.append(jsonOf(info));
        else
            output.write(textOf(info).toUtf8());
    }
    if (format == QLatin1String("json"))
        output.write(QJsonDocument(json).toJson());
    return output.finish() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
