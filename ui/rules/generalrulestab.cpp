#include "ui/rules/generalrulestab.h"

#include "app/text.h"
#include "ui/rules/rulecontrols.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace Mirrix {

GeneralRulesTab::GeneralRulesTab(QWidget *parent)
    : QWidget(parent)
    , m_binding([this] { emit changed(); })
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(makeContentBox());
    layout->addWidget(makeCriteriaBox());
    layout->addStretch();
    bind();
    retranslate();
    setState({});
}

GeneralRules GeneralRulesTab::state() const
{
    GeneralRules rules = m_binding.read();
    rules.contentMatch = m_contentButtons->checkedId();
    return rules;
}

void GeneralRulesTab::setState(const GeneralRules &rules)
{
    {
        const QSignalBlocker quiet(this);
        m_binding.show(rules);
        if (QAbstractButton *button = m_contentButtons->button(rules.contentMatch))
            button->setChecked(true);
    }
    emit changed();
}

void GeneralRulesTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

QGroupBox *GeneralRulesTab::makeContentBox()
{
    m_contentBox = new QGroupBox(this);
    m_contentButtons = new QButtonGroup(m_contentBox);
    const auto makeButton = [this](const QString &name) {
        auto *button = new QRadioButton(m_contentBox);
        button->setObjectName(name);
        m_contentButtons->addButton(button, int(m_contentButtons->buttons().size()));
        return button;
    };
    m_sameContent = makeButton(QStringLiteral("SameContentRadio"));
    m_similarContent = makeButton(QStringLiteral("SimilarContentRadio"));
    m_similarPercent = makeSpin(m_contentBox, QStringLiteral("SimilarPercentSpin"), 1, 100);
    m_similarPercent->setPrefix(QStringLiteral("≥ "));
    m_similarPercent->setSuffix(QStringLiteral("%"));
    m_ignoreContent = makeButton(QStringLiteral("IgnoreContentRadio"));
    m_ignoreContentHint = makeHint(m_contentBox);
    enableWhile(m_similarContent, {m_similarPercent});

    auto *layout = new QVBoxLayout(m_contentBox);
    layout->setSpacing(8);
    layout->addWidget(m_sameContent);
    addRow(layout, {m_similarContent, m_similarPercent});
    layout->addWidget(m_ignoreContent);
    layout->addWidget(m_ignoreContentHint);
    return m_contentBox;
}

QGroupBox *GeneralRulesTab::makeCriteriaBox()
{
    m_criteriaBox = new QGroupBox(this);
    auto *layout = new QVBoxLayout(m_criteriaBox);
    layout->setSpacing(8);
    layOutNamesAndSizes(layout);
    layOutDatesAndPlaces(layout);
    layOutPathsAndText(layout);
    return m_criteriaBox;
}

void GeneralRulesTab::layOutNamesAndSizes(QBoxLayout *layout)
{
    m_nameTitle = addSection(layout, m_criteriaBox);
    m_sameName = makeCheck(m_criteriaBox, QStringLiteral("SameNameCheck"));
    m_sameExtension = makeCheck(m_criteriaBox, QStringLiteral("SameExtensionCheck"));
    m_similarNames = makeCheck(m_criteriaBox, QStringLiteral("SimilarNamesCheck"));
    m_ignoreCopyWords = makeCheck(m_criteriaBox, QStringLiteral("IgnoreCopyWordsCheck"));
    m_copyWordsInAllLanguages = makeCheck(m_criteriaBox, QStringLiteral("CopyWordsInAllLanguagesCheck"));
    for (QCheckBox *check : {m_sameName, m_sameExtension, m_similarNames})
        layout->addWidget(check);
    addRow(layout, {m_ignoreCopyWords, m_copyWordsInAllLanguages});
    enableWhile(m_ignoreCopyWords, {m_copyWordsInAllLanguages});

    m_sizeTitle = addSection(layout, m_criteriaBox);
    m_sameSize = makeCheck(m_criteriaBox, QStringLiteral("SameSizeCheck"));
    m_sizeTolerance = makeSpin(m_criteriaBox, QStringLiteral("SizeToleranceSpin"), 0, 1048576);
    m_sizeToleranceLabel = makeLabelFor(m_sizeTolerance);
    m_sizeUnit = makeCombo(m_criteriaBox, QStringLiteral("SizeToleranceUnitCombo"));
    m_sizeUnit->setMinimumContentsLength(2);
    m_sizeUnit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (const QString &unit : {QStringLiteral("B"), QStringLiteral("KB"), QStringLiteral("MB"), QStringLiteral("GB")})
        m_sizeUnit->addItem(unit, m_sizeUnit->count());
    addRow(layout, {m_sameSize, m_sizeToleranceLabel, m_sizeTolerance, m_sizeUnit});
    enableWhile(m_sameSize, {m_sizeToleranceLabel, m_sizeTolerance, m_sizeUnit});
}

void GeneralRulesTab::layOutDatesAndPlaces(QBoxLayout *layout)
{
    m_dateTitle = addSection(layout, m_criteriaBox);
    m_sameCreated = makeCheck(m_criteriaBox, QStringLiteral("SameCreatedCheck"));
    m_createdDateOnly = makeCheck(m_criteriaBox, QStringLiteral("CreatedDateOnlyCheck"));
    m_sameModified = makeCheck(m_criteriaBox, QStringLiteral("SameModifiedCheck"));
    m_modifiedDateOnly = makeCheck(m_criteriaBox, QStringLiteral("ModifiedDateOnlyCheck"));
    addRow(layout, {m_sameCreated, m_createdDateOnly});
    addRow(layout, {m_sameModified, m_modifiedDateOnly});
    enableWhile(m_sameCreated, {m_createdDateOnly});
    enableWhile(m_sameModified, {m_modifiedDateOnly});

    m_driveTitle = addSection(layout, m_criteriaBox);
    m_sameDrive = makeCheck(m_criteriaBox, QStringLiteral("SameDriveCheck"));
    layout->addWidget(m_sameDrive);
}

void GeneralRulesTab::layOutPathsAndText(QBoxLayout *layout)
{
    m_pathTitle = addSection(layout, m_criteriaBox);
    m_sameFolderName = makeCheck(m_criteriaBox, QStringLiteral("SameFolderNameCheck"));
    m_fullPath = makeCheck(m_criteriaBox, QStringLiteral("FullPathCheck"));
    m_pathDepth = makeSpin(m_criteriaBox, QStringLiteral("FolderPathDepthSpin"), 1, 20);
    m_pathDepthLabel = makeLabelFor(m_pathDepth);
    m_pathUnderRoot = makeCheck(m_criteriaBox, QStringLiteral("PathUnderRootCheck"));
    m_ignoreSameFolder = makeCheck(m_criteriaBox, QStringLiteral("IgnoreSameFolderCheck"));
    layout->addWidget(m_sameFolderName);
    layout->addWidget(m_fullPath);
    addRow(layout, {m_pathDepthLabel, m_pathDepth});
    layout->addWidget(m_pathUnderRoot);
    layout->addWidget(m_ignoreSameFolder);
    enableWhile(m_fullPath, {m_pathDepthLabel, m_pathDepth});

    m_textTitle = addSection(layout, m_criteriaBox);
    m_caseSensitive = makeCheck(m_criteriaBox, QStringLiteral("CaseSensitiveCheck"));
    m_nameTolerance = makeSpin(m_criteriaBox, QStringLiteral("NameToleranceSpin"), 0, 100);
    m_nameToleranceLabel = makeLabelFor(m_nameTolerance);
    layout->addWidget(m_caseSensitive);
    addRow(layout, {m_nameToleranceLabel, m_nameTolerance});
    enableWhile(m_similarNames, {m_nameToleranceLabel, m_nameTolerance});
}

void GeneralRulesTab::bind()
{
    connect(m_contentButtons, &QButtonGroup::idToggled, this, &GeneralRulesTab::changed);
    m_binding.add(m_similarPercent, &GeneralRules::similarPercent);
    m_binding.add(m_sameName, &GeneralRules::sameName);
    m_binding.add(m_sameExtension, &GeneralRules::sameExtension);
    m_binding.add(m_similarNames, &GeneralRules::similarNames);
    m_binding.add(m_ignoreCopyWords, &GeneralRules::ignoreCopyWords);
    m_binding.add(m_copyWordsInAllLanguages, &GeneralRules::copyWordsInAllLanguages);
    m_binding.add(m_sameSize, &GeneralRules::sameSize);
    m_binding.add(m_sizeTolerance, &GeneralRules::sizeTolerance);
    m_binding.add(m_sizeUnit, &GeneralRules::sizeToleranceUnit);
    m_binding.add(m_sameCreated, &GeneralRules::sameCreated);
    m_binding.add(m_createdDateOnly, &GeneralRules::createdDateOnly);
    m_binding.add(m_sameModified, &GeneralRules::sameModified);
    m_binding.add(m_modifiedDateOnly, &GeneralRules::modifiedDateOnly);
    m_binding.add(m_sameDrive, &GeneralRules::sameDrive);
    m_binding.add(m_sameFolderName, &GeneralRules::sameFolderName);
    m_binding.add(m_fullPath, &GeneralRules::fullPath);
    m_binding.add(m_pathDepth, &GeneralRules::folderPathDepth);
    m_binding.add(m_pathUnderRoot, &GeneralRules::pathUnderRoot);
    m_binding.add(m_ignoreSameFolder, &GeneralRules::ignoreSameFolderGroups);
    m_binding.add(m_caseSensitive, &GeneralRules::caseSensitive);
    m_binding.add(m_nameTolerance, &GeneralRules::nameTolerance);
}

void GeneralRulesTab::retranslate()
{
    retranslateContent();
    m_criteriaBox->setTitle(Text::tr("更多判断重复的选项"));
    retranslateNamesAndSizes();
    retranslateDatesAndPlaces();
    retranslatePathsAndText();
}

void GeneralRulesTab::retranslateContent()
{
    m_contentBox->setTitle(Text::tr("内容匹配"));
    m_sameContent->setText(Text::tr("相同内容"));
    m_similarContent->setText(Text::tr("相似内容"));
    m_ignoreContent->setText(Text::tr("忽略内容"));
    const QString explanation = Text::tr("以下模式互斥：\n• 相同内容 = 逐字节一致（默认）\n• 相似内容 = 字节近似匹配\n"
                                         "• 忽略内容 = 仅按元数据规则");
    for (QRadioButton *button : {m_sameContent, m_similarContent, m_ignoreContent})
        button->setToolTip(explanation);
    m_similarPercent->setAccessibleName(Text::tr("采样一致的最低比例"));
    m_similarPercent->setToolTip(Text::tr("采样一致的最低比例"));
    m_ignoreContentHint->setText(Text::tr("不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。"));
}

void GeneralRulesTab::retranslateNamesAndSizes()
{
    m_nameTitle->setText(Text::tr("文件名"));
    m_sameName->setText(Text::tr("相同文件名"));
    m_sameExtension->setText(Text::tr("相同文件拓展名"));
    m_similarNames->setText(Text::tr("相似文件名"));
    m_ignoreCopyWords->setText(Text::tr("忽略文件名中「副本」字样"));
    m_copyWordsInAllLanguages->setText(Text::tr("包括其他语言"));
    m_copyWordsInAllLanguages->setToolTip(
        Text::tr("也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”"));
    m_sizeTitle->setText(Text::tr("文件大小"));
    m_sameSize->setText(Text::tr("相同文件大小"));
    m_sizeToleranceLabel->setText(Text::tr("容差"));
    m_sizeUnit->setAccessibleName(Text::tr("容差单位"));
}

void GeneralRulesTab::retranslateDatesAndPlaces()
{
    m_dateTitle->setText(Text::tr("日期"));
    m_sameCreated->setText(Text::tr("相同创建日期"));
    m_createdDateOnly->setText(Text::tr("仅匹配日期"));
    m_sameModified->setText(Text::tr("相同修改日期"));
    m_modifiedDateOnly->setText(Text::tr("仅匹配日期"));
    m_driveTitle->setText(Text::tr("磁盘"));
    m_sameDrive->setText(Text::tr("相同磁盘"));
}

void GeneralRulesTab::retranslatePathsAndText()
{
    m_pathTitle->setText(Text::tr("文件夹与路径"));
    m_sameFolderName->setText(Text::tr("相同的文件夹名称"));
    m_fullPath->setText(Text::tr("匹配完整路径"));
    m_pathDepthLabel->setText(Text::tr("匹配文件夹路径深度"));
    m_pathUnderRoot->setText(Text::tr("匹配扫描位置以下路径"));
    m_ignoreSameFolder->setText(Text::tr("忽略在同一文件夹的重复组别"));
    m_textTitle->setText(Text::tr("文本匹配选项"));
    m_caseSensitive->setText(Text::tr("大小写敏感"));
    m_nameToleranceLabel->setText(Text::tr("相似文本 - 容差"));
    m_nameTolerance->setToolTip(Text::tr("相似文件名之间最多相差的字符数"));
}

} // namespace Mirrix
