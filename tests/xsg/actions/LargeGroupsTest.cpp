// SPDX-License-Identifier: MIT
// Groups with many children are not walked as a whole after a change: whatever happens to them, boxes and
// picks have to be those of a walk that remembers nothing.
#include <gtest/gtest.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/groups/SoLevelOfDetail.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <random>

namespace
{

constexpr SbRay Down(float x, float y)
{
    return {{x, y, 100}, {0, 0, -1}};
}

class LargeGroup : public testing::Test
{
protected:
    static constexpr int Many = 200;

    LargeGroup()
    {
        for (int i = 0; i < Many; ++i)
            root->addChild(makeCube(static_cast<float>(3 * i)));
    }
    static SoSeparator* makeCube(float x)
    {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(x, 0, 0);
        group->addChild(transform);
        group->addChild(new SoCube);
        return group;
    }
    static SoTransform& transformIn(SoNode* group)
    {
        return *static_cast<SoTransform*>(group->asGroup()->getChild(0));
    }

    static void forget(SoNode* node)
    {
        SoGroup* group = node->asGroup();
        if (!group)
            return;
        group->setExtension(nullptr);
        for (SoNode* child : group->getChildren())
            forget(child);
    }
    void expectAsAfresh(const std::string& after)
    {
        const SbBox3f box = SoBoundingBoxAction().getBox(root.get());
        std::vector<SoNode*> picked;
        const auto pickAll = [&] {
            std::vector<SoNode*> found;
            for (int i = 0; i < Many; i += 7) {
                const auto hit = action.pick(root.get(), Down(static_cast<float>(3 * i), 0));
                found.push_back(hit ? hit->path.getTail() : nullptr);
            }
            return found;
        };
        const std::vector<SoNode*> found = pickAll();
        forget(root.get());
        const SbBox3f afresh = SoBoundingBoxAction().getBox(root.get());
        EXPECT_EQ(box, afresh) << after;
        forget(root.get());
        EXPECT_EQ(found, pickAll()) << after;
    }

    SoRef<SoSeparator> root{new SoSeparator};
    SoRayPickAction action;
};

} // namespace

TEST_F(LargeGroup, AChangeCostsWhatChanged)
{
    SoBoundingBoxAction box;
    box.getBox(root.get());
    transformIn(root->getChild(7)).translation.setValue(0, 500, 0);
    EXPECT_EQ(box.getBox(root.get()).getMax()[1], 501);
    EXPECT_EQ(box.getNumVisited(), 4);
    transformIn(root->getChild(7)).translation.setValue(21, 0, 0);
    EXPECT_EQ(box.getBox(root.get()).getMax()[1], 1);
    EXPECT_TRUE(action.pick(root.get(), Down(3 * 150, 0)));
    EXPECT_EQ(action.getNumVisited(), 4);
}

// So large that there are runs of runs of children.
TEST_F(LargeGroup, OfThousandsIsLookedAtWhereItChanged)
{
    for (int i = Many; i < 5000; ++i)
        root->addChild(makeCube(static_cast<float>(3 * i)));
    SoBoundingBoxAction box;
    box.getBox(root.get());
    for (const int place : {4999, 4100, 0}) {
        transformIn(root->getChild(place)).translation.setValue(static_cast<float>(3 * place), 500, 0);
        EXPECT_EQ(box.getBox(root.get()).getMax()[1], 501);
        EXPECT_EQ(box.getNumVisited(), 4);
        EXPECT_TRUE(action.pick(root.get(), Down(static_cast<float>(3 * place), 500)));
        EXPECT_EQ(action.getNumVisited(), 4);
        EXPECT_FALSE(action.pick(root.get(), Down(static_cast<float>(3 * place), 0)));
        transformIn(root->getChild(place)).translation.setValue(static_cast<float>(3 * place), 0, 0);
        EXPECT_EQ(box.getBox(root.get()).getMax()[1], 1);
    }
    root->removeChild(4999);
    EXPECT_EQ(box.getBox(root.get()).getMax()[0], 3 * 4998 + 1);
    root->addChild(makeCube(20000));
    EXPECT_EQ(box.getBox(root.get()).getMax()[0], 20001);
}

TEST_F(LargeGroup, RemembersRepeatedChangesOnce)
{
    SoBoundingBoxAction box;
    box.getBox(root.get());
    for (int i = 0; i < 100; ++i)
        transformIn(root->getChild(i % 3)).translation.setValue(0, static_cast<float>(i), 0);
    box.getBox(root.get());
    EXPECT_EQ(box.getNumVisited(), 10);
}

TEST_F(LargeGroup, HandlesMoreChangesThanItRemembers)
{
    SoBoundingBoxAction box;
    for (const int changes : {15, 16, 17, 18, 40}) {
        box.getBox(root.get());
        for (int i = 0; i < changes; ++i)
            transformIn(root->getChild(i)).translation.setValue(0, static_cast<float>(changes + i), 0);
        const float top = box.getBox(root.get()).getMax()[1];
        EXPECT_EQ(top, static_cast<float>(changes + changes));
    }
    expectAsAfresh("many changes");
}

TEST_F(LargeGroup, ANodeInSeveralPlacesChangesAllOfThem)
{
    SoRef<SoSeparator> shared(makeCube(0));
    for (const int place : {5, 50, 150})
        root->insertChild(shared.get(), place);
    auto* shape = static_cast<SoCube*>(shared->getChild(1));
    SoRef<SoSeparator> other(makeCube(900));
    other->addChild(shape);
    root->addChild(other.get());
    expectAsAfresh("sharing");
    shape->height.setValue(50);
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax()[1], 25);
    shape->height.setValue(2);
    shape->width.setValue(60);
    expectAsAfresh("a change to the shared one");
}

TEST_F(LargeGroup, AMoveBesideTheChildrenMovesThoseAfterIt)
{
    auto* transform = new SoTransform;
    root->insertChild(transform, 100);
    expectAsAfresh("a transform came");
    transform->translation.setValue(0, 40, 0);
    expectAsAfresh("it moved");
    root->removeChild(100);
    expectAsAfresh("it went");
}

TEST_F(LargeGroup, AChildAfterAMoveChangesWithinIt)
{
    auto* move = new SoTransform;
    move->translation.setValue(0, 100, 0);
    root->insertChild(move, 5);
    SoBoundingBoxAction box;
    EXPECT_EQ(box.getBox(root.get()).getMax()[1], 101);
    transformIn(root->getChild(150)).translation.setValue(0, 500, 0);
    EXPECT_EQ(box.getBox(root.get()).getMax()[1], 601);
    EXPECT_EQ(box.getNumVisited(), 5);
    transformIn(root->getChild(4)).translation.setValue(0, 800, 0);
    EXPECT_EQ(box.getBox(root.get()).getMax()[1], 801);
}

TEST_F(LargeGroup, ThatIsNoLongerLargeIsWalkedAgain)
{
    expectAsAfresh("start");
    while (root->getNumChildren() > xsg::GroupCache::ManyChildren - 2) {
        root->removeChild(0);
        if (root->getNumChildren() < xsg::GroupCache::ManyChildren + 2)
            expectAsAfresh("fewer");
    }
}

TEST_F(LargeGroup, WhatComesFromOutsideCounts)
{
    SoRef<SoSeparator> inner = root;
    auto* style = new SoDrawStyle;
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {0, 70, 0}});
    auto* user = new SoSeparator;
    auto* dots = new SoIndexedPointSet;
    dots->index.setValues({0, 1});
    user->addChild(dots);
    inner->addChild(user);
    root = SoRef<SoSeparator>(new SoSeparator);
    for (SoNode* node : std::initializer_list<SoNode*>{style, points, inner.get()})
        root->addChild(node);
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax()[1], 70);
    points->points.set1Value(1, {0, 90, 0});
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax()[1], 90);
    style->style.setValue(SoDrawStyle::Invisible);
    EXPECT_TRUE(SoBoundingBoxAction().getBox(root.get()).isEmpty());
    EXPECT_FALSE(action.pick(root.get(), Down(0, 0)));
    style->style.setValue(SoDrawStyle::Filled);
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax()[1], 90);
    EXPECT_TRUE(action.pick(root.get(), Down(0, 0)));
}

TEST_F(LargeGroup, WithLevelsOfDetailIsPickedByTheChosenLevel)
{
    SoRef<SoLevelOfDetail> levels(new SoLevelOfDetail);
    levels->distances.setValues({50.0F});
    for (int i = 0; i < Many; ++i)
        levels->addChild(makeCube(i == 1 ? 500.0F : 0.0F));
    EXPECT_FALSE(action.pick(levels.get(), Down(0, 0))); // the second level, which stands elsewhere
    EXPECT_TRUE(action.pick(levels.get(), {{0, 0, 20}, {0, 0, -1}}));
}

TEST_F(LargeGroup, AnySequenceOfEditsGivesWhatAFullTraversalGives)
{
    std::mt19937 random(20);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int round = 0; round < 40; ++round) {
        std::string done;
        for (int edits = below(round % 10 == 0 ? 30 : 4); edits >= 0; --edits) {
            const int place = below(root->getNumChildren());
            SoNode* child = root->getChild(place);
            const int what = below(8);
            done += std::to_string(what) + '@' + std::to_string(place) + ' ';
            if (what == 0)
                root->insertChild(makeCube(static_cast<float>(below(600))), place);
            else if (what == 1 && root->getNumChildren() > 100)
                root->removeChild(place);
            else if (what == 2)
                root->insertChild(new SoSphere, place);
            else if (what == 3)
                root->insertChild(new SoTransform, place);
            else if (what == 4)
                root->addChild(child);
            else if (auto* transform = dynamic_cast<SoTransform*>(child))
                transform->translation.setValue(static_cast<float>(below(5)), 0, 0);
            else if (child->asGroup())
                transformIn(child).translation.setValue(static_cast<float>(below(600)), 0,
                                                        static_cast<float>(below(9)));
        }
        expectAsAfresh(done);
    }
}
