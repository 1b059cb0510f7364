// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoPointLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoPointLight, SoLight>;

SoLightSource SoPointLight::getSource(const SbMatrix& toWorld) const
{
    SoLightSource source = getBasicSource();
    source.kind = SoLightSource::Kind::Point;
    source.location = toWorld.multPoint(location.getValue());
    source.attenuation = attenuation.getValue();
    return source;
}
