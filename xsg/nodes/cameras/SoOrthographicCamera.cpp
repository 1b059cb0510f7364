// SPDX-License-Identifier: MIT
#include <xsg/nodes/cameras/SoOrthographicCamera.h>

#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoOrthographicCamera, SoCamera>;

SbMatrix SoOrthographicCamera::getProjectionMatrix(float aspect) const
{
    const float near = nearDistance.getValue();
    const float far = farDistance.getValue();
    return SbMatrix::orthographic(getFocalHeight(), aspect, near, far > near ? far : near + 1);
}

// A field can hold any number; a picture needs some height.
float SoOrthographicCamera::getFocalHeight() const
{
    const float value = height.getValue();
    return value > 1e-9F ? value : 1e-9F;
}

// What lies around the origin is seen around the middle, from whatever side.
SbVec3f SoOrthographicCamera::frame(const Corners& corners, float aspect, float filled)
{
    float half = 0;
    float reach = 0;
    for (const SbVec3f& corner : corners) {
        half = std::max({half, std::abs(corner[1]), std::abs(corner[0]) / aspect});
        reach = std::max(reach, corner.length());
    }
    height.setValue(2 * half / filled);
    return {0, 0, 2 * reach};
}

void SoOrthographicCamera::scaleView(float factor)
{
    height.setValue(getFocalHeight() * factor);
}

// What is behind it is seen as well as what is before it.
float SoOrthographicCamera::usableNear(float near, float /*far*/) const
{
    return near;
}
