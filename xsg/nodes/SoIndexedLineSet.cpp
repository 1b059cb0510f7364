#include <xsg/nodes/SoIndexedLineSet.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/IndexedCorners.h>

template class SoTyped<SoIndexedLineSet, SoVertexShape>;

void SoIndexedLineSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendIndexedRuns(index, pointCount, xsg::appendLine, corners.index, corners.faces);
}
