// SPDX-License-Identifier: MIT
// Scenes that are deep, long or cut off.
#include <gtest/gtest.h>

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <iterator>

namespace
{

const std::string Head = "#Xsg V1.0 utf8\n";

class SceneScale : public testing::Test
{
protected:
    SceneScale() { SoReadError::setHandlerCallback(nullptr, nullptr); }
    ~SceneScale() override { SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr); }
    SoRef<SoNode> read(const std::string& text) { return SoSceneFile::readText(text, "scene.xsg", error); }
    std::string error;
};

// A bit of everything that a file can have, many times.
std::string longText(int parts)
{
    std::string text = Head + "Separator {\n    Cube @paint {}\n";
    for (int i = 0; i < parts; ++i) {
        const std::string n = std::to_string(i);
        text += "    Separator \"part \\\"" + n + "\\\"\" {\n        Points @p" + n +
                " {\n            points: [ ";
        for (int k = 0; k < 20; ++k)
            text += (k > 0 ? ", " : "") + n + "." + std::to_string(k) + " -1e-" + std::to_string(k) + " nan";
        text += " ]\n        }\n        ScreenText {\n            lines: [ \"a # ] } \\\\\", \"\" ]\n        "
                "    size: " +
                n + " !ignored <- @paint.width\n        }\n        Wormhole {\n            mouth: { " + n +
                "\n        }\n        FieldGallery {\n            sfNode: @p" + n +
                "\n            sfImage: 2 1 3 0xff8000 0x010203\n        }\n        @paint\n    }\n";
    }
    return text + "}\n";
}

} // namespace

TEST_F(SceneScale, CutAtEveryThousandthByteItGivesAnErrorWithItsPlace)
{
    const std::string whole = longText(200);
    ASSERT_GT(whole.size(), 100'000U);
    ASSERT_TRUE(read(whole)) << error;
    for (std::size_t length = 1000; length < whole.size(); length += 1000) {
        EXPECT_FALSE(read(whole.substr(0, length)));
        EXPECT_EQ(error.rfind("scene.xsg:", 0), 0U) << error;
        EXPECT_NE(error.find(": Column "), std::string::npos) << error;
    }
}

TEST_F(SceneScale, AHundredThousandLevels)
{
    constexpr int Levels = 100'000;
    std::string text = Head;
    for (int i = 0; i < Levels; ++i)
        text += "Separator {\n";
    text += "Cube {}\n";
    text += std::string(Levels, '}');
    auto root = read(text);
    ASSERT_TRUE(root) << error;
    const std::string written = SoSceneFile::writeText(root.get());
    EXPECT_LT(written.size(), Levels * 160U);
    const auto again = read(written);
    ASSERT_TRUE(again) << error;
    EXPECT_EQ(SoSceneFile::writeText(again.get()), written);

    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax(), SbVec3f(1, 1, 1));
    SoSearchAction search;
    search.setType(SoCube::getClassTypeId());
    ASSERT_EQ(search.apply(root.get()).size(), 1U);
    EXPECT_EQ(search.getPaths().front().getLength(), Levels + 1);
    auto* cube = static_cast<SoCube*>(search.getPaths().front().getTail());
    cube->width.setValue(8);
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax(), SbVec3f(4, 1, 1))
        << "a change reaches the root";
}

TEST_F(SceneScale, AHundredThousandFieldsInARowFollowEachOther)
{
    constexpr int Length = 100'000;
    std::string text = Head + "Group {\n";
    for (int i = 0; i < Length; ++i)
        text += "Cube @" + std::to_string(i) + " { width: <- @" + std::to_string(i + 1) + ".width\n}\n";
    text += "Cube @" + std::to_string(Length) + " { width: 7\n}\n}\n";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(static_cast<SoCube*>(root->asGroup()->getChild(0))->width.getValue(), 7.0F);
    ASSERT_TRUE(read(SoSceneFile::writeText(root.get()))) << error;
}

TEST_F(SceneScale, AHundredThousandFieldsFollowOneDestroyedBeforeOrAfterThem)
{
    constexpr int Count = 100'000;
    std::string followers;
    for (int i = 0; i < Count; ++i)
        followers += "Sphere { radius: 1 <- @1.width\n}\n";
    const std::string master = "Cube @1 { width: 7\n}\n";
    for (const bool isFirst : {true, false}) {
        const auto root =
            read(Head + "Group {\n" + (isFirst ? master + followers : followers + master) + "}\n");
        ASSERT_TRUE(root) << error;
        const auto& nodes = root->asGroup()->getChildren();
        static_cast<SoCube*>(isFirst ? nodes.front() : nodes.back())->width.setValue(9);
        EXPECT_EQ(static_cast<SoSphere*>(isFirst ? nodes.back() : nodes.front())->radius.getValue(), 9.0F);
    }
}

TEST_F(SceneScale, AHundredThousandFieldsOfAnUnknownNode)
{
    std::string text = Head + "Wormhole {\n";
    for (int i = 0; i < 100'000; ++i)
        text += "    f" + std::to_string(i) + ": " + std::to_string(i) + "\n";
    text += "}\n";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(SoSceneFile::writeText(root.get()), text);
}

TEST_F(SceneScale, OneNodeInManyPlaces)
{
    constexpr int Count = 50'000;
    std::string text = Head + "Group {\nCube @1 {}\n";
    for (int i = 0; i < Count; ++i)
        text += "@1\n";
    for (int i = 0; i < Count; ++i)
        text += "Separator { @1 }\n";
    const auto root = read(text + "}\n");
    ASSERT_TRUE(root) << error;
    const SoRef<SoNode> cube(root->asGroup()->getChild(0));
    static_cast<SoCube*>(cube.get())->width.setValue(8);
    EXPECT_EQ(SoBoundingBoxAction().getBox(root.get()).getMax(), SbVec3f(4, 1, 1));
    ASSERT_TRUE(read(SoSceneFile::writeText(root.get()))) << error;
    EXPECT_EQ(cube->getParents().size(), 2U * Count + 1U);
    const SoRef<SoNode> separator(root->asGroup()->getChild(Count + 1));
    root->asGroup()->removeAllChildren();
    EXPECT_EQ(cube->getParents(), std::vector<SoGroup*>{separator->asGroup()});
}
