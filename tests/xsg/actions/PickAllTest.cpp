// SPDX-License-Identifier: MIT
// What a ray meets, all of it, and what is seen within a rectangle.
#include <gtest/gtest.h>

#include <algorithm>

#include <xsg/actions/SoAreaPickAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoLineSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

constexpr SbRay FromFront{{0, 0, 10}, {0, 0, -1}};

class Picking : public testing::Test
{
protected:
    Picking()
    {
        camera->position.setValue(0, 0, 10);
        camera->nearDistance.setValue(1);
        camera->farDistance.setValue(100);
    }
    // A shape in a group of its own.
    template <class Shape = SoCube>
    Shape* add(float x, float y = 0, float z = 0)
    {
        auto* group = new SoSeparator;
        auto* place = new SoTransform;
        place->translation.setValue(x, y, z);
        auto* shape = new Shape;
        group->addChild(place);
        group->addChild(shape);
        scene->addChild(group);
        return shape;
    }
    std::vector<SoNode*> met(const SbRay& ray = FromFront)
    {
        std::vector<SoNode*> nodes;
        for (const SoPickedPoint& point : action.pickAll(scene.get(), ray))
            nodes.push_back(point.path.getTail());
        return nodes;
    }
    std::vector<SoNode*> seen(const SoAreaPickAction::Area& within = {})
    {
        std::vector<SoNode*> nodes;
        const SbMatrix toPicture = camera->getViewMatrix() * camera->getProjectionMatrix(1);
        for (const SoPath& path : area.pick(scene.get(), toPicture, within, 200, 200)) {
            EXPECT_EQ(path.getHead(), scene.get());
            nodes.push_back(path.getTail());
        }
        return nodes;
    }

    using Nodes = std::vector<SoNode*>;
    SoRef<SoSeparator> scene{new SoSeparator};
    SoRef<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
    SoRayPickAction action;
    SoAreaPickAction area;
};

TEST_F(Picking, AllComesFromFrontToBackEachOnce)
{
    SoCube* back = add(0, 0, -6);
    SoSphere* front = add<SoSphere>(0, 0, 3);
    add(5);
    SoCube* middle = add(0);
    EXPECT_EQ(met(), (Nodes{front, middle, back}));
    EXPECT_EQ(action.pick(scene.get(), FromFront)->path.getTail(), front);
    EXPECT_EQ(met({{50, 0, 10}, {0, 0, -1}}), Nodes());
}

TEST_F(Picking, LeavesOutWhatAPlaneCutsAway)
{
    SoCube* back = add(0, 0, -6);
    add(0, 0, 3);
    const SbPlane plane({0, 0, -1}, 0); // what is behind z = 0 stays
    action.setClipPlane(&plane);
    EXPECT_EQ(met(), Nodes{back});
    action.setClipPlane(nullptr);
    EXPECT_EQ(met().size(), 2U);
}

TEST_F(Picking, AnAreaShowsWhatIsSeenInItAndNothingThatIsHidden)
{
    SoCube* left = add(-3);
    SoCube* right = add(3);
    SoCube* front = add(0);
    add<SoSphere>(0, 0, -4); // behind the cube
    EXPECT_EQ(seen(), (Nodes{left, right, front}));
    EXPECT_EQ(seen({0, 0, 0.3F, 1}), Nodes{left});
    EXPECT_EQ(seen({0.45F, 0.45F, 0.55F, 0.55F}), Nodes{front});
    EXPECT_EQ(seen({0, 0.9F, 1, 1}), Nodes());
    EXPECT_EQ(area.pick(nullptr, {}, {}, 10, 10).size(), 0U);
}

TEST_F(Picking, AnAreaTakesWhatOnlyCrossesIt)
{
    SoCube* wide = add(0);
    wide->width.setValue(40);
    EXPECT_EQ(seen({0.9F, 0.45F, 0.95F, 0.55F}), Nodes{wide});
}

// Its corners are behind the eye.
TEST_F(Picking, AnAreaSeesWhatReachesBehindTheEye)
{
    SoCube* floor = add(0, -2);
    floor->width.setValue(1000);
    floor->depth.setValue(1000);
    floor->height.setValue(1);
    EXPECT_EQ(seen({0.4F, 0.2F, 0.6F, 0.3F}), Nodes{floor});
    EXPECT_EQ(seen({0.4F, 0.7F, 0.6F, 0.8F}), Nodes());
}

TEST_F(Picking, AnAreaLeavesOutWhatIsCutAwayOrInvisible)
{
    SoCube* cube = add(0);
    SoSphere* behind = add<SoSphere>(0, 0, -4);
    const SbPlane plane({0, 0, -1}, 2);
    area.setClipPlane(&plane);
    EXPECT_EQ(seen(), Nodes{behind});
    area.setClipPlane(nullptr);
    EXPECT_EQ(seen(), Nodes{cube});
    auto* cut = new SoClipPlane;
    cut->plane.setValue(SbPlane({0, 0, -1}, 2));
    scene->insertChild(cut, 0);
    EXPECT_EQ(seen(), Nodes{behind});
    auto* style = new SoDrawStyle;
    style->style.setValue(SoDrawStyle::Invisible);
    scene->insertChild(style, 0);
    EXPECT_EQ(seen(), Nodes());
}

TEST_F(Picking, APartCoversWhatItWouldHideNothingAbove)
{
    SoSphere* behind = add<SoSphere>(0, 0, -4);
    add(0);
    const SbMatrix toPicture = camera->getViewMatrix() * camera->getProjectionMatrix(1);
    const auto covered = [&](const SoPath& part) {
        const std::vector<std::uint32_t> pixels = area.cover(part, toPicture, {}, 100, 100);
        return pixels.size() - static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), 0U));
    };
    SoPath all;
    all.append(scene.get());
    SoPath ball = all;
    ball.append(scene->getChild(0));
    const std::size_t wide = covered(ball);
    ball.append(behind);
    EXPECT_EQ(covered(ball), wide);
    EXPECT_NEAR(static_cast<double>(wide), 3.1416 * 8.7 * 8.7, 15); // as wide as 1 / 14 of cot(pi / 8)
    EXPECT_GT(covered(all), wide + 100);
    SoPath elsewhere = all;
    elsewhere.append(scene->getChild(1));
    elsewhere.append(behind); // stands in another group
    EXPECT_EQ(covered(elsewhere), 0U);
}

TEST_F(Picking, AnAreaSeesLines)
{
    auto* points = new SoPoints;
    const SbVec3f ends[] = {{-2000, 0, 0}, {2000, 0, 0}};
    points->points.setValues(0, 2, ends);
    auto* line = new SoLineSet;
    scene->addChild(points);
    scene->addChild(line);
    EXPECT_EQ(seen({0.2F, 0.4F, 0.3F, 0.6F}), Nodes{line});
    EXPECT_EQ(seen({0.2F, 0.7F, 0.3F, 0.8F}), Nodes());
}

} // namespace
