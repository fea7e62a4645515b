#pragma once

#include <QString>
#include <QStringList>

class QDialog;
class QWidget;

namespace Mirrix {

/// What a question with a check box was answered.
struct Confirmation
{
    bool accepted = false;
    bool checked = false; ///< the check box, whatever was answered
};

/// A question with named buttons and a check box.
struct ConfirmationRequest
{
    QString title;
    QString text;
    QString acceptLabel; ///< the default button
    QString rejectLabel;
    QString checkLabel;
};

/// A question with named buttons.
struct ChoiceRequest
{
    QString title;
    QString text;
    QStringList buttons; ///< the last one is what Esc does
    qsizetype defaultIndex = 0;
};

/// Every question the program asks and every chooser it opens goes through here, so that tests can answer them.
/// Interface thread only; each call returns when the user has answered.
class Prompts
{
public:
    virtual ~Prompts() = default;

    /// `note` is set apart below the text.
    virtual void inform(QWidget *parent, const QString &title, const QString &text, const QString &note = {}) = 0;

    /// The same with a second button, `action`. True when that was pressed.
    [[nodiscard]] virtual bool informWithAction(QWidget *parent, const QString &title, const QString &text,
                                                const QString &note, const QString &action) = 0;

    virtual void warn(QWidget *parent, const QString &title, const QString &text) = 0;
    virtual void fail(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Asks with Yes and No, No being the default. True for Yes alone.
    [[nodiscard]] virtual bool ask(QWidget *parent, const QString &title, const QString &text,
                                   const QString &note = {}) = 0;

    /// The index of the button that was pressed.
    [[nodiscard]] virtual qsizetype choose(QWidget *parent, const ChoiceRequest &request) = 0;

    [[nodiscard]] virtual Confirmation confirm(QWidget *parent, const ConfirmationRequest &request) = 0;

    /// Existing files chosen by the user; none when the chooser was cancelled.
    [[nodiscard]] virtual QStringList chooseFiles(QWidget *parent, const QString &title, const QString &start) = 0;

    /// A folder chosen by the user; empty when the chooser was cancelled.
    [[nodiscard]] virtual QString chooseFolder(QWidget *parent, const QString &title, const QString &start) = 0;

    /// A file to write chosen by the user, who has agreed to replace it if it exists; empty when the chooser was
    /// cancelled. `start` is a folder or a proposed file, `filter` a list such as "CSV (*.csv)".
    [[nodiscard]] virtual QString chooseSaveFile(QWidget *parent, const QString &title, const QString &start,
                                                 const QString &filter) = 0;

    /// Runs a dialog modally; true when it was accepted.
    [[nodiscard]] virtual bool run(QDialog &dialog) = 0;
};

/// The prompts of the real program: message boxes and choosers of the system.
class DialogPrompts : public Prompts
{
public:
    void inform(QWidget *parent, const QString &title, const QString &text, const QString &note = {}) override;
    bool informWithAction(QWidget *parent, const QString &title, const QString &text, const QString &note,
                          const QString &action) override;
    void warn(QWidget *parent, const QString &title, const QString &text) override;
    void fail(QWidget *parent, const QString &title, const QString &text) override;
    bool ask(QWidget *parent, const QString &title, const QString &text, const QString &note = {}) override;
    qsizetype choose(QWidget *parent, const ChoiceRequest &request) override;
    Confirmation confirm(QWidget *parent, const ConfirmationRequest &request) override;
    QStringList chooseFiles(QWidget *parent, const QString &title, const QString &start) override;
    QString chooseFolder(QWidget *parent, const QString &title, const QString &start) override;
    QString chooseSaveFile(QWidget *parent, const QString &title, const QString &start, const QString &filter) override;
    bool run(QDialog &dialog) override;
};

} // namespace Mirrix
