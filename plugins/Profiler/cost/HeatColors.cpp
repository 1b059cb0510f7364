// SPDX-License-Identifier: MIT
#include "cost/HeatColors.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace profiler
{

namespace
{

// It, or the nearest around it that was drawn alone.
const SoBranchCost& measuredAround(const SoCosts& costs, const SoBranchCost& shape)
{
    const SoBranchCost* at = &shape;
    while (!at->isMeasured && at->parent >= 0)
        at = &costs.branches[static_cast<std::size_t>(at->parent)];
    return *at;
}

template <class HeatOf>
SoShapeColors colorsBy(const SoCosts& costs, const HeatOf& heatOf)
{
    SoShapeColors colors;
    for (const SoBranchCost& branch : costs.branches) {
        if (branch.node->asShape() && branch.shapes > 0)
            colors.set(branch.node.get(), HeatColors::at(heatOf(branch)));
    }
    return colors;
}

} // namespace

SbColor HeatColors::at(double heat)
{
    static const SbColor Ramp[] = {
        {0.1F, 0.2F, 0.9F}, {0.1F, 0.8F, 0.3F}, {0.95F, 0.85F, 0.1F}, {0.9F, 0.1F, 0.1F}};
    constexpr double Steps = std::size(Ramp) - 1;
    const double place = std::clamp(heat, 0.0, 1.0) * Steps;
    const auto below = static_cast<std::size_t>(std::min(place, Steps - 1));
    const auto part = static_cast<float>(place - static_cast<double>(below));
    return Ramp[below] * (1 - part) + Ramp[below + 1] * part;
}

double HeatColors::timeOf(const SoCosts& costs, const SoBranchCost& shape)
{
    const SoBranchCost& measured = measuredAround(costs, shape);
    const auto all = static_cast<double>(std::max<std::int64_t>(measured.triangles, 1));
    return &measured == &shape ? shape.getTime()
                               : measured.getTime() * static_cast<double>(shape.triangles) / all;
}

double HeatColors::trianglesPerPixelOf(const SoCosts& costs, const SoBranchCost& shape)
{
    const SoBranchCost& measured = measuredAround(costs, shape);
    return static_cast<double>(measured.triangles) /
           static_cast<double>(std::max<std::int64_t>(measured.pixels, 1));
}

SoShapeColors HeatColors::ofTime(const SoCosts& costs)
{
    double longest = 0;
    for (const SoBranchCost& branch : costs.branches) {
        if (branch.node->asShape())
            longest = std::max(longest, timeOf(costs, branch));
    }
    return colorsBy(
        costs, [&](const SoBranchCost& branch) { return longest > 0 ? timeOf(costs, branch) / longest : 0; });
}

SoShapeColors HeatColors::ofTrianglesPerPixel(const SoCosts& costs)
{
    return colorsBy(costs, [&](const SoBranchCost& branch) {
        const double each = trianglesPerPixelOf(costs, branch);
        return each > 0 ? 1 + std::log10(each) / 2 : 0;
    });
}

} // namespace profiler
