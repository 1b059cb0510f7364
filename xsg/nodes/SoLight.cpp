#include <xsg/nodes/SoLight.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

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
