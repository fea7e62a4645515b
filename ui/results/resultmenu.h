#pragma once

#include <QMenu>

#include <functional>

namespace Mirrix {

/// A context menu of the results, gone when it closes.
class ResultMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ResultMenu(QWidget *parent);

    void addEntry(const QString &text, bool isEnabled, const std::function<void()> &run);

    /// Entries that show, open and copy one file.
    void addFileEntries(const QString &path);

    /// Entries that show and copy one folder.
    void addFolderEntries(const QString &path);
};

} // namespace Mirrix
