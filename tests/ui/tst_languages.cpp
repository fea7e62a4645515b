#include "app/languagecodes.h"
#include "app/translations.h"
#include "tests/ui/clipping.h"
#include "tests/ui/gallery.h"
#include "tests/ui/uitest.h"
#include "ui/locations/locationspage.h"
#include "ui/mirrix.h"
#include "ui/rules/rulespage.h"
#include "ui/window/theme.h"

namespace {

/// Lets layouts that wait for others come to rest.
void settle()
{
    constexpr int nesting = 10;
    for (int i = 0; i < nesting; ++i)
        QCoreApplication::processEvents();
}

void addTextsOf(const QAbstractItemModel &model, const QModelIndex &parent, QStringList &texts)
{
    constexpr int rows = 30;
    for (int row = 0; row < std::min(rows, model.rowCount(parent)); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            texts.append(model.index(row, column, parent).data().toString());
        addTextsOf(model, model.index(row, 0, parent), texts);
    }
}

void addTextsOf(const QWidget &widget, QStringList &texts)
{
    texts << widget.windowTitle() << widget.toolTip() << widget.accessibleName();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts << label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts << button->text();
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        texts << box->title();
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        texts << edit->placeholderText() << edit->text();
    if (const auto *sheet = qobject_cast<const QPlainTextEdit *>(&widget))
        texts << sheet->toPlainText();
    if (const auto *bar = qobject_cast<const QStatusBar *>(&widget))
        texts << bar->currentMessage();
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        addTextsOf(*combo->model(), {}, texts);
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget); header && header->model()) {
        for (int i = 0; i < header->count(); ++i)
            texts << header->model()->headerData(i, header->orientation()).toString();
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (view && view->model() && view->objectName() != u"FolderTree")
        addTextsOf(*view->model(), {}, texts);
}

/// Everything that a window says, its menus included.
QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    addTextsOf(window, texts);
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        addTextsOf(*widget, texts);
        const auto *menu = qobject_cast<const QMenu *>(widget);
        if (!menu || menu->objectName() == u"LanguageMenu")
            continue;
        texts << menu->title();
        for (const QAction *action : menu->actions())
            texts << action->text() << action->toolTip();
    }
    return texts;
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { applyTheme(u"light"_s); }
    void cleanup() { loadLanguage(u"zh_CN"_s); }

    void cutsNothingOff_data()
    {
        QTest::addColumn<QString>("language");
        for (const Language &language : languages()) {
            if (language.catalogue.isEmpty() || QFile::exists(u":/translations/%1.qm"_s.arg(language.catalogue)))
                QTest::newRow(qPrintable(language.code)) << language.code;
        }
    }

    void cutsNothingOff()
    {
        if (QFontDatabase::families().isEmpty())
            QSKIP("no fonts to measure by");
        QFETCH(QString, language);
        loadLanguage(language);
        Gallery gallery;
        gallery.window().resize(1280, 800);
        QVERIFY(gallery.scan());
        QStringList problems;
        gallery.visitAll([&problems](const QString &name, QWidget &window) {
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            settle();
            for (const QString &problem : clippedTexts(window))
                problems.append(name + u": "_s + problem);
            if (const auto *box = qobject_cast<QMessageBox *>(&window); box && !box->detailedText().isEmpty())
                problems.append(name + u": shortened "_s + box->text());
            if (window.isModal() || qobject_cast<QDialog *>(&window))
                QVERIFY2(window.width() <= 1008 && window.height() <= 684, qPrintable(name));
        });
        constexpr QSize smallScreen(1024 - 16, 768 - 84); // less task bar and frame
        const QSize least = gallery.window().minimumSizeHint();
        QVERIFY2(least.boundedTo(smallScreen) == least, qPrintable(u"%1x%2"_s.arg(least.width()).arg(least.height())));
        problems.removeDuplicates();
        QVERIFY2(problems.isEmpty(), qPrintable(u'\n' + problems.join(u'\n')));
    }

    void followsAtOnce()
    {
        Gallery gallery;
        QVERIFY(gallery.scan());
        const auto *locations = part<LocationsPage>(gallery.window());
        const auto *rules = part<RulesPage>(gallery.window());
        const LocationsState chosenLocations = locations->state();
        const RulesState chosenRules = rules->state();
        const auto dialogs = gallery.dialogs();
        for (const auto &[name, dialog] : dialogs)
            dialog->show();
        loadLanguage(u"en"_s);
        settle();
        // Yes, no and two hints are the same in every language.
        const QStringList everywhere = {u"是"_s, u"否"_s, u"请选择要扫描的位置"_s, u"配置规则后点击「开始扫描」"_s};
        static const QRegularExpression han(u"\\p{Han}"_s);
        QStringList left;
        const auto collect = [&](const QString &name, const QWidget &window) {
            for (const QString &text : textsOf(window)) {
                if (text.contains(han) && !everywhere.contains(text.section(u": "_s, -1)))
                    left.append(name + u": "_s + text);
            }
        };
        collect(u"main"_s, gallery.window());
        for (const auto &[name, dialog] : dialogs)
            collect(name, *dialog);
        left.removeDuplicates();
        QVERIFY2(left.isEmpty(), qPrintable(u'\n' + left.join(u'\n')));
        QCOMPARE(locations->state(), chosenLocations);
        QCOMPARE(rules->state(), chosenRules);
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
