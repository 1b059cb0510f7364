// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace inspector
{

/// Red, green and blue; or hue in degrees, saturation and value. From 0 to 1 where it is no hue; brighter
/// colours have more.
using ColorParts = std::array<double, 3>;

/// The hue of what has none is that of `former`, so that it outlasts a grey.
ColorParts hsvOf(const ColorParts& rgb, const ColorParts& former);
ColorParts rgbOf(const ColorParts& hsv);
/// What is stored and shown is sRGB; linear light is what adds up.
double linearOf(double srgb);
double srgbOf(double linear);

} // namespace inspector
