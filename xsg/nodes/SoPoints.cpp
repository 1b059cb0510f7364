#include <xsg/nodes/SoPoints.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoPoints, SoNode>;

void SoPoints::apply(SoState& state) const
{
    state.points = this;
}
