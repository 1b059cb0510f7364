// SPDX-License-Identifier: MIT
// Other looks of a scene than its own, and pictures that are drawn in parts.
#include "Picture.h"

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoScreenText.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

#include <set>

namespace
{

using Shading = SoRenderer::Shading;

class Looks : public Picture
{
protected:
    ~Looks() override
    {
        renderer().getRenderer().setShading(Shading::Full);
        renderer().getRenderer().setClipPlane(nullptr);
    }
    SoPixels drawAs(Shading shading)
    {
        renderer().getRenderer().setShading(shading);
        return draw();
    }
    static Pixel pixel(const SoPixels& pixels, int x, int y)
    {
        const unsigned char* at = pixels.at(x, y);
        return {at[0], at[1], at[2]};
    }
};

TEST_F(Looks, NormalsAreColours)
{
    addMaterial({1, 0, 0});
    add<SoCube>();
    const Pixel front = pixel(drawAs(Shading::Normals), 32, 32);
    EXPECT_NEAR(front[0], 128, 2);
    EXPECT_NEAR(front[1], 128, 2);
    EXPECT_NEAR(front[2], 255, 2); // towards z
    EXPECT_NE(pixel(drawAs(Shading::Full), 32, 32), front);
}

TEST_F(Looks, TextureCoordinatesAreSquaresThatRedden)
{
    add<SoCube>();
    const SoPixels pixels = drawAs(Shading::TextureCoordinates);
    std::set<Pixel> colors;
    for (int x = 20; x < 44; ++x)
        colors.insert(pixel(pixels, x, 32));
    EXPECT_GT(colors.size(), 8U);
    EXPECT_GT(pixel(pixels, 43, 32)[0] + pixel(pixels, 41, 32)[0],
              pixel(pixels, 20, 32)[0] + pixel(pixels, 22, 32)[0]);
}

TEST_F(Looks, OverdrawGrowsWithEachThingBehindAnother)
{
    add<SoCube>();
    const Pixel once = pixel(drawAs(Shading::Overdraw), 32, 32);
    EXPECT_EQ(pixel(drawAs(Shading::Overdraw), 1, 1), (Pixel{0, 0, 0}));
    add<SoCube>()->depth.setValue(1);
    addMaterial({1, 1, 1})->transparency.setValue(0.5F);
    add<SoCube>()->depth.setValue(0.5F);
    const Pixel thrice = pixel(drawAs(Shading::Overdraw), 32, 32);
    EXPECT_GT(once[0], 0);
    EXPECT_NEAR(thrice[1], 3 * once[1], 6);
    EXPECT_NE(pixel(drawAs(Shading::Full), 32, 32), thrice);
}

TEST_F(Looks, EdgesAreDrawnOverTheSurfaces)
{
    addMaterial({1, 0, 0});
    add<SoCube>();
    const SoPixels full = drawAs(Shading::Full);
    const SoPixels edges = drawAs(Shading::WithEdges);
    int darker = 0;
    int same = 0;
    for (int y = 20; y < 44; ++y) {
        for (int x = 20; x < 44; ++x) {
            const int by = pixel(full, x, y)[0] - pixel(edges, x, y)[0];
            darker += by > 40 ? 1 : 0;
            same += by == 0 ? 1 : 0;
        }
    }
    EXPECT_GT(darker, 15); // the diagonal of the front
    EXPECT_GT(same, 300);
    EXPECT_EQ(drawAs(Shading::Full).rgba, full.rgba);
}

TEST_F(Looks, APlaneOfTheViewCutsBesidesThoseOfTheScene)
{
    addMaterial({1, 0, 0});
    add<SoCube>();
    const SbPlane plane({1, 0, 0}, 0);
    renderer().getRenderer().setClipPlane(&plane);
    const SoPixels half = draw();
    EXPECT_EQ(pixel(half, 26, 32)[0], pixel(half, 2, 2)[0]);
    EXPECT_GT(pixel(half, 38, 32)[0], 100);
    auto* own = new SoClipPlane;
    own->plane.setValue(SbPlane({0, 1, 0}, 0));
    root->insertChild(own, 0);
    const SoPixels quarter = draw();
    EXPECT_GT(pixel(quarter, 38, 26)[0], 100);
    EXPECT_EQ(pixel(quarter, 38, 38)[0], pixel(half, 2, 2)[0]);
    EXPECT_EQ(pixel(quarter, 26, 26)[0], pixel(half, 2, 2)[0]);
    renderer().getRenderer().setClipPlane(nullptr);
    EXPECT_GT(pixel(draw(), 26, 26)[0], 100);
}

// Whatever the camera, parts that are put together are the whole.
TEST_F(Looks, PartsMakeUpTheWholePicture)
{
    addMaterial({1, 0.5F, 0});
    add<SoTransform>()->rotation.setValue(SbRotation({1, 1, 0}, 0.7F));
    add<SoCube>();
    add<SoScreenText>()->lines.set1Value(0, "part");
    renderer().setSamples(1);
    SoRef<SoOrthographicCamera> flat(new SoOrthographicCamera);
    flat->position.setValue(0, 0, 5);
    flat->height.setValue(4);
    for (const SoCamera* eye :
         {static_cast<const SoCamera*>(camera.get()), static_cast<const SoCamera*>(flat.get())}) {
        SoPixels whole;
        ASSERT_TRUE(renderer().render(root.get(), eye, 90, 60, whole));
        int different = 0;
        for (int top = 0; top < 60; top += 25) {
            for (int left = 0; left < 90; left += 40) {
                const int width = std::min(40, 90 - left);
                const int height = std::min(25, 60 - top);
                SoPixels part;
                ASSERT_TRUE(renderer().renderTile(root.get(), eye, {90, 60, left, 60 - top - height}, width,
                                                  height, part));
                for (int y = 0; y < height; ++y) {
                    for (int x = 0; x < width; ++x)
                        different += pixel(part, x, y) == pixel(whole, left + x, top + y) ? 0 : 1;
                }
            }
        }
        EXPECT_LT(different, 25); // of 5400, at edges, by rounding
        SoPixels again;
        ASSERT_TRUE(renderer().render(root.get(), eye, 90, 60, again));
        EXPECT_EQ(again.rgba, whole.rgba);
    }
}

} // namespace
