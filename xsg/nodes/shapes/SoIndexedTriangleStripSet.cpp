// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoIndexedTriangleStripSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoIndexedTriangleStripSet, SoVertexShape>;

void SoIndexedTriangleStripSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendIndexedRuns(index, pointCount, xsg::appendStrip, corners.index, corners.faces);
}
