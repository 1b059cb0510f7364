// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoSolid.h>

#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoSolid, SoShape>;

SbBox3f SoSolid::getBox(const SoState& /*state*/) const
{
    const SbVec3f half = getExtent();
    SbBox3f box(half, half);
    box.extendBy(half * -1.0F);
    return box;
}

int SoSolid::getSegments(const SoState& state)
{
    const float fineness = state.complexity >= 0 ? std::min(state.complexity, 1.0F) : 0.0F;
    return static_cast<int>(std::lround(8.0 * std::pow(16.0, fineness)));
}

SoGeometryKey SoSolid::makeKey(int segments, int variant) const
{
    SoGeometryKey key;
    const SbName name = getTypeId().getName();
    key.add(reinterpret_cast<std::uintptr_t>(name.getString()), static_cast<std::uint64_t>(segments));
    key.add(static_cast<std::uint64_t>(variant), 0);
    return key;
}
