// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>

/// A plane: the points p with normal . p = distance. Keeps the numbers it is given; who needs a unit normal
/// normalises where it is used.
class XSG_API SbPlane
{
public:
    constexpr SbPlane() = default;
    constexpr SbPlane(const SbVec3f& normal, float distance)
        : m_normal(normal)
        , m_distance(distance)
    {
    }
    constexpr const SbVec3f& getNormal() const { return m_normal; }
    constexpr float getDistanceFromOrigin() const { return m_distance; }
    friend constexpr bool operator==(const SbPlane& a, const SbPlane& b)
    {
        return a.m_normal == b.m_normal && a.m_distance == b.m_distance;
    }
    friend constexpr bool operator!=(const SbPlane& a, const SbPlane& b) { return !(a == b); }

private:
    SbVec3f m_normal{0, 0, 1};
    float m_distance = 0;
};
