// SPDX-License-Identifier: MIT
// Walks along one path, and what a pick says of the part that it met.
#include <xsg/actions/SoPathTraversal.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoTriangleStripSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <gtest/gtest.h>

namespace
{

class Walk : public SoPathTraversal
{
public:
    explicit Walk(const SoPath& path)
        : SoPathTraversal(idsOf(path))
    {
    }
    void go(SoNode* root) { traverse(root); }
    int ends = 0;
    SbVec3f moved; // at the last end
    using SoPathTraversal::getNumVisited;

private:
    void visitShape(SoShape* shape) override
    {
        if (!isEnd(shape))
            return;
        ++ends;
        moved = state().modelMatrix.multPoint(SbVec3f());
    }
};

SoTransform* moveBy(float x)
{
    auto* transform = new SoTransform;
    transform->translation.setValue(x, 0, 0);
    return transform;
}

SoPath pathOf(std::initializer_list<SoNode*> nodes)
{
    SoPath path;
    for (SoNode* node : nodes)
        path.append(node);
    return path;
}

} // namespace

TEST(PathTraversal, CarriesTheStateAlongOnePathOnly)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    const SoRef<SoCube> cube(new SoCube);
    auto* first = new SoSeparator;
    auto* second = new SoSeparator;
    auto* plain = new SoGroup;
    plain->addChild(moveBy(1)); // a plain group's transform counts for what follows it
    first->addChild(moveBy(100));
    first->addChild(cube.get());
    second->addChild(moveBy(10));
    second->addChild(cube.get());
    for (SoNode* child : {static_cast<SoNode*>(plain), static_cast<SoNode*>(first),
                          static_cast<SoNode*>(second), static_cast<SoNode*>(new SoCube)})
        root->addChild(child);
    Walk walk(pathOf({root.get(), second, cube.get()}));
    walk.go(root.get());
    EXPECT_EQ(walk.ends, 1);
    EXPECT_EQ(walk.moved, SbVec3f(11, 0, 0));
    EXPECT_EQ(walk.getNumVisited(), 8) << "what is below the other separator is not looked at";

    second->removeAllChildren();
    walk.go(root.get());
    EXPECT_EQ(walk.ends, 1) << "a broken path leads nowhere";
}

TEST(PickedPart, NamesTheCornersOfTheTriangle)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* points = new SoPoints;
    const SbVec3f corners[] = {{9, 9, 9}, {-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}};
    points->points.setValues(0, 5, corners);
    auto* shape = new SoIndexedTriangleSet;
    const std::int32_t index[] = {1, 2, 77, 1, 2, 3, 1, 3, 4}; // the first names a missing point
    shape->index.setValues(0, 9, index);
    root->addChild(points);
    root->addChild(moveBy(5));
    root->addChild(shape);
    const auto hit = SoRayPickAction().pick(root.get(), {{4.5F, 0.5F, 3}, {0, 0, -1}});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->points.get(), points);
    EXPECT_EQ(hit->toWorld.multPoint(SbVec3f()), SbVec3f(5, 0, 0));
    const SoVertexShape::Part part = shape->findPart(points->points.getNum(), hit->part);
    EXPECT_EQ(part.points, (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(part.face, 2);
    EXPECT_TRUE(shape->findPart(points->points.getNum(), 2).points.empty());
    EXPECT_TRUE(shape->findPart(points->points.getNum(), -1).points.empty());
}
