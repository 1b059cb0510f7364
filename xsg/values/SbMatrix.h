// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbVec.h>
#include <xsg/values/XsgExport.h>

#include <optional>

class SbRotation;

/// A 4 by 4 matrix, rows first: element [r][c] is number 4r + c in storage. Points are row vectors (p' = p
/// M), so the last row holds the translation. A default one is the identity.
class XSG_API SbMatrix
{
public:
    SbMatrix() = default;
    explicit SbMatrix(const float* sixteen);
    static SbMatrix translation(const SbVec3f& by);
    static SbMatrix scale(const SbVec3f& by);
    static SbMatrix rotation(const SbRotation& by);
    /// OpenGL projections, depth -1 to 1. fieldOfView: full vertical angle in radians.
    static SbMatrix perspective(float fieldOfView, float aspect, float nearDistance, float farDistance);
    static SbMatrix orthographic(float height, float aspect, float nearDistance, float farDistance);

    const float* operator[](int row) const { return m_values + 4 * row; }
    float* operator[](int row) { return m_values + 4 * row; }
    const float* getValue() const { return m_values; }
    void setValue(const float* sixteen);

    /// Nothing for a matrix that has no inverse: one that squeezes space flat, or with numbers that are not
    /// finite.
    std::optional<SbMatrix> inverse() const;
    SbMatrix transposed() const;
    SbVec3f multPoint(const SbVec3f& point) const; // with the perspective division
    SbVec3f multDirection(const SbVec3f& direction) const;
    SbBox3f transform(const SbBox3f& box) const;

    friend SbMatrix XSG_API operator*(const SbMatrix& a, const SbMatrix& b); // first a, then b
    friend bool XSG_API operator==(const SbMatrix& a, const SbMatrix& b);
    friend bool operator!=(const SbMatrix& a, const SbMatrix& b) { return !(a == b); }

private:
    bool isAffine() const;
    SbBox3f transformAffine(const SbBox3f& box) const;
    SbBox3f transformCorners(const SbBox3f& box) const;

    float m_values[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};
