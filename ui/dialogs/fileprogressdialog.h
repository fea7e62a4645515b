#pragma once

#include "actions/files/batch.h"

#include <QDialog>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Mirrix {

/// Shows how far a batch of files is. Stays as long as the batch runs: the cancel button, Esc and the window's close
/// button only ask the batch to stop after the current file.
class FileProgressDialog : public QDialog
{
    Q_OBJECT

public:
    /// `label` is translated; in it %1 is the number of files done and %2 that of all. Without them the bar only shows
    /// that something is in progress.
    FileProgressDialog(const QString &label, QWidget *parent);

    void setProgress(qsizetype done, qsizetype total);

    [[nodiscard]] bool isStopped() const { return m_isStopped; }

    /// Asks the batch to stop.
    void stop();

    /// What Esc does.
    void reject() override;

signals:
    void stopRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QString m_pattern;
    QLabel *m_label;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    bool m_isStopped = false;
};

/// The progress callback for a batch that runs on another thread: it costs next to nothing a file, the dialog shows the
/// latest figures some twenty times a second, and the batch is stopped once the dialog is. The callback may outlive the
/// dialog.
[[nodiscard]] BatchProgress bindFileProgressDialog(FileProgressDialog &dialog);

/// Runs `work` on a thread of its own and returns when it has ended. The dialog, shown when that takes longer than a
/// moment, keeps the user from everything else until then. When the application is made to end, the work is asked to
/// stop and waited for.
void runUnderProgress(FileProgressDialog &dialog, const std::function<void(const BatchProgress &)> &work);

} // namespace Mirrix
