#include <xsg/nodes/SoNormals.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoNormals, SoNode>;

void SoNormals::apply(SoState& state) const
{
    state.normals = this;
}
