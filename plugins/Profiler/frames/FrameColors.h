// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace profiler
{

/// Colours that can be told apart on the ground of a palette, light or dark.
struct FrameColors {
    static bool isDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }
    /// Of a phase, from 0.
    static QColor ofPhase(int phase, const QPalette& palette)
    {
        static constexpr int Hues[] = {45, 160, 275, 15, 210};
        return QColor::fromHsl(Hues[phase % 5], 130, isDark(palette) ? 120 : 140);
    }
    /// Of a curve, from 0.
    static QColor ofCurve(int curve, const QPalette& palette)
    {
        return QColor::fromHsl(330 + 137 * curve % 360 - (330 + 137 * curve % 360 >= 360 ? 360 : 0), 220,
                               isDark(palette) ? 165 : 85);
    }
    static QColor ofBudget(const QPalette& palette) { return QColor(isDark(palette) ? 0xff7068 : 0xc01818); }
    static QColor ofMark(const QPalette& palette) { return palette.color(QPalette::Highlight); }
};

} // namespace profiler
