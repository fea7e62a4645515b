#include "ui/window/theme.h"

#include "tests/ui/gallery.h"
#include "tests/ui/uitest.h"
#include "ui/mirrix.h"

#include <cmath>

namespace {

using Colour = QRgb ThemeColours::*;

/// Relative luminance as the accessibility guidelines of the web define it.
double luminance(QRgb colour)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// `share` of one colour over another.
QRgb over(QRgb one, QRgb other, double share)
{
    const auto part = [share](int top, int bottom) { return int(std::lround(top * share + bottom * (1 - share))); };
    return qRgb(part(qRed(one), qRed(other)), part(qGreen(one), qGreen(other)), part(qBlue(one), qBlue(other)));
}

/// The names of widgets for which a style sheet has styles.
QSet<QString> styledIn(const QString &sheet)
{
    QSet<QString> names;
    QFile file(u":/resources/"_s + sheet);
    if (!file.open(QIODevice::ReadOnly))
        return names;
    static const QRegularExpression pattern(u"#([A-Z]\\w*[a-z]\\w*)"_s);
    auto matches = pattern.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext())
        names.insert(matches.next().captured(1));
    return names;
}

QRgb cornerOf(QWidget &window)
{
    return window.grab().toImage().pixel(1, 1);
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { applyTheme(u"light"_s); }

    void canBeRead_data()
    {
        using Colours = QList<Colour>;
        using C = ThemeColours;
        QTest::addColumn<Colours>("tops");
        QTest::addColumn<Colours>("bottoms");
        QTest::addColumn<double>("least");
        const auto row = [](const char *name, const Colours &tops, const Colours &bottoms, double least = 4.5) {
            QTest::newRow(name) << tops << bottoms << least;
        };
        row("text", {&C::text, &C::dimmed},
            {&C::window, &C::base, &C::alternate, &C::raised, &C::sidebar, &C::accentSoft, &C::tooltip});
        row("text of a step's number", {&C::text}, {&C::border});
        row("link", {&C::link}, {&C::window, &C::base, &C::raised, &C::accentSoft});
        row("on accent", {&C::accentText}, {&C::accent, &C::accentHover});
        row("danger", {&C::danger}, {&C::window, &C::raised, &C::accentSoft});
        row("warning", {&C::warning}, {&C::base, &C::alternate, &C::warningSoft});
        row("outlines", {&C::control, &C::accent}, {&C::window, &C::base}, 3);
    }

    void canBeRead()
    {
        QFETCH(QList<Colour>, tops);
        QFETCH(QList<Colour>, bottoms);
        QFETCH(double, least);
        for (const ThemeColours &colours : {lightColours, darkColours}) {
            for (const Colour top : tops) {
                for (const Colour bottom : bottoms)
                    QVERIFY2(contrast(colours.*top, colours.*bottom) >= least,
                             qPrintable(u"%1 on %2"_s.arg(colours.*top, 8, 16).arg(colours.*bottom, 8, 16)));
            }
        }
    }

    void canBeReadInTickedRows()
    {
        for (const ThemeColours &colours : {lightColours, darkColours}) {
            const QRgb row = over(colours.accent, colours.base, 0.13);
            for (const QRgb text : {colours.text, colours.dimmed, colours.warning})
                QVERIFY2(contrast(text, row) >= 4.5, qUtf8Printable(QString::number(contrast(text, row))));
        }
    }

    /// A style for a name that no widget bears is a mistake in one of the two.
    void stylesWhatThereIs()
    {
        Gallery gallery;
        const auto dialogs = gallery.dialogs(); // children of the window
        for (const QString &sheet : {u"theme.qss"_s, u"theme-dark.qss"_s}) {
            const QSet<QString> styled = styledIn(sheet);
            QVERIFY(styled.size() > 10);
            for (const QString &name : styled)
                QVERIFY2(gallery.window().findChild<QWidget *>(name), qPrintable(name));
        }
    }

    void reachesOpenWindows()
    {
        Gallery gallery;
        applyTheme(u"light"_s);
        const auto dialogs = gallery.dialogs();
        const auto isEverywhere = [&](QRgb colour) {
            QCOMPARE(cornerOf(gallery.window()), colour);
            for (const auto &[name, dialog] : dialogs) {
                dialog->show();
                QVERIFY2(cornerOf(*dialog) == colour, qPrintable(name));
            }
        };
        gallery.prompts().onRun = [](QDialog &options) {
            options.show();
            part(options, u"DarkThemeRadio"_s)->click();
            QCOMPARE(cornerOf(options), darkColours.window);
        };
        triggerAction(gallery.window(), u"选项…"_s);
        isEverywhere(darkColours.window);
        applyTheme(u"light"_s);
        isEverywhere(lightColours.window);
    }
};

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
