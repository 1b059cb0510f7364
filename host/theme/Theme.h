// SPDX-License-Identifier: MIT
// The colours of the program, dark and light.
#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace scopix
{

enum class Theme { System, Dark, Light };

/// "dark", "light", anything else: the system's.
Theme themeFromName(const QString& name);
QString themeName(Theme theme);
/// Gives the whole program this look.
void applyTheme(Theme theme);

bool isDark(const QPalette& palette);
/// Behind the scene.
QColor groundColor(const QPalette& palette);

} // namespace scopix
