// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoSecondTextureCoordinates.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoSecondTextureCoordinates, SoTextureCoordinates>;

void SoSecondTextureCoordinates::apply(SoState& state) const
{
    state.secondTextureCoordinates = this;
}
