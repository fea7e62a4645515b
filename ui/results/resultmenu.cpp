#include "ui/results/resultmenu.h"

#include "app/text.h"
#include "core/platform/pathtext.h"
#include "ui/texts/resulttexts.h"
#include "ui/window/shell.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Mirrix {

namespace {

void copyPath(const QString &path)
{
    QGuiApplication::clipboard()->setText(shownPath(path));
}

} // namespace

ResultMenu::ResultMenu(QWidget *parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("ResultMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
}

void ResultMenu::addEntry(const QString &text, bool isEnabled, const std::function<void()> &run)
{
    QAction *action = addAction(text);
    action->setEnabled(isEnabled);
    connect(action, &QAction::triggered, this, run);
}

void ResultMenu::addFileEntries(const QString &path)
{
    const bool isFile = !path.isEmpty();
    addEntry(Text::tr("在资源管理器中打开"), isFile, [path] { revealInFileManager(path); });
    addEntry(Text::tr("打开文件"), isFile, [path] { openWithSystem(path); });
    addEntry(Text::tr("打开所在文件夹"), isFile, [path] { openWithSystem(MirrixCore::folderOf(path).toString()); });
    addEntry(Text::tr("复制路径"), isFile, [path] { copyPath(path); });
}

void ResultMenu::addFolderEntries(const QString &path)
{
    const bool isFolder = !path.isEmpty();
    addEntry(Text::tr("在资源管理器中打开"), isFolder, [path] { openWithSystem(path); });
    addEntry(Text::tr("复制文件夹路径"), isFolder, [path] { copyPath(path); });
}

} // namespace Mirrix
