#include <xsg/nodes/SoOrthographicCamera.h>

#include <xsg/core/SoTypedImpl.h>

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

void SoOrthographicCamera::frame(float radius, float part)
{
    height.setValue(2 * radius / part);
    focalDistance.setValue(2 * radius);
}

void SoOrthographicCamera::scaleView(float factor)
{
    height.setValue(getFocalHeight() * factor);
}
