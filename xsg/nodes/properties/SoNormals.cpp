// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoNormals.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoNormals, SoNode>;

void SoNormals::apply(SoState& state) const
{
    state.normals = this;
}
