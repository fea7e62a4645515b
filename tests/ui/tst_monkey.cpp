#include "app/text.h"
#include "core/cache/cacheroot.h"
#include "tests/ui/filewatch.h"
#include "tests/ui/uitest.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/locations/locationspage.h"
#include "ui/mirrix.h"
#include "ui/models/resultsmodel.h"
#include "ui/window/theme.h"

#include <QRandomGenerator>

namespace {

const QStringList schemes = {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s};

/// Drives the window by one random event after the other and answers what it asks.
class Monkey : public QObject, public Prompts
{
    Q_OBJECT

public:
    Monkey(quint32 seed, qint64 steps, qint64 milliseconds)
        : m_random(seed)
        , m_stepsLeft(steps)
        , m_milliseconds(milliseconds)
        , m_settings(defaultSettings(m_watch.path(u"data"_s)))
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "ignoreUrl");
        qputenv("HOME", m_watch.path(u"share"_s).toUtf8());
        qputenv("XDG_DATA_HOME", m_watch.path(u"share"_s).toUtf8());
        QDir::setCurrent(m_watch.path(u"cwd"_s));
        MirrixCore::setCacheRoot(m_settings.directory);
        m_settings.trayEnabled = false;
        m_settings.backupRoot = m_watch.path(u"backup"_s);
    }

    ~Monkey() override
    {
        QDir::setCurrent(QDir::rootPath());
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    /// Opens the window, and opens it again when it was closed, until the steps and the time are over.
    void run()
    {
        m_clock.start();
        while (!isOver()) {
            m_watch.restock();
            m_window = std::make_unique<MirrixUi::Mirrix>(m_settings, *this);
            m_window->addLocation(m_watch.path(u"in"_s));
            m_window->show();
            QTimer::singleShot(0, this, [this] { step(); });
            QApplication::exec();
            m_window.reset();
            m_watch.check(m_ticked, m_mayDestroy);
        }
        qInfo("%lld steps, %d questions, %d files gone, longest step %lld ms", static_cast<long long>(m_steps),
              m_questions, m_watch.gone(), static_cast<long long>(m_longestMs));
    }

    [[nodiscard]] QStringList problems() const { return m_watch.problems(); }
    [[nodiscard]] int filesGone() const { return m_watch.gone(); }

    void inform(QWidget *, const QString &, const QString &, const QString &) override { look(); }
    bool informWithAction(QWidget *, const QString &, const QString &, const QString &, const QString &) override
    {
        return look() && chance(4);
    }
    void warn(QWidget *, const QString &, const QString &) override { look(); }
    void fail(QWidget *, const QString &, const QString &) override { look(); }
    /// Some questions come between the dialog and the action; others are about backups, or about runs of any files.
    bool ask(QWidget *, const QString &title, const QString &, const QString &) override
    {
        const bool mayDestroy = m_mayDestroy;
        const bool isYes = look() && chance(2);
        const bool emptiesBackups = title == Text::tr("释放备份");
        const bool undoesAnUndo = title == Text::tr("重新清理");
        m_mayDestroy = isYes && (mayDestroy || emptiesBackups || undoesAnUndo);
        if (isYes && undoesAnUndo)
            m_ticked.unite(m_watch.usersFiles());
        return isYes;
    }

    qsizetype choose(QWidget *, const ChoiceRequest &request) override
    {
        look();
        return m_random.bounded(int(request.buttons.size()));
    }

    Confirmation confirm(QWidget *, const ConfirmationRequest &) override { return {look() && !chance(4), false}; }

    QStringList chooseFiles(QWidget *, const QString &, const QString &) override
    {
        return {m_watch.path(u"in/d1/f1.txt"_s), m_watch.path(u"in/d2/f2.png"_s), m_watch.path(u"in/none"_s)};
    }

    QString chooseFolder(QWidget *, const QString &, const QString &) override
    {
        return chance(2) ? QString() : m_watch.path(chance(2) ? u"answers"_s : u"in/d1"_s);
    }

    QString chooseSaveFile(QWidget *, const QString &, const QString &, const QString &) override
    {
        return chance(3) ? QString() : m_watch.path(u"answers/file%1"_s.arg(m_random.bounded(1000000)));
    }

    bool run(QDialog &dialog) override
    {
        const bool isConfined = look();
        const bool isAccepted = dialog.exec() == QDialog::Accepted && isConfined && isSafe(dialog);
        if (auto *removal = qobject_cast<FileRemovalDialog *>(&dialog); removal && isAccepted)
            m_mayDestroy = !removal->choice().backsUpFirst && removal->choice().method != RemovalMethod::Recycle &&
                           removal->choice().method != RemovalMethod::Move;
        return isAccepted;
    }

public slots:
    void ignoreUrl(const QUrl &) {}

private:
    bool chance(int of) { return m_random.bounded(of) == 0; }
    bool isOver() const { return m_steps >= m_stepsLeft && m_clock.elapsed() >= m_milliseconds; }

    /// Every path that a dialog was given lies in the scene.
    bool isSafe(const QDialog &dialog) const
    {
        const auto edits = dialog.findChildren<QLineEdit *>();
        return std::none_of(edits.begin(), edits.end(), [this](const QLineEdit *edit) {
            return QDir::isAbsolutePath(edit->text()) && !m_watch.holds(edit->text());
        });
    }

    /// Compares the disk with what was ticked so far and notes what is ticked now. False when that lies elsewhere.
    bool look()
    {
        ++m_questions;
        m_watch.check(m_ticked, m_mayDestroy);
        m_mayDestroy = false;
        m_ticked.clear();
        const auto *tree = m_window->findChild<QTreeView *>(u"DuplicateFilesTree"_s);
        for (int group = 0; group < tree->model()->rowCount(); ++group) {
            const QModelIndex parent = tree->model()->index(group, 0);
            for (int row = 0; row < tree->model()->rowCount(parent); ++row) {
                const QModelIndex file = tree->model()->index(row, 0, parent);
                if (file.data(ResultsModel::MarkedCountRole).toInt() == 1)
                    m_ticked.insert(file.data(ResultsModel::PathRole).toString());
            }
        }
        const bool isConfined = std::all_of(m_ticked.begin(), m_ticked.end(), [this](const QString &path) {
            return path.startsWith(m_watch.path(u"in/"_s));
        });
        if (!isConfined)
            m_watch.complain(u"files outside of the scene are ticked"_s);
        return isConfined;
    }

    /// The machine's own files are nothing for a monkey.
    void confine()
    {
        auto *page = m_window->findChild<LocationsPage *>();
        LocationsState state = page->state();
        const bool isReset = chance(50); // what there is to scan may have been taken away or left out
        const bool isElsewhere = state.rows.removeIf([this](const LocationRow &row) {
            return row.path != m_watch.path(u"in"_s) && !row.path.startsWith(m_watch.path(u"in/"_s));
        }) > 0;
        if (isReset)
            state.rows = {LocationRow{m_watch.path(u"in"_s)}};
        if (isReset || isElsewhere || state.advanced.backupFolder != m_watch.path(u"backup"_s)) {
            state.advanced.backupFolder = m_watch.path(u"backup"_s);
            page->setState(state);
        }
        m_settings.skipScanConfirm = false;
    }

    void step()
    {
        if (isOver() || !m_window->isVisible()) {
            end();
            return;
        }
        ++m_steps;
        QTimer::singleShot(int(m_random.bounded(3)), this, [this] { step(); }); // also while a dialog is open
        confine();
        QElapsedTimer timer;
        timer.start();
        const int depth = ++m_depth;
        act();
        if (depth == m_depth--) // else it was a dialog's whole life
            m_longestMs = std::max(m_longestMs, timer.elapsed());
    }

    /// Closes what is open and lets the window's loop end.
    void end()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
        if (QApplication::activeModalWidget() || m_window->isVisible()) {
            if (!QApplication::activeModalWidget())
                m_window->quitCompletely();
            QTimer::singleShot(1, this, [this] { end(); });
            return;
        }
        QApplication::quit();
    }

    void act()
    {
        QWidget *top = QApplication::activePopupWidget();
        if (!top)
            top = QApplication::activeModalWidget();
        m_patience = top && top == m_lastTop ? m_patience - 1 : 15;
        m_lastTop = top;
        if (m_patience < 0 && top) {
            if (auto *dialog = qobject_cast<QDialog *>(top))
                chance(2) || qobject_cast<FileProgressDialog *>(dialog) ? dialog->reject() : dialog->accept();
            else
                top->close();
            return;
        }
        if (!top && chance(15))
            triggerAction();
        else if (!top && chance(4))
            pressFavourite();
        else
            touch(top ? top : m_window.get());
    }

    void triggerAction()
    {
        const auto actions = m_window->menuBar()->findChildren<QAction *>();
        QAction *action = actions[m_random.bounded(actions.size())];
        if (!action->menu())
            action->trigger();
    }

    /// What leads through a whole job, which chance alone seldom does.
    void pressFavourite()
    {
        const char *names[] = {"PrimaryButton", "AutoSelectButton", "SelectAllButton", "MoveToBackupButton",
                               "DeleteSelectedButton"};
        auto *button = m_window->findChild<QAbstractButton *>(QString::fromLatin1(names[m_random.bounded(5)]));
        if (button && button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    }

    void touch(QWidget *top)
    {
        const bool isButton = chance(3); // they are few, and lead further than the rest
        auto widgets = top->findChildren<QWidget *>();
        widgets.removeIf([isButton](const QWidget *widget) {
            return !widget->isVisible() || !widget->isEnabled() || widget->objectName() == u"ResultsFilter" ||
                   (isButton && !widget->inherits("QPushButton"));
        });
        QWidget *widget = widgets.isEmpty() ? top : widgets[m_random.bounded(widgets.size())];
        const QPoint place(m_random.bounded(std::max(1, widget->width())),
                           m_random.bounded(std::max(1, widget->height())));
        const Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier};
        const Qt::KeyboardModifiers modifiers = held[m_random.bounded(4)];
        switch (m_random.bounded(8)) {
        case 0:
            press(widget, modifiers);
            break;
        case 1:
            QTest::mouseClick(widget, Qt::RightButton, modifiers, place);
            break;
        case 2:
            QTest::mouseDClick(widget, Qt::LeftButton, modifiers, place);
            break;
        default:
            QTest::mouseClick(widget, Qt::LeftButton, modifiers, place);
        }
    }

    /// No letters into paths, which would lead out of the scene.
    void press(QWidget *widget, Qt::KeyboardModifiers modifiers)
    {
        const Qt::Key keys[] = {Qt::Key_Space,    Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Up,
                                Qt::Key_Down,     Qt::Key_F5,     Qt::Key_Escape, Qt::Key_A,
                                Qt::Key_PageDown, Qt::Key_Left,   Qt::Key_5,      Qt::Key_Menu};
        const Qt::Key key = keys[m_random.bounded(int(std::size(keys)))];
        const auto *edit = qobject_cast<QLineEdit *>(widget);
        const bool types = key == Qt::Key_Space || key == Qt::Key_A || key == Qt::Key_5;
        if (!edit || !types || !edit->text().contains(u'/'))
            QTest::keyClick(widget, key, modifiers);
    }

    QRandomGenerator m_random;
    qint64 m_stepsLeft;
    qint64 m_milliseconds;
    FileWatch m_watch;
    Settings m_settings;
    std::unique_ptr<MirrixUi::Mirrix> m_window;
    QSet<QString> m_ticked;
    bool m_mayDestroy = false;
    QWidget *m_lastTop = nullptr;
    int m_patience = 0;
    int m_depth = 0;
    int m_questions = 0;
    qint64 m_steps = 0;
    qint64 m_longestMs = 0;
    QElapsedTimer m_clock;
};

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private slots:
    /// The same steps each time, as far as threads allow; MIRRIX_MONKEY_SECONDS goes on with others.
    void touchesOnlyWhatIsTicked()
    {
        const int seconds = qEnvironmentVariableIntValue("MIRRIX_MONKEY_SECONDS");
        const quint32 seed = seconds > 0 ? QRandomGenerator::global()->generate() : 1;
        qInfo("seed %u", seed);
        Monkey monkey(seed, 400, seconds * 1000LL);
        monkey.run();
        QVERIFY2(monkey.problems().isEmpty(), qPrintable(monkey.problems().join(u'\n')));
        QVERIFY(seconds < 60 || monkey.filesGone() > 0); // else it has only played
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ensureFusionStyle();
    QApplication::setQuitOnLastWindowClosed(false);
    MonkeyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_monkey.moc"
