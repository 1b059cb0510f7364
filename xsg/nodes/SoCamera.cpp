#include <xsg/nodes/SoCamera.h>

#include <xsg/actions/SoState.h>
#include <xsg/base/SbRotation.h>
#include <xsg/core/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoCamera, SoNode>;

void SoCamera::apply(SoState& state) const
{
    state.camera = this;
}

SbMatrix SoCamera::getViewMatrix() const
{
    return SbMatrix::translation(position.getValue() * -1.0F) *
           SbMatrix::rotation(orientation.getValue().inverse());
}

SbVec3f SoCamera::getDirection() const
{
    return orientation.getValue().multVec({0, 0, -1});
}

SbVec3f SoCamera::getFocalPoint() const
{
    return position.getValue() + getDirection() * focalDistance.getValue();
}

SbRay SoCamera::getRay(float x, float y, float aspect) const
{
    const SbMatrix toWorld = (getViewMatrix() * getProjectionMatrix(aspect)).inverse();
    const SbVec3f near = toWorld.multPoint({2 * x - 1, 2 * y - 1, -1});
    // Halfway in depth: a far plane at a great distance would lose the digits.
    const SbVec3f beyond = toWorld.multPoint({2 * x - 1, 2 * y - 1, 0});
    return {near, (beyond - near).normalized()};
}

void SoCamera::viewAll(const SbBox3f& box, float aspect)
{
    if (box.isEmpty())
        return;
    const SbVec3f center = box.getCenter();
    const float radius = std::max(box.getSize().length() * 0.5F, 1e-6F);
    frame(radius, std::min(1.0F, aspect));
    position.setValue(center - getDirection() * focalDistance.getValue());
    fitDepthRange(box);
}

void SoCamera::pointAt(const SbVec3f& target)
{
    const SbVec3f toTarget = target - position.getValue();
    const float distance = toTarget.length();
    if (!(distance > 0))
        return;
    // Turned around y, then tilted: the horizon stays level.
    const float around = std::atan2(-toTarget[0], -toTarget[2]);
    const float tilt = std::asin(std::clamp(toTarget[1] / distance, -1.0F, 1.0F));
    orientation.setValue(SbRotation({1, 0, 0}, tilt) * SbRotation({0, 1, 0}, around));
    focalDistance.setValue(distance);
}

void SoCamera::fitDepthRange(const SbBox3f& box)
{
    if (box.isEmpty())
        return;
    const SbBox3f seen = getViewMatrix().transform(box);
    const float slack = std::max(seen.getSize().length() * 0.01F, 1e-6F);
    const float far = std::max(-seen.getMin()[2] + slack, 2 * slack);
    // Depth is kept precise by never letting the near plane come too close.
    const float near = std::max(-seen.getMax()[2] - slack, far * 0.001F);
    nearDistance.setValue(near);
    farDistance.setValue(far);
}

void SoCamera::orbit(float aroundY, float aroundX)
{
    const SbVec3f focus = getFocalPoint();
    orientation.setValue(SbRotation({1, 0, 0}, aroundX) * orientation.getValue() *
                         SbRotation({0, 1, 0}, aroundY));
    position.setValue(focus - getDirection() * focalDistance.getValue());
}

void SoCamera::pan(float right, float up)
{
    const SbVec3f by = orientation.getValue().multVec({right, up, 0}) * getFocalHeight();
    position.setValue(position.getValue() + by);
}

void SoCamera::zoom(float factor, float x, float y, float aspect)
{
    if (!(factor > 0) || !std::isfinite(factor))
        return;
    const float before = getFocalHeight();
    scaleView(factor);
    const float shrunk = (before - getFocalHeight()) / std::max(before, 1e-30F);
    const SbVec3f side = orientation.getValue().multVec({(x - 0.5F) * aspect, y - 0.5F, 0});
    position.setValue(position.getValue() + side * (before * shrunk));
}
