#include "ui/dialogs/fileremovaldialog.h"

#include "app/text.h"
#include "ui/texts/bytetext.h"
#include "ui/window/prompts.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Mirrix {

namespace {

constexpr int methodCount = 5;

QString methodText(int method)
{
    switch (static_cast<RemovalMethod>(method)) {
    case RemovalMethod::Recycle:
        return Text::tr("移入回收站（可恢复）");
    case RemovalMethod::Delete:
        return Text::tr("永久删除");
    case RemovalMethod::Move:
        return Text::tr("移动到指定文件夹");
    case RemovalMethod::SymbolicLink:
        return Text::tr("删除后创建符号链接");
    case RemovalMethod::HardLink:
        return Text::tr("删除后创建硬链接");
    }
    return {};
}

/// The effect of a choice; %1 is the number of files and %2 their size.
QString outcomePattern(const RemovalChoice &choice, bool areContentsEqual)
{
    const bool backsUp = choice.backsUpFirst;
    switch (choice.method) {
    case RemovalMethod::Recycle:
        return backsUp ? Text::tr("%1 个文件（%2）将移动到备份文件夹，不使用回收站。")
                       : Text::tr("%1 个文件（%2）将移入回收站，清空回收站后才释放空间。");
    case RemovalMethod::Delete:
        if (backsUp)
            return Text::tr("%1 个文件（%2）将移动到备份文件夹，不会永久删除。");
        return areContentsEqual ? Text::tr("%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。")
                                : Text::tr("%1 个文件（%2）将永久删除，不进回收站，无法找回。");
    case RemovalMethod::Move:
        return backsUp ? Text::tr("%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。")
                       : Text::tr("%1 个文件（%2）将移动到目标文件夹。");
    case RemovalMethod::SymbolicLink:
    case RemovalMethod::HardLink:
        return backsUp ? Text::tr("%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。")
                       : Text::tr("%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。");
    }
    return {};
}

} // namespace

RemovalChoice initialRemovalChoice(const Settings &settings)
{
    RemovalChoice choice;
    choice.targetFolder = settings.backupRoot;
    choice.backsUpFirst = settings.autoBackupBeforeDelete;
    return choice;
}

FileRemovalDialog::FileRemovalDialog(qsizetype fileCount, const RemovalChoice &initial, Prompts &prompts,
                                     QWidget *parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_fileCount(fileCount)
    , m_question(new QLabel)
    , m_note(new QLabel)
    , m_methods(new QButtonGroup(this))
    , m_backUp(new QCheckBox)
    , m_outcome(new QLabel)
{
    constexpr int leastWidth = 480;
    setObjectName(QStringLiteral("FileRemovalDialog"));
    setMinimumWidth(leastWidth);
    m_question->setObjectName(QStringLiteral("RemovalQuestion"));
    m_question->setWordWrap(true);
    m_note->setObjectName(QStringLiteral("RemovalNote"));
    m_note->setWordWrap(true);
    m_note->hide();
    m_backUp->setObjectName(QStringLiteral("BackUpFirstBox"));
    m_backUp->setChecked(initial.backsUpFirst);
    m_outcome->setObjectName(QStringLiteral("RemovalOutcome"));
    m_outcome->setTextFormat(Qt::PlainText);
    m_outcome->setWordWrap(true);

    auto *column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(m_question);
    column->addWidget(m_note);
    column->addWidget(buildMethods(initial.method));
    column->addLayout(buildInputs(initial));
    column->addWidget(m_backUp);
    column->addWidget(m_outcome);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    connect(m_methods, &QButtonGroup::idToggled, this, &FileRemovalDialog::showOutcome);
    connect(m_backUp, &QCheckBox::toggled, this, &FileRemovalDialog::showOutcome);
    retranslate();
    m_methods->checkedButton()->setFocus();
}

QGroupBox *FileRemovalDialog::buildMethods(RemovalMethod initial)
{
    m_methodBox = new QGroupBox;
    m_methodBox->setObjectName(QStringLiteral("RemovalMethodBox"));
    auto *column = new QVBoxLayout(m_methodBox);
    column->setSpacing(8);
    for (int method = 0; method < methodCount; ++method) {
        auto *button = new QRadioButton;
        button->setObjectName(QStringLiteral("RemovalMethod%1").arg(method));
        button->setProperty("removeMethod", method);
        button->setChecked(method == static_cast<int>(initial));
        m_methods->addButton(button, method);
        column->addWidget(button);
    }
    return m_methodBox;
}

QFormLayout *FileRemovalDialog::buildInputs(const RemovalChoice &initial)
{
    m_folder = new QLineEdit(initial.targetFolder);
    m_folder->setObjectName(QStringLiteral("TargetFolderEdit"));
    m_browse = new QPushButton;
    m_browse->setObjectName(QStringLiteral("BrowseTargetButton"));
    m_browse->setAutoDefault(false);
    connect(m_browse, &QPushButton::clicked, this, &FileRemovalDialog::browse);
    m_linkTarget = new QLineEdit(initial.linkTarget);
    m_linkTarget->setObjectName(QStringLiteral("LinkTargetEdit"));

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_folder, 1);
    row->addWidget(m_browse);
    m_folderLabel = new QLabel;
    m_folderLabel->setBuddy(m_folder);
    m_linkLabel = new QLabel;
    m_linkLabel->setBuddy(m_linkTarget);
    auto *form = new QFormLayout;
    form->setSpacing(8);
    form->addRow(m_folderLabel, row);
    form->addRow(m_linkLabel, m_linkTarget);
    return form;
}

RemovalChoice FileRemovalDialog::choice() const
{
    return {static_cast<RemovalMethod>(m_methods->checkedId()), m_folder->text(), m_linkTarget->text(),
            m_backUp->isChecked()};
}

void FileRemovalDialog::browse()
{
    const QString chosen = m_prompts.chooseFolder(this, Text::tr("选择目标文件夹"), m_folder->text());
    if (!chosen.isEmpty())
        m_folder->setText(chosen);
}

void FileRemovalDialog::setFiles(qint64 totalBytes, bool areContentsEqual)
{
    m_totalBytes = totalBytes;
    m_areContentsEqual = areContentsEqual;
    showOutcome();
}

void FileRemovalDialog::showOutcome()
{
    m_outcome->setText(
        outcomePattern(choice(), m_areContentsEqual).arg(QString::number(m_fileCount), formatSize(m_totalBytes)));
    if (isVisible()) // a longer sentence must not squeeze the rest
        resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

void FileRemovalDialog::setNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

void FileRemovalDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void FileRemovalDialog::retranslate()
{
    setWindowTitle(Text::tr("文件移除"));
    m_question->setText(Text::tr("即将处理 %1 个文件。请选择移除方式：").arg(m_fileCount));
    m_methodBox->setTitle(Text::tr("移除方式"));
    for (int method = 0; method < methodCount; ++method)
        m_methods->button(method)->setText(methodText(method));
    m_folderLabel->setText(Text::tr("目标文件夹："));
    m_browse->setText(Text::tr("浏览..."));
    m_linkLabel->setText(Text::tr("链接目标："));
    m_linkTarget->setPlaceholderText(Text::tr("保留的文件路径（用于创建链接）"));
    m_linkTarget->setToolTip(Text::tr("先备份再创建链接时可留空：每个链接指向本组中未勾选的文件"));
    m_backUp->setText(Text::tr("移除前先备份"));
    showOutcome();
}

} // namespace Mirrix
