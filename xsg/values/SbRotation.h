// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>
#include <xsg/values/XsgExport.h>

/// A rotation as four stored numbers x, y, z, w (a quaternion). The numbers are kept as given; they are
/// normalised only where they are used, and a quadruple without a direction then counts as the identity.
class XSG_API SbRotation
{
public:
    constexpr SbRotation() = default; // the identity
    explicit SbRotation(const float four[4]) { setValue(four); }
    /// A zero or unusable axis gives the identity. The angle is in radians.
    SbRotation(const SbVec3f& axis, float radians);
    /// The shortest turn that takes one direction to the other.
    static SbRotation between(const SbVec3f& from, const SbVec3f& to);
    /// Takes the negative z axis to `direction`, and the y axis as near to `up` as that allows.
    static SbRotation looking(const SbVec3f& direction, const SbVec3f& up);

    const float* getValue() const { return m_values; }
    void setValue(const float four[4]);
    /// Axis of length 1 and angle 0 to 2 pi, always finite; the identity reads as axis z, angle 0.
    void getValue(SbVec3f& axis, float& radians) const;

    SbRotation normalized() const;
    SbRotation inverse() const;
    SbVec3f multVec(const SbVec3f& v) const;

    friend SbRotation XSG_API operator*(const SbRotation& a, const SbRotation& b); // first a, then b
    friend bool XSG_API operator==(const SbRotation& a, const SbRotation& b);
    friend bool operator!=(const SbRotation& a, const SbRotation& b) { return !(a == b); }

private:
    float m_values[4] = {0, 0, 0, 1};
};
