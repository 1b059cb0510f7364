#include <xsg/nodes/SoComplexity.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoComplexity, SoNode>;

void SoComplexity::apply(SoState& state) const
{
    if (!value.isIgnored())
        state.complexity = value.getValue();
    if (!textureQuality.isIgnored())
        state.textureQuality = textureQuality.getValue();
}
