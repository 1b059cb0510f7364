// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoSpotLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

#include <cmath>

template class SoTyped<SoSpotLight, SoLight>;

SoLightSource SoSpotLight::getSource(const SbMatrix& toWorld) const
{
    SoLightSource source = getBasicSource();
    source.kind = SoLightSource::Kind::Spot;
    source.location = toWorld.multPoint(location.getValue());
    source.direction = toWorld.multDirection(direction.getValue()).normalized();
    source.attenuation = attenuation.getValue();
    source.cutOffCosine = std::cos(cutOffAngle.getValue());
    source.dropOff = dropOff.getValue();
    return source;
}
