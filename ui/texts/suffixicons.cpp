#include "ui/texts/suffixicons.h"

namespace Mirrix {

QString suffixOf(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > path.lastIndexOf(QLatin1Char('/')) ? path.mid(dot + 1).toLower() : QString();
}

QIcon SuffixIcons::file(const QString &path) const
{
    if (!m_source)
        return {};
    const QString suffix = suffixOf(path);
    const auto known = m_icons.constFind(suffix);
    return known != m_icons.cend() ? *known : *m_icons.insert(suffix, m_source(suffix));
}

} // namespace Mirrix
