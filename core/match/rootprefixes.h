#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace MirrixCore {

/// Finds the first of many roots that a path begins with, by text and without regard to where names end. Takes time by
/// the length of the path and the number of lengths that the roots have, not by the number of roots.
class RootPrefixes
{
public:
    RootPrefixes(const QStringList &roots, Qt::CaseSensitivity sensitivity);

    /// What is left of the path behind that root; the whole path when there is none.
    [[nodiscard]] QString rest(const QString &path) const;

private:
    [[nodiscard]] QString comparable(QString text) const;

    Qt::CaseSensitivity m_sensitivity;
    QHash<QString, qsizetype> m_numbers; ///< by the root in comparable form: its place in the list
    QList<qsizetype> m_lengths;
};

} // namespace MirrixCore
