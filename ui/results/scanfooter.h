#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace Mirrix {

/// The progress bar and the status line below the results.
class ScanFooter : public QWidget
{
    Q_OBJECT

public:
    explicit ScanFooter(QWidget *parent = nullptr);

    /// 0..100; anything else is clamped.
    void setProgress(int percent);

    /// Shows the text elided in the middle to `width` pixels, and in full as the tool tip.
    void setStatusText(const QString &text, int width);

    /// The status text in full.
    [[nodiscard]] QString statusText() const;

private:
    QProgressBar *m_bar;
    QLabel *m_status;
};

} // namespace Mirrix
