// SPDX-License-Identifier: MIT
// The example on xsg in its window: the inspector sees what its user sees.
#include "live/Probe.h"

#include <gtest/gtest.h>

#include <array>

using namespace scopix::live;

namespace
{

// Of no colour that the scene has by itself.
std::size_t magentaPixels(const Picture& picture)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i + 3 < picture.pixels.size(); i += 4) {
        const auto* pixel = picture.pixels.data() + i;
        count += pixel[0] > 2 * pixel[1] + 40 && pixel[2] > 2 * pixel[1] + 40 ? 1 : 0;
    }
    return count;
}

class Window : public ::testing::Test
{
protected:
    Window()
    {
        EXPECT_EQ(probe.client.connect(program.socket()), "");
        probe.client.showPictures(400, 300);
    }
    bool seesPicture(const std::function<bool(const Picture&)>& isThis)
    {
        return probe.runUntil([&] {
            const bool is = !probe.pictures.empty() && isThis(probe.pictures.back());
            probe.pictures.clear();
            return is;
        });
    }
    NodeId child(NodeId parent, const std::string& nameOrType)
    {
        for (const NodeInfo& info : probe.children(parent))
            if (info.name == nameOrType || info.type == nameOrType)
                return info.id;
        return 0;
    }

    OwnRuntimeFolder folder;
    OtherProgram program{{SCOPIX_MILL}};
    Probe probe;
};

} // namespace

TEST_F(Window, ShowsItsOwnPictureAndEditsInIt)
{
    EXPECT_TRUE(seesPicture([](const Picture& picture) {
        return picture.width == 400 && picture.height == 300 && magentaPixels(picture) == 0;
    }));
    const NodeId tower = child(probe.roots().at(0).id, "Tower");
    const NodeId paint = child(tower, "Material");
    const Value before = probe.value(paint, "diffuseColor").value_or(Value());
    const std::array<float, 4> magenta = {1, 0, 1, 1};
    EXPECT_TRUE(probe.write(paint, "diffuseColor", packedList(ValueKind::Color, &magenta, 1)).taken);
    EXPECT_TRUE(seesPicture([](const Picture& picture) { return magentaPixels(picture) > 500; }));
    EXPECT_TRUE(probe.write(paint, "diffuseColor", before).taken);
    EXPECT_EQ(probe.value(paint, "diffuseColor"), before);
    EXPECT_TRUE(seesPicture([](const Picture& picture) { return magentaPixels(picture) == 0; }));
}
