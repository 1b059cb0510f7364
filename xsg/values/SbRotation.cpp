// SPDX-License-Identifier: MIT
#include <xsg/values/SbRotation.h>

#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>

namespace
{

// Double precision: the squares of any four finite floats stay finite, and tiny ones do not vanish.
Eigen::Quaterniond unit(const SbRotation& r)
{
    const float* q = r.getValue();
    Eigen::Quaterniond wide(q[3], q[0], q[1], q[2]);
    const double length = wide.norm();
    if (!(length > 0) || !std::isfinite(length))
        return Eigen::Quaterniond::Identity();
    wide.coeffs() /= length;
    return wide;
}

SbRotation fromEigen(const Eigen::Quaterniond& q)
{
    const float four[4] = {static_cast<float>(q.x()), static_cast<float>(q.y()), static_cast<float>(q.z()),
                           static_cast<float>(q.w())};
    return SbRotation(four);
}

Eigen::Vector3d wide(const SbVec3f& v)
{
    return {v[0], v[1], v[2]};
}

SbVec3f narrow(const Eigen::Vector3d& v)
{
    return {static_cast<float>(v.x()), static_cast<float>(v.y()), static_cast<float>(v.z())};
}

} // namespace

SbRotation::SbRotation(const SbVec3f& axis, float radians)
{
    const Eigen::Vector3d direction = wide(axis);
    const double length = direction.norm();
    if (!(length > 0) || !std::isfinite(length) || !std::isfinite(radians))
        return;
    *this = fromEigen(Eigen::Quaterniond(Eigen::AngleAxisd(radians, direction / length)));
}

SbRotation SbRotation::between(const SbVec3f& from, const SbVec3f& to)
{
    return fromEigen(Eigen::Quaterniond::FromTwoVectors(wide(from), wide(to)));
}

SbRotation SbRotation::looking(const SbVec3f& direction, const SbVec3f& up)
{
    const Eigen::Vector3d back = -wide(direction).normalized();
    const Eigen::Vector3d right = wide(up).normalized().cross(back);
    if (!(right.norm() > 1e-6))
        return between({0, 0, -1}, direction);
    Eigen::Matrix3d axes;
    axes.col(0) = right.normalized();
    axes.col(1) = back.cross(axes.col(0));
    axes.col(2) = back;
    return fromEigen(Eigen::Quaterniond(axes));
}

void SbRotation::setValue(const float four[4])
{
    std::copy_n(four, 4, m_values);
}

void SbRotation::getValue(SbVec3f& axis, float& radians) const
{
    const Eigen::Quaterniond q = unit(*this);
    const double sine = q.vec().norm();
    axis = sine > 0 ? narrow(q.vec() / sine) : SbVec3f(0, 0, 1);
    radians = static_cast<float>(2.0 * std::atan2(sine, q.w()));
}

SbRotation SbRotation::normalized() const
{
    return fromEigen(unit(*this));
}

SbRotation SbRotation::inverse() const
{
    return fromEigen(unit(*this).conjugate());
}

SbVec3f SbRotation::multVec(const SbVec3f& v) const
{
    return narrow(unit(*this) * wide(v));
}

SbRotation operator*(const SbRotation& a, const SbRotation& b)
{
    return fromEigen(unit(b) * unit(a));
}

bool operator==(const SbRotation& a, const SbRotation& b)
{
    return std::equal(a.m_values, a.m_values + 4, b.m_values);
}
