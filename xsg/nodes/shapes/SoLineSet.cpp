// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoLineSet.h>

#include <xsg/nodes/shapes/IndexBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoLineSet, SoVertexShape>;

void SoLineSet::collectCorners(std::uint32_t pointCount, Corners& corners) const
{
    xsg::forEachRun(counts, pointCount, [&](std::uint32_t first, std::uint32_t count, std::uint32_t run) {
        xsg::appendLine(first, count, run, corners.index, corners.faces);
    });
}
