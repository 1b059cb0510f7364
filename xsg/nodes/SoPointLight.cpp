#include <xsg/nodes/SoPointLight.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoPointLight, SoLight>;

SoLightSource SoPointLight::getSource(const SbMatrix& toWorld) const
{
    SoLightSource source = getBasicSource();
    source.kind = SoLightSource::Kind::Point;
    source.location = toWorld.multPoint(location.getValue());
    source.attenuation = attenuation.getValue();
    return source;
}
