// SPDX-License-Identifier: MIT
#include <xsg/nodes/transforms/SoTransformation.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoTransformation, SoNode>;

void SoTransformation::apply(SoState& state) const
{
    state.modelMatrix = getMatrix() * state.modelMatrix;
}
