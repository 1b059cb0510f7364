// SPDX-License-Identifier: MIT
// The example on xsg, as a process of its own without a window.
#include "Probe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>

#include <unistd.h>

using namespace scopix::live;

namespace
{

class Running : public ::testing::Test
{
protected:
    explicit Running(const std::vector<std::string>& options = {"--no-window"})
        : program(commandOf(options))
    {
        EXPECT_EQ(probe.client.connect(program.socket()), "");
    }
    static std::vector<std::string> commandOf(std::vector<std::string> options)
    {
        options.insert(options.begin(), SCOPIX_MILL);
        return options;
    }
    NodeId child(NodeId parent, const std::string& nameOrType)
    {
        for (const NodeInfo& info : probe.children(parent))
            if (info.name == nameOrType || info.type == nameOrType)
                return info.id;
        return 0;
    }
    NodeId root() { return probe.roots().at(0).id; }

    OwnRuntimeFolder folder;
    OtherProgram program;
    Probe probe;
};

class MillProcess : public Running
{
};

// A value of the kind that differs from the given one, and stays as it is when a field takes it.
Value changed(Value value, std::mt19937& random)
{
    const auto number = [&random] { return static_cast<double>(random() % 1000) / 8; };
    const auto fill = [&](auto element, std::size_t count) {
        std::vector<decltype(element)> elements(count);
        for (auto& each : elements)
            each = static_cast<decltype(element)>(number());
        const auto* start = reinterpret_cast<const std::uint8_t*>(elements.data());
        value.bytes.assign(start, start + count * sizeof element);
    };
    switch (value.kind) {
    case ValueKind::Bool:
        value.bytes[0] ^= 1;
        break;
    case ValueKind::Float:
    case ValueKind::Vec3f:
        fill(0.0F, value.bytes.size() / 4);
        break;
    case ValueKind::Rotation:
    case ValueKind::Double:
        fill(0.0, value.bytes.size() / 8);
        break;
    case ValueKind::Int32:
        fill(std::int32_t(0), 1);
        break;
    case ValueKind::String:
        value = packedText("text " + std::to_string(random() % 100));
        break;
    default:
        break;
    }
    return value;
}

int steps()
{
    const char* text = std::getenv("SCOPIX_WALK_STEPS");
    return text ? std::atoi(text) : 2000;
}

} // namespace

TEST_F(MillProcess, ShowsItsNodesWithTypesAndNames)
{
    const std::vector<NodeInfo> roots = probe.roots();
    ASSERT_EQ(roots.size(), 1U);
    EXPECT_EQ(roots[0].type, "Separator");
    EXPECT_EQ(roots[0].name, "Mill");
    EXPECT_EQ(roots[0].childCount, 6U);
    const NodeId tower = child(roots[0].id, "Tower");
    const NodeId cylinder = child(tower, "Cylinder");
    EXPECT_EQ(unpacked<float>(probe.value(cylinder, "height").value_or(Value())), 4.0F);
    using Paths = std::vector<std::vector<NodeId>>;
    EXPECT_EQ(probe.ask<Paths>(&Client::pathsTo, cylinder, 10U), (Paths{{roots[0].id, tower, cylinder}}));
}

TEST_F(MillProcess, TellsOfWhatTheProgramMoves)
{
    const NodeId turn = child(child(root(), "Sails"), "Turn");
    probe.client.watch(turn, true);
    EXPECT_TRUE(probe.runUntil([&] { return probe.valueCount >= 3; }));
    EXPECT_EQ(probe.values.count({turn, "rotation"}), 1U);
    EXPECT_EQ(probe.values.size(), 1U) << "nothing else moves";
}

TEST_F(MillProcess, TellsAnotherInspectorOfAWriteAndNotTheWriter)
{
    Probe other;
    ASSERT_EQ(other.client.connect(program.socket()), "");
    const NodeId cylinder = child(child(root(), "Tower"), "Cylinder");
    other.roots();
    for (Probe* each : {&probe, &other})
        each->client.watch(cylinder, true);
    // The other one has to know the node before it can watch it: nodes are numbered for all.
    EXPECT_EQ(unpacked<float>(other.value(cylinder, "radius").value_or(Value())), 1.0F);
    EXPECT_TRUE(probe.write(cylinder, "radius", packed(ValueKind::Float, 2.0F)).taken);
    EXPECT_TRUE(other.runUntil([&] { return other.valueCount > 0; }));
    EXPECT_EQ(unpacked<float>(other.values.at({cylinder, "radius"})), 2.0F);
    for (int i = 0; i < 5; ++i)
        probe.value(cylinder, "radius");
    EXPECT_EQ(probe.valueCount, 0);
}

TEST_F(MillProcess, RefusesAWriteInASentence)
{
    const NodeId cylinder = child(child(root(), "Tower"), "Cylinder");
    const WriteResult wrongKind = probe.write(cylinder, "radius", packed(ValueKind::Double, 2.0));
    EXPECT_FALSE(wrongKind.taken);
    EXPECT_EQ(wrongKind.refusal, "“radius” cannot be set: the value is of another type.");
    EXPECT_EQ(unpacked<float>(wrongKind.value), 1.0F);
    const WriteResult noField = probe.write(cylinder, "no such field", packed(ValueKind::Float, 2.0F));
    EXPECT_FALSE(noField.taken);
    EXPECT_FALSE(probe.write(4711, "radius", packed(ValueKind::Float, 2.0F)).taken);
    const auto added = probe.ask<StructureResult>(&Client::add, root(), 0U, "Nonsense");
    for (const std::string& refusal : {wrongKind.refusal, noField.refusal, added.refusal})
        EXPECT_TRUE(isKnown(refusal)) << refusal;
}

TEST_F(MillProcess, TakesRandomEditsAndTheirUndoToTheLastBit)
{
    struct Property {
        NodeId node;
        std::string name;
        Value before;
    };
    std::vector<Property> properties;
    for (const char* name : {"Tower", "Roof", "Sails"})
        for (const NodeInfo& part : probe.children(child(root(), name)))
            if (part.name != "Turn")
                for (const PropertyInfo& info : probe.properties(part.id))
                    if (info.writable && !info.list)
                        properties.push_back(
                            {part.id, info.name, probe.value(part.id, info.name).value_or(Value())});
    ASSERT_GT(properties.size(), 20U);
    std::mt19937 random(4);
    for (int i = 0; i < steps(); ++i) {
        const Property& property = properties[random() % properties.size()];
        const Value value = changed(property.before, random);
        const WriteResult result = probe.write(property.node, property.name, value);
        ASSERT_TRUE(result.taken) << property.name << ": " << result.refusal;
        ASSERT_EQ(result.value.kind, value.kind);
    }
    for (const Property& property : properties)
        ASSERT_TRUE(probe.write(property.node, property.name, property.before).taken);
    for (const Property& property : properties)
        EXPECT_EQ(probe.value(property.node, property.name).value_or(Value()), property.before)
            << property.name;
}

TEST_F(MillProcess, ChangesItsStructureAndBack)
{
    const NodeId mill = root();
    const std::vector<NodeInfo> before = probe.children(mill);
    probe.client.watch(mill, false);
    const auto added = probe.ask<StructureResult>(&Client::add, mill, 1U, "Cone");
    ASSERT_TRUE(added.done) << added.refusal;
    EXPECT_EQ(probe.children(mill).at(1).type, "Cone");
    EXPECT_TRUE(probe.runUntil([&] { return !probe.childChanges.empty(); }));
    EXPECT_EQ(probe.childChanges.front(), mill);
    const auto removed = probe.ask<StructureResult>(&Client::remove, mill, 1U);
    ASSERT_TRUE(removed.done);
    EXPECT_EQ(removed.node, added.node);
    EXPECT_TRUE(probe.ask<StructureResult>(&Client::insert, mill, 0U, added.node).done);
    EXPECT_EQ(probe.children(mill).at(0).id, added.node);
    EXPECT_TRUE(probe.ask<StructureResult>(&Client::remove, mill, 0U).done);
    const std::vector<NodeInfo> after = probe.children(mill);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i)
        EXPECT_EQ(after[i].id, before[i].id);
    // Forgotten, it ends.
    probe.client.watch(added.node, true);
    probe.client.forget(added.node);
    EXPECT_TRUE(probe.runUntil([&] { return !probe.endedNodes.empty(); }));
    EXPECT_EQ(probe.endedNodes.front(), added.node);
    EXPECT_FALSE(probe.ask<StructureResult>(&Client::insert, mill, 0U, added.node).done);
    EXPECT_FALSE(probe.ask<StructureResult>(&Client::insert, child(mill, "Sails"), 0U, mill).done);
    EXPECT_FALSE(probe.ask<StructureResult>(&Client::add, mill, 0U, "NoSuchType").done);
}

TEST_F(MillProcess, PicksWhatIsSeen)
{
    const auto picked = probe.ask<PickResult>(&Client::pick, 0.5, 0.55);
    ASSERT_TRUE(picked.hit);
    ASSERT_GE(picked.path.size(), 2U);
    EXPECT_EQ(picked.path.front(), root());
    EXPECT_FALSE(probe.ask<PickResult>(&Client::pick, 0.01, 0.01).hit);
}

TEST_F(MillProcess, KnowsBoxesAndFindsNodes)
{
    const auto box = probe.ask<std::optional<Value>>(&Client::box, child(root(), "Tower"));
    ASSERT_TRUE(box);
    const std::vector<double> corners = unpackedList<double>(*box);
    ASSERT_EQ(corners.size(), 6U);
    EXPECT_NEAR(corners[0], -1, 1e-3);
    EXPECT_NEAR(corners[4], 2, 1e-3);
    using Paths = std::vector<std::vector<NodeId>>;
    const auto found = probe.ask<Paths>(&Client::find, "name:Roof", 10U);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].back(), child(root(), "Roof"));
}

TEST_F(MillProcess, ShowsItsPictureAndStopsWhenNobodyLooks)
{
    probe.client.showPictures(320, 200);
    ASSERT_TRUE(probe.runUntil([&] { return probe.pictures.size() >= 2; }));
    const Picture& picture = probe.pictures.front();
    EXPECT_LE(picture.width, 320U);
    EXPECT_LE(picture.height, 200U);
    EXPECT_EQ(picture.pixels.size(), std::size_t(4) * picture.width * picture.height);
    EXPECT_NE(std::count(picture.pixels.begin(), picture.pixels.end(), picture.pixels[0]),
              static_cast<std::ptrdiff_t>(picture.pixels.size()));
    probe.client.showPictures(0, 0);
    root();
    const std::size_t count = probe.pictures.size();
    for (int i = 0; i < 20; ++i)
        root();
    EXPECT_LE(probe.pictures.size(), count + 1);
}

TEST_F(MillProcess, LooksFromElsewhere)
{
    auto camera = probe.ask<std::optional<Camera>>(&Client::camera);
    ASSERT_TRUE(camera);
    EXPECT_EQ(camera->position[2], 12);
    camera->position[2] = 20;
    EXPECT_TRUE(probe.ask<bool>(&Client::lookFrom, *camera));
    EXPECT_EQ(probe.ask<std::optional<Camera>>(&Client::camera).value_or(Camera()).position[2], 20);
}

TEST_F(MillProcess, ShowsItsCounters)
{
    ASSERT_FALSE(probe.client.counters().empty());
    probe.client.showCounters(true);
    ASSERT_TRUE(probe.runUntil([&] { return !probe.counters.empty(); }));
    EXPECT_EQ(probe.counters.front().size(), probe.client.counters().size());
}

// Asks for all, again and again.
const ChildAct inspectWithoutEnd("inspectWithoutEnd", [](const ChildAct::Words& words) {
    Probe doomed;
    std::puts("begins");
    std::fflush(stdout);
    if (!doomed.client.connect(words[0]).empty())
        return false;
    doomed.client.showPictures(64, 48);
    doomed.client.showCounters(true);
    for (;;)
        for (const NodeInfo& info : doomed.children(doomed.roots().at(0).id))
            doomed.client.watch(info.id, true);
});

TEST_F(MillProcess, GoesOnWhenAnInspectorIsKilledAtAnyMoment)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        ChildProcess inspector(inspectWithoutEnd.command({program.socket()}));
        ASSERT_EQ(inspector.readLine(), "begins");
        const auto until = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 20000);
        while (std::chrono::steady_clock::now() < until)
            root();
        inspector.signal(SIGKILL);
        EXPECT_EQ(inspector.waitForEnd().signal, SIGKILL);
    }
    EXPECT_EQ(probe.roots().size(), 1U);
    EXPECT_TRUE(program.isRunning());
}

TEST_F(MillProcess, IsReportedAsGoneWhenItIsKilledAtAnyMoment)
{
    std::mt19937 random(9);
    for (int round = 0; round < 10; ++round) {
        OtherProgram doomed(commandOf({"--no-window"}));
        Probe inspector;
        ASSERT_EQ(inspector.client.connect(doomed.socket()), "");
        inspector.client.showPictures(64, 48);
        const std::size_t questions = random() % 50;
        for (std::size_t i = 0; i < questions; ++i)
            inspector.roots();
        inspector.client.roots({}); // is never answered
        doomed.signal(SIGKILL);
        inspector.runUntil([&] { return !inspector.end.empty(); });
        EXPECT_EQ(inspector.end, "The program “mill” has ended or was killed.");
        EXPECT_FALSE(inspector.client.isConnected());
        EXPECT_TRUE(inspector.roots().empty());
        EXPECT_EQ(inspector.write(1, "radius", packed(ValueKind::Float, 1.0F)).refusal,
                  "The edit cannot be made: the program is not attached.");
    }
    EXPECT_EQ(ownPrograms().size(), 1U) << "what the others left was cleared away";
}

TEST_F(MillProcess, SaysGoodbyeWhenItEnds)
{
    std::string problem = "not tried";
    // On a busy machine it may have ended before it is attached to.
    for (int frames = 50; !problem.empty() && frames < 100'000; frames *= 4) {
        OtherProgram ending(commandOf({"--no-window", "--frames", std::to_string(frames)}));
        Probe inspector;
        problem = inspector.client.connect(ending.socket());
        if (!problem.empty())
            continue;
        inspector.runUntil([&] { return !inspector.end.empty(); });
        EXPECT_EQ(inspector.end, "The program “mill” has ended its connection.");
        EXPECT_TRUE(ending.waitForEnd().isGood());
    }
    EXPECT_EQ(problem, "");
}

TEST_F(MillProcess, IsSaidToWaitWhileItIsStopped)
{
    EXPECT_EQ(probe.client.secondsWaiting(), 0);
    program.signal(SIGSTOP);
    probe.client.roots({});
    EXPECT_TRUE(probe.runUntil([&] { return probe.client.secondsWaiting() > 0.05; }));
    Probe second;
    EXPECT_EQ(second.client.connect(program.socket()),
              "Cannot attach to “" + program.socket() + "”: the program does not answer.");
    program.signal(SIGCONT);
    EXPECT_EQ(probe.roots().size(), 1U);
    EXPECT_EQ(probe.client.secondsWaiting(), 0);
}

namespace
{

class LargeProcess : public Running
{
protected:
    LargeProcess()
        : Running({"--no-window", "--stones", "330000"}) // of three nodes each
    {
    }
};

} // namespace

TEST_F(LargeProcess, TellsNoMoreOfItsNodesThanIsAskedFor)
{
    Probe inspector;
    ASSERT_EQ(inspector.client.connect(program.socket()), "");
    EXPECT_EQ(inspector.roots().size(), 1U);
    EXPECT_FALSE(inspector.children(inspector.roots().at(0).id).empty());
    const NodeId stones = child(root(), "Stones");
    EXPECT_EQ(probe.ask<std::optional<NodeInfo>>(&Client::node, stones).value_or(NodeInfo()).childCount,
              330001U);
    EXPECT_EQ(probe.children(stones).size(), Client::mostChildren);
}
