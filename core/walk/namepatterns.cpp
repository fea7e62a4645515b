#include "core/walk/namepatterns.h"

#include <algorithm>

namespace MirrixCore {

namespace {

/// Length of the set "[...]" that `pattern` begins with; 0 when it is none. A bracket that comes first is a member.
qsizetype setLength(QStringView pattern)
{
    if (!pattern.startsWith(u'['))
        return 0;
    const qsizetype first = pattern.size() > 1 && pattern[1] == u'!' ? 2 : 1;
    return pattern.indexOf(u']', first + 1) + 1;
}

/// `members`: what is between the brackets.
bool isInSet(QChar character, QStringView members)
{
    const bool isNegated = members.startsWith(u'!');
    if (isNegated)
        members = members.sliced(1);
    bool isMember = false;
    for (qsizetype i = 0; i < members.size(); ++i) {
        const bool isRange = i + 2 < members.size() && members[i + 1] == u'-';
        const QChar last = isRange ? members[i + 2] : members[i];
        isMember = isMember || (members[i] <= character && character <= last);
        i += isRange ? 2 : 0;
    }
    return isMember != isNegated;
}

/// The length of the part at the front of `pattern` that matches `character`; 0 when it does not match.
qsizetype oneCharacter(QChar character, QStringView pattern)
{
    if (const qsizetype length = setLength(pattern); length > 0)
        return isInSet(character, pattern.sliced(1, length - 2)) ? length : 0;
    return !pattern.isEmpty() && (pattern[0] == u'?' || pattern[0] == character) ? 1 : 0;
}

} // namespace

bool matchesPattern(QStringView name, QStringView pattern)
{
    // The last star alone is tried again with more characters: an earlier one would match no other names.
    bool hasStar = false;
    QStringView nameAfterStar;
    QStringView patternAfterStar;
    while (!name.isEmpty()) {
        if (pattern.startsWith(u'*')) {
            hasStar = true;
            pattern = patternAfterStar = pattern.sliced(1);
            nameAfterStar = name;
        } else if (const qsizetype length = oneCharacter(name[0], pattern); length > 0) {
            name = name.sliced(1);
            pattern = pattern.sliced(length);
        } else if (hasStar) {
            name = nameAfterStar = nameAfterStar.sliced(1);
            pattern = patternAfterStar;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin(), pattern.end(), [](QChar unit) { return unit == u'*'; });
}

QStringList versionControlNames()
{
    return {QStringLiteral("*.git"), QStringLiteral(".hg"), QStringLiteral(".svn"), QStringLiteral(".bzr")};
}

NamePatterns::NamePatterns(const QStringList &patterns)
{
    for (const QString &pattern : patterns)
        m_patterns.append(pattern.toLower());
}

bool NamePatterns::match(const QString &name) const
{
    if (m_patterns.isEmpty())
        return false;
    const QString lower = name.toLower();
    return std::any_of(m_patterns.begin(), m_patterns.end(),
                       [&](const QString &pattern) { return matchesPattern(lower, pattern); });
}

} // namespace MirrixCore
