// SPDX-License-Identifier: MIT
// The colours of the host's windows, dark and light.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace scopix
{

enum class Theme { System, Dark, Light };

/// "dark", "light", anything else: the system's.
Theme themeFromName(const QString& name);
QString themeName(Theme theme);
/// The system's is the one of the two that is as dark as the application's palette.
QPalette themePalette(Theme theme);
/// Gives this window the theme's style, colours and font, and with it every dialog, menu and tool tip whose
/// parents lead to it, also those to come. The application and its other windows keep theirs. May be called
/// again at any time, to change the theme.
void applyTheme(QWidget& window, Theme theme);

/// The size of the window's texts, in points; 0 is the system's. Kept when the theme is changed.
void setFontSize(QWidget& window, int points);

bool isDark(const QPalette& palette);
/// Behind the scene.
QColor groundColor(const QPalette& palette);

} // namespace scopix
