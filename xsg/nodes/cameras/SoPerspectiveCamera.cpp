// SPDX-License-Identifier: MIT
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>

#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>
#include <limits>

template class SoTyped<SoPerspectiveCamera, SoCamera>;

namespace
{

constexpr int Halvings = 40; // until two distances are one

// Across the picture along one of its axes: how the eye stands for two planes through it, of this slope, to
// touch the corners between them.
struct Wedge {
    float distance;
    float middle;
};

Wedge touch(const std::vector<SbVec3f>& corners, int axis, float slope)
{
    float high = -std::numeric_limits<float>::max();
    float low = high;
    for (const SbVec3f& corner : corners) {
        high = std::max(high, corner[axis] + slope * corner[2]);
        low = std::max(low, -corner[axis] + slope * corner[2]);
    }
    return {(high + low) / (2 * slope), (high - low) / 2};
}

// Where the corners have equal margins, seen from this distance, which is none too near for planes of this
// slope.
float middleAt(const std::vector<SbVec3f>& corners, int axis, float slope, float distance)
{
    float steep = slope;
    float flat = 0;
    for (int i = 0; i < Halvings; ++i) {
        const float between = (flat + steep) / 2;
        (touch(corners, axis, between).distance > distance ? flat : steep) = between;
    }
    return touch(corners, axis, steep).middle;
}

} // namespace

// A field can hold any number; a picture needs an angle between nothing and a half turn.
float SoPerspectiveCamera::usableAngle() const
{
    const float angle = heightAngle.getValue();
    return angle >= 0.001F ? std::min(angle, 3.1F) : 0.001F;
}

SbMatrix SoPerspectiveCamera::getProjectionMatrix(float aspect) const
{
    const float near = std::max(nearDistance.getValue(), 1e-6F);
    const float far = std::max(farDistance.getValue(), near * 1.001F);
    return SbMatrix::perspective(usableAngle(), aspect, near, far);
}

float SoPerspectiveCamera::getFocalHeight() const
{
    return 2 * focalDistance.getValue() * std::tan(usableAngle() * 0.5F);
}

SbVec3f SoPerspectiveCamera::frame(const Corners& corners, float aspect, float filled)
{
    const float up = std::tan(usableAngle() * 0.5F) * filled;
    const float right = up * aspect;
    const float distance = std::max(touch(corners, 0, right).distance, touch(corners, 1, up).distance);
    return {middleAt(corners, 0, right, distance), middleAt(corners, 1, up, distance), distance};
}

void SoPerspectiveCamera::scaleView(float factor)
{
    const SbVec3f focus = getFocalPoint();
    focalDistance.setValue(focalDistance.getValue() * factor);
    position.setValue(focus - getDirection() * focalDistance.getValue());
}

float SoPerspectiveCamera::usableNear(float near, float far) const
{
    return std::max(near, far * 0.001F);
}
