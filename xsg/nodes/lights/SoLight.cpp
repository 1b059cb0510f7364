// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoLight, SoNode>;

void SoLight::apply(SoState& state) const
{
    if (on.getValue())
        state.addLight(getSource(state.modelMatrix));
}

SoLightSource SoLight::getBasicSource() const
{
    SoLightSource source;
    source.color = color.getValue() * intensity.getValue();
    return source;
}
