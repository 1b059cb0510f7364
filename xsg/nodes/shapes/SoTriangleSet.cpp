// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoTriangleSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoTriangleSet, SoVertexShape>;

void SoTriangleSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendAll(3, pointCount, corners.index);
}
