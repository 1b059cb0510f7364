#include <xsg/nodes/SoTriangleSet.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/IndexedCorners.h>

template class SoTyped<SoTriangleSet, SoVertexShape>;

void SoTriangleSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendAll(3, pointCount, corners.index);
}
