// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoIndexedLineSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoIndexedLineSet, SoVertexShape>;

void SoIndexedLineSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::appendIndexedRuns(index, pointCount, xsg::appendLine, corners.index, corners.faces);
}
