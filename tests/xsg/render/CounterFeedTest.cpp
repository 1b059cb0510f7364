// SPDX-License-Identifier: MIT
// The counters of drawing, actions and files count where the work happens.
#include "Picture.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <map>

namespace
{

class CounterFeed : public Picture
{
protected:
    using Values = std::map<std::string, double>;

    static Values read()
    {
        Values values;
        const auto* manager = SoPerfCounterManager::getInstance();
        for (const char* name : Names)
            values[name] = manager->getCounter(name) ? manager->getCounter(name)->getRawValue() : -1;
        return values;
    }
    // What grew by how much.
    template <class Work>
    static Values growth(const Work& work)
    {
        const Values before = read();
        work();
        Values grown;
        for (const auto& [name, value] : read()) {
            if (value != before.at(name) && name != "RenderTime")
                grown[name] = value - before.at(name);
        }
        return grown;
    }

    void drawNew()
    {
        SoPixels pixels;
        ASSERT_TRUE(newRenderer.render(root.get(), camera.get(), 64, 64, pixels))
            << newRenderer.getErrorText();
    }
    SoOffscreenRenderer newRenderer;

    static constexpr const char* Names[] = {"Frames",         "RenderTime",  "NodesTraversed", "DrawCalls",
                                            "Triangles",      "Vertices",    "ShapesCulled",   "StateChanges",
                                            "BufferUploads",  "BufferBytes", "TextureBytes",   "GeometryHits",
                                            "GeometryMisses", "Picks",       "Searches",       "BoxHits",
                                            "BoxMisses",      "FilesRead",   "BytesParsed"};
};

} // namespace

TEST_F(CounterFeed, HasAtLeastTwentyFiveCounters)
{
    int library = 0;
    for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters())
        library += counter->isCustom() ? 0 : 1;
    EXPECT_GE(library, 25);
    for (const auto& [name, value] : read())
        EXPECT_GE(value, 0) << name;
}

TEST_F(CounterFeed, DrawingIsCounted)
{
    const unsigned char bytes[] = {255, 0, 0, 0, 255, 0};
    add<SoTexture2>()->image.setValue(2, 1, 3, bytes);
    add<SoCube>();
    add<SoCube>();
    auto* away = add<SoTransform>();
    away->translation.setValue(1000, 0, 0);
    add<SoCube>();
    const double time = read()["RenderTime"];
    // A cube: 24 points of 8 numbers, 36 indices; three copies of 128 bytes.
    EXPECT_EQ(growth([&] { drawNew(); }), (Values{{"Frames", 1},
                                                  {"NodesTraversed", 6},
                                                  {"DrawCalls", 1},
                                                  {"Triangles", 24},
                                                  {"Vertices", 48},
                                                  {"ShapesCulled", 1},
                                                  {"StateChanges", 5},
                                                  {"BufferUploads", 2},
                                                  {"BufferBytes", 24 * 32 + 36 * 4 + 3 * 128},
                                                  {"TextureBytes", 6},
                                                  {"GeometryHits", 2},
                                                  {"GeometryMisses", 1}}));
    EXPECT_GT(read()["RenderTime"], time);
    EXPECT_EQ(growth([&] { drawNew(); }), (Values{{"Frames", 1},
                                                  {"DrawCalls", 1},
                                                  {"Triangles", 24},
                                                  {"Vertices", 48},
                                                  {"ShapesCulled", 1},
                                                  {"StateChanges", 5}}));
}

TEST_F(CounterFeed, ActionsAreCounted)
{
    auto* group = new SoSeparator;
    group->addChild(new SoCube);
    root->addChild(group);
    EXPECT_EQ(growth([&] { SoBoundingBoxAction().getBox(root.get()); }), (Values{{"BoxMisses", 2}}));
    EXPECT_EQ(growth([&] { SoBoundingBoxAction().getBox(root.get()); }), (Values{{"BoxHits", 1}}));
    EXPECT_EQ(growth([&] {
                  SoRayPickAction().pick(root.get(), {{0, 0, 9}, {0, 0, -1}});
              }),
              (Values{{"BoxHits", 1}, {"Picks", 1}}));
    EXPECT_EQ(growth([&] { SoSearchAction().find(root.get()); }), (Values{{"Searches", 1}}));
}

TEST_F(CounterFeed, FilesAreCounted)
{
    const std::string text = "#Xsg V1.0 utf8\nSeparator { Cube {} }\n";
    const std::string path = testing::TempDir() + "counted.xsg";
    std::string error;
    ASSERT_TRUE(SoSceneFile::write(SoSceneFile::readText(text, "text", error).get(), path, error)) << error;
    const auto grown = growth([&] { ASSERT_TRUE(SoSceneFile::read(path, error)) << error; });
    EXPECT_EQ(grown.at("FilesRead"), 1);
    EXPECT_EQ(grown.at("BytesParsed"),
              static_cast<double>(SoSceneFile::writeText(SoSceneFile::read(path, error).get()).size()));
}
