// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoTextureTransform.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbRotation.h>

template class SoTyped<SoTextureTransform, SoNode>;

void SoTextureTransform::apply(SoState& state) const
{
    const auto flat = [](const SbVec2f& v, float sign) { return SbVec3f(v[0] * sign, v[1] * sign, 0); };
    const SbVec2f scale = scaleFactor.getValue();
    const SbMatrix matrix = SbMatrix::translation(flat(center.getValue(), -1)) *
                            SbMatrix::scale({scale[0], scale[1], 1}) *
                            SbMatrix::rotation(SbRotation({0, 0, 1}, rotation.getValue())) *
                            SbMatrix::translation(flat(center.getValue(), 1)) *
                            SbMatrix::translation(flat(translation.getValue(), 1));
    const SbMatrix before = state.textureMatrix ? state.textureMatrix->front() : SbMatrix();
    state.textureMatrix = std::make_shared<const std::vector<SbMatrix>>(1, matrix * before);
}
