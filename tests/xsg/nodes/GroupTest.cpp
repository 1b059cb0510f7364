// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/sensors/SoNodeSensor.h>
#include <xsg/sensors/SoSensorQueue.h>

namespace
{

void count(void* data, SoSensor*)
{
    ++*static_cast<int*>(data);
}

} // namespace

TEST(Group, ASharedChildNotifiesEveryParentOnce)
{
    const SoRef<SoGroup> root(new SoGroup);
    auto* left = new SoSeparator;
    auto* right = new SoSeparator;
    auto* shared = new SoSeparator;
    root->addChild(left);
    root->addChild(right);
    left->addChild(shared);
    right->addChild(shared);
    int calls = 0;
    SoNodeSensor sensor(count, &calls);
    sensor.attach(root.get());
    const auto before = root->getChangeCount();
    shared->setName("shared");
    EXPECT_EQ(root->getChangeCount(), before + 1);
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(calls, 1);
}

TEST(Group, RefusesItsOwnAncestor)
{
    const SoRef<SoGroup> root(new SoGroup);
    auto* child = new SoGroup;
    root->addChild(child);
    EXPECT_FALSE(child->addChild(root.get()));
    EXPECT_FALSE(child->addChild(child));
    EXPECT_EQ(child->getNumChildren(), 0);
}

TEST(Group, AHundredThousandLevelsGoWithoutTheStack)
{
    auto* deepest = new SoSeparator;
    SoRef<SoGroup> root(deepest);
    for (int i = 0; i < 100'000; ++i) {
        auto* above = new SoSeparator;
        above->addChild(root.get());
        root = SoRef<SoGroup>(above);
    }
    const auto before = root->getChangeCount();
    deepest->setName("bottom");
    EXPECT_EQ(root->getChangeCount(), before + 1);
    root = nullptr;
}
