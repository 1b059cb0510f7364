// SPDX-License-Identifier: MIT
#include "export/ColorEncoding.h"

#include <cmath>

namespace scopix
{

namespace
{

float decoded(float c)
{
    return c <= 0.04045F ? c / 12.92F : std::pow((c + 0.055F) / 1.055F, 2.4F);
}

float encoded(float c)
{
    return c <= 0.0031308F ? c * 12.92F : 1.055F * std::pow(c, 1 / 2.4F) - 0.055F;
}

} // namespace

SbColor toLinear(const SbColor& shown)
{
    return {decoded(shown[0]), decoded(shown[1]), decoded(shown[2])};
}

SbColor toShown(const SbColor& linear)
{
    return {encoded(linear[0]), encoded(linear[1]), encoded(linear[2])};
}

} // namespace scopix
