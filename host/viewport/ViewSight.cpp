// SPDX-License-Identifier: MIT
#include "viewport/ViewSight.h"

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

// A widget's places are int in many of Qt's calls, and beyond this no float tells one pixel from the next.
constexpr double FarthestPlace = 1 << 24;

} // namespace

ViewSight::ViewSight(const SoCamera& camera, const QSizeF& size)
    : m_size(std::max(1.0, size.width()), std::max(1.0, size.height()))
    , m_eye(camera.position.getValue())
{
    const auto aspect = static_cast<float>(m_size.width() / m_size.height());
    const SbMatrix projection = camera.getProjectionMatrix(aspect);
    m_isParallel = projection[2][3] == 0;
    m_halfWidth = 1 / projection[0][0];
    m_halfHeight = 1 / projection[1][1];
    m_nearest = camera.nearDistance.getValue();
    const SbRotation turned = camera.orientation.getValue();
    m_right = turned.multVec({1, 0, 0});
    m_up = turned.multVec({0, 1, 0});
    m_back = turned.multVec({0, 0, 1});
}

float ViewSight::depthOf(const SbVec3f& world) const
{
    return (m_eye - world).dot(m_back);
}

// Straight from the camera's axes: the inverse of a projection would lose half of the digits.
std::optional<QPointF> ViewSight::toScreen(const SbVec3f& world) const
{
    const float depth = m_isParallel ? 1 : depthOf(world);
    if (!(depth > 0))
        return std::nullopt;
    const SbVec3f from = world - m_eye;
    const auto x = static_cast<double>(from.dot(m_right) / (depth * m_halfWidth));
    const auto y = static_cast<double>(from.dot(m_up) / (depth * m_halfHeight));
    const QPointF place((x + 1) / 2 * m_size.width(), (1 - y) / 2 * m_size.height());
    const bool isNear = std::abs(place.x()) <= FarthestPlace && std::abs(place.y()) <= FarthestPlace;
    return isNear ? std::optional<QPointF>(place) : std::nullopt;
}

SbRay ViewSight::getRay(const QPointF& place) const
{
    const auto x = static_cast<float>(2 * place.x() / m_size.width() - 1);
    const auto y = static_cast<float>(1 - 2 * place.y() / m_size.height());
    const SbVec3f aside = m_right * (x * m_halfWidth) + m_up * (y * m_halfHeight);
    if (m_isParallel)
        return {m_eye + aside - m_back * m_nearest, m_back * -1.0F};
    return {m_eye, (aside - m_back).normalized()};
}

float ViewSight::getPixelLength(const SbVec3f& world) const
{
    const float depth = m_isParallel ? 1 : std::max(0.0F, depthOf(world));
    return 2 * depth * m_halfHeight / static_cast<float>(m_size.height());
}

SbVec3f ViewSight::toEye(const SbVec3f& world) const
{
    return m_isParallel ? m_back : (m_eye - world).normalized();
}

} // namespace scopix
