// SPDX-License-Identifier: MIT
// Debian's osgviewer, unmodified, as an inspector sees it.
#include <gtest/gtest.h>

#include "OsgProgram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <random>

using namespace scopix::live;

namespace
{

/// Red, green and blue of the square in the next picture.
std::array<int, 3> colorOfSquare(Probe& probe)
{
    probe.pictures.clear();
    probe.runUntil(
        [&] { return probe.pictures.size() >= 3; }); // the first ones may have been asked for before
    if (probe.pictures.empty())
        return {-1, -1, -1};
    const Picture& picture = probe.pictures.back();
    const std::size_t at =
        (std::size_t(picture.height * 5 / 8) * picture.width + picture.width * 15 / 32) * 4;
    return {picture.pixels[at], picture.pixels[at + 1], picture.pixels[at + 2]};
}

/// A program that has drawn knows what it draws with, as the sizes of textures.
void waitUntilDrawn(Probe& probe)
{
    probe.client.showPictures(16, 16);
    EXPECT_TRUE(probe.runUntil([&] { return !probe.pictures.empty(); })) << probe.end;
    probe.client.showPictures(0, 0);
}

/// Makes the program itself let go of a picture.
const char* const letsGo = "UnRefImageDataAfterApply";

unsigned walkSteps()
{
    const char* steps = std::getenv("SCOPIX_WALK_STEPS");
    return steps ? unsigned(std::atoi(steps)) : 2000;
}

unsigned walkSeed()
{
    const char* seed = std::getenv("SCOPIX_WALK_SEED");
    return seed ? unsigned(std::atoi(seed)) : 1;
}

class OsgViewer : public OsgTest
{
protected:
    OsgViewer() { attach(*viewer); }

    std::unique_ptr<OsgProgram> viewer = OsgProgram::viewer("OSG_THREADING=SingleThreaded");
};

} // namespace

TEST_F(OsgViewer, ShowsTheSceneBelowItsCamera)
{
    EXPECT_EQ(probe.client.program().sceneGraph, "OpenSceneGraph 3.6.5");
    const std::vector<NodeInfo> roots = probe.roots();
    ASSERT_EQ(roots.size(), 1U);
    EXPECT_EQ(roots[0].type, "osg::Camera");
    const NodeId world = nodeNamed(probe, "world");
    ASSERT_NE(world, 0U);
    std::vector<std::string> types;
    for (const NodeInfo& child : probe.children(world))
        types.push_back(child.type);
    EXPECT_EQ(types, (std::vector<std::string>{"osg::MatrixTransform", "osg::PositionAttitudeTransform",
                                               "osg::Switch", "osg::LOD", "osg::Sequence", "osg::LightSource",
                                               "osgText::Text"}));
    const auto paths =
        probe.ask<std::vector<std::vector<NodeId>>>(&Client::pathsTo, nodeNamed(probe, "ball"), 5U);
    ASSERT_EQ(paths.size(), 1U);
    EXPECT_EQ(paths[0].front(), roots[0].id);
    EXPECT_EQ(paths[0].back(), nodeNamed(probe, "ball"));
}

TEST_F(OsgViewer, TellsTheTypesOfProperties)
{
    std::map<std::string, PropertyInfo> all;
    for (const char* name : {"mover", "poser", "square", "chooser", "levels", "words"})
        for (const PropertyInfo& property : probe.properties(nodeNamed(probe, name)))
            all[property.name] = property;
    EXPECT_EQ(all["Matrix"].kind, ValueKind::Matrix);
    EXPECT_EQ(all["Attitude"].kind, ValueKind::Rotation);
    EXPECT_EQ(all["Position"].kind, ValueKind::Vec3f); // of the text
    EXPECT_EQ(all["Name"].kind, ValueKind::String);
    EXPECT_EQ(all["NodeMask"].meaning, Meaning::Mask);
    EXPECT_EQ(all["DataVariance"].meaning, Meaning::Enumeration);
    EXPECT_EQ(all["DataVariance"].names.size(), 3U);
    EXPECT_EQ(all["StateSet"].kind, ValueKind::Object);
    EXPECT_EQ(all["Text"].kind, ValueKind::String);
    EXPECT_TRUE(all["Shown children"].list);
    EXPECT_EQ(all["Greatest ranges"].kind, ValueKind::Float);
    EXPECT_EQ(all["PrimitiveSetList"].kind, ValueKind::Object);
    EXPECT_TRUE(all["PrimitiveSetList"].list);
    EXPECT_EQ(all.count("Children"), 0U);
}

TEST_F(OsgViewer, EditsEveryPropertyAndTakesAllBack)
{
    waitUntilDrawn(probe);
    const NodeId world = nodeNamed(probe, "world");
    const Snapshot before = snapshotOf(probe, world);
    EXPECT_GT(before.size(), 400U);
    std::vector<std::pair<std::pair<NodeId, std::string>, Value>> done;
    std::set<ValueKind> kinds;
    for (const auto& [place, value] : before) {
        const auto infos = probe.properties(place.first);
        const auto info =
            std::find_if(infos.begin(), infos.end(), [&](const auto& i) { return i.name == place.second; });
        const Value other = info == infos.end() ? value : changed(*info, value, 1);
        if (info == infos.end() || !info->writable || info->name == letsGo || other == value ||
            value.kind == ValueKind::None)
            continue;
        const std::optional<Value> present = probe.value(place.first, place.second);
        const WriteResult result = probe.write(place.first, place.second, other);
        if (result.taken) {
            kinds.insert(value.kind);
            done.push_back({place, present.value_or(value)});
        } else {
            EXPECT_TRUE(isKnown(result.refusal)) << place.second << ": " << result.refusal;
        }
    }
    EXPECT_GT(done.size(), 250U);
    for (ValueKind kind :
         {ValueKind::Bool, ValueKind::Int32, ValueKind::UInt32, ValueKind::Float, ValueKind::Double,
          ValueKind::Vec2f, ValueKind::Vec3f, ValueKind::Vec3d, ValueKind::Rotation, ValueKind::Matrix,
          ValueKind::Color, ValueKind::String, ValueKind::Image, ValueKind::Object, ValueKind::UShort})
        EXPECT_EQ(kinds.count(kind), 1U) << int(kind);
    EXPECT_NE(snapshotOf(probe, world), before);
    for (auto step = done.rbegin(); step != done.rend(); ++step)
        EXPECT_TRUE(probe.write(step->first.first, step->first.second, step->second).taken)
            << step->first.second;
    const Snapshot after = snapshotOf(probe, world);
    for (const auto& [place, value] : before) {
        const auto now = after.find(place);
        ASSERT_NE(now, after.end()) << place.second;
        EXPECT_EQ(now->second, value) << place.second << " of " << place.first;
    }
    EXPECT_EQ(after.size(), before.size());
    EXPECT_TRUE(viewer->process().isRunning());
}

TEST_F(OsgViewer, ShowsWhatWasEditedInItsPicture)
{
    probe.client.showPictures(160, 120);
    const auto red = colorOfSquare(probe);
    EXPECT_GT(red[0], 100);
    EXPECT_LT(red[2], 60);
    EXPECT_EQ(probe.pictures.back().width, 160U);
    const NodeId square = nodeNamed(probe, "square");
    const NodeId colors = objectIn(probe, square, "ColorArray");
    const float green[] = {0, 1, 0, 1};
    ASSERT_TRUE(probe.write(colors, "vector", packedList(ValueKind::Vec4f, &green, 1)).taken);
    const auto now = colorOfSquare(probe);
    EXPECT_LT(now[0], 60);
    EXPECT_GT(now[1], 100);
}

TEST_F(OsgViewer, RefusesWhatWouldBeReadBeyondItsArrays)
{
    const NodeId square = nodeNamed(probe, "square");
    const NodeId set = objectIn(probe, square, "PrimitiveSetList");
    const Value before = probe.value(set, "vector").value_or(Value());
    const std::uint16_t beyond[] = {0, 1, 4};
    const WriteResult result = probe.write(set, "vector", packedList(ValueKind::UShort, beyond, 3));
    EXPECT_FALSE(result.taken);
    EXPECT_EQ(result.value, before);
    EXPECT_FALSE(probe.write(square, "VertexArray", packed(ValueKind::Object, NodeId(0))).taken);
    const NodeId corners = objectIn(probe, square, "VertexArray");
    EXPECT_FALSE(
        probe.write(corners, "vector", packedList(ValueKind::Vec3f, static_cast<float*>(nullptr), 0)).taken);
    EXPECT_FALSE(
        probe.write(square, "VertexArray", packed(ValueKind::Object, nodeNamed(probe, "mover"))).taken);
    EXPECT_FALSE(probe.write(nodeNamed(probe, "turns"), "End", packed(ValueKind::Int32, 2)).taken);
    EXPECT_FALSE(probe.write(square, "DataVariance", packed(ValueKind::Int32, 17)).taken);
    EXPECT_FALSE(probe.write(square, "Name", packed(ValueKind::Int32, 17)).taken);
    EXPECT_FALSE(probe.write(square, "Nothing", packed(ValueKind::Int32, 17)).taken);
}

TEST_F(OsgViewer, RefusesASequenceThatWouldNeverComeToAnEnd)
{
    const NodeId turns = nodeNamed(probe, "turns");
    const auto refusalOf = [&](const char* name, const Value& value) {
        const Value before = probe.value(turns, name).value_or(Value());
        const WriteResult result = probe.write(turns, name, value);
        EXPECT_EQ(result.taken, result.refusal.empty()) << name;
        EXPECT_NE(result.taken, isKnown(result.refusal)) << name << ": " << result.refusal;
        EXPECT_EQ(result.value, result.taken ? value : before) << name;
        return result.refusal;
    };
    const Value start = packed(ValueKind::Int32, std::int32_t(0));
    EXPECT_EQ(
        refusalOf("Mode", start),
        "“Mode” cannot be set so, since the sequence would never come to the end of a frame; each child "
        "needs some time, and a sequence that runs a speed above 0.");
    EXPECT_EQ(refusalOf("Speed", packed(ValueKind::Float, 0.5F)), "");
    EXPECT_EQ(refusalOf("Mode", start), "");
    EXPECT_NE(refusalOf("Speed", packed(ValueKind::Float, 0.0F)), "");
    EXPECT_NE(refusalOf("Speed", packed(ValueKind::Float, -1.0F)), "");
    EXPECT_NE(refusalOf("LastFrameTime", packed(ValueKind::Double, 1e-300)), "");
    const double times[] = {0.25, 1e-300};
    EXPECT_NE(refusalOf("Times", packedList(ValueKind::Double, times, 2)), "");
    EXPECT_NE(refusalOf("End", packed(ValueKind::Int32, std::int32_t(2))), "");
    probe.client.showPictures(160, 120);
    EXPECT_GE(colorOfSquare(probe)[0], 0); // it draws
}

// What draws tells arrays apart by address and count, and new ones lie where the former ones did.
TEST_F(OsgViewer, DrawsAShapeThatIsMadeAnewFromABuffer)
{
    for (const char* other : {"mover", "chooser", "levels", "turns", "words"})
        EXPECT_TRUE(probe.write(nodeNamed(probe, other), "NodeMask", packed(ValueKind::UInt32, 0U)).taken);
    const NodeId ball = nodeNamed(probe, "ball");
    const NodeId sphere = objectIn(probe, ball, "Shape");
    ASSERT_NE(sphere, 0U);
    EXPECT_TRUE(probe.write(ball, "UseDisplayList", packed(ValueKind::Bool, std::uint8_t(0))).taken);
    EXPECT_TRUE(probe.write(ball, "UseVertexBufferObjects", packed(ValueKind::Bool, std::uint8_t(1))).taken);
    probe.client.showPictures(160, 120);
    for (int i = 0; i < 20; ++i) {
        int answered = 0;
        for (int k = 0; k < 6; ++k) // most of them between the same two frames
            probe.client.write(sphere, "Radius", packed(ValueKind::Float, 0.2F + float((i + k) % 3) / 10),
                               [&answered](const WriteResult& result) { answered += result.taken; });
        EXPECT_TRUE(probe.runUntil([&] { return answered == 6; })) << probe.end;
        probe.pictures.clear();
        ASSERT_TRUE(probe.runUntil([&] { return probe.pictures.size() >= 2; })) << probe.end;
    }
}

TEST_F(OsgViewer, RemovesAndPutsBackWithWhatTheGroupKeepsForAChild)
{
    const NodeId levels = nodeNamed(probe, "levels");
    const Value before = probe.value(levels, "Greatest ranges").value_or(Value());
    const auto removed = probe.ask<StructureResult>(&Client::remove, levels, 0U);
    ASSERT_TRUE(removed.done) << removed.refusal;
    EXPECT_EQ(probe.children(levels).size(), 1U);
    const auto inserted = probe.ask<StructureResult>(&Client::insert, levels, 0U, removed.node);
    ASSERT_TRUE(inserted.done) << inserted.refusal;
    EXPECT_EQ(probe.children(levels).at(0).name, "near");
    EXPECT_EQ(probe.value(levels, "Greatest ranges"), before);
    const NodeId turns = nodeNamed(probe, "turns");
    const Value times = probe.value(turns, "Times").value_or(Value());
    EXPECT_EQ(times.count(), 2U);
    const auto turn = probe.ask<StructureResult>(&Client::remove, turns, 0U);
    EXPECT_TRUE(probe.ask<StructureResult>(&Client::insert, turns, 0U, turn.node).done);
    EXPECT_EQ(probe.value(turns, "Times"), times);
    const auto added =
        probe.ask<StructureResult>(&Client::add, levels, 2U, std::string("osg::MatrixTransform"));
    ASSERT_TRUE(added.done) << added.refusal;
    EXPECT_EQ(probe.children(levels).at(2).type, "osg::MatrixTransform");
    EXPECT_FALSE(probe.ask<StructureResult>(&Client::add, levels, 0U, std::string("osg::Nothing")).done);
    EXPECT_FALSE(probe.ask<StructureResult>(&Client::insert, levels, 0U, nodeNamed(probe, "world")).done);
}

TEST_F(OsgViewer, CopiesABranchWithItsValuesAndPropertiesOfItsOwn)
{
    const NodeId levels = nodeNamed(probe, "levels");
    const NodeId first = probe.children(levels).at(0).id;
    const auto copied = probe.ask<StructureResult>(&Client::copy, levels, 1U, first);
    ASSERT_TRUE(copied.done) << copied.refusal;
    ASSERT_EQ(probe.children(levels).size(), 3U);
    const NodeInfo made = probe.children(levels).at(1);
    EXPECT_EQ(made.id, copied.node);
    EXPECT_EQ(made.name, probe.children(levels).at(0).name);
    for (const PropertyInfo& info : probe.properties(first)) {
        if (info.kind != ValueKind::Object && info.kind != ValueKind::Text) {
            EXPECT_EQ(probe.value(made.id, info.name), probe.value(first, info.name)) << info.name;
        }
    }
    const Value before = probe.value(first, "NodeMask").value_or(Value());
    EXPECT_TRUE(probe.write(made.id, "NodeMask", packed(before.kind, std::uint32_t(3))).taken);
    EXPECT_EQ(probe.value(first, "NodeMask"), before);
    const auto camera = probe.ask<StructureResult>(&Client::copy, levels, 0U, NodeId(probe.roots().at(0).id));
    EXPECT_FALSE(camera.done);
    EXPECT_TRUE(isKnown(camera.refusal)) << camera.refusal;
}

TEST_F(OsgViewer, TellsWhatEachFrameCost)
{
    probe.client.showFrames(true);
    ASSERT_TRUE(probe.runUntil([&] { return probe.frames.size() >= 3; }));
    const FrameTable& table = probe.frames.back();
    const auto column = [&](const char* name) {
        const auto found = std::find(table.columns.begin(), table.columns.end(), name);
        return std::size_t(found - table.columns.begin());
    };
    ASSERT_LT(column("DrawCalls"), table.columns.size());
    std::int64_t former = 0;
    for (std::size_t row = 0; row < table.values.size(); row += table.columns.size()) {
        const auto value = [&](const char* name) { return table.values[row + column(name)]; };
        EXPECT_GT(value("Begin"), former);
        former = value("Begin");
        EXPECT_EQ(value("Whole"), value("Update") + value("Cull") + value("Draw"));
        EXPECT_GT(value("Cull"), 0);
        EXPECT_GT(value("Draw"), 0);
        EXPECT_GT(value("DrawCalls"), 0);
    }
}

TEST_F(OsgViewer, PicksWhatIsThereAndTellsItsBox)
{
    PickResult hit;
    EXPECT_TRUE(probe.runUntil([&] { return (hit = probe.ask<PickResult>(&Client::pick, 0.45, 0.62)).hit; }));
    ASSERT_TRUE(hit.hit);
    EXPECT_EQ(hit.path.front(), probe.roots().at(0).id);
    EXPECT_EQ(hit.path.back(), nodeNamed(probe, "square"));
    const auto box = probe.ask<std::optional<Value>>(&Client::box, nodeNamed(probe, "square"));
    const std::array<double, 6> expected{-1, 0, -1, 1, 0, 1};
    EXPECT_EQ((unpacked<std::array<double, 6>>(box.value_or(Value()))), expected);
    EXPECT_FALSE(probe.ask<PickResult>(&Client::pick, 0.001, 0.001).hit);
}

TEST_F(OsgViewer, MarksTheSelectionInItsOwnViewAndNotInTheTree)
{
    probe.client.showPictures(320, 240);
    colorOfSquare(probe);
    const auto orange = [&] {
        const Picture& picture = probe.pictures.back();
        int count = 0;
        for (std::size_t i = 0; i < picture.pixels.size(); i += 4)
            count += picture.pixels[i] > 240 && picture.pixels[i + 1] > 140 && picture.pixels[i + 1] < 170 &&
                     picture.pixels[i + 2] < 20;
        return count;
    };
    EXPECT_EQ(orange(), 0);
    probe.client.mark(nodeNamed(probe, "square"));
    colorOfSquare(probe);
    EXPECT_GT(orange(), 100);
    EXPECT_EQ(probe.children(probe.roots().at(0).id).size(), 1U);
    {
        Probe other;
        ASSERT_EQ(other.client.connect(viewer->waitForSocket()), "");
        probe.client.disconnect();
        other.client.showPictures(320, 240);
        colorOfSquare(other);
        probe.pictures = other.pictures;
        EXPECT_EQ(orange(), 0);
    }
}

TEST_F(OsgViewer, TellsItsCountersAndWhereItLooksFrom)
{
    ASSERT_GE(probe.client.counters().size(), 5U);
    probe.client.showCounters(true);
    probe.runUntil([&] { return !probe.counters.empty() && probe.counters.back().at(7) >= 4; });
    ASSERT_FALSE(probe.counters.empty());
    EXPECT_GT(probe.counters.back()[0], 0.1); // ms of a frame
    EXPECT_GE(probe.counters.back()[7], 4);   // vertices
    auto camera = probe.ask<std::optional<Camera>>(&Client::camera);
    ASSERT_TRUE(camera);
    EXPECT_GT(camera->verticalAngle, 0.1);
    camera->position[1] -= 5;
    EXPECT_TRUE(probe.ask<bool>(&Client::lookFrom, *camera));
    const double wanted = camera->position[1];
    EXPECT_TRUE(probe.runUntil([&] {
        camera = probe.ask<std::optional<Camera>>(&Client::camera);
        return camera && std::abs(camera->position[1] - wanted) < 1e-6;
    }));
}

TEST_F(OsgViewer, PassesItsNoticesOn)
{
    probe.client.showNotices(true);
    const NodeId state = objectIn(probe, nodeNamed(probe, "square"), "StateSet");
    const WriteResult result = probe.write(objectIn(probe, state, "Uniforms"), "Name", packedText("another"));
    EXPECT_NE(result.value, packedText("another")); // it came back as it was
    ASSERT_TRUE(probe.runUntil([&] { return !probe.notices.empty(); }));
    EXPECT_EQ(probe.notices[0].text, "cannot change Uniform name");
    EXPECT_EQ(probe.notices[0].level, NoticeLevel::Warning);
}

TEST_F(OsgViewer, FindsByNameAndType)
{
    using Paths = std::vector<std::vector<NodeId>>;
    const Paths found = probe.ask<Paths>(&Client::find, std::string("switch chooser"), 10U);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].back(), nodeNamed(probe, "chooser"));
    EXPECT_EQ(probe.ask<Paths>(&Client::find, std::string("HELLO"), 10U).size(), 1U);
    EXPECT_EQ(probe.ask<Paths>(&Client::find, std::string("shapedrawable"), 3U).size(), 3U);
}

TEST_F(OsgViewer, TellsTwoInspectorsOfEachOthersEdits)
{
    Probe other;
    ASSERT_EQ(other.client.connect(viewer->waitForSocket()), "");
    const NodeId poser = nodeNamed(other, "poser");
    other.client.watch(poser, true);
    other.value(poser, "Name");
    ASSERT_TRUE(probe.write(poser, "Name", packedText("renamed")).taken);
    EXPECT_TRUE(other.runUntil([&] { return other.values.count({poser, "Name"}) == 1; }));
    EXPECT_EQ((other.values[{poser, "Name"}]), packedText("renamed"));
    EXPECT_EQ(probe.values.size(), 0U);
}

TEST_F(OsgViewer, RunsOnWhenAnInspectorIsGone)
{
    probe.client.mark(nodeNamed(probe, "square"));
    probe.client.disconnect();
    Probe other;
    ASSERT_EQ(other.client.connect(viewer->waitForSocket()), "");
    EXPECT_NE(nodeNamed(other, "square"), 0U);
    EXPECT_TRUE(viewer->process().isRunning());
}

TEST_F(OsgViewer, TakesRandomEditsAndTheirUndo)
{
    waitUntilDrawn(probe);
    const NodeId world = nodeNamed(probe, "world");
    const Snapshot before = snapshotOf(probe, world);
    std::vector<std::pair<NodeId, PropertyInfo>> places;
    std::set<NodeId> known;
    for (const auto& [place, value] : before)
        if (known.insert(place.first).second)
            for (const PropertyInfo& info : probe.properties(place.first))
                if (info.writable && info.kind != ValueKind::Object && info.name != letsGo &&
                    before.count({place.first, info.name}) == 1)
                    places.push_back({place.first, info});
    ASSERT_GT(places.size(), 200U);
    std::mt19937 random(walkSeed());
    Snapshot now = before;
    struct Step {
        NodeId node;
        std::string name;
        Value value;
    };
    std::vector<Step> undo;
    unsigned answered = 0;
    const unsigned steps = walkSteps();
    std::deque<std::string> last; // what to look at where the program ends
    const auto write = [&](NodeId node, const std::string& name, const Value& value, const auto& done) {
        last.push_back(std::to_string(node) + "." + name + " ");
        if (last.size() > 50)
            last.pop_front();
        probe.client.write(node, name, value, done);
    };
    const auto story = [&] {
        std::string text = probe.end + ", seed " + std::to_string(walkSeed()) + ", after ";
        for (const std::string& edit : last)
            text += edit;
        return text;
    };
    for (unsigned i = 0; i < steps; ++i) {
        const auto& [node, info] = places[random() % places.size()];
        const Value& present = now[{node, info.name}];
        // Of the value it had at first, or a shape would get finer and finer, for example.
        const Value next = changed(info, before.at({node, info.name}), unsigned(random()));
        const Step back{node, info.name, present};
        write(node, info.name, next, [&, back](WriteResult result) {
            ++answered;
            if (result.taken)
                undo.push_back(back);
            now[{back.node, back.name}] = result.value;
        });
        if (i % 50 == 49) {
            ASSERT_TRUE(probe.runUntil([&] { return answered == i + 1; })) << story();
        }
    }
    ASSERT_TRUE(probe.runUntil([&] { return answered == steps; })) << story();
    EXPECT_GT(undo.size(), steps / 2);
    unsigned undone = 0;
    unsigned asked = 0;
    for (auto step = undo.rbegin(); step != undo.rend(); ++step) {
        write(step->node, step->name, step->value, [&](const WriteResult&) { ++undone; });
        if (++asked % 50 == 0 || asked == undo.size()) {
            ASSERT_TRUE(probe.runUntil([&] { return undone == asked; })) << story();
        }
    }
    const Snapshot after = snapshotOf(probe, world);
    for (const auto& [place, value] : before)
        EXPECT_EQ(after.at(place), value) << place.second << " of " << place.first << ", seed " << walkSeed();
    EXPECT_TRUE(viewer->process().isRunning());
}
