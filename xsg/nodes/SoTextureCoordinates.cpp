#include <xsg/nodes/SoTextureCoordinates.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoTextureCoordinates, SoNode>;

void SoTextureCoordinates::apply(SoState& state) const
{
    state.textureCoordinates = this;
}
