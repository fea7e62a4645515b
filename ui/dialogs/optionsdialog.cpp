#include "ui/dialogs/optionsdialog.h"

#include "app/settings.h"
#include "app/text.h"
#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "ui/dialogs/aboutpage.h"
#include "ui/state/backgroundthreads.h"
#include "ui/window/prompts.h"
#include "ui/window/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QtConcurrent>

namespace Mirrix {

namespace {

constexpr int indent = 20; ///< of a remark below a control, logical pixels

template <typename Widget>
Widget *make(const char *name)
{
    auto *widget = new Widget;
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLabel *makeHint()
{
    auto *hint = make<QLabel>("SecondaryHintLabel");
    hint->setWordWrap(true);
    return hint;
}

void addIndented(QVBoxLayout *column, QWidget *widget)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(indent, 0, 0, 0);
    row->addWidget(widget);
    column->addLayout(row);
}

} // namespace

OptionsDialog::OptionsDialog(Settings &settings, Prompts &prompts, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_prompts(prompts)
    , m_cacheFolder(QDir(settings.directory).filePath(MirrixCore::imageFeatureCacheName))
    , m_navigation(make<QListWidget>("OptionsNavList"))
    , m_pages(make<QStackedWidget>("OptionsPages"))
{
    setObjectName(QStringLiteral("OptionsDialog"));
    m_navigation->addItems({{}, {}, {}});
    m_navigation->setFixedWidth(fontMetrics().averageCharWidth() * 22);
    buildGeneralPage();
    buildThemePage();
    m_pages->addWidget(new AboutPage(settings.portable, settings.directory));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 12, 16, 12);
    row->setSpacing(16);
    row->addWidget(m_navigation);
    row->addWidget(m_pages, 1);
    showSettings();
    retranslate();
    resize(720, 580);

    connect(m_navigation, &QListWidget::currentRowChanged, this, &OptionsDialog::onPageChanged);
    connect(m_closeToTray, &QRadioButton::toggled, this, &OptionsDialog::onCloseActionChanged);
    connect(m_beep, &QCheckBox::toggled, this, &OptionsDialog::onBeepChanged);
    connect(m_confirm, &QCheckBox::toggled, this, &OptionsDialog::onScanConfirmChanged);
    connect(m_compare, &QCheckBox::toggled, this, &OptionsDialog::onCompareChanged);
    connect(m_hash, &QComboBox::currentIndexChanged, this, &OptionsDialog::onContentHashAlgorithmChanged);
    connect(m_dark, &QRadioButton::toggled, this, &OptionsDialog::onThemeSelected);
    connect(m_clearCache, &QPushButton::clicked, this, &OptionsDialog::onClearImageCache);
    connect(&m_clearing, &QFutureWatcherBase::finished, this, &OptionsDialog::onImageCacheCleared);
    showPage(General);
}

void OptionsDialog::showPage(Page page)
{
    m_navigation->setCurrentRow(page);
}

void OptionsDialog::addPage(QWidget *page, QLabel *title, QVBoxLayout *column)
{
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->insertWidget(0, title);
    column->addStretch();
    m_pages->addWidget(page);
}

void OptionsDialog::buildGeneralPage()
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    const auto addSection = [column](QLabel *&title) {
        title = make<QLabel>("OptionsSectionTitle");
        column->addSpacing(6);
        column->addWidget(title);
    };
    m_generalTitle = make<QLabel>("OptionsPageTitle");
    addSection(m_closeTitle);
    column->addWidget(m_closeToTray = make<QRadioButton>("CloseToTrayRadio"));
    column->addWidget(m_closeExits = make<QRadioButton>("CloseExitsRadio"));
    auto *closeGroup = new QButtonGroup(page);
    closeGroup->addButton(m_closeToTray);
    closeGroup->addButton(m_closeExits);
    addSection(m_scanTitle);
    column->addWidget(m_beep = make<QCheckBox>("ScanDoneBeepBox"));
    column->addWidget(m_confirm = make<QCheckBox>("ScanConfirmBox"));
    addIndented(column, m_confirmHint = makeHint());
    addSection(m_hashTitle);
    m_hash = make<QComboBox>("ContentHashCombo");
    m_hash->addItem({}, static_cast<int>(MirrixCore::ContentHashAlgorithm::Md5));
    m_hash->addItem({}, static_cast<int>(MirrixCore::ContentHashAlgorithm::Blake3));
    m_hashTitle->setBuddy(m_hash);
    column->addWidget(m_hash);
    column->addWidget(m_hashHint = makeHint());
    addSection(m_removalTitle);
    column->addWidget(m_compare = make<QCheckBox>("CompareContentsBox"));
    addSection(m_cacheTitle);
    addCacheSection(column);
    addPage(page, m_generalTitle, column);
}

void OptionsDialog::addCacheSection(QVBoxLayout *column)
{
    column->addWidget(m_cacheHint = makeHint());
    m_cachePath = makeHint();
    m_cachePath->setText(QDir::toNativeSeparators(m_cacheFolder));
    m_cachePath->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(m_cachePath);
    m_clearCache = make<QPushButton>("ClearImageCacheButton");
    m_clearCache->setAutoDefault(false);
    column->addWidget(m_clearCache, 0, Qt::AlignLeft);
}

void OptionsDialog::buildThemePage()
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    m_themeTitle = make<QLabel>("OptionsPageTitle");
    column->addSpacing(6);
    column->addWidget(m_light = make<QRadioButton>("LightThemeRadio"));
    column->addWidget(m_dark = make<QRadioButton>("DarkThemeRadio"));
    column->addWidget(m_themeHint = makeHint());
    addPage(page, m_themeTitle, column);
}

void OptionsDialog::showSettings()
{
    (m_settings.closeToTray ? m_closeToTray : m_closeExits)->setChecked(true);
    m_beep->setChecked(m_settings.scanDoneBeep);
    m_confirm->setChecked(!m_settings.skipScanConfirm);
    m_compare->setChecked(m_settings.compareWholeContents);
    m_hash->setCurrentIndex(m_settings.contentHashAlgorithm == MirrixCore::ContentHashAlgorithm::Blake3 ? 1 : 0);
    (isDarkTheme(m_settings.appTheme) ? m_dark : m_light)->setChecked(true);
}

void OptionsDialog::onPageChanged(int row)
{
    m_pages->setCurrentIndex(row);
}

void OptionsDialog::onCloseActionChanged()
{
    m_settings.closeToTray = m_closeToTray->isChecked();
    m_settings.save();
}

void OptionsDialog::onBeepChanged(bool on)
{
    m_settings.scanDoneBeep = on;
    m_settings.save();
}

void OptionsDialog::onScanConfirmChanged(bool on)
{
    m_settings.skipScanConfirm = !on;
    m_settings.save();
}

void OptionsDialog::onCompareChanged(bool on)
{
    m_settings.compareWholeContents = on;
    m_settings.save();
}

void OptionsDialog::onContentHashAlgorithmChanged(int index)
{
    const auto chosen = static_cast<MirrixCore::ContentHashAlgorithm>(m_hash->itemData(index).toInt());
    if (chosen == m_settings.contentHashAlgorithm)
        return;
    m_settings.contentHashAlgorithm = chosen;
    m_settings.save();
    emit contentHashAlgorithmChanged();
}

void OptionsDialog::onThemeSelected()
{
    const QString chosen = m_dark->isChecked() ? QStringLiteral("dark") : QStringLiteral("light");
    if (chosen == m_settings.appTheme)
        return;
    m_settings.appTheme = chosen;
    m_settings.save();
    emit themeChanged();
}

void OptionsDialog::onClearImageCache()
{
    const QString question =
        Text::tr("将删除目录下的全部图片哈希/直方图缓存：\n%1\n\n下次图片扫描会重新计算，可能稍慢。是否继续？");
    if (!m_prompts.ask(this, Text::tr("清空图片特征缓存"), question.arg(m_cachePath->text())))
        return;
    // In the background: the cache may be large, and a scan may hold its lock.
    m_clearCache->setEnabled(false);
    m_clearing.setFuture(QtConcurrent::run(backgroundThreads(), MirrixCore::clearImageFeatureCache));
}

void OptionsDialog::onImageCacheCleared()
{
    m_clearCache->setEnabled(true);
    if (m_clearing.result())
        m_prompts.inform(this, Text::tr("完成"), Text::tr("图片特征缓存已清空。"));
    else
        m_prompts.warn(this, Text::tr("清空图片特征缓存"), Text::tr("部分缓存文件无法删除。"));
}

void OptionsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void OptionsDialog::retranslate()
{
    setWindowTitle(Text::tr("选项"));
    const QString pages[] = {Text::tr("⚙  常规"), Text::tr("🎨  主题"), Text::tr("ℹ  关于程序")};
    for (int page = General; page <= About; ++page)
        m_navigation->item(page)->setText(pages[page]);
    m_navigation->setAccessibleName(windowTitle());
    m_generalTitle->setText(Text::tr("常规设置"));
    m_closeTitle->setText(Text::tr("关闭主窗口时"));
    m_closeToTray->setText(Text::tr("最小化到系统托盘（推荐）"));
    m_closeExits->setText(Text::tr("退出程序"));
    m_scanTitle->setText(Text::tr("扫描"));
    m_beep->setText(Text::tr("扫描完成后播放提示音"));
    m_confirm->setText(Text::tr("扫描开始前显示确认对话框"));
    m_confirmHint->setText(Text::tr("关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。"));
    m_hashTitle->setText(Text::tr("内容指纹算法"));
    m_hash->setItemText(0, Text::tr("MD5（默认，沿用现有指纹缓存）"));
    m_hash->setItemText(1, Text::tr("BLAKE3（更快、更强；切换后重建缓存）"));
    m_hashHint->setText(Text::tr("仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。"));
    m_removalTitle->setText(Text::tr("文件移除"));
    m_compare->setText(Text::tr("每次移除前比较全部内容"));
    m_compare->setToolTip(Text::tr("不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容"));
    m_cacheTitle->setText(Text::tr("缓存与数据"));
    m_cacheHint->setText(Text::tr("图片特征缓存可加快重复图片的扫描。位置："));
    m_clearCache->setText(Text::tr("清空图片特征缓存"));
    m_clearCache->setToolTip(Text::tr("清除已缓存的感知哈希与直方图，下次扫描会重新计算"));
    m_themeTitle->setText(Text::tr("主题"));
    m_light->setText(Text::tr("浅色（Fusion）"));
    m_dark->setText(Text::tr("深色（Fusion）"));
    m_themeHint->setText(Text::tr("使用 Qt Fusion 样式，立即生效并自动保存。"));
}

} // namespace Mirrix
