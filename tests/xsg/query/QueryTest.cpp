// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/query/SoQuery.h>
#include <xsg/query/SoQuerySearch.h>

#include <limits>

namespace
{

/// A small harbour, one node for each thing that can be asked for.
struct Harbour {
    SoRef<SoSeparator> root{new SoSeparator};
    SoRef<SoMaterial> paint{new SoMaterial};
    SoRef<SoMaterial> plain{new SoMaterial};
    SoRef<SoPointLight> lamp{new SoPointLight};
    SoRef<SoTexture2> wood{new SoTexture2};
    SoRef<SoTransform> place{new SoTransform};
    SoRef<SoPoints> points{new SoPoints};
    SoRef<SoSwitch> hidden{new SoSwitch};
    SoRef<SoCube> cube{new SoCube};

    Harbour()
    {
        root->setName("Harbour");
        paint->setName("Red Paint");
        paint->transparency.set("0.2");
        wood->fileName.set("\"pictures/Old Wood.png\"");
        place->translation.set("1 2 3");
        points->points.set("[ 0 0 0, 7 8 9 ]");
        cube->setName("Cr\xfc"
                      "ss");
        for (SoNode* node : {static_cast<SoNode*>(paint.get()), static_cast<SoNode*>(plain.get()),
                             static_cast<SoNode*>(lamp.get()), static_cast<SoNode*>(wood.get()),
                             static_cast<SoNode*>(place.get()), static_cast<SoNode*>(points.get()),
                             static_cast<SoNode*>(hidden.get())})
            root->addChild(node);
        // In a switch that shows nothing, and twice.
        hidden->addChild(cube.get());
        hidden->addChild(cube.get());
    }

    std::vector<const SoNode*> find(const char* text) const
    {
        SoQuerySearch search(SoQuery(text), root.get());
        while (search.advance(2)) {
        }
        std::vector<const SoNode*> nodes;
        for (const auto& each : search.getFound())
            nodes.push_back(each.get());
        return nodes;
    }
};

using Nodes = std::vector<const SoNode*>;

TEST(Query, FindsNamesTypesFieldsAndTexts)
{
    const Harbour h;
    EXPECT_EQ(h.find("paint"), Nodes{h.paint.get()});
    EXPECT_EQ(h.find("\"red paint\""), Nodes{h.paint.get()});
    EXPECT_EQ(h.find("pointlight"), Nodes{h.lamp.get()});
    EXPECT_EQ(h.find("old"), Nodes{h.wood.get()}) << "the texture's file";
    EXPECT_EQ(h.find("name:harb"), Nodes{h.root.get()});
    EXPECT_EQ(h.find("type:light"), Nodes{h.lamp.get()}) << "a type that it is derived from";
    EXPECT_EQ(h.find("field:filename"), Nodes{h.wood.get()});
    EXPECT_EQ(h.find("value:\"8 9\""), Nodes{h.points.get()});
    EXPECT_EQ(h.find("name:crüss"), Nodes{h.cube.get()}) << "names are Latin-1, queries UTF-8";
    EXPECT_TRUE(h.find("nothing").empty());
}

TEST(Query, ComparesValues)
{
    const Harbour h;
    EXPECT_EQ(h.find("transparency>0"), Nodes{h.paint.get()});
    EXPECT_EQ(h.find("Transparency=0.2"), Nodes{h.paint.get()});
    EXPECT_EQ(h.find("transparency<=0"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("transparency!=0.2"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("translation.y=2"), Nodes{h.place.get()});
    EXPECT_TRUE(h.find("translation.y=3").empty());
    EXPECT_EQ(h.find("translation=3"), Nodes{h.place.get()}) << "any of its numbers";
    EXPECT_EQ(h.find("translation=\"1 2 3\""), Nodes{h.place.get()});
    EXPECT_TRUE(h.find("translation=\"1 2\"").empty());
    EXPECT_EQ(h.find("points>8"), Nodes{h.points.get()}) << "any value of a list";
    EXPECT_TRUE(h.find("points>9").empty());
    EXPECT_EQ(h.find("filename~wood"), Nodes{h.wood.get()});
    EXPECT_EQ(h.find("filename=\"pictures/old wood.png\""), Nodes{h.wood.get()});
}

TEST(Query, ComparesNumbersThatAreNone)
{
    const Harbour h;
    h.lamp->intensity.setValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(h.find("intensity=nan"), Nodes{h.lamp.get()});
    EXPECT_TRUE(h.find("intensity>0").empty());
    EXPECT_TRUE(h.find("intensity<=0").empty());
}

TEST(Query, KnowsStates)
{
    const Harbour h;
    h.plain->shininess.setIgnored(true);
    h.lamp->intensity.connectFrom(&h.paint->transparency);
    EXPECT_EQ(h.find("ignored"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("connected"), Nodes{h.lamp.get()});
    EXPECT_EQ(h.find("shared"), Nodes{h.cube.get()});
    EXPECT_EQ(h.find("type:material changed"), Nodes{h.paint.get()});
    EXPECT_TRUE(h.find("\"ignored\"").empty()) << "quoted, it is a word like any other";
}

TEST(Query, FindsPlaces)
{
    const Harbour h;
    EXPECT_EQ(h.find("/"), Nodes{h.root.get()});
    EXPECT_EQ(h.find("/Material"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("/\"Red Paint\""), Nodes{h.paint.get()});
    EXPECT_EQ(h.find("/\"Red Pai"), Nodes{}) << "while it is being typed";
    EXPECT_EQ(h.find("/Switch/"), Nodes{h.hidden.get()});
    EXPECT_EQ(h.find("/Switch/Cr\xc3\xbcss[1]"), Nodes{h.cube.get()});
    EXPECT_EQ(h.find("/Switch/Cr\xc3\xbcss[1].width"), Nodes{h.cube.get()});
    EXPECT_TRUE(h.find("/Switch/Cr\xc3\xbcss[2]").empty());
    EXPECT_TRUE(h.find("/Switch/Cr\xc3\xbcss.radius").empty());
    EXPECT_TRUE(h.find("/Cr\xc3\xbcss").empty());
    EXPECT_TRUE(h.find("/Harbour/Switch").empty()) << "the root itself is \"/\"";
    EXPECT_EQ(h.find("Switch/Cr\xc3\xbcss"), Nodes{h.cube.get()});
    EXPECT_EQ(h.find("Harbour/Switch"), Nodes{h.hidden.get()});
    EXPECT_EQ(h.find("Material.transparency"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("pictures/"), Nodes{h.wood.get()}) << "as before, a text that holds it";
    EXPECT_EQ(h.find("type:material -/Material | /PointLight"), (Nodes{h.paint.get(), h.lamp.get()}));
    EXPECT_FALSE(SoQuery("/Switch[").getError().empty());
    EXPECT_FALSE(SoQuery("/Cube.width>3").getError().empty());
    EXPECT_TRUE(SoQuery("/Switch").matches(*h.hidden)) << "the root is what stands in nothing";
    EXPECT_FALSE(SoQuery("/Switch").matches(*h.cube));
}

TEST(Query, FindsAPlaceAmongManyThatAreCalledTheSame)
{
    constexpr int Many = 20000;
    const SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < Many; ++i)
        root->addChild(new SoCube);
    // Ways to the last one double with each level.
    SoRef<SoSeparator> last(new SoSeparator);
    for (int i = 0; i < 40; ++i) {
        SoRef<SoSeparator> above(new SoSeparator);
        for (int side = 0; side < 2; ++side) {
            auto* group = new SoSeparator;
            group->addChild(last.get());
            above->addChild(group);
        }
        last = above;
    }
    root->addChild(last.get());
    const auto find = [&](const std::string& text) {
        SoQuerySearch search(SoQuery(text), root.get());
        while (search.advance(1 << 20)) {
        }
        return search.getFound();
    };
    ASSERT_EQ(find("/Cube[19999]").size(), 1U);
    EXPECT_EQ(find("/Cube[19999]").front().get(), root->getChild(Many - 1));
    std::string path;
    for (int i = 0; i < 60; ++i)
        path += "/Separator";
    EXPECT_EQ(find(path).size(), 1U);
    EXPECT_TRUE(find("/Switch" + path).empty());
}

TEST(Query, CombinesTerms)
{
    const Harbour h;
    EXPECT_EQ(h.find("type:material -changed"), Nodes{h.plain.get()});
    EXPECT_EQ(h.find("type:material transparency>0 | cube"), (Nodes{h.paint.get(), h.cube.get()}));
    EXPECT_EQ(h.find("cube |"), Nodes{h.cube.get()}) << "while the second one is being typed";
    EXPECT_TRUE(h.find("").empty());
    EXPECT_TRUE(h.find(" | ").empty());
}

TEST(Query, SaysWhatIsWrong)
{
    const std::pair<const char*, const char*> cases[] = {
        {"transparency>", "“transparency>” needs a number to compare with."},
        {"transparency>much", "“transparency>much” needs a number to compare with."},
        {"filename=", "“filename=” lacks the value to compare with."},
        {"name:", "“name:” lacks what to look for after the colon."},
        {"translation.q>1", "“translation.q>1” names no number of a value: use .x .y .z .w or .r .g .b .a."},
        {"a!b", "“a!b” has a sign that compares nothing: use = != < <= > >= or ~."},
        {"-", "A minus sign lacks what is not to be found."},
    };
    for (const auto& [text, sentence] : cases) {
        const SoQuery query(text);
        EXPECT_EQ(query.getError(), sentence);
        EXPECT_TRUE(query.isEmpty());
    }
}

TEST(Query, FindsEachNodeOnceHoweverOftenItIsShared)
{
    SoRef<SoSeparator> group(new SoSeparator);
    group->addChild(new SoCube);
    for (int level = 0; level < 40; ++level) {
        SoRef<SoSeparator> above(new SoSeparator);
        above->addChild(group.get());
        above->addChild(group.get());
        group = above;
    }
    SoQuerySearch search(SoQuery("type:Cube"), group.get());
    while (search.advance(100)) {
    }
    EXPECT_EQ(search.getFound().size(), 1U);
}

TEST(Query, LooksAtNoMoreThanItIsAskedTo)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < 100; ++i)
        root->addChild(new SoCube);
    SoQuerySearch search(SoQuery("cube"), root.get());
    EXPECT_TRUE(search.advance(11));
    EXPECT_EQ(search.getFound().size(), 10U);
    while (search.advance(7)) {
    }
    EXPECT_EQ(search.getFound().size(), 100U);
    EXPECT_TRUE(search.isFound(root->getChild(99)));
    EXPECT_FALSE(search.isFound(root.get()));
}

TEST(Query, OutlivesTheSceneThatItLooksInto)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < 10; ++i)
        root->addChild(new SoCube);
    SoQuerySearch search(SoQuery("cube"), root.get());
    search.advance(5);
    root->removeAllChildren();
    root = {};
    while (search.advance(5)) {
    }
    EXPECT_EQ(search.getFound().size(), 4U);
}

} // namespace
