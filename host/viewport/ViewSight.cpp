// SPDX-License-Identifier: MIT
#include "viewport/ViewSight.h"

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>

namespace scopix
{

ViewSight::ViewSight(const SoCamera& camera, const QSizeF& size)
    : m_size(std::max(1.0, size.width()), std::max(1.0, size.height()))
    , m_eye(camera.position.getValue())
{
    const auto aspect = static_cast<float>(m_size.width() / m_size.height());
    const SbMatrix projection = camera.getProjectionMatrix(aspect);
    m_toPicture = camera.getViewMatrix() * projection;
    m_toWorld = m_toPicture.inverse();
    m_isParallel = projection[2][3] == 0;
    m_heightPerDepth = 2 / projection[1][1];
    const SbRotation turned = camera.orientation.getValue();
    m_right = turned.multVec({1, 0, 0});
    m_up = turned.multVec({0, 1, 0});
    m_back = turned.multVec({0, 0, 1});
}

float ViewSight::depthOf(const SbVec3f& world) const
{
    return (m_eye - world).dot(m_back);
}

std::optional<QPointF> ViewSight::toScreen(const SbVec3f& world) const
{
    if (!m_isParallel && !(depthOf(world) > 0))
        return std::nullopt;
    const SbVec3f at = m_toPicture.multPoint(world);
    return QPointF((static_cast<double>(at[0]) + 1) / 2 * m_size.width(),
                   (1 - static_cast<double>(at[1])) / 2 * m_size.height());
}

SbRay ViewSight::getRay(const QPointF& place) const
{
    if (!m_toWorld)
        return {m_eye, m_back * -1.0F};
    const auto x = static_cast<float>(2 * place.x() / m_size.width() - 1);
    const auto y = static_cast<float>(1 - 2 * place.y() / m_size.height());
    const SbVec3f near = m_toWorld->multPoint({x, y, -1});
    return {near, (m_toWorld->multPoint({x, y, 0}) - near).normalized()};
}

float ViewSight::getPixelLength(const SbVec3f& world) const
{
    const float depth = m_isParallel ? 1 : std::max(0.0F, depthOf(world));
    return depth * m_heightPerDepth / static_cast<float>(m_size.height());
}

SbVec3f ViewSight::toEye(const SbVec3f& world) const
{
    return m_isParallel ? m_back : (m_eye - world).normalized();
}

} // namespace scopix
