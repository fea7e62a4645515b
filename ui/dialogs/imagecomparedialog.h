#pragma once

#include <QDialog>
#include <QList>

namespace Mirrix {

class ImagePane;

/// Two pictures of a group side by side, each with what is known of its file, so that the user can decide which to
/// keep. Reads and decodes off the interface thread; a file that is no picture shows its name instead.
class ImageCompareDialog : public QDialog
{
    Q_OBJECT

public:
    ImageCompareDialog(const QString &pathA, const QString &pathB, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QList<ImagePane *> m_panes; ///< A, B
};

} // namespace Mirrix
