// SPDX-License-Identifier: MIT
#include "fuzz/PatchCheck.h"

#include <support/BadPatchLines.h>

#include <gtest/gtest.h>

#include <xsg/nodes/animation/SoAnimation.h>

namespace
{

SoRef<SoNode> sceneOf(const std::string& text)
{
    std::string error;
    SoRef<SoNode> scene =
        SoSceneFile::readText(std::string(SoSceneFile::FirstLine) + "\n" + text, "scene", error);
    EXPECT_TRUE(scene) << error;
    return scene;
}

std::string patchBetween(const std::string& before, const std::string& after)
{
    const auto a = sceneOf(before);
    const auto b = sceneOf(after);
    const std::string text = xsg::PatchText::write(xsg::compareScenes(a.get(), b.get()));
    return text.substr(xsg::PatchText::FirstLine.size() + 1);
}

xsg::PatchResult apply(const std::string& lines, SoRef<SoNode>& scene)
{
    xsg::SceneChanges changes;
    SbSentence error;
    EXPECT_TRUE(
        xsg::PatchText::read(std::string(xsg::PatchText::FirstLine) + "\n" + lines, "p", changes, error))
        << error.getText();
    return xsg::applyChanges(changes, scene);
}

} // namespace

TEST(Patch, HasNothingOfWhatAnAnimationShows)
{
    const char* const text = "Group { Sphere \"s\" @1 {\n radius: 3\n} Animation { Track {\n target: @1\n"
                             " field: radius\n times: [ 0, 1 ]\n values: [ 5, 9 ]\n} } }";
    const auto before = sceneOf(text);
    const auto after = sceneOf(text);
    SoAnimation::findBelow(*after).front()->goTo(0.5);
    EXPECT_TRUE(xsg::compareScenes(before.get(), after.get()).empty());
    EXPECT_TRUE(xsg::compareScenes(after.get(), before.get()).empty());
}

TEST(Patch, HasOneLineAChange)
{
    struct Row {
        const char* before;
        const char* after;
        const char* patch;
    };
    const Row rows[] = {
        {"Sphere {}", "Sphere {}", ""},
        {"Sphere {}", "Sphere {\n radius: 3\n}", "set /.radius 3  # was the default\n"},
        {"Sphere {\n radius: 3\n}", "Sphere {}", "set /.radius !default  # was 3\n"},
        {"Sphere {\n radius: 3\n}", "Sphere {\n radius: 3 !ignored\n}", "set /.radius 3 !ignored  # was 3\n"},
        {"Sphere \"a\" {}", "Sphere \"b\" {}", "name / \"b\"  # was \"a\"\n"},
        {"Group { Cube {} }", "Group { Cube {} Sphere \"s\" {} }",
         "insert /s (0 -> 1) after Cube new Sphere \"s\"\n"},
        {"Group { Cube {} Cube {\n width: 3\n} }", "Group { Cube {\n width: 3\n} }",
         "remove /Cube (2 -> 1)\n"},
        {"Group { Cube {} Sphere {} Cone {} }", "Group { Cone {} Cube {} Sphere {} }", "order /Cone first\n"},
        {"Group { Group \"g\" {} Sphere \"s\" {} }", "Group { Group \"g\" { Sphere \"s\" {} } }",
         "remove /s (1 -> 0)\nmove /g/s (0 -> 1) first from /s\n"},
        {"Group { Cube \"a\" {\n width: 3\n} }", "Group { Cube \"b\" {\n width: 3\n} }",
         "remove /a (1 -> 0)\nmove /b (0 -> 1) first from /a \"b\"\n"},
        {"Group { Cube \"a\" {} }", "Group { Sphere \"a\" {} }",
         "replace /a new Sphere \"a\"  # was a Cube\n"},
        {"Group { Cube @1 {} Group { @1 } }", "Group { Cube {} Group { Cube {} } }",
         "replace /Group/Cube new Cube apart /Cube  # was a Cube\n"},
        {"Group { Cube {} Group { Cube {} } }", "Group { Cube @1 {} Group { @1 } }",
         "replace /Group/Cube same /Cube  # was a Cube\n"},
        {"Group { Cube {} Sphere {} }", "Group { Cube @1 {} Sphere {\n radius: 2 <- @1.width\n} }",
         "set /Sphere.radius 2 <- /Cube.width  # was the default\n"},
        {"Points {\n points: [ 1 2 3, 4 5 6, 7 8 9 ]\n}", "Points {\n points: [ 1 2 3, 4 5 7, 7 8 9 ]\n}",
         "set /.points[1] 4 5 7  # was 4 5 6\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(patchBetween(row.before, row.after), row.patch) << row.before << " to " << row.after;
}

TEST(Patch, ListsWhatDoesNotFitAndAppliesTheRest)
{
    SoRef<SoNode> scene = sceneOf("Group {\n Cube {}\n Sphere {}\n}");
    const xsg::PatchResult result = apply("set /Sphere.radius 3\n"
                                          "set /Cone.height 3\n"
                                          "set /Cube.radius 3\n"
                                          "set /Cube.width wide\n"
                                          "set /Cube.width[3] 1\n"
                                          "remove /Cube (3 -> 2)\n"
                                          "insert /Cube/x (0 -> 1) first new Cube \"x\"\n"
                                          "move /Cone (0 -> 1) first from /Nowhere\n",
                                          scene);
    EXPECT_EQ(result.applied, 1);
    const std::vector<std::string> misfits{
        "line 3: set /Cone.height: there is no Cone below the root.",
        "line 4: set /Cube.radius: a Cube has no such field.",
        "line 5: set /Cube.width: \"wide\" is no value of a SFFloat.",
        "line 6: set /Cube.width[3]: it is no list.",
        "line 7: remove /Cube: there are 1 children called Cube and not 3.",
        "line 8: insert /Cube/x: a Cube has no children.",
        "line 9: move /Cone: there is no Nowhere below the root.",
    };
    EXPECT_EQ(std::vector<std::string>(result.misfits.begin(), result.misfits.end()), misfits);
    EXPECT_EQ(SoSceneFile::writeText(scene.get()),
              "#Xsg V1.0 utf8\nGroup {\n    Cube {}\n    Sphere {\n        radius: 3\n    }\n}\n");
}

TEST(Patch, PutsBackWhatFindsNoPlace)
{
    SoRef<SoNode> scene = sceneOf("Group {\n Cube {}\n Sphere {}\n Group \"g\" { Sphere {} }\n}");
    const std::string before = SoSceneFile::writeText(scene.get());
    const xsg::PatchResult result =
        apply("remove /Sphere (1 -> 0)\nmove /g/Sphere (3 -> 4) first from /Sphere\n", scene);
    EXPECT_EQ(result.misfits.size(), 1U);
    EXPECT_EQ(SoSceneFile::writeText(scene.get()), before);
}

TEST(Patch, NeverMakesAGroupItsOwnDescendant)
{
    SoRef<SoNode> scene = sceneOf("Group {\n Group \"a\" { Group \"b\" {} }\n}");
    const xsg::PatchResult result = apply("insert /a/b/a (0 -> 1) first from /a\n", scene);
    ASSERT_EQ(result.misfits.size(), 1U);
    EXPECT_EQ(result.misfits.front().getText(), "a cannot stand in b, which it holds.");
}

TEST(Patch, IsRefusedInASentenceWithItsPlace)
{
    for (const char* line : badPatchLines) {
        xsg::SceneChanges changes(1);
        SbSentence sentence;
        const std::string text = std::string(xsg::PatchText::FirstLine) + "\n# a remark\n" + line + "\n";
        EXPECT_FALSE(xsg::PatchText::read(text, "p.xsgpatch", changes, sentence)) << line;
        const std::string& error = sentence.getText();
        EXPECT_EQ(error.find("p.xsgpatch:3: "), 0U) << error;
        EXPECT_NE(error.find(" expected"), std::string::npos) << error;
        EXPECT_EQ(changes.size(), 1U) << "what was there stays";
    }
    xsg::SceneChanges changes;
    SbSentence error;
    EXPECT_FALSE(xsg::PatchText::read("#Xsg V1.0 utf8\n", "p", changes, error));
    EXPECT_EQ(error.getText(), "p:1: this is no patch: its first line must be \"#XsgPatch V1.0 utf8\".");
    EXPECT_FALSE(xsg::PatchText::read("", "p", changes, error));
}

// Replays the fuzzer's corpus, so that the sanitizers see it in every run.
TEST(PatchFuzz, TheCorpusHolds)
{
    fuzz::PatchCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/patch");
    ASSERT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}
