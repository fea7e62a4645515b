#pragma once

#include "actions/files/fileoperations.h"
#include "app/settings.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Mirrix {

class Prompts;

/// How ticked files are to be removed.
struct RemovalChoice
{
    RemovalMethod method = RemovalMethod::Recycle;
    QString targetFolder; ///< for moving
    QString linkTarget;   ///< for links: the file they lead to
    bool backsUpFirst = false;

    bool operator==(const RemovalChoice &) const = default;
};

/// What the dialog starts with.
[[nodiscard]] RemovalChoice initialRemovalChoice(const Settings &settings);

/// Asks how a number of files are to be removed. Removes and checks nothing itself: the caller reads the choice after
/// it was accepted.
class FileRemovalDialog : public QDialog
{
    Q_OBJECT

public:
    FileRemovalDialog(qsizetype fileCount, const RemovalChoice &initial, Prompts &prompts, QWidget *parent = nullptr);

    [[nodiscard]] RemovalChoice choice() const;

    /// What the note on the effect is based on: the files' total size, and whether each has an equal copy that stays,
    /// from which it could be made again.
    void setFiles(qint64 totalBytes, bool areContentsEqual);

    /// A line below the question; none when empty. Translated.
    void setNote(const QString &note);

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QGroupBox *buildMethods(RemovalMethod initial);
    [[nodiscard]] QFormLayout *buildInputs(const RemovalChoice &initial);
    void browse();
    void showOutcome();
    void retranslate();

    Prompts &m_prompts;
    qsizetype m_fileCount;
    qint64 m_totalBytes = 0;
    bool m_areContentsEqual = true;
    QLabel *m_question;
    QLabel *m_note;
    QGroupBox *m_methodBox = nullptr;
    QButtonGroup *m_methods;
    QLabel *m_folderLabel = nullptr;
    QLineEdit *m_folder = nullptr;
    QPushButton *m_browse = nullptr;
    QLabel *m_linkLabel = nullptr;
    QLineEdit *m_linkTarget = nullptr;
    QCheckBox *m_backUp;
    QLabel *m_outcome;
};

} // namespace Mirrix
