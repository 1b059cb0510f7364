// SPDX-License-Identifier: MIT
// What was remembered about a node is never taken for another one's: not after it was destroyed, and not
// where the next node has its address and as many changes.
#include <gtest/gtest.h>

#include <support/AtOneAddress.h>
#include <xsg/actions/GroupCache.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

using Separator = AtOneAddress<SoSeparator>;
using Points = AtOneAddress<SoPoints>;

constexpr int Many = 2 * xsg::GroupCache::ManyChildren;

SoCube* makeCube(float height)
{
    auto* cube = new SoCube;
    cube->height.setValue(height);
    return cube;
}

float topOf(SoNode* root)
{
    return SoBoundingBoxAction().getBox(root).getMax()[1];
}

bool isPicked(SoRayPickAction& action, SoNode* root, float y)
{
    return action.pick(root, {{0, y, 100}, {0, 0, -1}}).has_value();
}

// Counts how many live.
class CountedExtension : public SoGroupExtension
{
public:
    explicit CountedExtension(int& living)
        : m_living(living)
    {
        ++m_living;
    }
    ~CountedExtension() override { --m_living; }
    void noteChange(const SoNode* child, std::uint32_t changeCount) override
    {
        lastChild = child;
        lastCount = changeCount;
    }
    const SoNode* lastChild = nullptr;
    std::uint32_t lastCount = 0;

private:
    int& m_living;
};

} // namespace

TEST(GroupExtension, LivesAsLongAsItsGroupAndIsNotifiedOfItsChanges)
{
    int living = 0;
    SoRef<SoGroup> group(new SoGroup);
    SoRef<SoGroup> child(new SoGroup);
    auto* cube = makeCube(1);
    group->addChild(child.get());
    group->setExtension(std::make_unique<CountedExtension>(living));
    const auto* extension = static_cast<CountedExtension*>(group->getExtension());
    child->addChild(cube);
    EXPECT_EQ(extension->lastChild, child.get());
    EXPECT_EQ(extension->lastCount, group->getChangeCount());
    cube->height.setValue(7);
    EXPECT_EQ(extension->lastChild, child.get());
    EXPECT_EQ(extension->lastCount, group->getChangeCount());
    group->removeChild(0);
    EXPECT_EQ(extension->lastChild, nullptr);
    EXPECT_EQ(extension->lastCount, group->getChangeCount());
    child->removeAllChildren(); // no longer its business
    EXPECT_EQ(extension->lastCount, group->getChangeCount());
    group->setExtension(std::make_unique<CountedExtension>(living));
    EXPECT_EQ(living, 1);
    group = nullptr;
    EXPECT_EQ(living, 0);
}

TEST(DestroyedNodes, ASeparatorAtTheSameAddressHasItsOwnBox)
{
    SoRayPickAction action;
    const auto make = [](float height) {
        SoRef<SoSeparator> separator(new Separator);
        separator->addChild(makeCube(height));
        return separator;
    };
    SoRef<SoSeparator> separator = make(2);
    const SoNode* address = separator.get();
    const std::uint32_t count = separator->getChangeCount();
    EXPECT_EQ(topOf(separator.get()), 1);
    EXPECT_FALSE(isPicked(action, separator.get(), 3));
    separator = nullptr;
    separator = make(10);
    ASSERT_EQ(separator.get(), address);
    ASSERT_EQ(separator->getChangeCount(), count);
    EXPECT_EQ(topOf(separator.get()), 5);
    EXPECT_TRUE(isPicked(action, separator.get(), 3));
}

TEST(DestroyedNodes, ALargeGroupAtTheSameAddressKnowsItsOwnChildren)
{
    SoRayPickAction action;
    std::vector<SoCube*> cubes;
    const auto make = [&](float height) {
        SoRef<SoSeparator> large(new Separator);
        cubes.clear();
        for (int i = 0; i < Many; ++i) {
            auto* child = new SoSeparator;
            child->addChild(cubes.emplace_back(makeCube(height)));
            large->addChild(child);
        }
        return large;
    };
    SoRef<SoSeparator> large = make(2);
    EXPECT_EQ(topOf(large.get()), 1);
    cubes[70]->height.setValue(4);
    EXPECT_EQ(topOf(large.get()), 2);
    EXPECT_FALSE(isPicked(action, large.get(), 3));
    large = nullptr;
    large = make(10);
    cubes[7]->height.setValue(9); // as many changes as the one before
    EXPECT_EQ(topOf(large.get()), 5);
    EXPECT_TRUE(isPicked(action, large.get(), 3));
    cubes[70]->height.setValue(20);
    EXPECT_EQ(topOf(large.get()), 10);
}

TEST(DestroyedNodes, AChildAtTheSameAddressIsFoundWhereItStands)
{
    const SoRef<SoSeparator> large(new SoSeparator);
    for (int i = 0; i < Many; ++i) {
        auto* child = new SoSeparator;
        child->addChild(makeCube(1));
        large->addChild(child);
    }
    SoBoundingBoxAction box;
    SoRayPickAction action;
    for (const int place : {10, 100, 55}) {
        auto* cube = makeCube(1);
        auto* child = new Separator;
        child->addChild(cube);
        large->insertChild(child, place);
        box.getBox(large.get());
        cube->height.setValue(6);
        EXPECT_EQ(box.getBox(large.get()).getMax()[1], 3) << place;
        EXPECT_EQ(box.getNumVisited(), 3) << place;
        EXPECT_TRUE(isPicked(action, large.get(), 2)) << place;
        large->removeChild(place);
        EXPECT_EQ(box.getBox(large.get()).getMax()[1], 0.5F) << place;
        EXPECT_FALSE(isPicked(action, large.get(), 2)) << place;
    }
}

TEST(DestroyedNodes, AChildThatIsRemovedAndChangesElsewhereIsNoneOfTheGroups)
{
    const SoRef<SoSeparator> large(new SoSeparator);
    auto* cube = makeCube(4);
    const SoRef<SoSeparator> child(new SoSeparator);
    child->addChild(cube);
    for (int i = 0; i < Many; ++i)
        large->addChild(i == 60 ? child.get() : new SoSeparator);
    EXPECT_EQ(topOf(large.get()), 2);
    cube->height.setValue(6);
    EXPECT_EQ(topOf(large.get()), 3);
    large->removeChild(60);
    cube->height.setValue(8);
    EXPECT_TRUE(SoBoundingBoxAction().getBox(large.get()).isEmpty());
    large->insertChild(child.get(), 3);
    EXPECT_EQ(topOf(large.get()), 4);
    cube->height.setValue(10);
    EXPECT_EQ(topOf(large.get()), 5);
}

// The separator that remembers its box takes its points from before it.
TEST(DestroyedNodes, PointsAtTheSameAddressGiveAnotherBoxAndShape)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* user = new SoSeparator;
    auto* shape = new SoIndexedTriangleSet;
    shape->index.setValues({0, 1, 2});
    user->addChild(shape);
    root->addChild(user);
    SoRayPickAction action;
    const auto usePoints = [&](float top) {
        SoPoints* points = new Points;
        points->points.setValues({{-1, 0, 0}, {1, 0, 0}, {0, top, 0}});
        root->insertChild(points, 0);
        return points->getChangeCount();
    };
    const std::uint32_t count = usePoints(1);
    EXPECT_EQ(topOf(root.get()), 1);
    EXPECT_FALSE(isPicked(action, root.get(), 4));
    EXPECT_TRUE(isPicked(action, root.get(), 0.5F));
    root->removeChild(0);
    ASSERT_EQ(usePoints(9), count);
    EXPECT_EQ(topOf(root.get()), 9);
    EXPECT_TRUE(isPicked(action, root.get(), 4));
}
