// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoTextureCoordinates.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoTextureCoordinates, SoNode>;

void SoTextureCoordinates::apply(SoState& state) const
{
    state.textureCoordinates = this;
}
