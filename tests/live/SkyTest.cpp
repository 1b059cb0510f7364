// SPDX-License-Identifier: MIT
// The example of an adapter, as a process of its own.
#include "Probe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

using namespace scopix::live;

namespace
{

NodeId childNamed(Probe& probe, NodeId parent, const std::string& name)
{
    for (const NodeInfo& child : probe.children(parent))
        if (child.name == name)
            return child.id;
    return 0;
}

class Sky : public ::testing::Test
{
protected:
    Sky() { EXPECT_EQ(probe.client.connect(program.socket()), ""); }

    OwnRuntimeFolder folder;
    OtherProgram program{{SCOPIX_SKY}};
    Probe probe;
};

} // namespace

TEST_F(Sky, IsListedUnderItsName)
{
    const std::vector<Program> programs = ownPrograms();
    ASSERT_EQ(programs.size(), 1U);
    EXPECT_EQ(programs[0].name, "sky");
    EXPECT_EQ(programs[0].sceneGraph, "Sky 1.0");
    EXPECT_EQ(programs[0].pid, program.pid());
    EXPECT_EQ(programs[0].socketPath, program.socket());
}

TEST_F(Sky, ShowsItsNodesAndTheirProperties)
{
    const std::vector<NodeInfo> roots = probe.roots();
    ASSERT_EQ(roots.size(), 1U);
    EXPECT_EQ(roots[0].name, "Sun");
    EXPECT_EQ(roots[0].childCount, 3U);
    const NodeId earth = childNamed(probe, roots[0].id, "Earth");
    const std::vector<PropertyInfo> properties = probe.properties(earth);
    ASSERT_EQ(properties.size(), 2U);
    EXPECT_EQ(properties[0].name, "radius");
    EXPECT_EQ(properties[0].least, 0.1);
    EXPECT_TRUE(properties[0].writable);
    EXPECT_EQ(properties[1].meaning, Meaning::Angle);
    const NodeId moon = childNamed(probe, earth, "Moon");
    EXPECT_EQ(unpacked<float>(probe.value(moon, "radius").value_or(Value())), 0.5F);
    using Paths = std::vector<std::vector<NodeId>>;
    EXPECT_EQ(probe.ask<Paths>(&Client::pathsTo, moon, 10U), (Paths{{roots[0].id, earth, moon}}));
    EXPECT_FALSE(probe.value(4711, "radius"));
}

TEST_F(Sky, TakesAWriteAndSaysHowItWasTaken)
{
    const NodeId sun = probe.roots().at(0).id;
    const WriteResult taken = probe.write(sun, "radius", packed(ValueKind::Float, 7.5F));
    EXPECT_TRUE(taken.taken);
    EXPECT_EQ(unpacked<float>(probe.value(sun, "radius").value_or(Value())), 7.5F);
    const WriteResult clamped = probe.write(sun, "radius", packed(ValueKind::Float, -3.0F));
    EXPECT_TRUE(clamped.taken);
    EXPECT_EQ(unpacked<float>(clamped.value), 0.1F);
    const WriteResult refused = probe.write(sun, "angle", packed(ValueKind::Double, 1.0));
    EXPECT_FALSE(refused.taken);
    EXPECT_NE(refused.refusal, "");
}

TEST_F(Sky, TellsOfWhatMovesByItself)
{
    const NodeId earth = childNamed(probe, probe.roots().at(0).id, "Earth");
    probe.client.watch(earth, true);
    EXPECT_TRUE(probe.runUntil([&] { return probe.valueCount >= 3; }));
    EXPECT_EQ(probe.values.size(), 1U);
    probe.client.unwatch(earth);
    probe.roots(); // was heard
    const int count = probe.valueCount;
    probe.roots();
    EXPECT_EQ(probe.valueCount, count);
}

TEST_F(Sky, IsSaidToHaveEndedWhenItIsKilled)
{
    program.signal(SIGKILL);
    probe.runUntil([&] { return !probe.end.empty(); });
    EXPECT_EQ(probe.end, "The program “sky” has ended or was killed.");
    EXPECT_TRUE(ownPrograms().empty());
}
