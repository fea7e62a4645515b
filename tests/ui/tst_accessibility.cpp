#include "actions/operationslog.h"
#include "tests/ui/gallery.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/mirrix.h"
#include "ui/theme.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

using MirrixTest::Gallery;

namespace {

/// Of the buttons of a choice the chosen one stands for all; the arrow keys go on from there.
bool isUnchosen(const QWidget *widget)
{
    const auto *button = qobject_cast<const QRadioButton *>(widget);
    return button && !button->isChecked();
}

/// What the user can put the focus into with the Tab key, in one state of a window.
QSet<QWidget *> tabStops(const QWidget &window)
{
    QSet<QWidget *> stops;
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->window() == &window && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            !isUnchosen(widget) && (widget->focusPolicy() & Qt::TabFocus))
            stops.insert(widget);
    }
    return stops;
}

QString described(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() + u" in "_qs +
           widget->parentWidget()->objectName();
}

/// Tab bars are named by their tabs.
bool hasName(QWidget *widget)
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
    return qobject_cast<QTabBar *>(widget) || (face && !face->text(QAccessible::Name).trimmed().isEmpty());
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *target = QApplication::activePopupWidget();
    if (!target)
        target = QApplication::focusWidget();
    QTest::keyClick(target, key, modifiers);
}

/// Goes on by Tab until the widget of this name has the focus.
bool tabTo(const QString &name)
{
    constexpr int enough = 200;
    for (int i = 0; i < enough; ++i) {
        if (QApplication::focusWidget()->objectName() == name)
            return true;
        press(Qt::Key_Tab);
    }
    return false;
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Mirrix::applyTheme(u"light"_qs); }

    void namesAndReachesEverything()
    {
        Gallery gallery;
        QVERIFY(gallery.scan());
        QStringList problems;
        gallery.visitAll([&problems](const QString &name, QWidget &window) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QSet<QWidget *> unreached = tabStops(window);
            QVERIFY(!unreached.isEmpty());
            for (QWidget *stop : std::as_const(unreached)) {
                if (!hasName(stop))
                    problems.append(name + u": no name: "_qs + described(stop));
            }
            if (!window.focusWidget())
                (*unreached.begin())->setFocus();
            QTRY_COMPARE(QApplication::focusWidget(), window.focusWidget());
            const auto presses = 2 * unreached.size();
            for (qsizetype i = 0; i < presses; ++i) {
                unreached.remove(QApplication::focusWidget());
                press(Qt::Key_Tab);
            }
            for (const QWidget *stop : std::as_const(unreached))
                problems.append(name + u": not reached: "_qs + described(stop));
        });
        QVERIFY2(problems.isEmpty(), qUtf8Printable(u'\n' + problems.join(u'\n')));
    }

    void worksWithoutAMouse()
    {
        MirrixTest::TempTree tree;
        Mirrix::Settings settings = Mirrix::defaultSettings(tree.makeFolder(u"data"_qs));
        settings.trayEnabled = false;
        const QString first = tree.write(u"in/a.txt"_qs, "the same");
        const QString second = tree.write(u"in/b.txt"_qs, "the same");
        MirrixTest::ScriptedPrompts prompts;
        MirrixUi::Mirrix window(settings, prompts);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(tree.path(u"in"_qs)));
        QVERIFY(tabTo(u"LocationTable"_qs));
        press(Qt::Key_V, Qt::ControlModifier);
        while (QApplication::focusWidget()->accessibleName() != u"匹配规则")
            press(Qt::Key_Backtab);
        press(Qt::Key_Space);
        QCOMPARE(window.findChild<QStackedWidget *>(u"WizardPages"_qs)->currentIndex(), 1);
        QVERIFY(tabTo(u"SameNameCheck"_qs));

        prompts.confirmations.append({true, false});
        press(Qt::Key_F5);
        QVERIFY(QTest::qWaitFor([&window] { return !window.isScanning(); }, 60000));
        const auto *groups = window.findChild<QTreeView *>(u"DuplicateFilesTree"_qs);
        QVERIFY(tabTo(u"ResultsFilter"_qs));
        QTest::keyClicks(QApplication::focusWidget(), u"B.TXT?"_qs);
        QTRY_COMPARE(groups->model()->rowCount(), 0);
        press(Qt::Key_Backspace);
        QTRY_COMPARE(groups->model()->rowCount(), 1);
        QVERIFY(groups->isExpanded(groups->model()->index(0, 0)));
        QVERIFY(tabTo(u"DuplicateFilesTree"_qs));
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space})
            press(key);

        prompts.answers.append(true);
        prompts.onRun = [](QDialog &dialog) {
            dialog.show();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QTRY_COMPARE(QApplication::focusWidget()->objectName(), u"RemovalMethod0"_qs);
            press(Qt::Key_Down);
            QCOMPARE(qobject_cast<Mirrix::FileRemovalDialog *>(&dialog)->choice().method,
                     Mirrix::RemovalMethod::Delete);
        };
        settings.autoBackupBeforeDelete = true;
        settings.backupRoot = tree.path(u"backup"_qs);
        press(Qt::Key_Delete);
        QVERIFY(QFile::exists(first) != QFile::exists(second));

        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        press(Qt::Key_F, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget());
        press(Qt::Key_Up);
        press(Qt::Key_Return);
        const auto records = Mirrix::OperationsLog(Mirrix::operationsLogPath(settings.directory)).readAll();
        QCOMPARE(records.last().action, u"app_quit"_qs);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
