#include "ui/window/mainmenu.h"

#include "app/languagecodes.h"
#include "app/text.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace Mirrix {

MainMenu::MainMenu(QMenuBar *bar, const QString &language)
    : QObject(bar)
    , m_languageGroup(new QActionGroup(this))
{
    const auto addMenu = [this, bar](const char *name, std::function<QString()> text) {
        QMenu *menu = bar->addMenu(QString());
        menu->setObjectName(QLatin1String(name));
        m_texts.append({[menu](const QString &title) { menu->setTitle(title); }, std::move(text)});
        return menu;
    };
    QMenu *file = addMenu("FileMenu", [] { return Text::tr("文件(&F)"); });
    addAction(file, &MainMenu::logRequested, [] { return Text::tr("查看操作日志"); });
    addAction(file, &MainMenu::historyRequested, [] { return Text::tr("清理历史(&C)…"); });
    addAction(file, &MainMenu::dataFolderRequested, [] { return Text::tr("打开数据文件夹"); });
    addAction(file, &MainMenu::restoreRequested, [] { return Text::tr("恢复备份…"); });
    file->addSeparator();
    addAction(file, &MainMenu::quitRequested, [] { return Text::tr("完整退出"); });
    QMenu *tools = addMenu("ToolsMenu", [] { return Text::tr("工具(&T)"); });
    addAction(tools, &MainMenu::hashToolRequested, [] { return Text::tr("哈希工具"); });
    addAction(tools, &MainMenu::optionsRequested, [] { return Text::tr("选项…"); });
    m_languages = addMenu("LanguageMenu", [] { return Text::tr("语言(&L)"); });
    addLanguages(language);
    QMenu *help = addMenu("HelpMenu", [] { return Text::tr("帮助(&H)"); });
    addAction(help, &MainMenu::aboutRequested, [] { return Text::tr("关于 Mirrix"); });
    retranslate();
}

void MainMenu::retranslate()
{
    for (const TextOf &entry : std::as_const(m_texts))
        entry.set(entry.text());
}

void MainMenu::addAction(QMenu *menu, void (MainMenu::*wish)(), std::function<QString()> text)
{
    QAction *action = menu->addAction(QString());
    connect(action, &QAction::triggered, this, wish);
    m_texts.append({[action](const QString &title) { action->setText(title); }, std::move(text)});
}

void MainMenu::addLanguages(const QString &current)
{
    m_languageGroup->setExclusive(true);
    for (const Language &language : languages()) {
        QAction *action = m_languages->addAction(language.nativeName);
        action->setCheckable(true);
        action->setChecked(language.code == current);
        m_languageGroup->addAction(action);
        connect(action, &QAction::triggered, this, [this, code = language.code] { emit languageChosen(code); });
    }
}

} // namespace Mirrix
