// SPDX-License-Identifier: MIT
// What the view frames: all of a part, whether it is small enough to be looked at point by point or not.
#include "viewport/OutermostPoints.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace scopix;

namespace
{

constexpr int Few = 200;
constexpr int Many = 20'000; // more than are looked at one by one
const SbVec3f ElsewhereOffset(-500, 70, 900);

// Cubes on a spiral, each in a separator of its own, so that nearly all of them are outermost when they are
// met.
SoRef<SoSeparator> makeSpiral(int cubes)
{
    SoRef<SoSeparator> spiral(new SoSeparator);
    for (int i = 0; i < cubes; ++i) {
        const float turn = 0.1F * static_cast<float>(i);
        auto* separator = new SoSeparator;
        auto* place = new SoTransform;
        place->translation.setValue(turn * std::cos(turn), turn * std::sin(turn), turn);
        separator->addChild(place);
        separator->addChild(new SoCube);
        spiral->addChild(separator);
    }
    return spiral;
}

// The same spiral twice.
SoRef<SoSeparator> makePair(SoSeparator* spiral)
{
    SoRef<SoSeparator> root(new SoSeparator);
    root->addChild(spiral);
    auto* elsewhere = new SoSeparator;
    auto* place = new SoTransform;
    place->translation.setValue(ElsewhereOffset);
    elsewhere->addChild(place);
    elsewhere->addChild(spiral);
    root->addChild(elsewhere);
    return root;
}

float reachOf(const std::vector<SbVec3f>& points, const SbVec3f& direction)
{
    float reach = -INFINITY;
    for (const SbVec3f& point : points)
        reach = std::max(reach, point.dot(direction));
    return reach;
}

std::vector<SbVec3f> cornersOfSpiral(int cubes)
{
    std::vector<SbVec3f> corners;
    for (int i = 0; i < cubes; ++i) {
        const float turn = 0.1F * static_cast<float>(i);
        const SbVec3f center(turn * std::cos(turn), turn * std::sin(turn), turn);
        for (const int corner : {0, 1, 2, 3, 4, 5, 6, 7})
            corners.push_back(center + SbVec3f(corner & 1 ? 1.0F : -1.0F, corner & 2 ? 1.0F : -1.0F,
                                               corner & 4 ? 1.0F : -1.0F));
    }
    return corners;
}

class OutermostPoints : public testing::TestWithParam<int>
{
protected:
    const SbRotation orientation{SbVec3f(1, 2, -0.5F), 0.7F};
    // In the two planes that hold an edge of the picture's frustum, for every slope of it.
    std::vector<SbVec3f> directions() const
    {
        std::vector<SbVec3f> all;
        for (int i = 0; i < 24; ++i) {
            const float angle = static_cast<float>(i) * 0.2618F;
            all.push_back(orientation.multVec({std::cos(angle), 0, std::sin(angle)}));
            all.push_back(orientation.multVec({0, std::cos(angle), std::sin(angle)}));
        }
        return all;
    }
};

TEST_P(OutermostPoints, ReachAsFarAsThePart)
{
    const SoRef<SoSeparator> spiral = makeSpiral(GetParam());
    const std::vector<SbVec3f> found = findOutermostPoints(spiral.get(), spiral.get(), orientation);
    const std::vector<SbVec3f> corners = cornersOfSpiral(GetParam());
    const bool isExact = GetParam() == Few;
    for (const SbVec3f& direction : directions()) {
        const float reach = reachOf(corners, direction);
        const float tolerance = 1e-5F * std::abs(reach) + 1e-3F;
        EXPECT_GE(reachOf(found, direction), reach - tolerance);
        if (isExact) {
            EXPECT_LE(reachOf(found, direction), reach + tolerance);
        }
    }
}

TEST_P(OutermostPoints, ReachWhereverThePartStands)
{
    const SoRef<SoSeparator> spiral = makeSpiral(GetParam());
    const SoRef<SoSeparator> root = makePair(spiral.get());
    const std::vector<SbVec3f> found = findOutermostPoints(root.get(), spiral.get(), orientation);
    std::vector<SbVec3f> corners = cornersOfSpiral(GetParam());
    const std::size_t once = corners.size();
    for (std::size_t i = 0; i < once; ++i)
        corners.push_back(corners[i] + ElsewhereOffset);
    for (const SbVec3f& direction : directions()) {
        const float reach = reachOf(corners, direction);
        EXPECT_GE(reachOf(found, direction), reach - 1e-5F * std::abs(reach) - 1e-3F);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, OutermostPoints, testing::Values(Few, Many));

} // namespace
