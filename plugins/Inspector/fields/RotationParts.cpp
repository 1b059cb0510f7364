// SPDX-License-Identifier: MIT
#include "fields/RotationParts.h"

#include <xsg/values/SbMatrix.h>

#include <algorithm>
#include <cmath>

namespace inspector
{

namespace
{

const SbVec3f X(1, 0, 0);
const SbVec3f Y(0, 1, 0);
const SbVec3f Z(0, 0, 1);

// Points are rows: the rows of the matrix are where the axes go.
RotationParts eulerOf(const SbRotation& rotation)
{
    const SbVec3f x = rotation.multVec(X);
    const SbVec3f y = rotation.multVec(Y);
    const SbVec3f z = rotation.multVec(Z);
    const double sine = std::clamp(-double(x[2]), -1.0, 1.0);
    if (std::fabs(sine) > 0.999999) // x and z turn about the same axis: all of it is given to x
        return {std::atan2(sine * double(y[0]), double(y[1])), std::asin(sine), 0, 0};
    return {std::atan2(double(y[2]), double(z[2])), std::asin(sine), std::atan2(double(x[1]), double(x[0])),
            0};
}

} // namespace

RotationParts partsOf(const SbRotation& rotation, RotationForm form)
{
    if (form == RotationForm::Euler)
        return eulerOf(rotation);
    if (form == RotationForm::Quaternion) {
        const float* stored = rotation.getValue();
        return {double(stored[0]), double(stored[1]), double(stored[2]), double(stored[3])};
    }
    SbVec3f axis;
    float angle = 0;
    rotation.getValue(axis, angle);
    return {double(axis[0]), double(axis[1]), double(axis[2]), double(angle)};
}

SbRotation rotationOf(const RotationParts& parts, RotationForm form)
{
    if (form == RotationForm::Euler)
        return SbRotation(X, float(parts[0])) * SbRotation(Y, float(parts[1])) *
               SbRotation(Z, float(parts[2]));
    if (form == RotationForm::AxisAngle)
        return {SbVec3f(float(parts[0]), float(parts[1]), float(parts[2])), float(parts[3])};
    const float stored[] = {float(parts[0]), float(parts[1]), float(parts[2]), float(parts[3])};
    return SbRotation(stored);
}

} // namespace inspector
