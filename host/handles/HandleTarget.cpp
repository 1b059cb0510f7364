// SPDX-License-Identifier: MIT
#include "handles/HandleTarget.h"

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

// Part of the largest extent below which space counts as squeezed flat.
constexpr float Flat = 1e-4F;

SbVec3f row(const SbMatrix& m, int i)
{
    return {m[i][0], m[i][1], m[i][2]};
}

// The directions only, brought to about 1 by this divisor.
SbMatrix directionsOf(const SbMatrix& m, float size)
{
    SbMatrix result;
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j)
            result[i][j] = m[i][j] / size;
    }
    return result;
}

float sizeOf(const SbMatrix& m)
{
    return std::max({row(m, 0).length(), row(m, 1).length(), row(m, 2).length()});
}

float determinant(const SbMatrix& m)
{
    return cross(row(m, 0), row(m, 1)).dot(row(m, 2));
}

SbMatrix scaled(SbMatrix m, float by)
{
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j)
            m[i][j] *= by;
    }
    return m;
}

// The inverse, or where space is squeezed flat, damped least squares: what cannot be reached is left out.
SbMatrix inverseOfDirections(const SbMatrix& toWorld)
{
    const float size = sizeOf(toWorld);
    if (!(size > 0) || !std::isfinite(size))
        return scaled(SbMatrix(), 0);
    const SbMatrix m = directionsOf(toWorld, size);
    if (std::abs(determinant(m)) > Flat * Flat) {
        if (const auto inverse = m.inverse())
            return scaled(*inverse, 1 / size);
    }
    const SbMatrix back = m.transposed();
    SbMatrix normal = m * back;
    for (int i = 0; i < 3; ++i)
        normal[i][i] += Flat * Flat;
    const auto inverse = normal.inverse();
    return inverse ? scaled(back * *inverse, 1 / size) : scaled(SbMatrix(), 0);
}

} // namespace

HandleTarget::HandleTarget(SoNode* node, const SbMatrix& toWorld)
    : m_node(node)
    , m_toWorld(toWorld)
    , m_toLocal(inverseOfDirections(toWorld))
{
}

std::array<SbVec3f, 3> HandleTarget::getOwnAxes() const
{
    return {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(0, 0, 1)};
}

SbVec3f HandleTarget::toLocal(const SbVec3f& world) const
{
    return m_toLocal.multDirection(world);
}

bool HandleTarget::isMirrored() const
{
    return determinant(m_toWorld) < 0;
}

HandleAxis HandleTarget::axisTo(const SbVec3f& world) const
{
    const SbVec3f local = toLocal(world);
    const SbVec3f reached = m_toWorld.multDirection(local);
    // What is squeezed flat cannot be moved that way.
    const bool isReached = (reached - world).length() < 0.1F;
    return {local.normalized(), isReached ? world : SbVec3f()};
}

HandleAxes HandleTarget::getAxes(bool ofWorld) const
{
    HandleAxes axes;
    const std::array<SbVec3f, 3> own = getOwnAxes();
    for (std::size_t i = 0; i < 3; ++i) {
        SbVec3f unit;
        unit[static_cast<int>(i)] = 1;
        if (ofWorld) {
            axes[i] = axisTo(unit);
            continue;
        }
        const SbVec3f world = m_toWorld.multDirection(own[i]);
        const bool isFlat = !(world.length() > Flat * sizeOf(m_toWorld));
        axes[i] = {own[i], isFlat ? SbVec3f() : world.normalized()};
    }
    return axes;
}

} // namespace scopix
