#include "ui/dialogs/imagecomparedialog.h"

#include "tests/ui/uitest.h"

namespace {

QByteArray encoded(QSize size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

} // namespace

class TestImageCompare : public QObject
{
    Q_OBJECT

private slots:
    void shows_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QSize>("shown"); ///< invalid: the name is shown
        QTest::newRow("wide, other suffix") << encoded({1600, 800}, "JPG") << QSize(400, 200);
        QTest::newRow("small") << encoded({10, 20}, "PNG") << QSize(160, 320);
        QTest::newRow("text") << QByteArray("<b>no picture</b>") << QSize();
        QTest::newRow("cut") << encoded({300, 300}, "PNG").left(40) << QSize();
        QTest::newRow("missing") << QByteArray() << QSize();
    }

    void shows()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QSize, shown);
        TempTree tree;
        const QString path = content.isEmpty() ? tree.path(u"a.png"_s) : tree.write(u"a.png"_s, content);
        ImageCompareDialog dialog(path, tree.write(u"other.bmp"_s, encoded({40, 40}, "BMP")));
        dialog.show();
        const auto *paneA = part<QWidget>(dialog, u"ImagePaneA"_s);
        const auto *paneB = part<QWidget>(dialog, u"ImagePaneB"_s);
        QVERIFY(paneA->geometry().right() < paneB->geometry().left());
        const auto *canvas = part<QLabel>(*paneA, u"PreviewCanvas"_s);
        const auto *otherCanvas = part<QLabel>(*paneB, u"PreviewCanvas"_s);
        const auto *sheet = part<QPlainTextEdit>(*paneA);
        QTRY_COMPARE(otherCanvas->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(320, 320));
        QTRY_VERIFY(!sheet->toPlainText().isEmpty());
        if (shown.isValid())
            QCOMPARE(canvas->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(shown));
        else
            QCOMPARE(canvas->text(), u"a.png"_s);
        const QString facts =
            u"路径: %1\n大小: %2 字节\n修改: "_s.arg(QDir::toNativeSeparators(path)).arg(content.size());
        QVERIFY2(sheet->toPlainText().startsWith(facts), qPrintable(sheet->toPlainText()));
    }
};

QTEST_MAIN(TestImageCompare)
#include "tst_imagecompare.moc"
