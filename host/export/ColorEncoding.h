// SPDX-License-Identifier: MIT
// Between colours as they are shown and the light that they stand for.
#pragma once

#include <xsg/values/SbVec.h>

namespace scopix
{

/// From numbers of sRGB, from 0 to 1, to light.
SbColor toLinear(const SbColor& shown);
/// The other way.
SbColor toShown(const SbColor& linear);

} // namespace scopix
