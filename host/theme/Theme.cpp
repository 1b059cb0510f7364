// SPDX-License-Identifier: MIT
#include "theme/Theme.h"

#include "theme/WindowTheme.h"

#include <QApplication>

namespace scopix
{

namespace
{

struct PaletteColors {
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb quiet; // asides and hints, which are to be read all the same
    QRgb disabled;
    QRgb accent;
    QRgb link;
    QRgb light;
    QRgb mid;
    QRgb dark;
};

// Each text stands out of its ground by 4.5 : 1 and more (WCAG 2), but for what is disabled.
constexpr PaletteColors DarkColors{0xff2b2e33, 0xff212327, 0xff363a40, 0xffdfe3e8, 0xffa0a7b0, 0xff878e97,
                                   0xff3674bd, 0xff6aa8ee, 0xff464b52, 0xff3a3e45, 0xff1a1c1f};
constexpr PaletteColors LightColors{0xfff1f3f5, 0xffffffff, 0xfff8f9fa, 0xff1d2126, 0xff626a73, 0xff7b838c,
                                    0xff2f74c0, 0xff2668b0, 0xffffffff, 0xffc9ced4, 0xffa6adb5};

QPalette paletteFrom(const PaletteColors& t)
{
    const QColor text(t.text);
    QPalette p;
    p.setColor(QPalette::Window, QColor(t.window));
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, QColor(t.base));
    p.setColor(QPalette::AlternateBase, QColor(t.window));
    p.setColor(QPalette::ToolTipBase, QColor(t.button));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::PlaceholderText, QColor(t.quiet));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, QColor(t.button));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::Light, QColor(t.light));
    p.setColor(QPalette::Midlight, QColor(t.light));
    p.setColor(QPalette::Mid, QColor(t.mid));
    p.setColor(QPalette::Dark, QColor(t.dark));
    p.setColor(QPalette::Shadow, QColor(t.dark).darker(150));
    p.setColor(QPalette::Highlight, QColor(t.accent));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(t.link));
    p.setColor(QPalette::LinkVisited, QColor(t.link));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor(t.disabled));
    p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(t.mid));
    return p;
}

WindowTheme& keeperOf(QWidget& window)
{
    auto* keeper = window.findChild<WindowTheme*>(QString(), Qt::FindDirectChildrenOnly);
    return keeper ? *keeper : *new WindowTheme(window);
}

} // namespace

Theme themeFromName(const QString& name)
{
    if (name == QLatin1String("dark"))
        return Theme::Dark;
    return name == QLatin1String("light") ? Theme::Light : Theme::System;
}

QString themeName(Theme theme)
{
    switch (theme) {
    case Theme::Dark:
        return QStringLiteral("dark");
    case Theme::Light:
        return QStringLiteral("light");
    default:
        return QStringLiteral("system");
    }
}

QPalette themePalette(Theme theme)
{
    const bool dark = theme == Theme::Dark || (theme == Theme::System && isDark(QApplication::palette()));
    return paletteFrom(dark ? DarkColors : LightColors);
}

void applyTheme(QWidget& window, Theme theme)
{
    keeperOf(window).apply(theme);
}

void setFontSize(QWidget& window, int points)
{
    keeperOf(window).setFontSize(points);
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor groundColor(const QPalette& palette)
{
    return isDark(palette) ? QColor(0x2e, 0x33, 0x3a) : QColor(0xdd, 0xe3, 0xea);
}

} // namespace scopix
