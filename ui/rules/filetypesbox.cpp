#include "ui/rules/filetypesbox.h"

#include "app/text.h"
#include "ui/rules/rulecontrols.h"
#include "ui/texts/rulenames.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace Mirrix {

namespace {

constexpr int mostMegabytes = 16 * 1024 * 1024;

/// While the button is checked the controls do not count.
void disableWhile(QAbstractButton *button, std::initializer_list<QWidget *> controls)
{
    for (QWidget *control : controls)
        QObject::connect(button, &QAbstractButton::toggled, control, &QWidget::setDisabled);
}

} // namespace

FileTypesBox::FileTypesBox(QWidget *parent)
    : QGroupBox(parent)
    , m_binding([this] { emit changed(); })
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layOutExtensions(layout);
    layOutSizes(layout);
    layOutDates(layout);
    bind();
    retranslate();
    setState({});
}

FileTypeFilters FileTypesBox::state() const
{
    return m_binding.read();
}

void FileTypesBox::setState(const FileTypeFilters &filters)
{
    {
        const QSignalBlocker quiet(this);
        m_binding.show(filters);
    }
    emit changed();
}

void FileTypesBox::changeEvent(QEvent *event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void FileTypesBox::layOutExtensions(QBoxLayout *layout)
{
    const auto makeEdit = [this](const QString &name) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(name);
        edit->setClearButtonEnabled(true);
        return edit;
    };
    m_extensionTitle = addSection(layout, this);
    m_modeExtensions = makeCheck(this, QStringLiteral("ModeExtensionsCheck"));
    m_includeRaw = makeCheck(this, QStringLiteral("IncludeRawCheck"));
    m_include = makeEdit(QStringLiteral("IncludeExtensionsEdit"));
    m_includeLabel = makeLabelFor(m_include);
    m_exclude = makeEdit(QStringLiteral("ExcludeExtensionsEdit"));
    m_excludeLabel = makeLabelFor(m_exclude);
    layout->addWidget(m_modeExtensions);
    layout->addWidget(m_includeRaw);
    auto *lists = new QGridLayout;
    lists->setSpacing(8);
    lists->addWidget(m_includeLabel, 0, 0);
    lists->addWidget(m_include, 0, 1);
    lists->addWidget(m_excludeLabel, 1, 0);
    lists->addWidget(m_exclude, 1, 1);
    layout->addLayout(lists);
    disableWhile(m_modeExtensions, {m_includeLabel, m_include});
}

void FileTypesBox::layOutSizes(QBoxLayout *layout)
{
    m_sizeTitle = addSection(layout, this);
    m_anySize = makeCheck(this, QStringLiteral("AnySizeCheck"));
    m_least = makeSpin(this, QStringLiteral("MinSizeSpin"), 0, mostMegabytes);
    m_most = makeSpin(this, QStringLiteral("MaxSizeSpin"), 0, mostMegabytes);
    m_leastLabel = makeLabelFor(m_least);
    m_mostLabel = makeLabelFor(m_most);
    for (QSpinBox *spin : {m_least, m_most})
        spin->setSuffix(QStringLiteral(" MB"));
    layout->addWidget(m_anySize);
    auto *limits = new QGridLayout;
    limits->setSpacing(8);
    limits->addWidget(m_leastLabel, 0, 0);
    limits->addWidget(m_least, 0, 1);
    limits->addWidget(m_mostLabel, 1, 0);
    limits->addWidget(m_most, 1, 1);
    limits->setColumnStretch(2, 1);
    layout->addLayout(limits);
    disableWhile(m_anySize, {m_leastLabel, m_least, m_mostLabel, m_most});
}

void FileTypesBox::layOutDates(QBoxLayout *layout)
{
    m_dateTitle = addSection(layout, this);
    m_anyDate = makeCheck(this, QStringLiteral("AnyDateCheck"));
    m_createdFrom = makeDateEdit(QStringLiteral("CreatedFromEdit"));
    m_createdTo = makeDateEdit(QStringLiteral("CreatedToEdit"));
    m_modifiedFrom = makeDateEdit(QStringLiteral("ModifiedFromEdit"));
    m_modifiedTo = makeDateEdit(QStringLiteral("ModifiedToEdit"));
    m_createdLabel = makeLabelFor(m_createdFrom);
    m_modifiedLabel = makeLabelFor(m_modifiedFrom);
    layout->addWidget(m_anyDate);
    const auto addRange = [this, layout](QLabel *label, QDateTimeEdit *from, QDateTimeEdit *to) {
        auto *dash = new QLabel(QStringLiteral("–"), this);
        layout->addWidget(label);
        addRow(layout, {from, dash, to});
        disableWhile(m_anyDate, {label, from, dash, to});
    };
    addRange(m_createdLabel, m_createdFrom, m_createdTo);
    addRange(m_modifiedLabel, m_modifiedFrom, m_modifiedTo);
}

QDateTimeEdit *FileTypesBox::makeDateEdit(const QString &name)
{
    auto *edit = new QDateEdit(this);
    edit->setObjectName(name);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    // The day after the epoch began: its midnight is past the epoch in every time zone, so it still counts as a limit.
    edit->setMinimumDate(QDate(1970, 1, 2));
    guardWheel(edit);
    return edit;
}

void FileTypesBox::bind()
{
    m_binding.add(m_modeExtensions, &FileTypeFilters::useModeExtensions);
    m_binding.add(m_include, &FileTypeFilters::includeText);
    m_binding.add(m_exclude, &FileTypeFilters::excludeText);
    m_binding.add(m_includeRaw, &FileTypeFilters::includeRaw);
    m_binding.add(m_anySize, &FileTypeFilters::anySize);
    m_binding.add(m_least, &FileTypeFilters::minMegabytes);
    m_binding.add(m_most, &FileTypeFilters::maxMegabytes);
    m_binding.add(m_anyDate, &FileTypeFilters::anyDate);
    m_binding.add(m_createdFrom, &FileTypeFilters::createdFrom);
    m_binding.add(m_createdTo, &FileTypeFilters::createdTo);
    m_binding.add(m_modifiedFrom, &FileTypeFilters::modifiedFrom);
    m_binding.add(m_modifiedTo, &FileTypeFilters::modifiedTo);
}

void FileTypesBox::retranslate()
{
    setTitle(Text::tr("文件类型"));
    m_extensionTitle->setText(Text::tr("扩展名"));
    m_modeExtensions->setText(Text::tr("使用当前模式的扩展名"));
    m_modeExtensions->setToolTip(
        Text::tr("勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。"));
    m_includeLabel->setText(Text::tr("已包含"));
    m_excludeLabel->setText(Text::tr("已排除"));
    for (QLineEdit *edit : {m_include, m_exclude}) {
        edit->setPlaceholderText(Text::tr("例如：jpg, png"));
        edit->setToolTip(Text::tr("用逗号、分号或空格分隔；* 或 *.* 表示全部"));
    }
    m_includeRaw->setText(Text::tr("图片模式包含更多 RAW 格式"));
    m_includeRaw->setToolTip(Text::tr("图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；\n"
                                      "raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。"));
    retranslateSizesAndDates();
}

void FileTypesBox::retranslateSizesAndDates()
{
    m_sizeTitle->setText(Text::tr("文件大小"));
    m_anySize->setText(Text::tr("不限大小"));
    m_leastLabel->setText(Text::tr("最小"));
    m_mostLabel->setText(Text::tr("最大"));
    m_least->setSpecialValueText(noLimitName());
    m_most->setSpecialValueText(noLimitName());
    m_dateTitle->setText(Text::tr("日期"));
    m_anyDate->setText(Text::tr("任意日期"));
    m_createdLabel->setText(Text::tr("创建日期"));
    m_modifiedLabel->setText(Text::tr("修改日期"));
    for (QDateTimeEdit *edit : {m_createdFrom, m_modifiedFrom})
        edit->setToolTip(Text::tr("从这一天开始"));
    for (QDateTimeEdit *edit : {m_createdTo, m_modifiedTo})
        edit->setToolTip(Text::tr("到这一天为止（含当天）"));
    m_createdTo->setAccessibleName(m_createdLabel->text() + u' ' + m_createdTo->toolTip());
    m_modifiedTo->setAccessibleName(m_modifiedLabel->text() + u' ' + m_modifiedTo->toolTip());
}

} // namespace Mirrix
