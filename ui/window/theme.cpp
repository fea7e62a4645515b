#include "ui/window/theme.h"

#include "ui/window/caption.h"

#include <QApplication>
#include <QFile>
#include <QStyle>
#include <QWidget>

namespace Mirrix {

namespace {

bool darkApplied = false;

QString styleSheet(bool dark)
{
    QFile file(dark ? QStringLiteral(":/resources/theme-dark.qss") : QStringLiteral(":/resources/theme.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

bool isDarkTheme(const QString &theme)
{
    return theme == QLatin1String("dark");
}

QPalette themePalette(const ThemeColours &colours)
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) { palette.setColor(role, QColor(colour)); };
    set(QPalette::Window, colours.window);
    set(QPalette::WindowText, colours.text);
    set(QPalette::Base, colours.base);
    set(QPalette::AlternateBase, colours.alternate);
    set(QPalette::Text, colours.text);
    set(QPalette::PlaceholderText, colours.dimmed);
    set(QPalette::Button, colours.raised);
    set(QPalette::ButtonText, colours.text);
    set(QPalette::BrightText, colours.danger);
    set(QPalette::Highlight, colours.accent);
    set(QPalette::HighlightedText, colours.accentText);
    set(QPalette::Link, colours.link);
    set(QPalette::LinkVisited, colours.link);
    set(QPalette::ToolTipBase, colours.tooltip);
    set(QPalette::ToolTipText, colours.text);
    set(QPalette::Light, colours.raised);
    set(QPalette::Midlight, colours.alternate);
    set(QPalette::Mid, colours.border);
    set(QPalette::Dark, colours.border);
    set(QPalette::Shadow, colours.sidebar);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText,
                            QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, QColor(colours.disabled));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.border));
    return palette;
}

void ensureFusionStyle()
{
    const QString fusion = QStringLiteral("Fusion");
    // With a style sheet set, the application's style is a proxy whose name is that of the style below it.
    if (QApplication::style()->name().compare(fusion, Qt::CaseInsensitive) != 0)
        QApplication::setStyle(fusion);
}

void applyTheme(const QString &theme)
{
    ensureFusionStyle();
    darkApplied = isDarkTheme(theme);
    QApplication::setPalette(themePalette(darkApplied ? darkColours : lightColours));
    qApp->setStyleSheet(styleSheet(darkApplied));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible())
            colourCaption(*window, darkApplied);
    }
}

bool isDarkThemeApplied()
{
    return darkApplied;
}

} // namespace Mirrix
