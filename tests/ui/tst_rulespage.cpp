#include "ui/rules/rulespage.h"

#include "tests/ui/uitest.h"

namespace {

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
                   true, 300,  true, 42,    false, false, {false, {{u"Make"_s, 1}, {u"Flash"_s, 2}, {QString(), 0}}}};
    rules.audio = {3, true, 77, {true, {}}};
    rules.video = {2, true, QTime(0, 0, 1, 5), {true, {{u"Director"_s, 1}}}};
    const QDate day(2001, 2, 3);
    rules.fileTypes = {false, u"a b"_s, u"*.c"_s, false, false, 5, 6, false, day, day, day, day};
    rules.ignoreHardLinks = false;
    return rules;
}

/// Every number at its least or greatest value, or by `beyond` over the edge.
RulesState atTheLimits(bool isGreatest, int beyond)
{
    RulesState rules = everythingChanged();
    const auto set = [=](qint32 &number, int least, int greatest) {
        number = isGreatest ? greatest + beyond : least - beyond;
    };
    set(rules.general.similarPercent, 1, 100);
    set(rules.general.sizeTolerance, 0, 1 << 20);
    set(rules.general.folderPathDepth, 1, 20);
    set(rules.general.nameTolerance, 0, 100);
    set(rules.image.dimensionTolerance, 0, 4096);
    set(rules.image.shotTimeSeconds, 1, 24 * 3600);
    set(rules.image.gpsMetres, 1, 100'000);
    set(rules.audio.durationToleranceMs, 0, 3'600'000);
    set(rules.fileTypes.minMegabytes, 0, 1 << 24);
    set(rules.fileTypes.maxMegabytes, 0, 1 << 24);
    return rules;
}

} // namespace

class TestRulesPage : public QObject
{
    Q_OBJECT

private slots:
    void dependencies_data()
    {
        QTest::addColumn<QString>("dependents");
        QTest::addColumn<bool>("usableWhileChecked");
        const auto row = [](const char *name, const QString &dependents, bool usableWhileChecked = true) {
            QTest::newRow(name) << dependents << usableWhileChecked;
        };
        row("SimilarContentRadio", u"SimilarPercentSpin"_s);
        row("SimilarNamesCheck", u"NameToleranceSpin"_s);
        row("SameSizeCheck", u"SizeToleranceSpin SizeToleranceUnitCombo"_s);
        row("SameCreatedCheck", u"CreatedDateOnlyCheck"_s);
        row("SameModifiedCheck", u"ModifiedDateOnlyCheck"_s);
        row("FullPathCheck", u"FolderPathDepthSpin"_s);
        row("SameDimensionsCheck", u"DimensionToleranceSpin"_s);
        row("GroupByShotTimeCheck", u"ShotTimeSpin"_s);
        row("GroupByGpsCheck", u"GpsDistanceSpin"_s);
        row("AudioMatchDurationCheck", u"AudioDurationToleranceSpin"_s);
        row("VideoMatchDurationCheck", u"VideoDurationToleranceEdit"_s);
        row("ModeExtensionsCheck", u"IncludeExtensionsEdit"_s, false);
        row("AnySizeCheck", u"MinSizeSpin MaxSizeSpin"_s, false);
        row("AnyDateCheck", u"CreatedFromEdit CreatedToEdit ModifiedFromEdit ModifiedToEdit"_s, false);
    }

    void dependencies()
    {
        QFETCH(QString, dependents);
        QFETCH(bool, usableWhileChecked);
        RulesPage page;
        page.show();
        auto *button = part(page, QString::fromLatin1(QTest::currentDataTag()));
        QSignalSpy changed(&page, &RulesPage::changed);
        for (const bool isClicked : {false, true}) {
            const bool isChecked = button->isChecked();
            if (isClicked)
                clickOn(button);
            QCOMPARE(button->isChecked() != isChecked, isClicked);
            for (const QString &name : dependents.split(u' '))
                QCOMPARE(part<QWidget>(page, name)->isEnabled(), button->isChecked() == usableWhileChecked);
        }
        QVERIFY(!changed.isEmpty());
    }

    void tabsAndContentModes()
    {
        RulesPage page;
        page.show();
        clickOn(part(page, u"SimilarContentRadio"_s));
        QCOMPARE(page.state().general.contentMatch, 1);
        clickOn(part(page, u"IgnoreContentRadio"_s));
        QCOMPARE(page.state().general.contentMatch, 2);
        QVERIFY(!part<QWidget>(page, u"SimilarPercentSpin"_s)->isEnabled());
        auto *bar = part<QTabWidget>(page, u"RulesTabs"_s)->tabBar();
        QCOMPARE(bar->count(), 4);
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
        QCOMPARE(page.state().mode, 1);
        QTest::keyClick(bar, Qt::Key_Right);
        QCOMPARE(page.state().mode, 2);
    }

    void roundTrip()
    {
        RulesPage page;
        QCOMPARE(page.state(), RulesState());
        QSignalSpy changed(&page, &RulesPage::changed);
        page.setState(everythingChanged());
        QCOMPARE(page.state(), everythingChanged());
        QCOMPARE(changed.count(), 1);
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&page, &language);
        QCOMPARE(page.state(), everythingChanged());
        for (const bool isGreatest : {true, false}) {
            page.setState(atTheLimits(isGreatest, 1));
            QCOMPARE(page.state(), atTheLimits(isGreatest, 0));
        }
        page.setState({});
        QCOMPARE(page.state(), RulesState());
    }

    void tagRows()
    {
        RulesPage page;
        page.show();
        const auto tags = [&page] { return page.state().audio.tags; };
        auto *box = part<QGroupBox>(page, u"AudioTagsBox"_s);
        click(*box, u"AddTagButton"_s);
        QCOMPARE(tags().rows.size(), 4);
        QCOMPARE(tags().rows.last(), (TagRow{u"Track"_s, 1}));

        auto *table = part<QTableWidget>(*box);
        auto *rule = qobject_cast<QComboBox *>(table->cellWidget(3, 1));
        QCOMPARE(columnText(*rule->model(), 0), u"仅显示|必须匹配|忽略"_s);
        rule->setFocus();
        QTest::keyClick(rule, Qt::Key_Up);
        QCOMPARE(tags().rows.last().rule, 0);
        auto *tag = qobject_cast<QComboBox *>(table->cellWidget(0, 0));
        tag->setEditText(u" 流派 "_s); // a label of the list means its tag
        QCOMPARE(tags().rows.first().name, u"Genre"_s);
        tag->setEditText(u"Mood"_s);
        QCOMPARE(tags().rows.first().name, u"Mood"_s);
        box->setChecked(false);
        QVERIFY(!table->isEnabled() && !tags().enabled);
    }

    void wheelScrollsThePage()
    {
        RulesPage page;
        page.show();
        auto *combo = part<QComboBox>(page, u"ImageSimilarityCombo"_s);
        const QPointF centre = combo->rect().center();
        QWheelEvent wheel(centre, combo->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, {}, false);
        QCoreApplication::sendEvent(combo, &wheel);
        QCOMPARE(page.state(), RulesState());
    }
};

QTEST_MAIN(TestRulesPage)
#include "tst_rulespage.moc"
