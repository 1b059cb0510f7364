// SPDX-License-Identifier: MIT
#include <xsg/nodes/groups/SoLevelOfDetail.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>

template class SoTyped<SoLevelOfDetail, SoSeparator>;

SoChildRange SoLevelOfDetail::getChosenChildren(const SoState& state) const
{
    if (state.chooseAll || getNumChildren() == 0)
        return {0, getNumChildren()};
    const float distance = (state.eye - state.modelMatrix.multPoint(center.getValue())).length();
    int level = 0;
    while (level < distances.getNum() && distance >= distances[level])
        ++level;
    level = std::min(level, getNumChildren() - 1);
    return {level, level + 1};
}
