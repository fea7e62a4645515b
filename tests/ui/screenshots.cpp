// Takes pictures of the window for the documents: screenshots FOLDER [THEME [LANGUAGE]]. Makes its own sample files,
// runs a real scan on them and grabs each page. scripts/screenshots.sh calls it for all themes and scales.

#include "app/settings.h"
#include "app/translations.h"
#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"
#include "ui/mirrix.h"
#include "ui/theme.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

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

void makeSample(const MirrixTest::TempTree &tree)
{
    const QString root = tree.path(u"Anna"_qs);
    const auto copy = [&root](const QString &from, const QString &to) {
        QDir().mkpath(QFileInfo(root + to).path());
        QFile::copy(root + from, root + to);
    };
    for (int hue : {200, 20, 280})
        paintPicture(root + QStringLiteral("/Pictures/2025 Coast/IMG_%1.jpg").arg(2000 + hue), hue);
    copy(u"/Pictures/2025 Coast/IMG_2200.jpg"_qs, u"/Backup/phone/IMG_2200.jpg"_qs);
    copy(u"/Pictures/2025 Coast/IMG_2200.jpg"_qs, u"/Downloads/IMG_2200 (1).jpg"_qs);
    copy(u"/Pictures/2025 Coast/IMG_2020.jpg"_qs, u"/Backup/phone/IMG_2020.jpg"_qs);
    copy(u"/Pictures/2025 Coast/IMG_2280.jpg"_qs, u"/Backup/phone/IMG_2280.jpg"_qs);
    tree.write(u"Anna/Documents/contract.pdf"_qs, QByteArray(3'400'000, 'c'));
    copy(u"/Documents/contract.pdf"_qs, u"/Downloads/contract.pdf"_qs);
    tree.write(u"Anna/Documents/notes.txt"_qs, "only here");
}

void grab(QWidget &window, const QString &path)
{
    QTest::qWait(300); // let pictures and layouts arrive
    window.grab().save(path);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/resources/mirrix-256.png"_qs));
    const QStringList arguments = QApplication::arguments();
    const QString theme = arguments.value(2, u"light"_qs);
    const QString language = arguments.value(3, u"en"_qs);
    const QString prefix = QDir(arguments.value(1, u"."_qs)).filePath(u"%1-%2-"_qs.arg(theme, language));

    MirrixTest::TempTree tree;
    const QString sample = tree.path(u"Anna"_qs);
    makeSample(tree);
    Mirrix::Settings settings = Mirrix::defaultSettings(tree.path(u"data"_qs));
    settings.trayEnabled = false;
    settings.skipScanConfirm = true;
    settings.appTheme = theme;
    Mirrix::loadLanguage(language);
    Mirrix::applyTheme(theme);

    MirrixTest::ScriptedPrompts prompts;
    MirrixUi::Mirrix window(settings, prompts);
    for (const char *folder : {"/Pictures", "/Documents", "/Downloads", "/Backup"})
        window.addLocation(sample + QLatin1String(folder));
    window.show();
    grab(window, prefix + u"locations.png"_qs);
    window.goToStep(1);
    grab(window, prefix + u"rules.png"_qs);
    window.startScan();
    if (!QTest::qWaitFor([&window] { return !window.isScanning(); }, 30000))
        return 1;
    if (auto *duplicates = window.findChild<QTreeView *>(u"DuplicateFilesTree"_qs)) {
        const QModelIndex first = duplicates->model()->index(0, 0);
        duplicates->setCurrentIndex(duplicates->model()->index(0, 1, first));
    }
    grab(window, prefix + u"results.png"_qs);
    return 0;
}
