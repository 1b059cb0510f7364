// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoComplexity.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoComplexity, SoNode>;

void SoComplexity::apply(SoState& state) const
{
    if (!value.isIgnored())
        state.complexity = value.getValue();
    if (!textureQuality.isIgnored())
        state.textureQuality = textureQuality.getValue();
}
