// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoClipPlane.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoClipPlane, SoNode>;

void SoClipPlane::apply(SoState& state) const
{
    const SbVec3f normal = plane.getValue().getNormal();
    const float length = normal.length();
    const auto toLocal = state.modelMatrix.inverse();
    // Without a normal there is no side to keep, nor where space is squeezed flat.
    if (!on.getValue() || !(length > 0) || !toLocal)
        return;
    const SbVec3f unit = normal * (1 / length);
    const SbVec3f point =
        state.modelMatrix.multPoint(unit * (plane.getValue().getDistanceFromOrigin() / length));
    const SbVec3f turned = toLocal->transposed().multDirection(unit).normalized();
    state.addClipPlane(SbPlane(turned, turned.dot(point)));
}
