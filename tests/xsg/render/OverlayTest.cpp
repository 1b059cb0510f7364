// SPDX-License-Identifier: MIT
// What a view draws over its scene.
#include "Picture.h"

#include <xsg/nodes/shapes/SoCube.h>

namespace
{

class Overlay : public Picture
{
protected:
    static constexpr Pixel Green{0, 255, 0};

    Overlay()
    {
        renderer().setSamples(1);
        renderer().getRenderer().setBackground({0, 0, 0});
        overlay.clear();
    }
    ~Overlay() override
    {
        overlay.clear();
        renderer().getRenderer().setBackground({0, 0, 1});
    }
    static int countGreen(const SoPixels& pixels)
    {
        int count = 0;
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x)
                count += pixels.at(x, y)[0] < 20 && pixels.at(x, y)[1] > 200 ? 1 : 0;
        }
        return count;
    }
    static bool isGreen(const SoPixels& pixels, int x, int y)
    {
        return pixels.at(x, y)[0] < 20 && pixels.at(x, y)[1] > 200;
    }

    SoOverlay& overlay = renderer().getRenderer().getOverlay();
    const SbColor green{0, 1, 0};
};

TEST_F(Overlay, LinesAreAsThickFarAwayAsNear)
{
    for (const float z : {0.0F, -50.0F}) {
        overlay.clear();
        overlay.addLine({-100, 0, z}, {100, 0, z}, green, 4);
        EXPECT_EQ(countGreen(draw()), 4 * 64) << z;
    }
}

TEST_F(Overlay, AreOnTopOrHiddenByWhatIsNearer)
{
    add<SoCube>();
    overlay.addPoint({0, 0, -2}, green, 8);
    EXPECT_TRUE(isGreen(draw(), 32, 32));
    overlay.clear();
    overlay.addPoint({0, 0, -2}, green, 8, SoOverlay::Depth::WithinScene);
    EXPECT_EQ(countGreen(draw()), 0);
    overlay.addPoint({0, 0, 1}, green, 8, SoOverlay::Depth::WithinScene); // on the cube's side
    EXPECT_TRUE(isGreen(draw(), 32, 32));
}

TEST_F(Overlay, PointsAreRound)
{
    overlay.addPoint({0, 0, 0}, green, 20);
    EXPECT_NEAR(countGreen(draw()), 314, 20);
}

TEST_F(Overlay, TrianglesLieInTheWorldAndMayBeTransparent)
{
    overlay.addTriangle({-100, -100, 0}, {100, -100, 0}, {0, 100, 0}, {green, 0.5F});
    const SoPixels pixels = draw();
    EXPECT_NEAR(pixels.at(32, 40)[1], 128, 3);
}

TEST_F(Overlay, ALineThatBeginsBehindTheEyeIsCutOff)
{
    overlay.addLine({0, -1, -5}, {0, -1, 50}, green, 2);
    const SoPixels pixels = draw();
    EXPECT_GT(countGreen(pixels), 20);
    EXPECT_TRUE(isGreen(pixels, 32, 60)) << "it goes to the lower edge";
    EXPECT_FALSE(isGreen(pixels, 32, 10)) << "and not beyond the horizon";
}

TEST_F(Overlay, LeavesTheSceneAsItWas)
{
    add<SoCube>();
    const SoPixels before = draw();
    overlay.addLine({-1, 0, 0}, {1, 0, 0}, green, 3);
    draw();
    overlay.clear();
    EXPECT_EQ(draw().rgba, before.rgba);
}

} // namespace
