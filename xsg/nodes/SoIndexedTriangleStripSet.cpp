#include <xsg/nodes/SoIndexedTriangleStripSet.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/IndexedCorners.h>

template class SoTyped<SoIndexedTriangleStripSet, SoVertexShape>;

void SoIndexedTriangleStripSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendIndexedRuns(index, pointCount, xsg::appendStrip, corners.index, corners.faces);
}
