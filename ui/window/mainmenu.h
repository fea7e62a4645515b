#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;

namespace Mirrix {

/// The menus of the window. Owns their actions; says what was chosen.
class MainMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills `bar`; `language` is the code of the language to show as chosen.
    MainMenu(QMenuBar *bar, const QString &language);

    /// Sets all texts again in the current language.
    void retranslate();

signals:
    void logRequested();
    void historyRequested();
    void restoreRequested();
    void dataFolderRequested();
    void quitRequested();
    void hashToolRequested();
    void optionsRequested();
    void languageChosen(const QString &code);
    void aboutRequested();

private:
    void addAction(QMenu *menu, void (MainMenu::*wish)(), std::function<QString()> text);
    void addLanguages(const QString &current);

    struct TextOf
    {
        std::function<void(const QString &)> set;
        std::function<QString()> text;
    };

    QMenu *m_languages;
    QActionGroup *m_languageGroup;
    QList<TextOf> m_texts;
};

} // namespace Mirrix
