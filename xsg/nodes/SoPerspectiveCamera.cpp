#include <xsg/nodes/SoPerspectiveCamera.h>

#include <xsg/core/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoPerspectiveCamera, SoCamera>;

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

void SoPerspectiveCamera::frame(float radius, float part)
{
    const float half = std::atan(std::tan(usableAngle() * 0.5F) * part);
    focalDistance.setValue(radius / std::sin(half));
}

void SoPerspectiveCamera::scaleView(float factor)
{
    const SbVec3f focus = getFocalPoint();
    focalDistance.setValue(focalDistance.getValue() * factor);
    position.setValue(focus - getDirection() * focalDistance.getValue());
}
