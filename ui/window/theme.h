#pragma once

#include "resources/colours.h"

#include <QPalette>
#include <QString>

namespace Mirrix {

/// Whether a value of the setting "appTheme" means the dark theme.
[[nodiscard]] bool isDarkTheme(const QString &theme);

/// The colours of a theme by their roles.
[[nodiscard]] QPalette themePalette(const ThemeColours &colours);

/// Makes Fusion the application's style unless it is already.
void ensureFusionStyle();

/// Dresses the whole application, windows already open included: style, palette, style sheet and window captions.
/// Interface thread only.
void applyTheme(const QString &theme);

/// Whether the theme last applied is the dark one.
[[nodiscard]] bool isDarkThemeApplied();

} // namespace Mirrix
