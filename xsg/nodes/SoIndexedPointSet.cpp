#include <xsg/nodes/SoIndexedPointSet.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/IndexedCorners.h>

template class SoTyped<SoIndexedPointSet, SoVertexShape>;

void SoIndexedPointSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendGroups(index, 1, pointCount, corners.index, corners.faces);
}
