#pragma once

#include "ui/prompts.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace MirrixTest {

/// Answers every question from a script and remembers what was asked. An unanswered question is a No.
class ScriptedPrompts : public Mirrix::Prompts
{
public:
    QStringList asked; ///< "title|text" of every box, in order

    QStringList notes; ///< what stood below the texts of inform and ask, in order

    QStringList actions;       ///< the second buttons of informWithAction, in order
    QList<bool> actionAnswers; ///< for informWithAction, in order

    QList<qsizetype> choices; ///< for choose, in order
    QList<bool> answers;      ///< for ask and run, in order
    QList<Mirrix::Confirmation> confirmations;
    QList<QStringList> chosenFiles;       ///< for chooseFiles, in order
    QStringList folders;                  ///< for chooseFolder, in order
    QStringList files;                    ///< for chooseSaveFile, in order
    std::function<void(QDialog &)> onRun; ///< what the user does in a dialog before answering it

    void inform(QWidget *, const QString &title, const QString &text, const QString &below) override
    {
        note(title, text);
        notes.append(below);
    }
    /// Unanswered, the box is closed by its first button.
    bool informWithAction(QWidget *parent, const QString &title, const QString &text, const QString &below,
                          const QString &action) override
    {
        inform(parent, title, text, below);
        actions.append(action);
        return !actionAnswers.isEmpty() && actionAnswers.takeFirst();
    }

    void warn(QWidget *, const QString &title, const QString &text) override { note(title, text); }
    void fail(QWidget *, const QString &title, const QString &text) override { note(title, text); }

    bool ask(QWidget *, const QString &title, const QString &text, const QString &below) override
    {
        note(title, text);
        notes.append(below);
        return !answers.isEmpty() && answers.takeFirst();
    }

    /// Without a script the last button, which changes nothing.
    qsizetype choose(QWidget *, const Mirrix::ChoiceRequest &request) override
    {
        note(request.title, request.text);
        return choices.isEmpty() ? request.buttons.size() - 1 : choices.takeFirst();
    }

    Mirrix::Confirmation confirm(QWidget *, const Mirrix::ConfirmationRequest &request) override
    {
        note(request.title, request.text);
        return confirmations.isEmpty() ? Mirrix::Confirmation() : confirmations.takeFirst();
    }

    QStringList chooseFiles(QWidget *, const QString &title, const QString &) override
    {
        note(title, {});
        return chosenFiles.isEmpty() ? QStringList() : chosenFiles.takeFirst();
    }

    QString chooseFolder(QWidget *, const QString &title, const QString &) override
    {
        note(title, {});
        return folders.isEmpty() ? QString() : folders.takeFirst();
    }

    /// Notes the proposed file and the filter.
    QString chooseSaveFile(QWidget *, const QString &title, const QString &start, const QString &filter) override
    {
        note(title, start + QLatin1Char('|') + filter);
        return files.isEmpty() ? QString() : files.takeFirst();
    }

    bool run(QDialog &dialog) override
    {
        if (onRun)
            onRun(dialog);
        return !answers.isEmpty() && answers.takeFirst();
    }

private:
    void note(const QString &title, const QString &text) { asked.append(title + QLatin1Char('|') + text); }
};

} // namespace MirrixTest
