#include "ui/texts/boxtext.h"

#include "app/text.h"

#include <QStringList>

namespace Mirrix {

namespace {

constexpr qsizetype mostLines = 14;
constexpr qsizetype mostDetailLines = 5000;   // a text field takes noticeable time for more
constexpr qsizetype mostPathCharacters = 120; // some three lines of a box
constexpr qsizetype mostCharacters = 360;     // more than any sentence of ours has, which must not lose its verb

QString cut(const QString &line)
{
    const bool hasPath = line.contains(QLatin1Char('/')) || line.contains(QLatin1Char('\\'));
    const qsizetype most = hasPath ? mostPathCharacters : mostCharacters;
    if (line.size() <= most)
        return line;
    return line.left(most / 2) + QStringLiteral("…") + line.right(most / 2);
}

/// Where line number `count` begins; the length when there are fewer lines.
qsizetype startOfLine(const QString &text, qsizetype count)
{
    qsizetype start = 0;
    while (count-- > 0) {
        const qsizetype end = text.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            return text.size();
        start = end + 1;
    }
    return start;
}

} // namespace

BoxText boxText(const QString &text)
{
    const qsizetype lineCount = text.count(QLatin1Char('\n')) + 1;
    const bool isLong = lineCount > mostLines;
    const QString head = isLong ? text.left(startOfLine(text, mostLines - 2)).chopped(1) : text;
    QStringList lines;
    for (const QString &line : head.split(QLatin1Char('\n')))
        lines.append(cut(line));
    if (isLong) {
        lines.append(Text::tr("…… 另有 %1 行，见详细信息").arg(lineCount - mostLines + 1));
        lines.append(cut(text.mid(text.lastIndexOf(QLatin1Char('\n')) + 1)));
    }
    BoxText fitted = {lines.join(QLatin1Char('\n')), {}};
    if (fitted.shown == text)
        return fitted;
    fitted.details = text.left(startOfLine(text, mostDetailLines));
    if (lineCount > mostDetailLines)
        fitted.details += Text::tr("…… 另有 %1 行未显示").arg(lineCount - mostDetailLines);
    return fitted;
}

} // namespace Mirrix
