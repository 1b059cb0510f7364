// SPDX-License-Identifier: MIT
// Programs that draw in other manners than osgviewer by itself: in threads, by hand, on demand, in several
// views.
#include <gtest/gtest.h>

#include "OsgProgram.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

using namespace scopix::live;

namespace
{

unsigned steps(unsigned usual)
{
    const char* wanted = std::getenv("SCOPIX_WALK_STEPS");
    return wanted ? unsigned(std::atoi(wanted)) : usual;
}

/// Writes again and again, also what is drawn at that moment: vertices, primitives, pictures and attributes.
void editAgainAndAgain(Probe& probe, unsigned count)
{
    const NodeId square = nodeNamed(probe, "square");
    const NodeId corners = objectIn(probe, square, "VertexArray");
    const NodeId set = objectIn(probe, square, "PrimitiveSetList");
    const NodeId state = objectIn(probe, square, "StateSet");
    const NodeId material = objectIn(probe, state, "Attributes");
    const NodeId texture = objectIn(probe, state, "Texture attributes");
    const NodeId image = objectIn(probe, texture, "Image");
    for (NodeId id : {square, corners, set, state, material, texture, image})
        ASSERT_NE(id, 0U);
    Value pixels = probe.value(image, "Pixels").value_or(Value());
    ASSERT_GT(pixels.bytes.size(), 100U);
    unsigned answered = 0;
    unsigned taken = 0;
    const auto note = [&](const WriteResult& result) {
        ++answered;
        taken += result.taken;
    };
    for (unsigned i = 0; i < count; i += 5) {
        const float size = 1 + float(i % 10) / 20;
        // With more and fewer vertices, so that arrays are allocated anew.
        std::vector<float> points{-size, 0, -size, size, 0, -size, size, 0, size, -size, 0, size};
        points.resize(points.size() + i % 30 * 3);
        const std::vector<std::uint16_t> corner(3 + i % 4 * 3, std::uint16_t(i % 4));
        const float color[] = {size - 1, 0, 0, 1};
        pixels.bytes.back() = std::uint8_t(i);
        probe.client.write(corners, "vector", packedList(ValueKind::Vec3f, points.data(), points.size()),
                           note);
        probe.client.write(set, "vector", packedList(ValueKind::UShort, corner.data(), corner.size()), note);
        probe.client.write(material, "Diffuse", packed(ValueKind::Color, color), note);
        probe.client.write(image, "Pixels", pixels, note);
        probe.client.write(state, "GL_BLEND", packed(ValueKind::Int32, std::int32_t(i % 2)), note);
        if (i % 50 == 0) {
            ASSERT_TRUE(probe.runUntil([&] { return answered >= i; }));
        }
    }
    ASSERT_TRUE(probe.runUntil([&] { return answered >= count; }));
    EXPECT_EQ(taken, answered);
}

class Threading : public OsgTest, public ::testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(Threading, TakesEditsOfWhatIsBeingDrawn)
{
    const auto viewer = OsgProgram::viewer(std::string("OSG_THREADING=") + GetParam());
    attach(*viewer);
    editAgainAndAgain(probe, steps(10000));
    EXPECT_TRUE(viewer->process().isRunning());
}

TEST_P(Threading, ChangesNothingWhileItIsBeingDrawn)
{
    OsgProgram program(SCOPIX_OSG_PROGRAM " --watchful", std::string("OSG_THREADING=") + GetParam());
    attach(program);
    editAgainAndAgain(probe, 500);
    EXPECT_TRUE(program.process().isRunning());
}

INSTANTIATE_TEST_SUITE_P(Models, Threading,
                         ::testing::Values("SingleThreaded", "CullDrawThreadPerContext",
                                           "DrawThreadPerContext",
                                           "CullThreadPerCameraDrawThreadPerContext"));

class Manner : public OsgTest, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(Manner, CanBeInspected)
{
    const auto program = OsgProgram::own(GetParam());
    attach(*program);
    const NodeId poser = nodeNamed(probe, "poser");
    ASSERT_NE(poser, 0U);
    const double place[] = {1, 2, 3};
    EXPECT_TRUE(probe.write(poser, "Position", packed(ValueKind::Vec3d, place)).taken);
    EXPECT_EQ(probe.value(poser, "Position"), packed(ValueKind::Vec3d, place));
    probe.client.showPictures(100, 100);
    EXPECT_TRUE(probe.runUntil([&] { return probe.pictures.size() >= 2; }));
}

INSTANTIATE_TEST_SUITE_P(All, Manner,
                         ::testing::Values("", "--by-hand", "--on-demand", "--composite", "--restless"));

class OsgManners : public OsgTest
{
};

TEST_F(OsgManners, AProgramThatLinksTheAdapterNeedsNothingElse)
{
    const auto program = OsgProgram::own("--inspect", false);
    attach(*program);
    EXPECT_NE(nodeNamed(probe, "square"), 0U);
}

TEST_F(OsgManners, EachViewIsARoot)
{
    const auto program = OsgProgram::own("--composite");
    attach(*program);
    EXPECT_EQ(probe.roots().size(), 2U);
}

TEST_F(OsgManners, NodesThatEndAreSaidToHaveEnded)
{
    const auto program = OsgProgram::own("--restless");
    attach(*program);
    const NodeId world = nodeNamed(probe, "world");
    probe.client.watch(world, false);
    for (const NodeInfo& child : probe.children(world))
        probe.client.watch(child.id, true);
    ASSERT_TRUE(probe.runUntil([&] { return probe.endedNodes.size() >= 5; }));
    EXPECT_FALSE(probe.childChanges.empty());
    const NodeId ended = probe.endedNodes.front();
    EXPECT_FALSE(probe.value(ended, "Name"));
    EXPECT_FALSE(probe.write(ended, "Name", packedText("late")).taken);
    EXPECT_TRUE(probe.properties(ended).empty());
}

TEST_F(OsgManners, OneInspectorSeesTwoPrograms)
{
    const auto first = OsgProgram::own("");
    const auto second = OsgProgram::own("");
    attach(*first);
    Probe other;
    ASSERT_EQ(other.client.connect(second->waitForSocket()), "");
    ASSERT_TRUE(probe.write(nodeNamed(probe, "poser"), "Name", packedText("renamed")).taken);
    EXPECT_NE(nodeNamed(probe, "renamed"), 0U);
    EXPECT_EQ(nodeNamed(other, "renamed"), 0U);
}

TEST_F(OsgManners, AKilledProgramEndsTheConnectionAndNothingElse)
{
    std::mt19937 random(7);
    for (int round = 0; round < 3; ++round) {
        const auto program = OsgProgram::own("");
        Probe probing;
        ASSERT_EQ(probing.client.connect(program->waitForSocket()), "");
        const NodeId poser = nodeNamed(probing, "poser");
        unsigned answers = 0;
        const unsigned last = unsigned(random() % 40);
        for (unsigned i = 0; i < 100; ++i)
            probing.client.write(poser, "Name", packedText(std::to_string(i)),
                                 [&](const WriteResult&) { ++answers; });
        probing.runUntil([&] { return answers >= last; });
        program->process().signal(SIGKILL);
        probing.runUntil([&] { return !probing.end.empty(); });
        EXPECT_NE(probing.end, "");
    }
    EXPECT_TRUE(ownPrograms().empty());
}

// Until the program has sent as many pictures as the second word says.
const ChildAct inspectAndDie("inspectAndDie", [](const ChildAct::Words& words) {
    Probe probing;
    probing.client.connect(words[0]);
    const NodeId square = nodeNamed(probing, "square");
    probing.client.mark(square);
    probing.client.showPictures(200, 200);
    probing.client.watch(square, true);
    probing.runUntil([&] { return probing.pictures.size() > std::stoul(words[1]); });
    return raise(SIGKILL) == 0;
});

TEST_F(OsgManners, AProgramOutlivesItsKilledInspectors)
{
    const auto program = OsgProgram::own("");
    const std::string socket = program->waitForSocket();
    for (int round = 0; round < 3; ++round) {
        ChildProcess inspector(inspectAndDie.command({socket, std::to_string(round)}));
        EXPECT_EQ(inspector.waitForEnd().signal, SIGKILL);
        EXPECT_TRUE(program->process().isRunning());
    }
    attach(*program);
    const std::vector<NodeInfo> roots = probe.roots();
    ASSERT_EQ(roots.size(), 1U);
    EXPECT_EQ(probe.children(roots[0].id).size(), 1U);
    const std::size_t before = probe.pictures.size();
    probe.client.showPictures(50, 50);
    EXPECT_TRUE(probe.runUntil([&] { return probe.pictures.size() > before + 1; }));
}

TEST_F(OsgManners, AProgramThatEndsByItselfEndsWell)
{
    const auto program = OsgProgram::own("--polite");
    attach(*program);
    probe.client.mark(nodeNamed(probe, "square"));
    probe.client.showCounters(true);
    probe.client.showNotices(true);
    probe.client.showPictures(100, 100);
    EXPECT_TRUE(probe.runUntil([&] { return !probe.counters.empty() && !probe.pictures.empty(); }));
    EXPECT_TRUE(probe.write(nodeNamed(probe, "world"), "Name", packedText("leave")).taken);
    EXPECT_TRUE(program->process().waitForEnd().isGood());
    probe.runUntil([&] { return !probe.end.empty(); });
    EXPECT_NE(probe.end, "");
    EXPECT_TRUE(ownPrograms().empty());
}

namespace
{

/// What a program writes, on both channels, where it ends by itself.
std::string outputOf(const std::string& program)
{
    const std::string command = "LD_PRELOAD=" SCOPIX_OSG_PRELOAD " " + program + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char letter = 0;
    while (pipe && std::fread(&letter, 1, 1, pipe) == 1)
        output += letter;
    EXPECT_EQ(pclose(pipe), 0);
    return output;
}

} // namespace

TEST_F(OsgManners, AProgramWithABuiltInViewerRunsOnAndSaysWhyItCannotBeInspected)
{
    EXPECT_EQ(outputOf(SCOPIX_OSG_BUILT_IN), "Scopix: the program has OpenSceneGraph built into it, so that "
                                             "it cannot be inspected; it would have to "
                                             "use the shared libraries of version 3.6.5.\nfine\n");
}

TEST_F(OsgManners, AProgramOnAnotherVersionRunsOnAndSaysSoOnce)
{
    EXPECT_EQ(
        outputOf(SCOPIX_OSG_OTHER_VERSION),
        "Scopix: the program uses libosgViewer.so.130, and only OpenSceneGraph 3.6.5 can be inspected.\n"
        "fine\nfine\n");
    EXPECT_TRUE(ownPrograms().empty());
}

TEST_F(OsgManners, ProgramsWithoutOpenSceneGraphNoticeNothing)
{
    OsgProgram program("/bin/echo fine");
    EXPECT_TRUE(program.process().waitForEnd().isGood());
    EXPECT_TRUE(ownPrograms().empty());
}
