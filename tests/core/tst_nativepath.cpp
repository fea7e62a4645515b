#include "core/platform/nativepath.h"
#include "tests/support/probes.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class NativePathTest : public QObject
{
    Q_OBJECT

private slots:
    void readsNamesOfBytes_data();
    void readsNamesOfBytes();
    void keepsEveryNameOfBytes();
    void keepsTexts_data();
    void keepsTexts();
    void givesEachTextItsOwnBytes();
    void makesPathsAbsolute();
    void foldsCaseAsTheFileSystemDoes();
    void describesSystemErrors();
};

void NativePathTest::readsNamesOfBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("ascii") << QByteArray("/a/b.txt") << u"/a/b.txt"_s;
    QTest::newRow("two to four bytes") << QByteArray("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80") << u"é€😀"_s;
    QTest::newRow("byte order mark first") << QByteArray("\xEF\xBB\xBFx") << u"\uFEFFx"_s;
    QTest::newRow("Latin-1") << QByteArray("caf\xE9.txt") << u"caf\xDCE9.txt"_s;
    QTest::newRow("lone continuation") << QByteArray("\x80") << u"\xDC80"_s;
    QTest::newRow("never in UTF-8") << QByteArray("\xFE\xFF") << u"\xDCFE\xDCFF"_s;
    QTest::newRow("cut short") << QByteArray("\xE2\x82") << u"\xDCE2\xDC82"_s;
    QTest::newRow("cut short before ascii") << QByteArray("\xF0\x9F\x98z") << u"\xDCF0\xDC9F\xDC98z"_s;
    QTest::newRow("overlong slash") << QByteArray("\xC0\xAF") << u"\xDCC0\xDCAF"_s;
    QTest::newRow("overlong of three") << QByteArray("\xE0\x80\xAF") << u"\xDCE0\xDC80\xDCAF"_s;
    QTest::newRow("surrogate pair as CESU-8")
        << QByteArray("\xED\xA0\xBD\xED\xB8\x80") << u"\xDCED\xDCA0\xDCBD\xDCED\xDCB8\xDC80"_s;
    QTest::newRow("beyond Unicode") << QByteArray("\xF4\x90\x80\x80") << u"\xDCF4\xDC90\xDC80\xDC80"_s;
    QTest::newRow("odd between valid") << QByteArray("\xC3\xA9\xFF\xF0\x9F\x98\x80\xC3/\xE2\x82\xAC")
                                       << u"é\xDCFF😀\xDCC3/€"_s;
    QTest::newRow("byte order mark after odd") << QByteArray("\xFF\xEF\xBB\xBF") << u"\xDCFF\uFEFF"_s;
}

void NativePathTest::readsNamesOfBytes()
{
    if (!namesAreBytes)
        QSKIP("names are not bytes here");
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(pathFromBytes(bytes), text);
    QCOMPARE(pathBytes(text), bytes);
}

/// A round trip without loss for all names also means that no two of them share a text.
void NativePathTest::keepsEveryNameOfBytes()
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

void NativePathTest::keepsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNameOfBytes"); ///< whether a name made of bytes can read so

    QTest::newRow("empty") << QString() << true;
    QTest::newRow("accent composed") << u"C:/\u00E9"_s << true;
    QTest::newRow("accent apart") << u"C:/e\u0301"_s << true;
    QTest::newRow("Chinese") << u"/重复/文件"_s << true;
    QTest::newRow("beyond the basic plane") << u"/😀/\U0010FFFF"_s << true;
    QTest::newRow("no character") << u"\uFFFE\uFFFF"_s << true;
    QTest::newRow("replacement character") << u"\uFFFD"_s << true;
    QTest::newRow("byte order mark") << u"\uFEFFa\uFEFF"_s << true;
    QTest::newRow("lone low surrogate") << u"a\xDC80z"_s << true;
    QTest::newRow("byte order mark after lone surrogate") << u"\xDCFF\uFEFF"_s << true;
    QTest::newRow("lone high surrogate") << u"a\xD800z"_s << false;
    QTest::newRow("high surrogate last") << u"a\xDBFF"_s << false;
    QTest::newRow("pair the wrong way round") << u"\xDE00\xD83D"_s << false;
    QTest::newRow("high surrogate before a pair") << u"\xD83D\xD83D\xDE00"_s << false;
}

void NativePathTest::keepsTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isNameOfBytes);
    if (namesAreBytes && !isNameOfBytes)
        QSKIP("no name reads so here");
    QCOMPARE(pathFromBytes(pathBytes(text)), text);
}

/// The cache finds a file by the bytes of its path: names that one conversion makes equal would share digests.
void NativePathTest::givesEachTextItsOwnBytes()
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

void NativePathTest::makesPathsAbsolute()
{
    QCOMPARE(absolutePath(u"a/b"_s), QDir::currentPath() + u"/a/b"_s);
    const TempTree tree;
    QCOMPARE(absolutePath(tree.path(u"x"_s)), tree.path(u"x"_s));
}

void NativePathTest::foldsCaseAsTheFileSystemDoes()
{
    const TempTree tree;
    const QString lower = tree.write(u"case.txt"_s, "x");
    const QString upper = tree.path(u"CASE.TXT"_s);
    QCOMPARE(pathCaseKey(lower) == pathCaseKey(upper), QFileInfo::exists(upper));
    QCOMPARE(pathCaseKey(lower), pathCaseKey(lower));
    QVERIFY(pathCaseKey(lower) != pathCaseKey(tree.path(u"case.tx"_s)));
}

void NativePathTest::describesSystemErrors()
{
    constexpr int noSuchFile = 2; // the same number in errno.h and winerror.h
    const QString text = systemErrorText(noSuchFile);
    QVERIFY(!text.isEmpty());
    QCOMPARE(text, text.trimmed());
    QVERIFY(!text.endsWith(u'.'));
    QVERIFY(text != systemErrorText(5));
    QVERIFY(!systemErrorText(99999).isEmpty());
}

QTEST_GUILESS_MAIN(NativePathTest)
#include "tst_nativepath.moc"
