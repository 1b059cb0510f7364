// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

namespace
{

constexpr int Deep = 100'000;

SoRef<SoSeparator> separator(std::initializer_list<SoNode*> children)
{
    SoRef<SoSeparator> group(new SoSeparator);
    for (SoNode* child : children)
        group->addChild(child);
    return group;
}

SoTransform* move(float x, float y = 0, float z = 0)
{
    auto* transform = new SoTransform;
    transform->translation.setValue(x, y, z);
    return transform;
}

SoRef<SoSeparator> bury(SoNode* node)
{
    SoRef<SoSeparator> root = separator({node});
    for (int i = 0; i < Deep; ++i)
        root = separator({root.get()});
    return root;
}

void expectBox(const SbBox3f& box, const SbBox3f& expected)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(box.getMin()[i], expected.getMin()[i], 1e-4F);
        EXPECT_NEAR(box.getMax()[i], expected.getMax()[i], 1e-4F);
    }
}

constexpr SbRay FromFront{{0, 0, 10}, {0, 0, -1}};

} // namespace

TEST(BoundingBox, NothingIsEmpty)
{
    EXPECT_TRUE(SoBoundingBoxAction().getBox(nullptr).isEmpty());
    EXPECT_TRUE(SoBoundingBoxAction().getBox(separator({move(1)}).get()).isEmpty());
}

TEST(BoundingBox, EnclosesTransformedShapes)
{
    const auto inner = separator({move(10), new SoSphere});
    const auto root = separator({inner.get(), new SoCube, move(0, 5), new SoCube});
    expectBox(SoBoundingBoxAction().getBox(root.get()), {-1, -1, -1, 11, 6, 1});
}

TEST(BoundingBox, OnlyPointsThatAreUsedCount)
{
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {99, 99, 99}});
    auto* shape = new SoIndexedTriangleSet;
    shape->index.setValues({0, 1, 2});
    expectBox(SoBoundingBoxAction().getBox(separator({points, shape}).get()), {0, 0, 0, 1, 1, 0});
}

TEST(BoundingBox, AChangeCostsOnlyTheNodesAboveIt)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    SoTransform* transform = nullptr;
    for (int i = 0; i < 100; ++i) {
        transform = move(static_cast<float>(i));
        root->addChild(separator({transform, new SoCube, new SoCube, new SoCube}).get());
    }
    SoBoundingBoxAction action;
    action.getBox(root.get());
    EXPECT_EQ(action.getNumVisited(), 501);
    transform->translation.setValue(200, 0, 0);
    expectBox(action.getBox(root.get()), {-1, -1, -1, 201, 1, 1});
    EXPECT_EQ(action.getNumVisited(), 6);
    action.getBox(root.get());
    EXPECT_EQ(action.getNumVisited(), 1);
}

TEST(BoundingBox, FollowsPointsThatComeFromOutside)
{
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    auto* shape = new SoIndexedTriangleSet;
    shape->index.setValues({0, 1, 2});
    const auto inner = separator({shape});
    const auto root = separator({points, inner.get()});
    SoBoundingBoxAction action;
    action.getBox(root.get());
    points->points.set1Value(1, {7, 0, 0});
    expectBox(action.getBox(root.get()), {0, 0, 0, 7, 1, 0});
    // The same subtree under other points.
    auto* others = new SoPoints;
    others->points.setValues({{0, 0, 0}, {3, 0, 0}, {0, 1, 0}});
    expectBox(action.getBox(separator({others, inner.get()}).get()), {0, 0, 0, 3, 1, 0});
    expectBox(action.getBox(root.get()), {0, 0, 0, 7, 1, 0});
}

TEST(BoundingBox, InvisibleShapesTakeNoPart)
{
    auto* style = new SoDrawStyle;
    style->style.setValue(SoDrawStyle::Invisible);
    EXPECT_TRUE(SoBoundingBoxAction().getBox(separator({style, new SoCube}).get()).isEmpty());
}

TEST(BoundingBox, AHundredThousandLevels)
{
    expectBox(SoBoundingBoxAction().getBox(bury(new SoCube).get()), {-1, -1, -1, 1, 1, 1});
}

TEST(RayPick, GivesTheNearestPointWithItsPath)
{
    auto* near = new SoSphere;
    const auto group = separator({move(0, 0, 3), near});
    const auto root = separator({new SoCube, group.get()});
    const auto picked = SoRayPickAction().pick(root.get(), FromFront);
    ASSERT_TRUE(picked);
    EXPECT_NEAR(picked->point[2], 4, 0.02F);
    EXPECT_NEAR(picked->distance, 6, 0.02F);
    EXPECT_NEAR(picked->normal[2], 1, 0.02F);
    ASSERT_EQ(picked->path.getLength(), 3);
    EXPECT_EQ(picked->path.getHead(), root.get());
    EXPECT_EQ(picked->path.getNode(1), group.get());
    EXPECT_EQ(picked->path.getTail(), near);
}

TEST(RayPick, MissesWhatIsBesideOrBehind)
{
    SoRayPickAction action;
    const auto root = separator({new SoCube});
    EXPECT_FALSE(action.pick(root.get(), {{3, 0, 10}, {0, 0, -1}}));
    EXPECT_FALSE(action.pick(root.get(), {{0, 0, 10}, {0, 0, 1}}));
    EXPECT_FALSE(action.pick(root.get(), {{0, 0, 10}, {0, 0, 0}}));
    EXPECT_FALSE(action.pick(nullptr, FromFront));
    EXPECT_TRUE(action.pick(root.get(), {{0.9F, 0.9F, 10}, {0, 0, -5}}));
}

TEST(RayPick, FollowsScaleAndRotation)
{
    auto* transform = new SoTransform;
    transform->scaleFactor.setValue(1, 1, 3);
    transform->rotation.setValue(SbRotation({0, 1, 0}, 1.5707964F));
    const auto root = separator({transform, new SoCube});
    const auto picked = SoRayPickAction().pick(root.get(), {{10, 0.5F, 0.5F}, {-1, 0, 0}});
    ASSERT_TRUE(picked);
    EXPECT_NEAR(picked->point[0], 3, 1e-4F);
    EXPECT_NEAR(picked->normal[0], 1, 1e-4F);
}

TEST(RayPick, FollowsChanges)
{
    auto* cube = new SoCube;
    const auto root = separator({cube});
    SoRayPickAction action;
    ASSERT_TRUE(action.pick(root.get(), FromFront));
    cube->depth.setValue(8);
    EXPECT_NEAR(action.pick(root.get(), FromFront)->point[2], 4, 1e-4F);
}

TEST(RayPick, MissesShapesUnderASingularTransform)
{
    auto* transform = new SoTransform;
    transform->scaleFactor.setValue(0, 0, 0);
    transform->translation.setValue(50, 0, 0);
    EXPECT_FALSE(SoRayPickAction().pick(separator({transform, new SoCube}).get(), FromFront));
}

TEST(RayPick, SkipsWhatTheRayDoesNotMeet)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < 100; ++i)
        root->addChild(separator({move(10 * static_cast<float>(i)), new SoCube}).get());
    SoRayPickAction action;
    EXPECT_TRUE(action.pick(root.get(), FromFront));
    EXPECT_EQ(action.getNumVisited(), 4);
}

TEST(RayPick, AHundredThousandLevels)
{
    const auto picked = SoRayPickAction().pick(bury(new SoCube).get(), FromFront);
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->path.getLength(), Deep + 2);
}

TEST(Search, ByNameTypeAndNode)
{
    auto* cube = new SoCube;
    cube->setName("box");
    auto* sphere = new SoSphere;
    const auto inner = separator({sphere, cube});
    const auto root = separator({inner.get(), cube});
    SoSearchAction byName;
    byName.setName("box");
    EXPECT_EQ(byName.find(root.get()), cube);
    SoSearchAction byType;
    byType.setType(SoShape::getClassTypeId());
    byType.setLimit(-1);
    EXPECT_EQ(byType.apply(root.get()).size(), 3U);
    byType.setType(SoShape::getClassTypeId(), false);
    EXPECT_EQ(byType.apply(root.get()).size(), 0U);
    SoSearchAction byNode;
    byNode.setNode(cube);
    byNode.setLimit(-1);
    const auto& paths = byNode.apply(root.get());
    ASSERT_EQ(paths.size(), 2U);
    EXPECT_EQ(paths[0].getLength(), 3);
    EXPECT_EQ(paths[0].getNode(1), inner.get());
    EXPECT_EQ(paths[1].getLength(), 2);
    EXPECT_TRUE(paths[0].contains(inner.get()));
    EXPECT_FALSE(paths[1].contains(inner.get()));
}

TEST(Search, AllCriteriaMustHoldAndNothingIsFoundInNothing)
{
    auto* cube = new SoCube;
    cube->setName("box");
    const auto root = separator({cube});
    SoSearchAction action;
    action.setName("box");
    action.setType(SoSphere::getClassTypeId());
    EXPECT_EQ(action.find(root.get()), nullptr);
    EXPECT_EQ(action.find(nullptr), nullptr);
}

// Forty groups, each holding the next one twice: two to the fortieth visits.
TEST(Traversal, EndsForASceneWithExponentiallyManyPaths)
{
    SoRef<SoGroup> root(new SoGroup);
    root->addChild(new SoCube);
    for (int i = 0; i < 40; ++i) {
        SoRef<SoGroup> above(new SoGroup);
        above->addChild(root.get());
        above->addChild(root.get());
        root = above;
    }
    EXPECT_FALSE(SoBoundingBoxAction().getBox(root.get()).isEmpty());
    SoSearchAction action;
    action.setType(SoSphere::getClassTypeId());
    EXPECT_EQ(action.find(root.get()), nullptr);
}

TEST(Search, AHundredThousandLevels)
{
    auto* cube = new SoCube;
    SoSearchAction action;
    action.setNode(cube);
    EXPECT_EQ(action.find(bury(cube).get()), cube);
    EXPECT_EQ(action.getPaths().front().getLength(), Deep + 2);
}
