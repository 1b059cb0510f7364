// SPDX-License-Identifier: MIT
#include "CurveColors.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{

// Less, and a curve is hard to see on the white canvas, and its name in the legend hard to read.
constexpr double LeastContrast = 3.0;
constexpr double WantedDistance = 200.0;
constexpr int MostTries = 200;

// As the web accessibility guidelines count it.
double contrastToWhite(const QColor& color)
{
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    const double luminance =
        0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    return 1.05 / (0.05 + luminance);
}

// How different two colours look, roughly: the eye sees green best and blue least.
double distance(const QColor& a, const QColor& b)
{
    const double red = a.red() - b.red();
    const double green = a.green() - b.green();
    const double blue = a.blue() - b.blue();
    return std::sqrt(0.9 * red * red + 1.4 * green * green + 0.7 * blue * blue);
}

QColor randomColor()
{
    static constexpr int Levels[] = {0, 85, 127, 170, 255};
    const auto level = [] { return Levels[std::rand() % 5]; };
    const int red = level();
    const int green = level();
    return {red, green, level()};
}

} // namespace

QColor randomCurveColor(const std::vector<QColor>& used)
{
    // With very many curves some have to share a colour: each try is content with less.
    QColor color = randomColor();
    for (int tries = 0; tries < MostTries; ++tries) {
        const double wanted = WantedDistance * (MostTries - 1 - tries) / MostTries;
        const bool isNear = std::any_of(
            used.begin(), used.end(), [&](const QColor& other) { return distance(color, other) <= wanted; });
        if (contrastToWhite(color) >= LeastContrast && !isNear)
            break;
        color = randomColor();
    }
    return color;
}
