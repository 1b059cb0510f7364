// SPDX-License-Identifier: MIT
#include "fields/ColorParts.h"

#include <algorithm>
#include <cmath>

namespace inspector
{

namespace
{

constexpr double Whole = 360;

} // namespace

ColorParts hsvOf(const ColorParts& rgb, const ColorParts& former)
{
    const auto [low, high] = std::minmax_element(rgb.begin(), rgb.end());
    const double range = *high - *low;
    if (!(range > 0) || !std::isfinite(range))
        return {former[0], *high > 0 ? 0 : former[1], *high};
    const std::size_t first = std::size_t(high - rgb.begin());
    const double next = rgb[(first + 1) % 3] - rgb[(first + 2) % 3];
    const double hue = Whole / 3 * double(first) + Whole / 6 * next / range;
    return {hue < 0 ? hue + Whole : hue, *high > 0 ? range / *high : 0, *high};
}

ColorParts rgbOf(const ColorParts& hsv)
{
    const double turn = std::fmod(hsv[0], Whole);
    const double hue = (turn < 0 ? turn + Whole : turn) / (Whole / 6);
    ColorParts rgb{};
    for (std::size_t i = 0; i < 3; ++i) {
        // How far the hue is from the channel's own, which is 0, 2 and 4: full within 1, nothing from 2 on.
        double distance = std::fabs(hue - 2.0 * double(i));
        distance = std::min(distance, 6 - distance);
        const double share = std::clamp(2 - distance, 0.0, 1.0);
        rgb[i] = hsv[2] * (1 - hsv[1] * (1 - share));
    }
    return rgb;
}

double linearOf(double srgb)
{
    return srgb <= 0.04045 ? srgb / 12.92 : std::pow((srgb + 0.055) / 1.055, 2.4);
}

double srgbOf(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

} // namespace inspector
