// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoIndexedTriangleSet, SoVertexShape>;

void SoIndexedTriangleSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendGroups(index, 3, pointCount, corners.index, corners.faces);
}
