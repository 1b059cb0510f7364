// SPDX-License-Identifier: MIT
#include <xsg/nodes/lights/SoEnvironmentLight.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoEnvironmentLight, SoNode>;

void SoEnvironmentLight::apply(SoState& state) const
{
    state.environment.reset();
    if (!on.getValue())
        return;
    const float strength = intensity.getValue();
    const SoEnvironment here{skyColor.getValue() * strength, horizonColor.getValue() * strength,
                             groundColor.getValue() * strength,
                             state.modelMatrix.multDirection({0, 1, 0}).normalized()};
    state.environment = std::make_shared<const std::vector<SoEnvironment>>(1, here);
}
