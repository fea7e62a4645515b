#include "core/match/rootprefixes.h"

#include <QDir>

namespace MirrixCore {

RootPrefixes::RootPrefixes(const QStringList &roots, Qt::CaseSensitivity sensitivity)
    : m_sensitivity(sensitivity)
{
    for (qsizetype i = 0; i < roots.size(); ++i) {
        const QString root = comparable(QDir::cleanPath(roots[i]));
        if (!m_numbers.contains(root))
            m_numbers.insert(root, i);
        if (!m_lengths.contains(root.size()))
            m_lengths.append(root.size());
    }
}

QString RootPrefixes::rest(const QString &path) const
{
    const QString text = comparable(path);
    qsizetype first = -1;
    qsizetype length = 0;
    for (const qsizetype candidate : m_lengths) {
        const auto found = candidate <= text.size() ? m_numbers.constFind(text.left(candidate)) : m_numbers.cend();
        if (found != m_numbers.cend() && (first < 0 || *found < first)) {
            first = *found;
            length = candidate;
        }
    }
    return path.mid(length);
}

/// Unit by unit, so that the length stays.
QString RootPrefixes::comparable(QString text) const
{
    if (m_sensitivity == Qt::CaseInsensitive) {
        for (QChar &unit : text)
            unit = unit.toCaseFolded();
    }
    return text;
}

} // namespace MirrixCore
