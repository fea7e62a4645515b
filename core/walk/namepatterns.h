#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace MirrixCore {

/// Whether a file's name, without its folder, matches a pattern of a shell: "*" matches any characters, "?" one,
/// "[ab0-9]" one of those, "[!ab]" one that is none of them. A bracket that is never closed matches itself, and so does
/// a star in brackets. Names that are not valid Unicode match as well: no regular expression does. Compares
/// case-sensitively: fold the case of both before. Thread-safe.
[[nodiscard]] bool matchesPattern(QStringView name, QStringView pattern);

/// Patterns of the names under which version control keeps its files and folders.
[[nodiscard]] QStringList versionControlNames();

/// Several such patterns, letter case ignored.
class NamePatterns
{
public:
    explicit NamePatterns(const QStringList &patterns);

    [[nodiscard]] bool isEmpty() const { return m_patterns.isEmpty(); }

    /// Whether one of them matches.
    [[nodiscard]] bool match(const QString &name) const;

private:
    QStringList m_patterns; ///< lower case
};

} // namespace MirrixCore
