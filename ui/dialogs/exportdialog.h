#pragma once

#include "actions/export/exporter.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Mirrix {

class Prompts;

/// Asks what the results are to become and where. Writes and checks nothing itself: the caller reads the request after
/// it was accepted.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    ExportDialog(const ExportRequest &initial, Prompts &prompts, QWidget *parent = nullptr);

    [[nodiscard]] ExportRequest request() const;

    /// Whether the output path is one that the user chose in the chooser, which asks before a file is replaced.
    [[nodiscard]] bool isPathChosen() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QGroupBox *buildFormats(ExportFormat initial);
    [[nodiscard]] QHBoxLayout *buildPath(const QString &initial);
    [[nodiscard]] QCheckBox *addOption(const QString &name, bool isChecked);
    [[nodiscard]] ExportFormat format() const;
    void takeFormat();
    void browse();
    void retranslate();

    Prompts &m_prompts;
    QGroupBox *m_formatBox = nullptr;
    QButtonGroup *m_formats;
    QLabel *m_pathLabel = nullptr;
    QLineEdit *m_path = nullptr;
    QPushButton *m_browse = nullptr;
    QCheckBox *m_onlyChecked = nullptr;
    QCheckBox *m_includeKeyAndTime = nullptr;
    QCheckBox *m_redactPaths = nullptr;
    QString m_chosenPath;
    ExportFormat m_pathFormat; ///< what the output path is for
};

} // namespace Mirrix
