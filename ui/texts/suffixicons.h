#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

#include <functional>

namespace Mirrix {

/// Icons of files by suffix, each asked for once, and the icon of a folder. Interface thread only.
class SuffixIcons
{
public:
    /// Gives the icon of files with a lower-case suffix; may be slow.
    using Source = std::function<QIcon(const QString &suffix)>;

    /// Without a source, or where it gives none, there are no icons.
    explicit SuffixIcons(Source source = {}, QIcon folder = {})
        : m_source(std::move(source))
        , m_folder(std::move(folder))
    {}

    [[nodiscard]] const QIcon &folder() const { return m_folder; }
    [[nodiscard]] QIcon file(const QString &path) const;

private:
    Source m_source;
    QIcon m_folder;
    mutable QHash<QString, QIcon> m_icons;
};

} // namespace Mirrix
