#include "ui/rules/rulespage.h"

#include <QtWidgets>

#include <QSignalSpy>
#include <QTest>

using Mirrix::RulesPage;
using Mirrix::RulesState;

namespace {

/// Gives every text in another shape.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u"<"_qs + QString::fromUtf8(source) + u">"_qs;
    }
    bool isEmpty() const override { return false; }
};

QString itemsOf(const QComboBox &combo)
{
    QStringList items;
    for (int item = 0; item < combo.count(); ++item)
        items.append(combo.itemText(item));
    return items.join(u'/');
}

/// Kind, text or range, and value of a control; "-" before what cannot be used.
QString described(const QWidget *control)
{
    QString text;
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        text = button->text() + (button->isChecked() ? u" on"_qs : u" off"_qs);
    else if (const auto *spin = qobject_cast<const QSpinBox *>(control))
        text = u"%1..%2 [%3]"_qs.arg(spin->minimum()).arg(spin->maximum()).arg(spin->text());
    else if (const auto *edit = qobject_cast<const QDateTimeEdit *>(control))
        text = edit->text();
    else if (const auto *combo = qobject_cast<const QComboBox *>(control))
        text = itemsOf(*combo) + u" [%1]"_qs.arg(combo->currentData().toInt());
    return (control->isEnabled() ? QString() : u"-"_qs) + text;
}

void clickOn(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// A state that differs from the default in every control.
RulesState everythingChanged()
{
    RulesState rules;
    rules.mode = 2;
    rules.general = {1,    40,   true, true, true, false, true, true, 12,   2,    true,
                     true, true, true, true, true, true,  7,    true, true, true, 11};
    rules.image = {4,    true, 9,    false, false, false, true,
                   true, 300,  true, 42,    false, false, {false, {{u"Make"_qs, 1}, {u"Flash"_qs, 2}, {QString(), 0}}}};
    rules.audio = {3, true, 77, {true, {}}};
    rules.video = {2, true, QTime(0, 0, 1, 5), {true, {{u"Director"_qs, 1}}}};
    const QDate day(2001, 2, 3);
    rules.fileTypes = {false, u"a b"_qs, u"*.c"_qs, false, false, 5, 6, false, day, day, day, day};
    rules.ignoreHardLinks = false;
    return rules;
}

} // namespace

class TestRulesPage : public QObject
{
    Q_OBJECT

private slots:
    void controls_data();
    void controls();
    void dependencies_data();
    void dependencies();
    void contentModesExclude();
    void roundTrip();
    void retranslationKeepsValues();
    void tabsAreModes();
    void tagRows();
    void wheelScrollsThePage();
};

void TestRulesPage::controls_data()
{
    QTest::addColumn<QString>("control");
    const auto row = [](const char *name, const QString &control) { QTest::newRow(name) << control; };
    row("SameContentRadio", u"相同内容 on"_qs);
    row("SimilarContentRadio", u"相似内容 off"_qs);
    row("SimilarPercentSpin", u"-1..100 [≥ 90%]"_qs);
    row("IgnoreContentRadio", u"忽略内容 off"_qs);
    row("SameNameCheck", u"相同文件名 off"_qs);
    row("SameExtensionCheck", u"相同文件拓展名 off"_qs);
    row("SimilarNamesCheck", u"相似文件名 off"_qs);
    row("IgnoreCopyWordsCheck", u"忽略文件名中「副本」字样 on"_qs);
    row("CopyWordsInAllLanguagesCheck", u"包括其他语言 off"_qs);
    row("SameSizeCheck", u"相同文件大小 off"_qs);
    row("SizeToleranceSpin", u"-0..1048576 [0]"_qs);
    row("SizeToleranceUnitCombo", u"-B/KB/MB/GB [0]"_qs);
    row("SameCreatedCheck", u"相同创建日期 off"_qs);
    row("CreatedDateOnlyCheck", u"-仅匹配日期 off"_qs);
    row("SameModifiedCheck", u"相同修改日期 off"_qs);
    row("ModifiedDateOnlyCheck", u"-仅匹配日期 off"_qs);
    row("SameDriveCheck", u"相同磁盘 off"_qs);
    row("SameFolderNameCheck", u"相同的文件夹名称 off"_qs);
    row("FullPathCheck", u"匹配完整路径 off"_qs);
    row("FolderPathDepthSpin", u"-1..20 [1]"_qs);
    row("PathUnderRootCheck", u"匹配扫描位置以下路径 off"_qs);
    row("IgnoreSameFolderCheck", u"忽略在同一文件夹的重复组别 off"_qs);
    row("CaseSensitiveCheck", u"大小写敏感 off"_qs);
    row("NameToleranceSpin", u"-0..100 [3]"_qs);
    row("ImageSimilarityCombo", u"完全相同匹配/非常近似匹配/近似匹配/相似匹配/宽松相似 [1]"_qs);
    row("SameDimensionsCheck", u"相同尺寸 off"_qs);
    row("DimensionToleranceSpin", u"-0..4096 [0 px]"_qs);
    row("SameAspectCheck", u"相同长宽比 on"_qs);
    row("FindRotatedCheck", u"查找旋转过的 on"_qs);
    row("FindFlippedCheck", u"查找翻转过的 on"_qs);
    row("MatchHistogramCheck", u"Match histogram off"_qs);
    row("GroupByShotTimeCheck", u"按摄制时间分组 off"_qs);
    row("ShotTimeSpin", u"-1..86400 [25 秒]"_qs);
    row("GroupByGpsCheck", u"按GPS地理位置分组 off"_qs);
    row("GpsDistanceSpin", u"-1..100000 [1 m]"_qs);
    row("UseRawPreviewCheck", u"匹配RAW图像时使用内嵌JPG图像（较快） on"_qs);
    row("UseFeatureCacheCheck", u"使用图片特征值缓存 on"_qs);
    row("AudioMethodCombo", u"采样指纹（多点哈希）/近似匹配（开头约 2 分钟采样）/近似匹配（开头约 30 秒采样）/"
                            "全文件精确哈希/仅按标签匹配 [1]"_qs);
    row("AudioMatchDurationCheck", u"匹配时长 off"_qs);
    row("AudioDurationToleranceSpin", u"-0..3600000 [5000 毫秒]"_qs);
    row("VideoMethodCombo", u"开头采样哈希/全文件多点哈希（较慢）/仅按标签匹配 [0]"_qs);
    row("VideoMatchDurationCheck", u"匹配时长 off"_qs);
    row("VideoDurationToleranceEdit", u"-00:00:00.000"_qs);
    row("ModeExtensionsCheck", u"使用当前模式的扩展名 on"_qs);
    row("IncludeRawCheck", u"图片模式包含更多 RAW 格式 on"_qs);
    row("AnySizeCheck", u"不限大小 on"_qs);
    row("MinSizeSpin", u"-0..16777216 [不限]"_qs);
    row("AnyDateCheck", u"任意日期 on"_qs);
    row("ModifiedFromEdit", u"-1980-01-01"_qs);
    row("IgnoreHardLinksCheck", u"忽略指向同一文件的硬链接 on"_qs);
}

void TestRulesPage::controls()
{
    RulesPage page;
    const auto *control = page.findChild<QWidget *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(control);
    QTEST(described(control), "control");
}

void TestRulesPage::dependencies_data()
{
    QTest::addColumn<QStringList>("dependents");
    QTest::addColumn<bool>("usableWhileChecked");
    QTest::newRow("SimilarContentRadio") << QStringList{u"SimilarPercentSpin"_qs} << true;
    QTest::newRow("SimilarNamesCheck") << QStringList{u"NameToleranceSpin"_qs} << true;
    QTest::newRow("SameSizeCheck") << QStringList{u"SizeToleranceSpin"_qs, u"SizeToleranceUnitCombo"_qs} << true;
    QTest::newRow("SameCreatedCheck") << QStringList{u"CreatedDateOnlyCheck"_qs} << true;
    QTest::newRow("SameModifiedCheck") << QStringList{u"ModifiedDateOnlyCheck"_qs} << true;
    QTest::newRow("FullPathCheck") << QStringList{u"FolderPathDepthSpin"_qs} << true;
    QTest::newRow("SameDimensionsCheck") << QStringList{u"DimensionToleranceSpin"_qs} << true;
    QTest::newRow("GroupByShotTimeCheck") << QStringList{u"ShotTimeSpin"_qs} << true;
    QTest::newRow("GroupByGpsCheck") << QStringList{u"GpsDistanceSpin"_qs} << true;
    QTest::newRow("AudioMatchDurationCheck") << QStringList{u"AudioDurationToleranceSpin"_qs} << true;
    QTest::newRow("VideoMatchDurationCheck") << QStringList{u"VideoDurationToleranceEdit"_qs} << true;
    QTest::newRow("ModeExtensionsCheck") << QStringList{u"IncludeExtensionsEdit"_qs} << false;
    QTest::newRow("AnySizeCheck") << QStringList{u"MinSizeSpin"_qs, u"MaxSizeSpin"_qs} << false;
    QTest::newRow("AnyDateCheck") << QStringList{u"CreatedFromEdit"_qs, u"CreatedToEdit"_qs, u"ModifiedFromEdit"_qs,
                                                 u"ModifiedToEdit"_qs}
                                  << false;
}

void TestRulesPage::dependencies()
{
    QFETCH(QStringList, dependents);
    QFETCH(bool, usableWhileChecked);
    RulesPage page;
    page.show();
    auto *button = page.findChild<QAbstractButton *>(QString::fromLatin1(QTest::currentDataTag()));
    const auto areUsable = [&](bool usable) {
        for (const QString &name : dependents) {
            if (page.findChild<QWidget *>(name)->isEnabled() != usable)
                return false;
        }
        return true;
    };
    QVERIFY(areUsable(button->isChecked() == usableWhileChecked));
    QSignalSpy changed(&page, &RulesPage::changed);
    const bool checked = button->isChecked();
    clickOn(button);
    QVERIFY(button->isChecked() != checked);
    QVERIFY(areUsable(button->isChecked() == usableWhileChecked));
    QVERIFY(!changed.isEmpty());
}

void TestRulesPage::contentModesExclude()
{
    RulesPage page;
    page.show();
    clickOn(page.findChild<QWidget *>(u"SimilarContentRadio"_qs));
    QCOMPARE(page.state().general.contentMatch, 1);
    clickOn(page.findChild<QWidget *>(u"IgnoreContentRadio"_qs));
    QCOMPARE(page.state().general.contentMatch, 2);
    QVERIFY(!page.findChild<QWidget *>(u"SimilarPercentSpin"_qs)->isEnabled());
}

void TestRulesPage::roundTrip()
{
    RulesPage page;
    QCOMPARE(page.state(), RulesState());
    QSignalSpy changed(&page, &RulesPage::changed);
    page.setState(everythingChanged());
    QCOMPARE(page.state(), everythingChanged());
    QCOMPARE(changed.count(), 1);
    page.setState({});
    QCOMPARE(page.state(), RulesState());
}

void TestRulesPage::retranslationKeepsValues()
{
    RulesPage page;
    RulesState rules = everythingChanged();
    rules.audio.tags.rows = {{u"Sample rate"_qs, 1}};
    page.setState(rules);
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(page.state(), rules);
    QCOMPARE(page.findChild<QCheckBox *>(u"SameNameCheck"_qs)->text(), u"<相同文件名>"_qs);
    QCOMPARE(page.findChild<QTabWidget *>(u"RulesTabs"_qs)->tabText(3), u"<视频模式>"_qs);
    const auto *table = page.findChild<QWidget *>(u"AudioTagsBox"_qs)->findChild<QTableWidget *>();
    const auto *tag = qobject_cast<QComboBox *>(table->cellWidget(0, 0));
    QCOMPARE(tag->currentText(), u"<采样率>"_qs);
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(page.state(), rules);
}

void TestRulesPage::tabsAreModes()
{
    RulesPage page;
    page.show();
    auto *bar = page.findChild<QTabWidget *>(u"RulesTabs"_qs)->tabBar();
    QCOMPARE(bar->count(), 4);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    QCOMPARE(page.state().mode, 1);
    QTest::keyClick(bar, Qt::Key_Right);
    QCOMPARE(page.state().mode, 2);
}

void TestRulesPage::tagRows()
{
    RulesPage page;
    page.show();
    auto *box = page.findChild<QGroupBox *>(u"AudioTagsBox"_qs);
    QTest::mouseClick(box->findChild<QPushButton *>(u"AddTagButton"_qs), Qt::LeftButton);
    Mirrix::TagRules tags = page.state().audio.tags;
    QCOMPARE(tags.rows.size(), 4);
    QCOMPARE(tags.rows.last(), (Mirrix::TagRow{u"Track"_qs, 1}));

    auto *table = box->findChild<QTableWidget *>();
    auto *rule = qobject_cast<QComboBox *>(table->cellWidget(3, 1));
    rule->setFocus();
    QTest::keyClick(rule, Qt::Key_Up);
    QCOMPARE(page.state().audio.tags.rows.last().rule, 0);
    auto *tag = qobject_cast<QComboBox *>(table->cellWidget(0, 0));
    tag->setEditText(u" 流派 "_qs); // a label of the list stands for its tag
    QCOMPARE(page.state().audio.tags.rows.first().name, u"Genre"_qs);
    tag->setEditText(u"Mood"_qs);
    QCOMPARE(page.state().audio.tags.rows.first().name, u"Mood"_qs);
    QCOMPARE(itemsOf(*qobject_cast<QComboBox *>(table->cellWidget(0, 1))), u"仅显示/必须匹配/忽略"_qs);

    box->setChecked(false);
    QVERIFY(!table->isEnabled() && !page.state().audio.tags.enabled);
}

void TestRulesPage::wheelScrollsThePage()
{
    RulesPage page;
    page.show();
    auto *combo = page.findChild<QComboBox *>(u"ImageSimilarityCombo"_qs);
    const QPointF centre = combo->rect().center();
    QWheelEvent wheel(centre, combo->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, {}, false);
    QCoreApplication::sendEvent(combo, &wheel);
    QCOMPARE(page.state(), RulesState());
}

QTEST_MAIN(TestRulesPage)
#include "tst_rulespage.moc"
