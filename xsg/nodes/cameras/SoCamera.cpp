// SPDX-License-Identifier: MIT
#include <xsg/nodes/cameras/SoCamera.h>

#include <xsg/core/Context.h>
#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoCamera, SoNode>;

namespace
{

// How much of the picture a framed box fills, from the middle to the edge.
constexpr float Filled = 0.88F;
// What is flat or but a point is framed as if it had some thickness.
constexpr float Thinnest = 1e-6F;
constexpr float ThinnestPart = 0.01F;

struct Cameras {
    std::unordered_set<SoCamera*> living;
};

std::unordered_set<SoCamera*>& allCameras()
{
    static auto& cameras = xsg::Context::get().state<Cameras>();
    return cameras.living;
}

} // namespace

SoCamera::SoCamera()
{
    allCameras().insert(this);
}

SoCamera::~SoCamera()
{
    allCameras().erase(this);
}

const std::unordered_set<SoCamera*>& SoCamera::getAll()
{
    return allCameras();
}

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
    const auto toWorld = (getViewMatrix() * getProjectionMatrix(aspect)).inverse();
    if (!toWorld) // it sees no space at all: an angle, a height or an aspect of 0
        return {position.getValue(), getDirection()};
    const SbVec3f near = toWorld->multPoint({2 * x - 1, 2 * y - 1, -1});
    // Halfway in depth: a far plane at a great distance would lose the digits.
    const SbVec3f beyond = toWorld->multPoint({2 * x - 1, 2 * y - 1, 0});
    return {near, (beyond - near).normalized()};
}

void SoCamera::viewAll(const SbBox3f& box, float aspect)
{
    if (box.isEmpty())
        return;
    const SbVec3f half = box.getSize() * 0.5F;
    const float thinnest =
        std::max({half[0] * ThinnestPart, half[1] * ThinnestPart, half[2] * ThinnestPart, Thinnest});
    const SbRotation toEye = orientation.getValue().inverse();
    Corners corners(8);
    for (unsigned corner = 0; corner < corners.size(); ++corner) {
        SbVec3f point;
        for (int i = 0; i < 3; ++i)
            point[i] = ((corner >> i) & 1U ? 1.0F : -1.0F) * std::max(half[i], thinnest);
        corners[corner] = toEye.multVec(point);
    }
    const SbVec3f place = frame(corners, aspect, Filled);
    focalDistance.setValue(place[2]);
    position.setValue(box.getCenter() + orientation.getValue().multVec(place));
    fitDepthRange(box);
}

void SoCamera::viewAll(const std::vector<SbVec3f>& points, float aspect)
{
    SbBox3f box;
    SbBox3f seen; // along the camera's axes
    const SbRotation toEye = orientation.getValue().inverse();
    Corners corners;
    for (const SbVec3f& point : points) {
        box.extendBy(point);
        corners.push_back(toEye.multVec(point));
        seen.extendBy(corners.back());
    }
    const SbVec3f size = seen.isEmpty() ? SbVec3f() : seen.getSize();
    if (!(std::max(size[0], size[1]) > std::max(size[2] * ThinnestPart, Thinnest))) {
        viewAll(box, aspect); // next to nothing of it is seen from there
        return;
    }
    const SbVec3f middle = seen.getCenter();
    for (SbVec3f& corner : corners)
        corner = corner - middle;
    const SbVec3f place = frame(corners, aspect, Filled);
    focalDistance.setValue(place[2]);
    position.setValue(orientation.getValue().multVec(middle + place));
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
    nearDistance.setValue(usableNear(-seen.getMax()[2] - slack, far));
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
