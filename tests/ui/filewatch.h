#pragma once

#include "tests/support/disk.h"
#include "tests/support/temptree.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QSet>
#include <QStringList>

namespace MirrixTest {

using namespace Qt::StringLiterals;

/// A user's files, and what may happen to them: a file below in/ goes only when it was ticked, nothing is changed in
/// place, no content is lost unless files were to be destroyed, and out/ stays as it was.
class FileWatch
{
public:
    FileWatch()
    {
        for (const QString &folder : {u"data"_s, u"backup"_s, u"share"_s, u"cwd"_s, u"answers"_s})
            m_tree.makeFolder(folder);
    }

    /// Makes all files again; what earlier ones became elsewhere stays.
    void restock()
    {
        QDir(path(u"in"_s)).removeRecursively();
        QImage picture(40, 30, QImage::Format_RGB32);
        for (int i = 0; i < 18; ++i) {
            const QString name = u"%1/d%2/f%3"_s.arg(i % 6 ? u"in"_s : u"out"_s).arg(i % 4).arg(i);
            m_tree.write(name + u".txt"_s, patternBytes(i % 2 ? 20 : 100000, quint32(i % 3)));
            picture.fill(QColor(i % 3 * 80, 120, 200));
            picture.save(m_tree.path(name + u".png"_s));
        }
        look();
        m_contents.clear();
        for (auto file = m_before.cbegin(); file != m_before.cend(); ++file) {
            if (isUsers(file.key()))
                m_contents.insert(*file);
        }
    }

    [[nodiscard]] QString path(const QString &relative) const { return m_tree.path(relative); }
    [[nodiscard]] bool holds(const QString &path) const { return path.startsWith(m_tree.path() + u'/'); }
    [[nodiscard]] const QStringList &problems() const { return m_problems; }
    void complain(const QString &problem) { m_problems.append(problem); }
    [[nodiscard]] int gone() const { return m_gone; }

    /// The paths of all files that may go at all.
    [[nodiscard]] QSet<QString> usersFiles() const
    {
        QSet<QString> paths;
        for (auto file = m_before.begin(); file != m_before.end(); ++file) {
            if (file.key().startsWith(u"in/"_s))
                paths.insert(path(file.key()));
        }
        return paths;
    }

    /// Compares with the last call; the files at `ticked` may have gone since.
    void check(const QSet<QString> &ticked, bool mayDestroy)
    {
        const DiskTree before = m_before;
        look();
        for (auto file = before.begin(); file != before.end(); ++file) {
            const QByteArray now = m_before.value(file.key());
            if (!isUsers(file.key()) || now == *file)
                continue;
            ++m_gone;
            if (!ticked.contains(path(file.key())))
                complain(u"touched without a tick: "_s + file.key());
        }
        const QSet<QByteArray> left(m_before.cbegin(), m_before.cend());
        for (const QByteArray &content : mayDestroy ? QSet<QByteArray>() : m_contents - left)
            complain(u"lost: "_s + QString::fromUtf8(content.left(20).toHex()));
        m_contents &= left;
    }

private:
    static bool isUsers(const QString &file) { return file.startsWith(u"in/"_s) || file.startsWith(u"out/"_s); }

    void look()
    {
        m_before.clear();
        for (const QString &folder : {u"in"_s, u"out"_s, u"backup"_s, u"share"_s, u"cwd"_s, u"answers"_s}) {
            const DiskTree files = treeBelow(path(folder));
            for (auto file = files.begin(); file != files.end(); ++file)
                m_before.insert(folder + u'/' + file.key(), *file);
        }
    }

    TempTree m_tree;
    DiskTree m_before;
    QSet<QByteArray> m_contents; ///< with their times, as far as they must be somewhere
    QStringList m_problems;
    int m_gone = 0; ///< files that were removed, moved or replaced
};

} // namespace MirrixTest
