#include "CurveColors.h"

#include <cmath>
#include <cstdlib>

namespace
{

// Less, and a curve is hard to see on the white canvas, and its name in the legend hard to read.
constexpr double LeastContrast = 3.0;
constexpr int MostTries = 100;

// As the web accessibility guidelines count it.
double contrastToWhite(const QColor& color)
{
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    const double luminance =
        0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    return 1.05 / (0.05 + luminance);
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

QColor randomCurveColor(const std::function<bool(const QColor&)>& isUsed)
{
    // With very many curves some have to share a colour.
    QColor color = randomColor();
    for (int tries = 0; tries < MostTries && (contrastToWhite(color) < LeastContrast || isUsed(color));
         ++tries)
        color = randomColor();
    return color;
}
