#include "ui/dialogs/imagecomparedialog.h"

#include "tests/support/temptree.h"
#include "ui/dialogs/imagepane.h"
#include "ui/logic/imagefacts.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

class TestImageCompare : public QObject
{
    Q_OBJECT

private slots:
    void shows_data();
    void shows();
    void facts();
};

namespace {

QByteArray encoded(QSize size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

} // namespace

void TestImageCompare::shows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("shown"); ///< invalid: the name is shown
    const QByteArray photo = encoded({1600, 800}, "JPG");
    QTest::newRow("wide") << QStringLiteral("a.jpg") << photo << QSize(400, 200);
    QTest::newRow("other suffix") << QStringLiteral("a.png") << photo << QSize(400, 200);
    QTest::newRow("small") << QStringLiteral("a.png") << encoded({10, 20}, "PNG") << QSize(160, 320);
    QTest::newRow("text") << QStringLiteral("a.png") << QByteArray("<b>no picture</b>") << QSize();
    QTest::newRow("cut") << QStringLiteral("a.png") << encoded({300, 300}, "PNG").left(40) << QSize();
    QTest::newRow("missing") << QStringLiteral("a.png") << QByteArray() << QSize();
}

void TestImageCompare::shows()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    QFETCH(const QSize, shown);
    MirrixTest::TempTree tree;
    const QString other = tree.write(QStringLiteral("other.bmp"), encoded({40, 40}, "BMP"));
    const QString path = content.isEmpty() ? tree.path(name) : tree.write(name, content);
    Mirrix::ImageCompareDialog dialog(path, other);
    QCOMPARE(dialog.size(), QSize(960, 620));
    dialog.show();
    const auto *paneA = dialog.findChild<QWidget *>(QStringLiteral("ImagePaneA"));
    const auto *paneB = dialog.findChild<QWidget *>(QStringLiteral("ImagePaneB"));
    QVERIFY(paneA->geometry().right() < paneB->geometry().left());
    const auto *canvas = paneA->findChild<QLabel *>(QStringLiteral("PreviewCanvas"));
    const auto *sheet = paneA->findChild<QPlainTextEdit *>();
    const auto *otherCanvas = paneB->findChild<QLabel *>(QStringLiteral("PreviewCanvas"));
    QTRY_COMPARE(otherCanvas->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(320, 320));
    QTRY_VERIFY(!sheet->toPlainText().isEmpty());
    if (shown.isValid())
        QCOMPARE(canvas->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(shown));
    else
        QCOMPARE(canvas->text(), name);
    const QString expected =
        QString::fromUtf8("路径: %1\n大小: %2 字节\n修改: ").arg(QDir::toNativeSeparators(path)).arg(content.size());
    QVERIFY2(sheet->toPlainText().startsWith(expected), qPrintable(sheet->toPlainText()));
    QVERIFY(sheet->isReadOnly());
}

void TestImageCompare::facts()
{
    MirrixCore::FileEntry file;
    file.path = QStringLiteral("p %1.jpg");
    file.size = 5000000000;
    file.modifiedMs = QDateTime(QDate(2023, 2, 3), QTime(4, 5, 6)).toMSecsSinceEpoch(); // local
    const QString first = QString::fromUtf8("路径: p %1.jpg\n大小: 5000000000 字节\n修改: 2023-02-03 04:05:06");
    QCOMPARE(Mirrix::factSheet(file), first);
    file.width = 40;
    file.height = 30;
    file.cameraMake = QStringLiteral("Maker");
    file.cameraModel = QStringLiteral("M1");
    file.dateTaken = QStringLiteral("2023:01:01 00:00:00");
    file.hasGps = true;
    file.latitude = -33.1;
    file.longitude = 151.25;
    QCOMPARE(Mirrix::factSheet(file), first + QString::fromUtf8("\n尺寸: 40 × 30\n相机: Maker M1\n"
                                                                "拍摄: 2023:01:01 00:00:00\nGPS: -33.1, 151.25"));
}

QTEST_MAIN(TestImageCompare)
#include "tst_imagecompare.moc"
