// SPDX-License-Identifier: MIT
#pragma once

#include "fields/PanelSettings.h"

#include <xsg/values/SbRotation.h>

#include <array>

namespace inspector
{

/// A rotation as people type it: axis and angle (x, y, z, radians), Euler angles (about x, then y, then z of
/// the world, in radians; the fourth unused), or the stored numbers.
using RotationParts = std::array<double, 4>;

RotationParts partsOf(const SbRotation& rotation, RotationForm form);
SbRotation rotationOf(const RotationParts& parts, RotationForm form);

} // namespace inspector
