// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoDirectionalLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoDirectionalLight, SoLight>;

SoLightSource SoDirectionalLight::getSource(const SbMatrix& toWorld) const
{
    SoLightSource source = getBasicSource();
    source.direction = toWorld.multDirection(direction.getValue()).normalized();
    return source;
}
