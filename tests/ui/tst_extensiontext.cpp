#include "ui/logic/extensiontext.h"

#include <QTest>

class TestExtensionText : public QObject
{
    Q_OBJECT

private slots:
    void parses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("extensions");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("blanks") << u" \t\n "_qs << QString();
        QTest::newRow("star") << u" * "_qs << QString();
        QTest::newRow("star dot star") << u"*.*"_qs << QString();
        QTest::newRow("star among others counts as a name") << u".JPG;png, jpg *.*"_qs << u"jpg png *.*"_qs;
        QTest::newRow("runs of separators") << u",;a ;,\n b\t"_qs << u"a b"_qs;
        QTest::newRow("one dot only") << u"..tar .tar.gz"_qs << u".tar tar.gz"_qs;
        QTest::newRow("dots without a name") << u". a ."_qs << u"a"_qs;
        QTest::newRow("double after its dot") << u"a .A A"_qs << u"a"_qs;
    }

    void parses()
    {
        QFETCH(QString, text);
        QTEST(Mirrix::extensionsFromText(text).join(u' '), "extensions");
    }
};

QTEST_GUILESS_MAIN(TestExtensionText)
#include "tst_extensiontext.moc"
