#include "tests/ui/gallery.h"
#include "tests/ui/uitest.h"

#include "actions/export/exporter.h"
#include "actions/records/runhistory.h"
#include "actions/records/runjournal.h"
#include "ui/dialogs/exportdialog.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/dialogs/hashtooldialog.h"
#include "ui/dialogs/historycommands.h"
#include "ui/dialogs/historydialog.h"
#include "ui/dialogs/imagecomparedialog.h"
#include "ui/dialogs/logviewer.h"
#include "ui/dialogs/optionsdialog.h"
#include "ui/dialogs/restoredialog.h"
#include "ui/locations/drivepicker.h"
#include "ui/mirrix.h"

namespace MirrixTest {

namespace {

/// A made landscape, so that previews and thumbnails have something to show.
void paintPicture(const QString &path, int hue)
{
    QDir().mkpath(QFileInfo(path).path());
    QImage picture(960, 640, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, picture.height());
    sky.setColorAt(0, QColor::fromHsv(hue, 160, 210));
    sky.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 70, 250));
    painter.fillRect(picture.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 244, 214));
    painter.drawEllipse(QPoint(680, 190), 70, 70);
    for (int ridge = 0; ridge < 3; ++ridge) {
        QPolygon hills({{0, 640}});
        for (int x = 0; x <= 960; x += 60)
            hills << QPoint(x, 380 + ridge * 80 + ((x * (ridge + 3) + hue) % 140) - 60);
        hills << QPoint(960, 640);
        painter.setBrush(QColor::fromHsv((hue + 100) % 360, 120, 150 - ridge * 40));
        painter.drawPolygon(hills);
    }
    painter.end();
    picture.save(path, "JPG", 90);
}

void makeSample(const TempTree &tree)
{
    const QString root = tree.path(u"Anna"_s);
    const auto copy = [&root](const QString &from, const QString &to) {
        QDir().mkpath(QFileInfo(root + to).path());
        QFile::copy(root + from, root + to);
    };
    for (int hue : {200, 20, 280})
        paintPicture(root + u"/Pictures/2025 Coast/IMG_%1.jpg"_s.arg(2000 + hue), hue);
    copy(u"/Pictures/2025 Coast/IMG_2200.jpg"_s, u"/Backup/phone/IMG_2200.jpg"_s);
    copy(u"/Pictures/2025 Coast/IMG_2200.jpg"_s, u"/Downloads/IMG_2200 (1).jpg"_s);
    copy(u"/Pictures/2025 Coast/IMG_2020.jpg"_s, u"/Backup/phone/IMG_2020.jpg"_s);
    copy(u"/Pictures/2025 Coast/IMG_2280.jpg"_s, u"/Backup/phone/IMG_2280.jpg"_s);
    tree.write(u"Anna/Documents/contract.pdf"_s, QByteArray(3'400'000, 'c'));
    copy(u"/Documents/contract.pdf"_s, u"/Downloads/contract.pdf"_s);
    tree.write(u"Anna/Documents/notes.txt"_s, "only here");
}

/// Runs of some months: one in the backup, one deleted for good of which a file failed, one undone, one cut short.
void makeHistory(const QString &directory, const QString &root)
{
    const qint64 first = QDateTime(QDate(2026, 2, 3), QTime(18, 4, 11)).toMSecsSinceEpoch();
    constexpr qint64 monthMs = 30LL * 24 * 3600 * 1000;
    const auto add = [&](int number, const QString &method, int done, ItemState state, bool isComplete) {
        const auto name = [number](int i) { return u"IMG_22%1"_s.arg(number * 10 + i); };
        QList<RunItem> items(4);
        for (int i = 0; i < 4; ++i) {
            items[i].original = root + u"/Downloads/%1 (1).jpg"_s.arg(name(i));
            items[i].kept = root + u"/Pictures/2025 Coast/%1.jpg"_s.arg(name(i));
            items[i].sizeBytes = 41'300'000;
            items[i].modifiedMs = first;
        }
        RunJournalWriter journal;
        if (!journal.create(directory, {{}, first + number * monthMs, u"window"_s, method, {}, {}, 4, {}}, items))
            return;
        const qint64 held = method == u"delete" ? 0 : 41'300'000;
        for (int i = 0; i < done; ++i) {
            const QString now =
                held ? directory + u"/Backup/20260203_180411__0c5f31ab__%1 (1).jpg"_s.arg(name(i)) : QString();
            journal.outcome({i, state, now, {}, {}, 41'300'000 - held, held});
        }
        if (done < 4)
            journal.outcome({3, ItemState::Failed, {}, u"in use"_s, {}, 0, 0});
        if (isComplete)
            static_cast<void>(journal.finish());
    };
    add(0, u"recycle"_s, 4, ItemState::Undone, true);
    add(1, u"backup+hardlink"_s, 2, ItemState::Done, false);
    add(2, u"delete"_s, 3, ItemState::Done, true);
    add(3, u"backup"_s, 4, ItemState::Done, true);
}

/// The dialog describes each choice in a sentence of its own.
void visitMethods(FileRemovalDialog &removal, const std::function<void(const QString &, QWidget &)> &look)
{
    const auto methods = removal.findChildren<QRadioButton *>();
    for (const bool backsUp : {true, false}) {
        removal.findChild<QCheckBox *>(u"BackUpFirstBox"_s)->setChecked(backsUp);
        for (QRadioButton *method : methods) {
            method->click();
            look(method->objectName() + (backsUp ? u"-backed-up"_s : QString()), removal);
        }
    }
}

QList<Drive> sampleDrives()
{
    constexpr qint64 giga = qint64(1) << 30;
    return {{u"C:/"_s, DriveType::Fixed, u"System"_s, u"NTFS"_s, 476 * giga, 91 * giga, true},
            {u"D:/"_s, DriveType::Fixed, u"Photos"_s, u"NTFS"_s, 1863 * giga, 640 * giga, false},
            {u"E:/"_s, DriveType::Removable, {}, u"exFAT"_s, 58 * giga, 12 * giga, false}};
}

} // namespace

void SeenPrompts::see(const std::function<void()> &show) const
{
    if (!look)
        return;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box)
            return;
        timer.stop();
        look(*box);
        box->close();
    });
    timer.start(0);
    show();
}

bool SeenPrompts::ask(QWidget *parent, const QString &title, const QString &text, const QString &below)
{
    see([&] { static_cast<void>(m_shown.ask(parent, title, text, below)); });
    return ScriptedPrompts::ask(parent, title, text, below);
}

bool SeenPrompts::informWithAction(QWidget *parent, const QString &title, const QString &text, const QString &below,
                                   const QString &action)
{
    see([&] { static_cast<void>(m_shown.informWithAction(parent, title, text, below, action)); });
    return ScriptedPrompts::informWithAction(parent, title, text, below, action);
}

qsizetype SeenPrompts::choose(QWidget *parent, const ChoiceRequest &request)
{
    see([&] { static_cast<void>(m_shown.choose(parent, request)); });
    return ScriptedPrompts::choose(parent, request);
}

Gallery::Gallery(const std::function<void(Settings &)> &tweak)
    : m_settings(defaultSettings(m_tree.makeFolder(u"data"_s)))
    , m_log(operationsLogPath(m_settings.directory))
{
    makeSample(m_tree);
    makeHistory(m_settings.directory, sample({}));
    m_settings.trayEnabled = false;
    m_settings.skipScanConfirm = true;
    if (tweak)
        tweak(m_settings);
    m_window = std::make_unique<MirrixUi::Mirrix>(m_settings, m_prompts);
    for (const QString &folder : {u"Pictures"_s, u"Documents"_s, u"Downloads"_s, u"Backup"_s})
        m_window->addLocation(sample(folder));
    m_window->show();
}

Gallery::~Gallery() = default;

QString Gallery::sample(const QString &relative) const
{
    return m_tree.path(u"Anna/"_s + relative);
}

bool Gallery::scan()
{
    m_window->startScan();
    if (!QTest::qWaitFor([this] { return !m_window->isScanning(); }, 60000))
        return false;
    auto *tree = m_window->findChild<QTreeView *>(u"DuplicateFilesTree"_s);
    constexpr int pictures = 1; // the first group is of documents
    tree->setCurrentIndex(tree->model()->index(0, 1, tree->model()->index(pictures, 0)));
    return true;
}

void Gallery::visitPages(const std::function<void(const QString &, QWidget &)> &look)
{
    m_window->goToStep(0);
    look(u"locations"_s, *m_window);
    int step = 1;
    for (const QString &name : {u"RulesTabs"_s, u"ResultsTabs"_s}) {
        m_window->goToStep(step++);
        auto *tabs = m_window->findChild<QTabWidget *>(name);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            look(u"%1-%2"_s.arg(step == 2 ? u"rules"_s : u"results"_s).arg(tab + 1), *m_window);
        }
        tabs->setCurrentIndex(0);
    }
}

std::vector<std::pair<QString, std::unique_ptr<QDialog>>> Gallery::dialogs()
{
    std::vector<std::pair<QString, std::unique_ptr<QDialog>>> made;
    const auto add = [&made](const QString &name, QDialog *dialog) { made.emplace_back(name, dialog); };
    auto *hashes = new HashToolDialog(m_prompts, m_window.get());
    hashes->addPaths({sample(u"Pictures"_s), sample(u"Backup"_s)});
    add(u"hashes"_s, hashes);
    for (const auto page : {OptionsDialog::General, OptionsDialog::Theme, OptionsDialog::About}) {
        auto *options = new OptionsDialog(m_settings, m_prompts, m_window.get());
        options->showPage(page);
        add(u"options-%1"_s.arg(page + 1), options);
    }
    add(u"export"_s, new ExportDialog({}, m_prompts, m_window.get()));
    RemovalChoice removal = initialRemovalChoice(m_settings);
    removal.targetFolder = sample(u"Duplicates"_s);
    auto *removing = new FileRemovalDialog(12, removal, m_prompts, m_window.get());
    removing->setFiles(172'000'000, true);
    add(u"removal"_s, removing);
    auto *history = new HistoryDialog(m_settings, m_prompts, m_log, m_window.get());
    history->showRun(listRuns(m_settings.directory).value(1).header.id);
    add(u"history"_s, history);
    add(u"restore"_s, new RestoreDialog({sample(u"Pictures/IMG_2200.jpg"_s)}, m_window.get()));
    add(u"log"_s, new LogViewer(operationsLogPath(m_settings.directory), m_window.get()));
    add(u"compare"_s, new ImageCompareDialog(sample(u"Pictures/2025 Coast/IMG_2200.jpg"_s),
                                             sample(u"Backup/phone/IMG_2200.jpg"_s), m_window.get()));
    add(u"drives"_s, new DrivePicker(m_prompts, sampleDrives(), m_window.get()));
    return made;
}

void Gallery::visitQuestions(const std::function<void(const QString &, QWidget &)> &look)
{
    int number = 0;
    m_prompts.look = [&](QWidget &box) { look(u"question-%1"_s.arg(++number), box); };
    const auto click = [this](const QString &name) { m_window->findChild<QPushButton *>(name)->click(); };
    m_prompts.answers.clear();
    m_window->goToStep(2);
    click(u"SelectAllButton"_s);
    m_prompts.answers = {true, false}; // the dialog, deleting for good
    m_prompts.onRun = [](QDialog &removal) {
        removal.findChild<QAbstractButton *>(u"RemovalMethod1"_s)->click();
        removal.findChild<QCheckBox *>(u"BackUpFirstBox"_s)->setChecked(false);
    };
    click(u"DeleteSelectedButton"_s);
    m_prompts.onRun = {};
    m_prompts.answers = {true};
    click(u"MoveToBackupButton"_s);
    auto *groups = m_window->findChild<QTreeView *>(u"DuplicateFilesTree"_s)->model();
    const QModelIndex documents = groups->index(0, 0);
    for (int file = 0; file < groups->rowCount(documents); ++file)
        groups->setData(groups->index(file, 0, documents), Qt::Checked, Qt::CheckStateRole);
    click(u"MoveToBackupButton"_s); // would leave no copy

    HistoryCommands history(m_settings, m_prompts, m_log, m_window.get());
    const RunSummary run = listRuns(m_settings.directory).value(0);
    static_cast<void>(history.undo(run.header));
    static_cast<void>(history.freeBackups(run));
    static_cast<void>(history.removeRecords({run.header.id}));
    m_prompts.look = {};
}

void Gallery::visitAll(const std::function<void(const QString &, QWidget &)> &look)
{
    visitPages(look);
    for (const auto &[name, dialog] : dialogs()) {
        dialog->show();
        look(name, *dialog);
        if (auto *removal = qobject_cast<FileRemovalDialog *>(dialog.get()))
            visitMethods(*removal, look);
        dialog->close();
    }
    visitQuestions(look);
}

} // namespace MirrixTest
