#include "ui/texts/suffixicons.h"

#include "core/platform/pathtext.h"

namespace Mirrix {

QIcon SuffixIcons::file(const QString &path) const
{
    if (!m_source)
        return {};
    const QString suffix = MirrixCore::suffixOf(path);
    const auto known = m_icons.constFind(suffix);
    return known != m_icons.cend() ? *known : *m_icons.insert(suffix, m_source(suffix));
}

} // namespace Mirrix
