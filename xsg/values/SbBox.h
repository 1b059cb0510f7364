// SPDX-License-Identifier: MIT
// Axis-aligned boxes. The float box starts empty (minimum above maximum) and grows with what it is given;
// the short box is a plain pair of corners, as its field edits it. Own code: Eigen's AlignedBox would show in
// this public header, and is no constant expression.
#pragma once

#include <xsg/values/SbVec.h>

#include <algorithm>
#include <limits>

class XSG_API SbBox3s
{
public:
    using Scalar = short;
    constexpr SbBox3s() = default;
    constexpr SbBox3s(const SbVec3s& min, const SbVec3s& max)
        : m_min(min)
        , m_max(max)
    {
    }
    constexpr SbBox3s(short xmin, short ymin, short zmin, short xmax, short ymax, short zmax)
        : m_min(xmin, ymin, zmin)
        , m_max(xmax, ymax, zmax)
    {
    }
    constexpr const SbVec3s& getMin() const { return m_min; }
    constexpr const SbVec3s& getMax() const { return m_max; }
    friend constexpr bool operator==(const SbBox3s& a, const SbBox3s& b)
    {
        return a.m_min == b.m_min && a.m_max == b.m_max;
    }
    friend constexpr bool operator!=(const SbBox3s& a, const SbBox3s& b) { return !(a == b); }

private:
    SbVec3s m_min;
    SbVec3s m_max;
};

class XSG_API SbBox3f
{
public:
    using Scalar = float;
    constexpr SbBox3f() = default;
    constexpr SbBox3f(const SbVec3f& min, const SbVec3f& max)
        : m_min(min)
        , m_max(max)
    {
    }
    constexpr SbBox3f(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax)
        : m_min(xmin, ymin, zmin)
        , m_max(xmax, ymax, zmax)
    {
    }
    constexpr const SbVec3f& getMin() const { return m_min; }
    constexpr const SbVec3f& getMax() const { return m_max; }
    constexpr bool isEmpty() const
    {
        return !(m_min[0] <= m_max[0] && m_min[1] <= m_max[1] && m_min[2] <= m_max[2]);
    }
    constexpr SbVec3f getCenter() const { return (m_min + m_max) * 0.5F; }
    constexpr SbVec3f getSize() const { return isEmpty() ? SbVec3f() : m_max - m_min; }
    constexpr bool contains(const SbVec3f& point) const
    {
        for (int i = 0; i < 3; ++i) {
            if (!(m_min[i] <= point[i] && point[i] <= m_max[i]))
                return false;
        }
        return true;
    }
    constexpr void extendBy(const SbVec3f& point)
    {
        for (int i = 0; i < 3; ++i) {
            m_min[i] = std::min(m_min[i], point[i]);
            m_max[i] = std::max(m_max[i], point[i]);
        }
    }
    constexpr void extendBy(const SbBox3f& box)
    {
        if (box.isEmpty())
            return;
        extendBy(box.m_min);
        extendBy(box.m_max);
    }
    friend constexpr bool operator==(const SbBox3f& a, const SbBox3f& b)
    {
        return a.m_min == b.m_min && a.m_max == b.m_max;
    }
    friend constexpr bool operator!=(const SbBox3f& a, const SbBox3f& b) { return !(a == b); }

private:
    static constexpr float Far = std::numeric_limits<float>::max();
    SbVec3f m_min{Far, Far, Far};
    SbVec3f m_max{-Far, -Far, -Far};
};
