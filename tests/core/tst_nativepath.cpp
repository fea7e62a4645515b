#include "core/platform/nativepath.h"
#include "tests/support/coretest.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

class NativePathTest : public QObject
{
    Q_OBJECT

private slots:
    void readsNamesOfBytes_data()
    {
        const auto row = columns<QByteArray, QString>({"bytes", "text"});
        row("empty", "", {});
        row("two to four bytes", "/\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", u"/é€😀"_s);
        row("byte order mark first", "\xEF\xBB\xBFx", u"\uFEFFx"_s);
        row("Latin-1", "caf\xE9.txt", u"caf\xDCE9.txt"_s);
        row("lone continuation", "\x80", u"\xDC80"_s);
        row("never in UTF-8", "\xFE\xFF", u"\xDCFE\xDCFF"_s);
        row("cut short before ascii", "\xF0\x9F\x98z", u"\xDCF0\xDC9F\xDC98z"_s);
        row("overlong slash", "\xC0\xAF", u"\xDCC0\xDCAF"_s);
        row("surrogate pair as CESU-8", "\xED\xA0\xBD\xED\xB8\x80", u"\xDCED\xDCA0\xDCBD\xDCED\xDCB8\xDC80"_s);
        row("beyond Unicode", "\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"_s);
        row("odd between valid", "\xC3\xA9\xFF\xF0\x9F\x98\x80\xC3/\xE2\x82\xAC", u"é\xDCFF😀\xDCC3/€"_s);
        row("byte order mark after odd", "\xFF\xEF\xBB\xBF", u"\xDCFF\uFEFF"_s);
    }

    void readsNamesOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are not bytes here");
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(pathFromBytes(bytes), text);
        QCOMPARE(pathBytes(text), bytes);
    }

    /// A round trip without loss for all names also means that no two of them share a text.
    void keepsEveryNameOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are not bytes here");
        // Every kind of byte that UTF-8 knows, and those that make overlong forms, surrogates and byte order marks.
        const QByteArray alphabet("a\x80\x90\xA0\xBB\xBF\xC0\xC3\xE0\xED\xEF\xF0\xF4\xFF");
        QList<QByteArray> names{QByteArray()};
        for (qsizetype i = 0; i < names.size() && names[i].size() < 4; ++i) {
            const QByteArray start = names[i];
            for (const char byte : alphabet)
                names.append(start + byte);
        }
        for (const QByteArray &name : std::as_const(names)) {
            if (pathBytes(pathFromBytes(name)) != name)
                QFAIL(name.toHex(' ').prepend("lost: ").constData());
        }
    }

    void keepsTexts()
    {
        const QStringList texts = {QString(),         u"C:/\u00E9"_s, u"C:/e\u0301"_s, u"/😀/\U0010FFFF"_s,
                                   u"\uFFFE\uFFFF"_s, u"\uFFFD"_s,    u"a\xDC80z"_s,   u"\uFEFFa\uFEFF"_s,
                                   u"\xDCFF\uFEFF"_s, u"/重复/文件"_s};
        const QStringList notOfBytes = {u"a\xD800z"_s, u"a\xDBFF"_s, u"\xDE00\xD83D"_s, u"\xD83D\xD83D\xDE00"_s};
        for (const QString &text : namesAreBytes ? texts : texts + notOfBytes)
            QCOMPARE(pathFromBytes(pathBytes(text)), text);
    }

    /// The cache finds a file by the bytes of its path: names that one conversion makes equal would share digests.
    void givesEachTextItsOwnBytes()
    {
        QStringList texts = {u"?"_s, u"\uFFFD"_s,       u"\u00E9"_s, u"e\u0301"_s,
                             u"😀"_s, u"\xDE00\xD83D"_s, u"\uFEFF"_s, QString()};
        for (const char16_t unit : {0xD800, 0xD83D, 0xDBFF, 0xDC00, 0xDC7F, 0xDC80, 0xDC81, 0xDCFF, 0xDD00, 0xDFFF})
            texts.append(QString(QChar(unit)));
        QHash<QByteArray, QString> seen;
        for (const QString &text : std::as_const(texts)) {
            const QByteArray bytes = pathBytes(text);
            QVERIFY2(!seen.contains(bytes), bytes.toHex().constData());
            seen.insert(bytes, text);
        }
    }

    void makesPathsAbsolute()
    {
        QCOMPARE(absolutePath(u"a/b"_s), QDir::currentPath() + u"/a/b"_s);
        QCOMPARE(absolutePath(QDir::rootPath() + u"x"_s), QDir::rootPath() + u"x"_s);
    }

    void foldsCaseAsTheFileSystemDoes()
    {
        const TempTree tree;
        const QString lower = tree.write(u"case.txt"_s, "x");
        const QString upper = tree.path(u"CASE.TXT"_s);
        QCOMPARE(pathCaseKey(lower) == pathCaseKey(upper), QFileInfo::exists(upper));
        QVERIFY(pathCaseKey(lower) != pathCaseKey(tree.path(u"case.tx"_s)));
    }

    void describesSystemErrors()
    {
        constexpr int noSuchFile = 2; // the same number in errno.h and winerror.h
        const QString text = systemErrorText(noSuchFile);
        QVERIFY(!text.isEmpty() && text == text.trimmed() && !text.endsWith(u'.'));
        QVERIFY(text != systemErrorText(5));
        QVERIFY(!systemErrorText(99999).isEmpty());
    }
};

QTEST_GUILESS_MAIN(NativePathTest)
#include "tst_nativepath.moc"
