// SPDX-License-Identifier: MIT
#include "xsg/render/Picture.h"

#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/SoShapeColors.h>

namespace
{

class ColoredPicture : public Picture
{
protected:
    ColoredPicture() { renderer().getRenderer().setShapeColors(&colors); }
    ~ColoredPicture() override { renderer().getRenderer().setShapeColors(nullptr); }

    static bool isMostly(const Pixel& pixel, std::size_t component)
    {
        for (std::size_t i = 0; i < 3; ++i) {
            if (i != component && pixel[component] < 2 * pixel[i])
                return false;
        }
        return true;
    }
    SoShapeColors colors;
};

} // namespace

TEST_F(ColoredPicture, ShapesHaveTheseColoursInsteadOfTheirOwnLook)
{
    addMaterial({0, 1, 0})->transparency.setValue(0.5F);
    auto* cube = add<SoCube>();
    EXPECT_FALSE(isMostly(center(draw()), 0));
    colors.set(cube, {1, 0, 0});
    EXPECT_TRUE(isMostly(center(draw()), 0));
    colors.set(cube, {0, 1, 0});
    EXPECT_TRUE(isMostly(center(draw()), 1));
    EXPECT_PIXEL(corner(draw()), Background);
}

TEST_F(ColoredPicture, AlsoWherePhysicalMaterialsAreAndWhereTheSceneChanges)
{
    add<SoPhysicalMaterial>();
    auto* place = add<SoTransform>();
    auto* cube = add<SoCube>();
    colors.set(cube, {1, 0, 0});
    EXPECT_TRUE(isMostly(center(draw()), 0));
    place->rotation.setValue(SbRotation(SbVec3f(0, 0, 1), 0.7F));
    EXPECT_TRUE(isMostly(center(draw()), 0));
    auto* front = add<SoTransform>();
    front->translation.setValue(SbVec3f(0, 0, 1));
    add<SoCube>(); // of no colour: grey
    const Pixel grey = center(draw());
    EXPECT_EQ(grey[0], grey[1]);
    EXPECT_EQ(grey[1], grey[2]);
}

TEST_F(ColoredPicture, WithoutColoursTheOwnLookComesBack)
{
    addMaterial({0, 1, 0});
    auto* cube = add<SoCube>();
    const Pixel own = center(draw());
    colors.set(cube, {1, 0, 0});
    EXPECT_NE(center(draw()), own);
    colors.clear();
    EXPECT_EQ(center(draw()), own);
}
