// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoIndexedPointSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoIndexedPointSet, SoVertexShape>;

void SoIndexedPointSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendGroups(index, 1, pointCount, corners.index, corners.faces);
}
