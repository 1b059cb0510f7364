#include <xsg/nodes/SoTransformation.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoTransformation, SoNode>;

void SoTransformation::apply(SoState& state) const
{
    state.modelMatrix = getMatrix() * state.modelMatrix;
}
