#include <xsg/nodes/SoAmbientLight.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoAmbientLight, SoNode>;

void SoAmbientLight::apply(SoState& state) const
{
    state.ambientLight = color.getValue() * intensity.getValue();
}
