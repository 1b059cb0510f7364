// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoPoints.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoPoints, SoNode>;

void SoPoints::apply(SoState& state) const
{
    state.points = this;
}
