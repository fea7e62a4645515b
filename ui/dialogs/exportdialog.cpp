#include "ui/dialogs/exportdialog.h"

#include "app/text.h"
#include "ui/window/prompts.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace Mirrix {

namespace {

constexpr int formatCount = 4;

QString formatText(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return Text::tr("CSV 清单 (.csv)");
    case ExportFormat::TextReport:
        return Text::tr("文本清单 (.txt)");
    case ExportFormat::Copies:
        return Text::tr("复制文件到文件夹");
    case ExportFormat::DeletionScript:
        return Text::tr("生成批处理脚本 (.bat)");
    }
    return {};
}

QString filterText(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return QStringLiteral("CSV (*.csv)");
    case ExportFormat::TextReport:
        return Text::tr("文本 (*.txt)");
    case ExportFormat::DeletionScript:
        return Text::tr("批处理 (*.bat)");
    case ExportFormat::Copies:
        break;
    }
    return {};
}

/// With its dot; empty for copies.
QString suffixOf(ExportFormat format)
{
    return defaultExportName(format, QDateTime()).section(u'.', 1, -1, QString::SectionIncludeLeadingSep);
}

} // namespace

ExportDialog::ExportDialog(const ExportRequest &initial, Prompts &prompts, QWidget *parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_formats(new QButtonGroup(this))
    , m_pathFormat(initial.format)
{
    constexpr int leastWidth = 480;
    setObjectName(QStringLiteral("ExportDialog"));
    setMinimumWidth(leastWidth);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(buildFormats(initial.format));
    column->addLayout(buildPath(initial.path));
    auto *options = new QVBoxLayout;
    options->setSpacing(8);
    m_onlyChecked = addOption(QStringLiteral("OnlyCheckedBox"), initial.options.onlyChecked);
    m_includeKeyAndTime = addOption(QStringLiteral("IncludeKeyAndTimeBox"), initial.options.includeKeyAndTime);
    m_redactPaths = addOption(QStringLiteral("RedactPathsBox"), initial.options.redactPaths);
    for (QCheckBox *option : {m_onlyChecked, m_includeKeyAndTime, m_redactPaths})
        options->addWidget(option);
    column->addLayout(options);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addStretch();
    column->addWidget(buttons);
    takeFormat();
    retranslate();
    m_formats->checkedButton()->setFocus();
}

QGroupBox *ExportDialog::buildFormats(ExportFormat initial)
{
    m_formatBox = new QGroupBox;
    m_formatBox->setObjectName(QStringLiteral("ExportFormatBox"));
    auto *column = new QVBoxLayout(m_formatBox);
    column->setSpacing(8);
    for (int number = 0; number < formatCount; ++number) {
        auto *button = new QRadioButton;
        button->setObjectName(QStringLiteral("ExportFormat%1").arg(number));
        button->setChecked(number == static_cast<int>(initial));
        m_formats->addButton(button, number);
        column->addWidget(button);
    }
    connect(m_formats, &QButtonGroup::idToggled, this, [this](int, bool isChecked) {
        if (isChecked)
            takeFormat();
    });
    return m_formatBox;
}

QHBoxLayout *ExportDialog::buildPath(const QString &initial)
{
    m_path = new QLineEdit(QDir::toNativeSeparators(initial));
    m_path->setObjectName(QStringLiteral("OutputPathEdit"));
    m_pathLabel = new QLabel;
    m_pathLabel->setBuddy(m_path);
    m_browse = new QPushButton;
    m_browse->setObjectName(QStringLiteral("BrowseOutputButton"));
    m_browse->setAutoDefault(false);
    connect(m_browse, &QPushButton::clicked, this, &ExportDialog::browse);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_pathLabel);
    row->addWidget(m_path, 1);
    row->addWidget(m_browse);
    return row;
}

QCheckBox *ExportDialog::addOption(const QString &name, bool isChecked)
{
    auto *option = new QCheckBox;
    option->setObjectName(name);
    option->setChecked(isChecked);
    return option;
}

ExportRequest ExportDialog::request() const
{
    return {format(),
            QDir::fromNativeSeparators(m_path->text().trimmed()),
            {m_onlyChecked->isChecked(), m_includeKeyAndTime->isChecked(), m_redactPaths->isChecked()}};
}

bool ExportDialog::isPathChosen() const
{
    return request().path == m_chosenPath;
}

ExportFormat ExportDialog::format() const
{
    return static_cast<ExportFormat>(m_formats->checkedId());
}

/// Lets the output path and the options follow the format, so that no list lands in a file named as another kind.
void ExportDialog::takeFormat()
{
    const QString suffix = suffixOf(m_pathFormat);
    const QString newSuffix = suffixOf(format());
    const QString path = m_path->text();
    if (suffix.isEmpty() != newSuffix.isEmpty())
        m_path->clear();
    else if (!suffix.isEmpty() && path.endsWith(suffix, Qt::CaseInsensitive))
        m_path->setText(path.chopped(suffix.size()) + newSuffix);
    m_pathFormat = format();
    const bool hasDetails = m_pathFormat == ExportFormat::Csv || m_pathFormat == ExportFormat::TextReport;
    m_includeKeyAndTime->setEnabled(hasDetails);
    m_redactPaths->setEnabled(m_pathFormat != ExportFormat::Copies);
}

void ExportDialog::browse()
{
    const QString path = request().path;
    QString chosen;
    if (format() == ExportFormat::Copies) {
        chosen = m_prompts.chooseFolder(this, Text::tr("选择目标文件夹"), path);
    } else {
        const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        const QString proposed = documents.filePath(defaultExportName(format(), QDateTime::currentDateTime()));
        chosen =
            m_prompts.chooseSaveFile(this, Text::tr("保存"), path.isEmpty() ? proposed : path, filterText(format()));
    }
    if (chosen.isEmpty())
        return;
    m_path->setText(QDir::toNativeSeparators(chosen));
    m_chosenPath = request().path;
}

void ExportDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void ExportDialog::retranslate()
{
    setWindowTitle(Text::tr("导出扫描结果"));
    m_formatBox->setTitle(Text::tr("导出格式"));
    for (int number = 0; number < formatCount; ++number)
        m_formats->button(number)->setText(formatText(static_cast<ExportFormat>(number)));
    m_formats->button(static_cast<int>(ExportFormat::DeletionScript))
        ->setToolTip(Text::tr(
            "运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”"));
    m_pathLabel->setText(Text::tr("输出路径："));
    m_browse->setText(Text::tr("浏览..."));
    m_onlyChecked->setText(Text::tr("仅导出已勾选的文件"));
    m_includeKeyAndTime->setText(Text::tr("包含分组键与修改时间"));
    m_redactPaths->setText(Text::tr("路径脱敏（隐藏用户名，便于分享）"));
    m_redactPaths->setToolTip(Text::tr("脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件"));
}

} // namespace Mirrix
