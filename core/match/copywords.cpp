#include "core/match/copywords.h"

#include <QRegularExpression>

namespace MirrixCore {

namespace {

/// What stripCopySuffix does not know. A word in Latin letters needs a blank before it ("Fotokopie" is no copy), and so
/// do the others, which are also parts of words; の takes its place in Japanese.
QRegularExpression copyWords()
{
    const auto latin = QStringLiteral("(?:copy|kopie|copie|c(?:ó|o\\x{301}?)pia)");
    const auto eastern = QStringLiteral("(?:コピー|복사본|사본|副本|复件|拷贝|複製|複本|拷貝)");
    const QStringList forms = {
        QStringLiteral("(?<=\\S)\\s*-\\s*(?:%1|%2)$"),
        QStringLiteral("(?<=\\S)\\s*[(\\[{（](?:(?:[^()（）]{1,20}[ .])?%1|[^()（）]{0,20}%2)(?: ?\\d+)?[)\\]}）]$"),
        QStringLiteral("(?<=\\S)(?:\\s+%1|(?:\\s+|の)%2)(?: ?\\d+)?$"),
        QStringLiteral("^%1(?: ?\\(\\d+\\))? (?:of|von|van|de|di|do|da) (?=.)"),
        QStringLiteral("^(?:コピー|복사본|复件|複製)(?: ?\\(\\d+\\))? (?:[-～] ?)?(?=.)"),
    };
    return QRegularExpression(forms.join(QLatin1Char('|')).arg(latin, eastern),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

/// False for most names, without the regular expression: all words hold "py" or "pi", or are not in Latin script.
bool mayHaveCopyWord(QStringView name)
{
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        if (unit >= 0x2E80) // where the eastern scripts begin
            return true;
        if ((unit | 0x20) == u'p' && i + 1 < name.size()) {
            const char16_t next = name[i + 1].unicode() | 0x20;
            if (next == u'y' || next == u'i')
                return true;
        }
    }
    return false;
}

} // namespace

QString stripCopySuffix(const QString &text)
{
    // Most names end in none of these, and searching them costs more than all else about their keys.
    static const QString lastCharacters = QStringLiteral("0123456789)]}yY本贝\n");
    if (text.isEmpty() || !lastCharacters.contains(text.back()))
        return text.trimmed();
    static const QRegularExpression suffix(
        QStringLiteral("\\s*(?:-\\s*(?:副本|拷贝|Copy)|[\\(\\[\\{]\\d+[\\)\\]\\}]|副本\\d*|Copy\\d*)$"),
        QRegularExpression::CaseInsensitiveOption);
    return QString(text).remove(suffix).trimmed();
}

QString stripCopyWords(const QString &baseName)
{
    static const QRegularExpression words = copyWords();
    QString name = baseName.trimmed();
    for (;;) {
        QString shorter = stripCopySuffix(name);
        if (mayHaveCopyWord(shorter))
            shorter = shorter.remove(words).trimmed();
        if (shorter.isEmpty() || shorter == name)
            return name;
        name = shorter;
    }
}

bool hasCopyWord(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString base = dot < 1 ? name : name.left(dot);
    return stripCopyWords(base) != base.trimmed();
}

} // namespace MirrixCore
