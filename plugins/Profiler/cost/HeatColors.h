// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCosts.h>
#include <xsg/render/SoShapeColors.h>

namespace profiler
{

/// What shapes cost as colours, from blue over green and yellow to red. A shape that was not drawn alone has
/// its share, by triangles, of the nearest branch around it that was.
struct HeatColors {
    /// Red is the shape that takes the most time.
    static SoShapeColors ofTime(const SoCosts& costs);
    /// Blue is a hundredth of a triangle for each pixel that is drawn, red one or more.
    static SoShapeColors ofTrianglesPerPixel(const SoCosts& costs);
    /// From 0 to 1; what is beyond counts as these.
    static SbColor at(double heat);

    /// The time of a shape, in milliseconds.
    static double timeOf(const SoCosts& costs, const SoBranchCost& shape);
    static double trianglesPerPixelOf(const SoCosts& costs, const SoBranchCost& shape);
};

} // namespace profiler
