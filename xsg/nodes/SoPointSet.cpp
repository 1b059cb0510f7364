#include <xsg/nodes/SoPointSet.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/IndexedCorners.h>

template class SoTyped<SoPointSet, SoVertexShape>;

void SoPointSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendAll(1, pointCount, corners.index);
}
