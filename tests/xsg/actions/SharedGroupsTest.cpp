// SPDX-License-Identifier: MIT
// Short scenes that unfold to millions of nodes, as groups that share groups do.
#include "support/SharedLevels.h"
#include "xsg/errors/Collected.h"

#include <gtest/gtest.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/groups/SoInstances.h>

namespace
{

class SharedGroups : public testing::Test
{
protected:
    static constexpr int Levels = 22;
    static constexpr int Most = SoTraversal::MostRepeats + 1000;

    Collected<SoError> said;
    const std::vector<std::string>& sentences = said.texts;
};

class Counter : public SoTraversal
{
public:
    using SoTraversal::getNumVisited;
};

} // namespace

TEST_F(SharedGroups, HaveTheirBoxComputedOnce)
{
    SoBoundingBoxAction action;
    EXPECT_EQ(action.getBox(makeSharedLevels(Levels, true).get()),
              SbBox3f(-1, -1, -1, 3 * 255 + 1, 3 * 127 + 1, 3 * 127 + 1));
    EXPECT_LT(action.getNumVisited(), 100);
    EXPECT_TRUE(sentences.empty());
}

TEST_F(SharedGroups, AreFollowedUpToABoundAndThatIsSaidOnce)
{
    const auto root = makeSharedLevels(Levels, false);
    root->setName("folded");
    Counter counter;
    counter.traverse(root.get());
    EXPECT_TRUE(counter.isCut());
    EXPECT_GT(counter.getNumVisited(), SoTraversal::MostRepeats);
    EXPECT_LT(counter.getNumVisited(), Most);
    counter.traverse(root.get());
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_NE(sentences.front().find("“folded”"), std::string::npos) << sentences.front();
    EXPECT_NE(sentences.front().find("1048576"), std::string::npos) << sentences.front();
}

// What follows them is visited all the same.
TEST_F(SharedGroups, CutNothingButThemselves)
{
    const auto root = makeSharedLevels(Levels, false);
    const SoRef<SoCube> last(new SoCube);
    root->addChild(last.get());
    struct Last : SoTraversal {
        void visitShape(SoShape* shape) override { found = shape; }
        SoShape* found = nullptr;
    } walk;
    walk.traverse(root.get());
    EXPECT_EQ(walk.found, last.get());
}

TEST_F(SharedGroups, ArePickedWithinTheBound)
{
    SoRayPickAction action;
    EXPECT_TRUE(action.pick(makeSharedLevels(Levels, false).get(), {{0, 0, 5}, {0, 0, -1}}));
    EXPECT_LT(action.getNumVisited(), Most);
}

TEST_F(SharedGroups, AreSearchedOnceWhereNothingIsFound)
{
    SoSearchAction search;
    search.setName("nowhere");
    const auto root = makeSharedLevels(60, false);
    EXPECT_FALSE(search.find(root.get()));
    EXPECT_TRUE(sentences.empty());
    SoNode* cube = nullptr;
    search = {};
    search.setType(SoCube::getClassTypeId());
    cube = search.find(root.get());
    EXPECT_TRUE(cube);
    search.setLimit(100);
    EXPECT_EQ(search.apply(root.get()).size(), 100U);
    EXPECT_EQ(search.getPaths().back().getLength(), 63);
    EXPECT_EQ(search.getPaths().back().getTail(), cube);
}

TEST_F(SharedGroups, GiveEveryPlaceUpToTheBound)
{
    SoSearchAction search;
    search.setType(SoCube::getClassTypeId());
    search.setLimit(-1);
    EXPECT_EQ(search.apply(makeSharedLevels(12, false).get()).size(), 4096U);
    EXPECT_TRUE(sentences.empty());
    const std::size_t found = search.apply(makeSharedLevels(Levels, false).get()).size();
    EXPECT_GT(found, 100'000U);
    EXPECT_LT(found, static_cast<std::size_t>(Most));
    EXPECT_EQ(sentences.size(), 1U);
}

// A box of a part must not be taken for that of the whole later on.
TEST_F(SharedGroups, OfWhichOnlyAPartWasMeasuredAreNotRemembered)
{
    const auto root = makeSharedLevels<SoGroup>(Levels, true);
    SoBoundingBoxAction action;
    action.getBox(root.get());
    EXPECT_TRUE(action.isCut());
    xsg::GroupCache* cache = xsg::GroupCache::find(*root);
    EXPECT_FALSE(cache && cache->hasBox(*root, {}));
}

// However many there are: the bound is for what is met again.
TEST_F(SharedGroups, DoNotLimitScenesThatRepeatNothing)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    const SoRef<SoCube> cube(new SoCube);
    constexpr int Many = SoTraversal::MostRepeats + 10;
    for (int i = 0; i < Many; ++i)
        root->addChild(cube.get());
    Counter counter;
    counter.traverse(root.get());
    EXPECT_FALSE(counter.isCut());
    EXPECT_EQ(counter.getNumVisited(), Many + 1);
}

TEST_F(SharedGroups, OfInstancesThatMultiplySomeAreLeftOutAndThatIsSaidOnce)
{
    constexpr int Side = 1025; // one more than the root of the bound
    const SoRef<SoInstances> outer(new SoInstances);
    outer->matrices.setNum(Side);
    auto* inner = new SoInstances;
    outer->addChild(inner);
    inner->matrices.setNum(Side - 1);
    inner->addChild(new SoCube);
    Counter counter;
    counter.traverse(outer.get());
    counter.traverse(outer.get());
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_NE(sentences.front().find("1048576 copies"), std::string::npos) << sentences.front();
    inner->matrices.setNum(Side - 2);
    const SoRef<SoSeparator> other(new SoSeparator);
    other->addChild(outer.get());
    counter.traverse(other.get());
    EXPECT_EQ(sentences.size(), 1U);
}
