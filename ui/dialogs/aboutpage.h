#pragma once

#include "core/scan/libraries.h"

#include <QFutureWatcher>
#include <QWidget>

class QLabel;
class QTreeWidget;

namespace Mirrix {

/// What the program is, which version, where it keeps its data and which libraries it works with. The libraries are
/// asked in another thread when the page is first shown.
class AboutPage : public QWidget
{
    Q_OBJECT

public:
    /// `portable` and `dataFolder` are the mode and the place in which the program keeps its data.
    AboutPage(bool portable, const QString &dataFolder, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showLibraries();

    bool m_portable;
    QString m_dataFolder;
    QLabel *m_purpose;
    QLabel *m_version;
    QLabel *m_data;
    QLabel *m_thanks;
    QTreeWidget *m_libraries;
    QFutureWatcher<QList<MirrixCore::LibraryInfo>> m_asking;
};

} // namespace Mirrix
