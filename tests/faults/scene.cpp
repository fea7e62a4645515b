#include "tests/faults/scene.h"

#include "actions/cleaning/backupstore.h"
#include "actions/records/operationslog.h"
#include "tests/support/program.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QMap>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QUrl>

#include <filesystem>
#include <unistd.h>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace MirrixTest {

namespace {

/// Which file stays in place of each.
const QMap<QString, QString> &keepers()
{
    static const QMap<QString, QString> table = {
        {u"src/x/a1"_s, u"src/keep/a"_s}, {u"src/x/a2"_s, u"src/keep/a"_s}, {u"src/y/b1"_s, u"src/keep/b1"_s}};
    return table;
}

bool exists(const QString &path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(exactNative(path), ignored));
}

/// A file's content and time in the form of a DiskTree; empty when it is not there.
QByteArray stateOf(const QString &path)
{
    const QFileInfo info(path);
    return treeBelow(info.path()).value(info.fileName());
}

} // namespace

Scene::Scene(const QString &method, bool isOnOtherVolume)
    : m_method(method)
    , m_other(isOnOtherVolume ? folderOnOtherVolume(m_tree.path()) : nullptr)
    , m_target(m_other ? m_other->path() : m_tree.path(u"target"_s))
    , m_store(method == u"delete" || method == u"move" ? m_tree.path(u"data/Backup"_s) : m_target)
{
    const QByteArray large = patternBytes(70000);
    const QMap<QString, QByteArray> files = {{u"src/keep/a"_s, "alpha"},    {u"src/keep/b1"_s, large},
                                             {u"src/x/a1"_s, "alpha"},      {u"src/x/a2"_s, "alpha"},
                                             {u"src/y/b1"_s, large},        {u"src/x/alone"_s, "alphb"},
                                             {u"src/y/mine"_s, "not yours"}};
    qint64 modifiedMs = 1000000000000; // the keepers, which come first, are the oldest
    for (auto file = files.begin(); file != files.end(); ++file) {
        m_tree.write(file.key(), file.value());
        m_tree.setModified(file.key(), modifiedMs += 1000);
    }
    m_tree.makeFolder(u"share"_s); // the bin is there only if it is on the volume of the home folder
    m_tree.makeFolder(u"home"_s);
    m_tree.makeFolder(u"target"_s);
    m_tree.write(u"data/settings.json"_s, R"({"keepRule":1})");
    OperationsLog(path(u"data/ops.log.enc"_s)).append({{1, u"first"_s, u"old"_s}});
    m_before = treeBelow(path(u"src"_s));
    if (method == u"restore") {
        QStringList paths;
        for (const QString &victim : victims())
            paths.append(path(victim));
        static_cast<void>(backupFiles(m_store, paths));
    }
}

Scene::~Scene()
{
    for (const auto &[note, file] : binned()) { // in the bin of the volume they would stay for ever
        QFile::remove(note);
        QFile::remove(file);
    }
}

QStringList Scene::victims()
{
    return keepers().keys();
}

QStringList Scene::arguments() const
{
    QString line = m_isUndo                 ? u"undo --apply last"_s
                   : m_method == u"restore" ? u"restore --target %2 --all"_s
                   : m_method == u"scan"    ? u"scan --threads 1 --format json --output %1/report %1/src"_s
                                            : u"clean --threads 1 --keep oldest --apply %1/src --method "_s + m_method;
    if (!m_isUndo && !QStringList{u"scan"_s, u"restore"_s, u"recycle"_s, u"delete"_s}.contains(m_method))
        line += u" --target %2"_s;
    QStringList words = (line + u" --data-dir %1/data"_s).split(u' ');
    return words.replaceInStrings(u"%1"_s, path({})).replaceInStrings(u"%2"_s, m_target);
}

void Scene::prepare(QProcess &process) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"XDG_DATA_HOME"_s, path(u"share"_s));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(path(u"data"_s));
}

QByteArray Scene::run(const QStringList &arguments) const
{
    QProcess process;
    prepare(process);
    process.start(Program::builtExecutable(), arguments);
    return Program::ended(process).output;
}

QString Scene::problem(int status, const QByteArray &output, bool mayMiss, bool mayLeave) const
{
    qsizetype handled = 0;
    const QStringList all = victims();
    for (const QString &victim : all) {
        const Place place = placeOf(victim);
        if (place == Place::Lost)
            return u"lost: "_s + victim;
        handled += place == Place::Gone ? 1 : 0;
    }
    const QString others = hasWholeCopies() ? problemOfOthers() : u"no whole copy left"_s;
    if (!others.isEmpty())
        return others;
    if (!mayLeave && !leftover().isEmpty())
        return u"left behind: "_s + leftover();
    if (m_method == u"scan")
        return {};
    static const QRegularExpression claim(u"(\\d+) of (\\d+) files"_s);
    const QRegularExpressionMatch said = claim.match(QString::fromUtf8(output));
    const qsizetype told = said.hasMatch() ? said.captured(1).toInt() : status == 0 ? -1 : 0;
    // A file that could not be removed from its old place may be at both.
    if (told != handled && !(mayLeave && told >= 0 && told < handled))
        return u"%1 handled, told: %2"_s.arg(handled).arg(QString::fromUtf8(output));
    if (status == 0 && handled != all.size() && !mayMiss)
        return u"success told, %1 handled"_s.arg(handled);
    return {};
}

void Scene::turnToUndo()
{
    static_cast<void>(run(arguments()));
    m_isUndo = true;
}

void Scene::makeDigestsStale()
{
    QStringList scan = arguments();
    scan.removeOne(u"--apply"_s);
    static_cast<void>(run(scan));
    for (const QString &file : {u"src/x/a1"_s, u"src/keep/b1"_s}) {
        const qint64 modifiedMs = QFileInfo(path(file)).lastModified().toMSecsSinceEpoch();
        QByteArray content = contentOf(path(file));
        content[content.size() / 2] = '!';
        m_tree.write(file, content);
        m_tree.setModified(file, modifiedMs);
    }
    m_before = treeBelow(path(u"src"_s));
}

QString Scene::problemAfterUndo(const ProgramRun &undo, bool mayLeave) const
{
    const QStringList all = victims();
    const auto homed = [&] {
        return std::count_if(all.begin(), all.end(), [&](auto &file) { return isAtHome(file); });
    };
    if (!problemOfOthers().isEmpty())
        return problemOfOthers();
    static const QRegularExpression claim(u"(\\d+) of \\d+ files undone"_s);
    const QRegularExpressionMatch said = claim.match(QString::fromUtf8(undo.output));
    if ((undo.status == 0 || (said.hasMatch() && !mayLeave)) && said.captured(1).toInt() != homed())
        return u"%1 are back, told: %2"_s.arg(homed()).arg(QString::fromUtf8(undo.output));
    const QByteArray again = run(arguments());
    if (homed() != all.size())
        return u"%1 are back after a second undo, which told: %2"_s.arg(homed()).arg(QString::fromUtf8(again));
    if (!problemOfOthers().isEmpty())
        return problemOfOthers();
    return mayLeave || !undo.errors.isEmpty() || leftover().isEmpty() ? QString() : u"left behind: "_s + leftover();
}

QString Scene::problemAfterRecovery() const
{
    static_cast<void>(restoreBackups(m_store, restorableEntries(m_store)));
    for (const QString &victim : victims()) {
        const bool isDone = m_method == u"backup" || m_method == u"restore" ? false : isHandled(victim);
        if (!isDone && !isAtHome(victim))
            return u"not put back: "_s + victim;
    }
    return problemOfOthers();
}

Scene::Place Scene::placeOf(const QString &victim) const
{
    if (m_method == u"restore")
        return isAtHome(victim) ? Place::Gone : isListed(victim) ? Place::Listed : Place::Lost;
    if (isAtHome(victim))
        return Place::AtHome;
    if (m_method.endsWith(u"link") && isListed(victim))
        return Place::Listed; // set aside, even where the link stands already
    return isHandled(victim) ? Place::Gone : isListed(victim) ? Place::Listed : Place::Lost;
}

bool Scene::isHandled(const QString &victim) const
{
    const QString place = path(victim);
    const std::filesystem::path native = exactNative(place);
    std::error_code ignored;
    if (m_method.endsWith(u"link")) { // where the scan could not see the keeper, to another copy
        const bool isLink = m_method == u"symlink" ? std::filesystem::is_symlink(native)
                                                   : std::filesystem::hard_link_count(native, ignored) > 1;
        return isLink && contentOf(place) == contentOf(path(keepers()[victim]));
    }
    if (exists(place))
        return false;
    if (m_method == u"recycle")
        return isInBin(victim);
    if (m_method == u"move")
        return isAsBefore(m_target + victim.mid(victim.lastIndexOf(u'/')), victim);
    return m_method == u"delete" || (m_method == u"backup" && isListed(victim));
}

bool Scene::isInBin(const QString &victim) const
{
    const auto line = [](const QString &noted) { return "\nPath=" + QUrl::toPercentEncoding(noted, "/") + '\n'; };
    const QDir top(QStorageInfo(m_tree.path()).rootPath());
    for (const auto &[note, file] : binned()) { // the bin of a volume knows no paths beyond it
        const QByteArray text = contentOf(note);
        const bool isNoted =
            text.contains(line(path(victim))) || text.contains(line(top.relativeFilePath(path(victim))));
        if (isNoted && isAsBefore(file, victim))
            return true;
    }
    const QFileInfoList notes = QDir(path(u"share/Trash/info"_s)).entryInfoList(QDir::Files);
    return m_mayLoseNotes && std::any_of(notes.begin(), notes.end(), [&](const QFileInfo &note) {
               return note.size() == 0 && isAsBefore(path(u"share/Trash/files/"_s) + note.completeBaseName(), victim);
           });
}

/// The scene's notes and files in the bin of its home and in that of its volume, where a file goes that could not be
/// moved to the home.
QList<std::pair<QString, QString>> Scene::binned() const
{
    const QString top = QStorageInfo(m_tree.path()).rootPath();
    const QString ofVolume = QDir(top).filePath(u".Trash-%1"_s.arg(geteuid()));
    const QByteArray scene = QUrl::toPercentEncoding(QDir(top).relativeFilePath(m_tree.path()), "/");
    QList<std::pair<QString, QString>> found;
    for (const QString &bin : {path(u"share/Trash"_s), ofVolume}) {
        const QDir notes(bin + u"/info"_s);
        for (const QString &name : notes.entryList({u"*.trashinfo"_s}, QDir::Files)) {
            if (contentOf(notes.filePath(name)).contains(scene))
                found.append({notes.filePath(name), bin + u"/files/"_s + name.chopped(10)});
        }
    }
    return found;
}

bool Scene::isListed(const QString &victim) const
{
    const QList<BackupEntry> entries = loadBackupIndex(m_store);
    return std::any_of(entries.begin(), entries.end(), [&](const BackupEntry &entry) {
        return entry.original == path(victim) && isAsBefore(entry.backup, victim);
    });
}

bool Scene::isAtHome(const QString &relative) const
{
    return isAsBefore(path(relative), relative);
}

bool Scene::isAsBefore(const QString &path, const QString &relative) const
{
    return exists(path) && stateOf(path) == m_before.value(relative.mid(4));
}

/// Whether a plain file below "src", be it one set aside, still holds the content of each of the surplus files, where
/// the method destroys them.
bool Scene::hasWholeCopies() const
{
    if (m_method != u"delete" && !m_method.endsWith(u"link"))
        return true;
    const QList<QByteArray> left = treeBelow(path(u"src"_s)).values();
    const QStringList all = victims();
    return std::all_of(all.begin(), all.end(), [&](const QString &victim) {
        const QByteArray before = m_before.value(victim.mid(4));
        const QByteArray content = before.left(before.lastIndexOf(" @") + 2);
        return std::any_of(left.begin(), left.end(), [&](const QByteArray &file) { return file.startsWith(content); });
    });
}

/// Files that nobody may touch, and the program's own.
QString Scene::problemOfOthers() const
{
    for (auto file = m_before.begin(); file != m_before.end(); ++file) {
        const QString name = u"src/"_s + file.key();
        const bool mayBeLost = m_mayLoseKeepers && keepers().values().contains(name);
        if (!keepers().contains(name) && !mayBeLost && !isAtHome(name))
            return u"touched: "_s + file.key();
    }
    const QList<LogEntry> log = OperationsLog(path(u"data/ops.log.enc"_s)).readAll();
    if (log.isEmpty() || log.constFirst().detail != u"old")
        return u"log lost"_s;
    if (contentOf(path(u"data/settings.json"_s)) != R"({"keepRule":1})")
        return u"settings lost"_s;
    const QByteArray index = contentOf(m_store + u"/backup_index.json"_s);
    return index.isEmpty() || QJsonDocument::fromJson(index).isArray() ? QString() : u"index damaged"_s;
}

/// A file of a passing name that no index lists.
QString Scene::leftover() const
{
    QStringList listed;
    for (const BackupEntry &entry : loadBackupIndex(m_store))
        listed.append(entry.backup);
    for (const QString &folder : {path(u"src"_s), m_target}) {
        const QStringList found = treeBelow(folder).keys();
        for (const QString &name : found) {
            if (name.contains(u".mirrix-"_s) && !listed.contains(folder + u'/' + name))
                return name;
        }
    }
    return {};
}

} // namespace MirrixTest
