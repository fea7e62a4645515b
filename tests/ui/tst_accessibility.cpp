#include "actions/records/operationslog.h"
#include "tests/ui/gallery.h"
#include "tests/ui/uitest.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/mirrix.h"
#include "ui/window/theme.h"

namespace {

/// What the user can put the focus into with the Tab key, in one state of a window. Of the buttons of a choice the
/// chosen one represents all; the arrow keys continue from there.
QSet<QWidget *> tabStops(const QWidget &window)
{
    QSet<QWidget *> stops;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        const auto *choice = qobject_cast<const QRadioButton *>(widget);
        if (widget->window() == &window && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (!choice || choice->isChecked()) && (widget->focusPolicy() & Qt::TabFocus))
            stops.insert(widget);
    }
    return stops;
}

QString described(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() + u" in "_s +
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
    QWidget *popup = QApplication::activePopupWidget();
    QTest::keyClick(popup ? popup : QApplication::focusWidget(), key, modifiers);
}

/// Goes on by Tab until the widget of this name has the focus.
bool tabTo(const QString &name)
{
    for (int presses = 0; presses < 200 && QApplication::focusWidget()->objectName() != name; ++presses)
        press(Qt::Key_Tab);
    return QApplication::focusWidget()->objectName() == name;
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { applyTheme(u"light"_s); }

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
                    problems.append(name + u": no name: "_s + described(stop));
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
                problems.append(name + u": not reached: "_s + described(stop));
        });
        QVERIFY2(problems.isEmpty(), qUtf8Printable(u'\n' + problems.join(u'\n')));
    }

    void worksWithoutAMouse()
    {
        TempTree tree;
        Settings settings = defaultSettings(tree.makeFolder(u"data"_s));
        settings.trayEnabled = false;
        const QString first = tree.write(u"in/a.txt"_s, "the same");
        const QString second = tree.write(u"in/b.txt"_s, "the same");
        ScriptedPrompts prompts;
        MirrixUi::Mirrix window(settings, prompts);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(tree.path(u"in"_s)));
        QVERIFY(tabTo(u"LocationTable"_s));
        press(Qt::Key_V, Qt::ControlModifier);
        while (QApplication::focusWidget()->accessibleName() != u"匹配规则")
            press(Qt::Key_Backtab);
        press(Qt::Key_Space);
        QCOMPARE(window.findChild<QStackedWidget *>(u"WizardPages"_s)->currentIndex(), 1);
        QVERIFY(tabTo(u"SameNameCheck"_s));

        prompts.confirmations.append({true, false});
        press(Qt::Key_F5);
        QVERIFY(QTest::qWaitFor([&window] { return !window.isScanning(); }, 60000));
        const auto *groups = window.findChild<QTreeView *>(u"DuplicateFilesTree"_s);
        QVERIFY(tabTo(u"ResultsFilter"_s));
        QTest::keyClicks(QApplication::focusWidget(), u"B.TXT?"_s);
        QTRY_COMPARE(groups->model()->rowCount(), 0);
        press(Qt::Key_Backspace);
        QTRY_COMPARE(groups->model()->rowCount(), 1);
        QVERIFY(groups->isExpanded(groups->model()->index(0, 0)));
        QVERIFY(tabTo(u"DuplicateFilesTree"_s));
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space})
            press(key);

        prompts.answers.append(true);
        prompts.onRun = [](QDialog &dialog) {
            dialog.show();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QTRY_COMPARE(QApplication::focusWidget()->objectName(), u"RemovalMethod0"_s);
            press(Qt::Key_Down);
            QCOMPARE(qobject_cast<FileRemovalDialog *>(&dialog)->choice().method, RemovalMethod::Delete);
        };
        settings.autoBackupBeforeDelete = true;
        settings.backupRoot = tree.path(u"backup"_s);
        press(Qt::Key_Delete);
        QVERIFY(QFile::exists(first) != QFile::exists(second));

        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        press(Qt::Key_F, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget());
        press(Qt::Key_Up);
        press(Qt::Key_Return);
        const auto records = OperationsLog(operationsLogPath(settings.directory)).readAll();
        QCOMPARE(records.last().action, u"app_quit"_s);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
