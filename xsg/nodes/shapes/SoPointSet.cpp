// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoPointSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoPointSet, SoVertexShape>;

void SoPointSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendAll(1, pointCount, corners.index);
}
