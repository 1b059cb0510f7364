// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbRay.h>

#include <QPointF>
#include <QSizeF>

#include <optional>

class SoCamera;

namespace scopix
{

/// How a view sees its scene at one moment: between places of its widget and the world. Places are in the
/// widget's coordinates, which do not depend on the pixel density. A plain value.
class ViewSight
{
public:
    ViewSight() = default;
    ViewSight(const SoCamera& camera, const QSizeF& size);

    const QSizeF& getSize() const { return m_size; }
    bool isParallel() const { return m_isParallel; }
    /// Nothing for what is not before the eye, or millions of pixels beside the widget.
    std::optional<QPointF> toScreen(const SbVec3f& world) const;
    /// What is seen at this place lies along it; it starts at the eye, or at a parallel view's near plane.
    /// Its direction has the length 1.
    SbRay getRay(const QPointF& place) const;
    /// How long something in the world is, at this place, that is as long as one of the widget's pixels; 0
    /// for what is not before the eye.
    float getPixelLength(const SbVec3f& world) const;
    /// From a place in the world to the eye; the length is 1.
    SbVec3f toEye(const SbVec3f& world) const;
    /// The eye's axes in the world: to the right, up, and to the viewer.
    SbVec3f getRight() const { return m_right; }
    SbVec3f getUp() const { return m_up; }
    SbVec3f getBack() const { return m_back; }

private:
    float depthOf(const SbVec3f& world) const;

    QSizeF m_size{1, 1};
    SbVec3f m_eye;
    SbVec3f m_right{1, 0, 0};
    SbVec3f m_up{0, 1, 0};
    SbVec3f m_back{0, 0, 1};
    bool m_isParallel = false;
    // Half of what is seen across and up: per depth or, for a parallel view, as it is.
    float m_halfWidth = 1;
    float m_halfHeight = 1;
    float m_nearest = 0; // depth of what is nearest of all that is seen
};

} // namespace scopix
