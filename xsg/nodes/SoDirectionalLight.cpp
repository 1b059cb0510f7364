#include <xsg/nodes/SoDirectionalLight.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoDirectionalLight, SoLight>;

SoLightSource SoDirectionalLight::getSource(const SbMatrix& toWorld) const
{
    SoLightSource source = getBasicSource();
    source.direction = toWorld.multDirection(direction.getValue()).normalized();
    return source;
}
