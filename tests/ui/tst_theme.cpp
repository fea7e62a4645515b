#include "ui/theme.h"

#include "tests/ui/gallery.h"
#include "ui/mirrix.h"

#include <QAction>
#include <QFile>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

using Mirrix::darkColours;
using Mirrix::lightColours;
using Mirrix::ThemeColours;

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

QString sheet(const QString &name)
{
    QFile file(u":/resources/"_qs + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList allOf(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    found.removeDuplicates();
    return found;
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
    void cleanup() { Mirrix::applyTheme(u"light"_qs); }

    void canBeRead_data()
    {
        QTest::addColumn<QList<Colour>>("tops");
        QTest::addColumn<QList<Colour>>("bottoms");
        QTest::addColumn<double>("least");
        using C = ThemeColours;
        constexpr double text = 4.5;
        constexpr double shape = 3;
        QTest::newRow("text") << QList<Colour>{&C::text, &C::dimmed}
                              << QList<Colour>{&C::window,  &C::base,       &C::alternate, &C::raised,
                                               &C::sidebar, &C::accentSoft, &C::tooltip}
                              << text;
        QTest::newRow("text of a step's number") << QList<Colour>{&C::text} << QList<Colour>{&C::border} << text;
        QTest::newRow("link") << QList<Colour>{&C::link}
                              << QList<Colour>{&C::window, &C::base, &C::raised, &C::accentSoft} << text;
        QTest::newRow("on accent") << QList<Colour>{&C::accentText} << QList<Colour>{&C::accent, &C::accentHover}
                                   << text;
        QTest::newRow("danger") << QList<Colour>{&C::danger} << QList<Colour>{&C::window, &C::raised, &C::accentSoft}
                                << text;
        QTest::newRow("warning") << QList<Colour>{&C::warning}
                                 << QList<Colour>{&C::base, &C::alternate, &C::warningSoft} << text;
        QTest::newRow("outlines") << QList<Colour>{&C::control, &C::accent} << QList<Colour>{&C::window, &C::base}
                                  << shape;
    }

    void canBeRead()
    {
        QFETCH(QList<Colour>, tops);
        QFETCH(QList<Colour>, bottoms);
        QFETCH(double, least);
        for (const ThemeColours &colours : {lightColours, darkColours}) {
            for (const Colour top : tops) {
                for (const Colour bottom : bottoms) {
                    const double found = contrast(colours.*top, colours.*bottom);
                    QVERIFY2(found >= least,
                             qUtf8Printable(
                                 u"%1 on %2: %3"_qs.arg(colours.*top, 8, 16).arg(colours.*bottom, 8, 16).arg(found)));
                }
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
        MirrixTest::Gallery gallery;
        const auto dialogs = gallery.dialogs(); // children of the window
        for (const QString &name : {u"theme.qss"_qs, u"theme-dark.qss"_qs}) {
            const QStringList styled = allOf(sheet(name), u"#([A-Z]\\w*[a-z]\\w*)"_qs);
            QVERIFY(styled.size() > 10);
            for (const QString &object : styled)
                QVERIFY2(gallery.window().findChild<QWidget *>(object), qUtf8Printable(object));
        }
    }

    void reachesOpenWindows()
    {
        MirrixTest::Gallery gallery;
        auto dialogs = gallery.dialogs();
        for (const QString &theme : {u"dark"_qs, u"light"_qs}) {
            Mirrix::applyTheme(theme);
            const QRgb expected = (theme == u"dark" ? darkColours : lightColours).window;
            QCOMPARE(cornerOf(gallery.window()), expected);
            for (const auto &[name, dialog] : dialogs) {
                dialog->show();
                QVERIFY2(cornerOf(*dialog) == expected, qUtf8Printable(name));
            }
        }
    }

    void isChosenInTheOptions()
    {
        MirrixTest::Gallery gallery;
        Mirrix::applyTheme(u"light"_qs);
        gallery.prompts().onRun = [](QDialog &options) {
            options.show();
            options.findChild<QRadioButton *>(u"DarkThemeRadio"_qs)->click();
            QCOMPARE(cornerOf(options), darkColours.window);
        };
        const auto actions = gallery.window().findChildren<QAction *>();
        const auto found = std::find_if(actions.begin(), actions.end(),
                                        [](const QAction *action) { return action->text() == u"选项…"; });
        QVERIFY(found != actions.end());
        (*found)->trigger();
        QCOMPARE(cornerOf(gallery.window()), darkColours.window);
    }
};

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
