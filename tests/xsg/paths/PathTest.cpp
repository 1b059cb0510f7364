// SPDX-License-Identifier: MIT
#include "fuzz/PathCheck.h"
#include "xsg/changes/RandomScene.h"

#include <gtest/gtest.h>
#include <xsg/paths/ChildTable.h>
#include <xsg/paths/NodeLabel.h>
#include <xsg/paths/NodePlaces.h>

#include <cstdlib>

namespace
{

struct Row {
    const char* text;
    const char* written; // null: the same
    std::size_t steps;
    const char* field;
    int index;
};

SoRef<SoNode> sceneOf(const std::string& text)
{
    std::string error;
    SoRef<SoNode> scene =
        SoSceneFile::readText(std::string(SoSceneFile::FirstLine) + "\n" + text, "scene", error);
    EXPECT_TRUE(scene) << error;
    return scene;
}

} // namespace

TEST(Path, IsReadAndWritten)
{
    const Row rows[] = {
        {"/", nullptr, 0, "", -1},
        {"/Lamp", nullptr, 1, "", -1},
        {"/Lamp/Cube[2]", nullptr, 2, "", -1},
        {"/Lamp/Cube[0]", "/Lamp/Cube", 2, "", -1},
        {"/Lamp.radius", nullptr, 1, "radius", -1},
        {"/Lamp.points[17]", nullptr, 1, "points", 17},
        {"/.name", nullptr, 0, "name", -1},
        {"/\"two words\"/\"a/b\"", nullptr, 2, "", -1},
        {"/\"Lamp\"", "/Lamp", 1, "", -1},
        {"/\"a.b\"[1].\"odd field\"", nullptr, 1, "odd field", -1},
        {"/\"\\\"\\\\\\n\"", nullptr, 1, "", -1},
        {"Bulb.radius", nullptr, 1, "radius", -1},
        {"Lamp/Bulb[1]", nullptr, 2, "", -1},
    };
    for (const Row& row : rows) {
        const SoScenePath path(row.text);
        ASSERT_TRUE(path.isValid()) << path.getError().getText();
        EXPECT_EQ(path.toText(), row.written ? row.written : row.text);
        EXPECT_EQ(path.getSteps().size(), row.steps) << row.text;
        EXPECT_EQ(path.getField(), row.field) << row.text;
        EXPECT_EQ(path.getIndex(), row.index) << row.text;
        EXPECT_EQ(path.isAbsolute(), row.text[0] == '/') << row.text;
    }
}

TEST(Path, IsRefusedInASentence)
{
    for (const char* text : {"",       "//",   "/a/", "/a//b",           "/a[",   "/a[]", "/a[x]",
                             "/a[-1]", "/a[1", "/a.", "/a.b.c",          "/a.b[", "/a b", "/\"a",
                             "/\"\"",  "/a]",  "/a=", "/a[99999999999]", ".b",    "a,b",  "/a!"}) {
        const SoScenePath path(text);
        EXPECT_FALSE(path.isValid()) << text;
        EXPECT_EQ(path.getError().getText().find(std::string("\"") + text + "\" is no path: "), 0U)
            << path.getError().getText();
        EXPECT_EQ(path.getError().getText().back(), '.') << path.getError().getText();
    }
}

TEST(Path, FindsWhatItNames)
{
    const auto scene = sceneOf("Separator \"Lamp\" {\n Cube {}\n Cube \"Cube\" {}\n Sphere \"Bulb\" @1 {}\n"
                               "Separator \"a/b\" {\n @1\n Cube {}\n}\n}\n");
    xsg::SceneLookup lookup(scene.get());
    SbSentence problem;
    SoGroup* root = scene->asGroup();
    const auto find = [&](const char* text) { return lookup.find(SoScenePath(text), problem); };
    EXPECT_EQ(find("/"), root);
    EXPECT_EQ(find("/Cube"), root->getChild(0));
    EXPECT_EQ(find("/Cube[1]"), root->getChild(1)) << "a name and a type of the same text count together";
    EXPECT_EQ(find("/\"a/b\"/Bulb"), root->getChild(2));
    EXPECT_EQ(find("Bulb"), root->getChild(2)) << "in two places, but one node";
    EXPECT_EQ(find("Lamp"), root);
    EXPECT_EQ(find("Lamp/Bulb"), root->getChild(2));
    EXPECT_EQ(find("\"a/b\"/Cube"), root->getChild(3)->asGroup()->getChild(1));
    EXPECT_EQ(find("Cube"), nullptr);
    EXPECT_EQ(problem, "3 nodes are meant; a path that starts with \"/\" names one of them");
    EXPECT_EQ(find("/Cube[2]"), nullptr);
    EXPECT_EQ(problem, "there is no Cube[2] below the root");
    EXPECT_EQ(find("/Bulb/Cube"), nullptr);
    EXPECT_EQ(find("Nowhere"), nullptr);
    EXPECT_EQ(lookup.findField(SoScenePath("Bulb.radius"), problem), root->getChild(2)->getField("radius"));
    EXPECT_EQ(lookup.findField(SoScenePath("Bulb.height"), problem), nullptr);
    EXPECT_EQ(problem, "a Sphere has no field \"height\"");
}

TEST(Path, FindsNamesInLatin1ByWhatIsTypedInUtf8)
{
    const auto scene = sceneOf("Separator {\n Separator \"T\xFCr\" { Cube \"T\xC3\xBCr\" {} }\n}\n");
    xsg::SceneLookup lookup(scene.get());
    SbSentence problem;
    SoNode* door = scene->asGroup()->getChild(0);
    EXPECT_EQ(lookup.find(SoScenePath("/T\xC3\xBCr"), problem), door);
    EXPECT_EQ(lookup.find(SoScenePath("/T\xFCr/T\xC3\xBCr"), problem), door->asGroup()->getChild(0));
    EXPECT_EQ(lookup.find(SoScenePath("/T\xC3\xB6r"), problem), nullptr);
}

TEST(Path, OfEachNodeOfRandomScenesFindsIt)
{
    const char* const steps = std::getenv("SCOPIX_WALK_STEPS");
    const char* const first = std::getenv("SCOPIX_WALK_SEED");
    for (int i = 0; i < (steps ? std::max(1, std::atoi(steps)) : 100); ++i) {
        RandomScene scenes(static_cast<unsigned>(i + (first ? std::atoi(first) : 1)));
        const SoRef<SoNode> root = scenes.make(40);
        xsg::NodePlaces places(root.get());
        xsg::SceneLookup lookup(root.get());
        SbSentence problem;
        for (SoNode* node : places.getNodes()) {
            const SoScenePath path = places.pathOf(*node);
            const SoScenePath again(path.toText());
            ASSERT_TRUE(again == path) << path.toText() << " " << again.getError().getText();
            ASSERT_EQ(lookup.find(again, problem), node) << path.toText() << ": " << problem.getText();
        }
        RandomScene::forgetReferences(root.get());
    }
}

// Replays the fuzzer's corpus, so that the sanitizers see it in every run.
TEST(PathFuzz, TheCorpusHolds)
{
    fuzz::PathCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/path");
    ASSERT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}
