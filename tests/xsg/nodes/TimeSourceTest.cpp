// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/base/SoInfo.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/groups/SoSeparator.h>

namespace
{

class Clock : public SoInfo, private SoTimeSource::Subscriber
{
public:
    Clock()
        : Subscriber(static_cast<const SoNode&>(*this))
    {
    }
    bool runs = true;
    double seconds = 0;

private:
    ~Clock() override = default;
    bool isMoving() const override { return runs; }
    void advance(SbTime elapsed) override { seconds += elapsed.getValue(); }
};

SoTimeSource& source()
{
    return SoTimeSource::getInstance();
}

} // namespace

TEST(TimeSource, MovesTheNodesBelowARootThatMove)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* group = new SoGroup;
    auto* clock = new Clock;
    root->addChild(group);
    group->addChild(clock);
    EXPECT_TRUE(source().isNeeded(root.get()));
    EXPECT_TRUE(source().isNeeded());
    EXPECT_TRUE(source().advance(1.5, root.get()));
    EXPECT_EQ(clock->seconds, 1.5);
    clock->runs = false;
    EXPECT_FALSE(source().isNeeded(root.get()));
    EXPECT_FALSE(source().advance(1.0, root.get()));
    EXPECT_EQ(clock->seconds, 1.5);
}

TEST(TimeSource, LeavesOtherScenesAlone)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    const SoRef<SoSeparator> other(new SoSeparator);
    auto* clock = new Clock;
    other->addChild(clock);
    EXPECT_FALSE(source().isNeeded(root.get()));
    EXPECT_FALSE(source().advance(1.0, root.get()));
    EXPECT_TRUE(source().advance(1.0, other.get()));
    EXPECT_EQ(clock->seconds, 1.0);
}

TEST(TimeSource, ANodeThatIsInNoSceneOrDestroyedNeedsNoTime)
{
    SoRef<Clock> clock(new Clock);
    EXPECT_FALSE(source().isNeeded());
    SoRef<SoSeparator> root(new SoSeparator);
    root->addChild(clock.get());
    EXPECT_TRUE(source().isNeeded());
    clock = nullptr;
    root = nullptr;
    EXPECT_FALSE(source().isNeeded());
    EXPECT_FALSE(source().advance(1.0));
}
