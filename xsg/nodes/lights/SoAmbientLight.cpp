// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoAmbientLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoAmbientLight, SoNode>;

void SoAmbientLight::apply(SoState& state) const
{
    state.ambientLight = color.getValue() * intensity.getValue();
}
