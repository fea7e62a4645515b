#include "ui/rules/imagerulestab.h"

#include "app/text.h"
#include "ui/rules/rulecontrols.h"
#include "ui/rules/tagtable.h"
#include "ui/texts/rulenames.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace Mirrix {

ImageRulesTab::ImageRulesTab(QWidget *parent)
    : QWidget(parent)
    , m_box(new QGroupBox(this))
    , m_binding([this] { emit changed(); })
{
    auto *sections = new QVBoxLayout(m_box);
    sections->setSpacing(8);
    layOutShape(sections);
    layOutOrigin(sections);
    layOutReading(sections);
    m_tags = new TagTable(imageTagNames, this); // after the sections, as the tab order goes
    m_tags->setObjectName(QStringLiteral("ImageTagsBox"));

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_box);
    layout->addWidget(m_tags);
    layout->addStretch();
    bind();
    retranslate();
    setState({});
}

ImageRules ImageRulesTab::state() const
{
    return m_binding.read();
}

void ImageRulesTab::setState(const ImageRules &rules)
{
    {
        const QSignalBlocker quiet(this);
        m_binding.show(rules);
    }
    emit changed();
}

void ImageRulesTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ImageRulesTab::layOutShape(QBoxLayout *layout)
{
    m_precisionTitle = addSection(layout, m_box);
    m_similarity = makeCombo(m_box, QStringLiteral("ImageSimilarityCombo"));
    m_similarityLabel = makeLabelFor(m_similarity);
    addRow(layout, {m_similarityLabel, m_similarity});

    m_dimensionsTitle = addSection(layout, m_box);
    m_sameDimensions = makeCheck(m_box, QStringLiteral("SameDimensionsCheck"));
    m_tolerance = makeSpin(m_box, QStringLiteral("DimensionToleranceSpin"), 0, 4096);
    m_tolerance->setSuffix(QStringLiteral(" px"));
    m_toleranceLabel = makeLabelFor(m_tolerance);
    addRow(layout, {m_sameDimensions, m_toleranceLabel, m_tolerance});
    enableWhile(m_sameDimensions, {m_toleranceLabel, m_tolerance});

    m_aspectTitle = addSection(layout, m_box);
    m_sameAspect = makeCheck(m_box, QStringLiteral("SameAspectCheck"));
    layout->addWidget(m_sameAspect);

    m_transformTitle = addSection(layout, m_box);
    m_findRotated = makeCheck(m_box, QStringLiteral("FindRotatedCheck"));
    m_findFlipped = makeCheck(m_box, QStringLiteral("FindFlippedCheck"));
    m_matchHistogram = makeCheck(m_box, QStringLiteral("MatchHistogramCheck"));
    m_matchHistogram->setText(QStringLiteral("Match histogram")); // the same in every language
    addRow(layout, {m_findRotated, m_findFlipped, m_matchHistogram});
}

void ImageRulesTab::layOutOrigin(QBoxLayout *layout)
{
    m_timeTitle = addSection(layout, m_box);
    m_groupByTime = makeCheck(m_box, QStringLiteral("GroupByShotTimeCheck"));
    m_seconds = makeSpin(m_box, QStringLiteral("ShotTimeSpin"), 1, 86400);
    addRow(layout, {m_groupByTime, m_seconds});
    enableWhile(m_groupByTime, {m_seconds});

    m_gpsTitle = addSection(layout, m_box);
    m_groupByGps = makeCheck(m_box, QStringLiteral("GroupByGpsCheck"));
    m_metres = makeSpin(m_box, QStringLiteral("GpsDistanceSpin"), 1, 100000);
    m_metres->setSuffix(QStringLiteral(" m"));
    addRow(layout, {m_groupByGps, m_metres});
    enableWhile(m_groupByGps, {m_metres});
}

void ImageRulesTab::layOutReading(QBoxLayout *layout)
{
    m_rawPreview = makeCheck(m_box, QStringLiteral("UseRawPreviewCheck"));
    layout->addSpacing(4);
    layout->addWidget(m_rawPreview);
    m_performanceTitle = addSection(layout, m_box);
    m_featureCache = makeCheck(m_box, QStringLiteral("UseFeatureCacheCheck"));
    layout->addWidget(m_featureCache);
}

void ImageRulesTab::bind()
{
    m_binding.add(m_similarity, &ImageRules::similarityLevel);
    m_binding.add(m_sameDimensions, &ImageRules::sameDimensions);
    m_binding.add(m_tolerance, &ImageRules::dimensionTolerance);
    m_binding.add(m_sameAspect, &ImageRules::sameAspect);
    m_binding.add(m_findRotated, &ImageRules::findRotated);
    m_binding.add(m_findFlipped, &ImageRules::findFlipped);
    m_binding.add(m_matchHistogram, &ImageRules::matchHistogram);
    m_binding.add(m_groupByTime, &ImageRules::groupByShotTime);
    m_binding.add(m_seconds, &ImageRules::shotTimeSeconds);
    m_binding.add(m_groupByGps, &ImageRules::groupByGps);
    m_binding.add(m_metres, &ImageRules::gpsMetres);
    m_binding.add(m_rawPreview, &ImageRules::useRawPreview);
    m_binding.add(m_featureCache, &ImageRules::useFeatureCache);
    m_binding.addPart(m_tags, &ImageRules::tags);
}

void ImageRulesTab::retranslate()
{
    m_box->setTitle(Text::tr("图片匹配配置"));
    retranslateShape();
    retranslateOrigin();
    m_rawPreview->setText(Text::tr("匹配RAW图像时使用内嵌JPG图像（较快）"));
    m_performanceTitle->setText(Text::tr("性能"));
    m_featureCache->setText(Text::tr("使用图片特征值缓存"));
    m_tags->setTitle(Text::tr("图片标签"));
}

void ImageRulesTab::retranslateShape()
{
    m_precisionTitle->setText(Text::tr("匹配精度"));
    m_similarityLabel->setText(Text::tr("图像相似度"));
    nameItems(m_similarity, 5, similarityLevelName);
    m_dimensionsTitle->setText(Text::tr("尺寸约束"));
    m_sameDimensions->setText(Text::tr("相同尺寸"));
    m_toleranceLabel->setText(Text::tr("容差"));
    m_aspectTitle->setText(Text::tr("宽高比"));
    m_sameAspect->setText(Text::tr("相同长宽比"));
    m_transformTitle->setText(Text::tr("变换匹配"));
    m_findRotated->setText(Text::tr("查找旋转过的"));
    m_findFlipped->setText(Text::tr("查找翻转过的"));
    m_matchHistogram->setToolTip(Text::tr("同时要求颜色分布（直方图）一致"));
}

void ImageRulesTab::retranslateOrigin()
{
    m_timeTitle->setText(Text::tr("时间分组"));
    m_groupByTime->setText(Text::tr("按摄制时间分组"));
    m_seconds->setSuffix(Text::tr(" 秒"));
    m_seconds->setAccessibleName(Text::tr("摄制时间最多相差"));
    m_seconds->setToolTip(Text::tr("摄制时间最多相差"));
    m_gpsTitle->setText(Text::tr("GPS分组"));
    m_groupByGps->setText(Text::tr("按GPS地理位置分组"));
    m_metres->setAccessibleName(Text::tr("拍摄地点最多相距"));
    m_metres->setToolTip(Text::tr("拍摄地点最多相距"));
}

} // namespace Mirrix
