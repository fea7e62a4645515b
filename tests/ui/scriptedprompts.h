#pragma once

#include "ui/window/prompts.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace MirrixTest {

/// Answers every question from a script, in order, and records what was asked. An unanswered question is a No.
class ScriptedPrompts : public Mirrix::Prompts
{
public:
    QStringList asked;   ///< "title|text" of every box
    QStringList notes;   ///< what stood below the texts of inform and ask
    QStringList actions; ///< the second buttons of informWithAction

    QList<bool> actionAnswers; ///< for informWithAction
    QList<qsizetype> choices;  ///< for choose
    QList<bool> answers;       ///< for ask and run
    QList<Mirrix::Confirmation> confirmations;
    QList<QStringList> chosenFiles;
    QStringList folders;                  ///< for chooseFolder
    QStringList files;                    ///< for chooseSaveFile
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
        return next(actionAnswers);
    }

    void warn(QWidget *, const QString &title, const QString &text) override { note(title, text); }
    void fail(QWidget *, const QString &title, const QString &text) override { note(title, text); }

    bool ask(QWidget *parent, const QString &title, const QString &text, const QString &below) override
    {
        inform(parent, title, text, below);
        return next(answers);
    }

    /// Without a script the last button, which changes nothing.
    qsizetype choose(QWidget *, const Mirrix::ChoiceRequest &request) override
    {
        note(request.title, request.text);
        return next(choices, request.buttons.size() - 1);
    }

    Mirrix::Confirmation confirm(QWidget *, const Mirrix::ConfirmationRequest &request) override
    {
        note(request.title, request.text);
        return next(confirmations);
    }

    QStringList chooseFiles(QWidget *, const QString &title, const QString &) override
    {
        note(title, {});
        return next(chosenFiles);
    }

    QString chooseFolder(QWidget *, const QString &title, const QString &) override
    {
        note(title, {});
        return next(folders);
    }

    /// Notes the proposed file and the filter.
    QString chooseSaveFile(QWidget *, const QString &title, const QString &start, const QString &filter) override
    {
        note(title, start + u'|' + filter);
        return next(files);
    }

    bool run(QDialog &dialog) override
    {
        if (onRun)
            onRun(dialog);
        return next(answers);
    }

private:
    void note(const QString &title, const QString &text) { asked.append(title + u'|' + text); }

    template <typename Answer>
    static Answer next(QList<Answer> &script, const Answer &otherwise = {})
    {
        return script.isEmpty() ? otherwise : script.takeFirst();
    }
};

} // namespace MirrixTest
