// SPDX-License-Identifier: MIT
#include "Picture.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <epoxy/gl.h>

class Renderer : public Picture
{
protected:
    // A square from -1 to 1 that faces the camera.
    void addSquare(float z = 0)
    {
        add<SoPoints>()->points.setValues({{-1, -1, z}, {1, -1, z}, {1, 1, z}, {-1, 1, z}});
        add<SoTextureCoordinates>()->points.setValues({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
        add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2, 0, 2, 3});
    }
};

TEST_F(Renderer, AnEmptySceneIsTheBackground)
{
    const SoPixels pixels = draw();
    EXPECT_PIXEL(center(pixels), Background);
    EXPECT_EQ(pixels.at(3, 3)[3], 255);
}

TEST_F(Renderer, NoSceneIsTheBackground)
{
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(nullptr, nullptr, 8, 8, pixels));
    EXPECT_PIXEL(center(pixels), Background);
}

TEST_F(Renderer, TheSolidsFillTheMiddle)
{
    addMaterial({1, 0, 0});
    for (SoShape* solid :
         std::initializer_list<SoShape*>{new SoCube, new SoSphere, new SoCylinder, new SoCone}) {
        SoRef<SoSeparator> scene(new SoSeparator);
        scene->addChild(root->getChild(0));
        scene->addChild(solid);
        std::swap(scene, root);
        const SoPixels pixels = draw();
        const Pixel middle = center(pixels);
        EXPECT_GT(middle[0], 180) << solid->getTypeId().getName().getString();
        EXPECT_EQ(middle[2], 0);
        EXPECT_PIXEL(corner(pixels), Background);
        std::swap(scene, root);
    }
}

TEST_F(Renderer, WithoutALightTheEyeCarriesOne)
{
    addMaterial({1, 0.5F, 0});
    addSquare();
    EXPECT_PIXEL(center(draw()), (Pixel{255, 128, 0}));
    renderer().getRenderer().setHeadlight(false);
    EXPECT_PIXEL(center(draw()), (Pixel{0, 0, 0}));
}

TEST_F(Renderer, ALightLightsWhatFollowsItByItsAngleColourAndIntensity)
{
    auto* light = add<SoDirectionalLight>();
    light->direction.setValue(0, -0.866F, -0.5F);
    light->color.setValue(SbColor(1, 0.5F, 1));
    addMaterial({1, 1, 1});
    addSquare();
    EXPECT_PIXEL(center(draw()), (Pixel{128, 64, 128}));
    light->intensity.setValue(0.5F);
    EXPECT_PIXEL(center(draw()), (Pixel{64, 32, 64}));
    light->on.setValue(false);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 255, 255})); // the headlight again
}

TEST_F(Renderer, ATransformMovesWhatFollowsWithinItsSeparator)
{
    auto* group = new SoSeparator;
    auto* transform = new SoTransform;
    transform->translation.setValue(10, 0, 0);
    group->addChild(transform);
    root->addChild(group);
    addMaterial({1, 0, 0});
    addSquare();
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
    group->addChild(new SoCube);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
    root->removeChild(root->getNumChildren() - 1);
    EXPECT_PIXEL(center(draw()), Background);
    transform->translation.setValue(0, 0, 0);
    EXPECT_GT(center(draw())[0], 100);
}

TEST_F(Renderer, TransparencyLetsWhatIsBehindThrough)
{
    // The near one comes first in the scene, yet it is drawn last.
    addMaterial({1, 0, 0})->transparency.setValue(0.5F);
    addSquare(1);
    addMaterial({0, 1, 0})->transparency.setValue(0.5F);
    addSquare(0);
    EXPECT_PIXEL(center(draw()), (Pixel{128, 64, 64}));
}

TEST_F(Renderer, OpaqueShapesHideTransparentOnesBehindThem)
{
    addMaterial({0, 1, 0})->transparency.setValue(0.5F);
    addSquare(0);
    addMaterial({1, 0, 0});
    addSquare(1);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
}

TEST_F(Renderer, AChangeShowsAndTakingItBackGivesTheVerySamePicture)
{
    auto* material = addMaterial({1, 0.3F, 0.2F});
    add<SoComplexity>();
    add<SoSphere>();
    const SoPixels before = draw();
    material->transparency.setValue(0.37F);
    EXPECT_NE(draw().rgba, before.rgba);
    material->transparency.setValue(0);
    EXPECT_EQ(draw().rgba, before.rgba);
}

TEST_F(Renderer, ComplexityMakesRoundThingsRounder)
{
    auto* complexity = add<SoComplexity>();
    add<SoSphere>();
    draw();
    const auto coarse = renderer().getRenderer().getStatistics().triangles;
    complexity->value.setValue(1);
    draw();
    EXPECT_GT(renderer().getRenderer().getStatistics().triangles, 8 * coarse);
}

TEST_F(Renderer, ATextureStandsUprightAndIsNotMirrored)
{
    const unsigned char bytes[] = {255, 0, 0, 0, 255, 0, 255, 255, 0, 255, 255, 255};
    auto* texture = add<SoTexture2>();
    texture->image.setValue(2, 2, 3, bytes);
    auto* quality = add<SoComplexity>();
    quality->textureQuality.setValue(0.2F);
    addMaterial({1, 1, 1});
    addSquare();
    const SoPixels pixels = draw(80, 80);
    EXPECT_PIXEL(at(pixels, 30, 50), (Pixel{255, 0, 0}));
    EXPECT_PIXEL(at(pixels, 50, 50), (Pixel{0, 255, 0}));
    EXPECT_PIXEL(at(pixels, 30, 30), (Pixel{255, 255, 0}));
    EXPECT_PIXEL(at(pixels, 50, 30), (Pixel{255, 255, 255}));
    quality->textureQuality.setValue(0);
    EXPECT_PIXEL(at(draw(80, 80), 30, 50), (Pixel{255, 255, 255}));
}

TEST_F(Renderer, ATextureWithOpacityIsBlended)
{
    const unsigned char bytes[] = {255, 0, 0, 128};
    add<SoTexture2>()->image.setValue(1, 1, 4, bytes);
    addMaterial({1, 1, 1});
    addSquare();
    EXPECT_PIXEL(center(draw()), (Pixel{128, 0, 127}));
}

TEST_F(Renderer, TextureModelsCombineDifferently)
{
    const unsigned char bytes[] = {255, 255, 0, 128};
    auto* texture = add<SoTexture2>();
    texture->image.setValue(1, 1, 4, bytes);
    addMaterial({0, 1, 1});
    addSquare();
    texture->model.setValue(SoTexture2::Decal);
    EXPECT_PIXEL(center(draw()), (Pixel{128, 255, 127}));
    texture->model.setValue(SoTexture2::Replace);
    EXPECT_PIXEL(center(draw()), (Pixel{128, 128, 127}));
}

TEST_F(Renderer, FacesAndVerticesCanHaveTheirColours)
{
    auto* material = addMaterial({1, 0, 0});
    material->diffuseColor.setValues({{1, 0, 0}, {0, 1, 0}});
    add<SoPoints>()->points.setValues({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}});
    auto* shape = add<SoIndexedTriangleSet>();
    shape->index.setValues({0, 1, 2, 0, 2, 3});
    shape->colorBinding.setValue(SoVertexShape::PerFace);
    SoPixels pixels = draw(80, 80);
    EXPECT_PIXEL(at(pixels, 50, 45), (Pixel{255, 0, 0}));
    EXPECT_PIXEL(at(pixels, 30, 35), (Pixel{0, 255, 0}));
    shape->colorBinding.setValue(SoVertexShape::PerVertex);
    pixels = draw(80, 80);
    const Pixel between = at(pixels, 40, 55);
    EXPECT_GT(between[0], 50);
    EXPECT_GT(between[1], 50);
    material->diffuseColor.set1Value(0, {0, 0, 1});
    material->diffuseColor.set1Value(1, {0, 0, 1});
    EXPECT_PIXEL(at(draw(80, 80), 40, 55), (Pixel{0, 0, 255}));
}

TEST_F(Renderer, DrawStyleAndWireframe)
{
    auto* style = add<SoDrawStyle>();
    addMaterial({1, 0, 0});
    addSquare();
    style->style.setValue(SoDrawStyle::Lines);
    EXPECT_PIXEL(at(draw(), 40, 40), Background);
    style->style.setValue(SoDrawStyle::Filled);
    EXPECT_PIXEL(at(draw(), 40, 40), (Pixel{255, 0, 0}));
    renderer().getRenderer().setWireframe(true);
    EXPECT_PIXEL(at(draw(), 40, 36), Background);
    renderer().getRenderer().setWireframe(false);
    style->style.setValue(SoDrawStyle::Invisible);
    EXPECT_PIXEL(at(draw(), 40, 40), Background);
}

TEST_F(Renderer, TheHighlightMarksOnlyItsNode)
{
    addMaterial({1, 0, 0});
    addSquare();
    auto* group = new SoSeparator;
    group->addChild(new SoSphere);
    root->addChild(group);
    const SoPixels plain = draw();
    renderer().getRenderer().setHighlight(group);
    EXPECT_NE(draw().rgba, plain.rgba);
    renderer().getRenderer().setHighlight(nullptr);
    EXPECT_EQ(draw().rgba, plain.rgba);
}

TEST_F(Renderer, FogHidesWhatIsFar)
{
    auto* fog = add<SoFog>();
    fog->visibility.setValue(10);
    addMaterial({1, 0, 0});
    addSquare(0);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 128, 128}));
    fog->kind.setValue(SoFog::Exp);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 220, 220}));
    fog->kind.setValue(SoFog::Exp2);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 182, 182}));
    fog->kind.setValue(SoFog::None);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
}

TEST_F(Renderer, TheFirstCameraOfTheSceneIsTakenWithTheTransformBeforeIt)
{
    auto* group = new SoSeparator;
    auto* transform = new SoTransform;
    transform->translation.setValue(100, 0, 5);
    auto* inside = new SoPerspectiveCamera;
    inside->position.setValue(0, 0, 0);
    group->addChild(transform);
    group->addChild(inside);
    root->addChild(group);
    addMaterial({1, 0, 0});
    addSquare();
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels));
    EXPECT_PIXEL(center(pixels), Background);
    transform->translation.setValue(0, 0, 5);
    ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels));
    EXPECT_PIXEL(center(pixels), (Pixel{255, 0, 0}));
}

// A renderer that outlived a scene asked that scene's camera once more.
TEST_F(Renderer, ForgetsADestroyedCamera)
{
    auto* away = add<SoPerspectiveCamera>();
    away->position.setValue(500, 0, 0);
    addMaterial({1, 0, 0});
    add<SoSphere>();
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels));
    EXPECT_PIXEL(center(pixels), Background);
    root->removeChild(0);
    ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels));
    EXPECT_GT(center(pixels)[0], 200);
}

TEST_F(Renderer, WithoutACameraEverythingIsInView)
{
    add<SoTransform>()->translation.setValue(1000, 0, 0);
    addMaterial({1, 0, 0});
    add<SoSphere>();
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels));
    EXPECT_GT(center(pixels)[0], 200);
}

TEST_F(Renderer, AHundredThousandLevelsAreDrawn)
{
    addMaterial({1, 0, 0});
    addSquare();
    for (int i = 0; i < 100'000; ++i) {
        SoRef<SoSeparator> above(new SoSeparator);
        above->addChild(root.get());
        root = above;
    }
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
}

TEST_F(Renderer, DrawsTheValidPartOfBrokenShapes)
{
    addMaterial({1, 0, 0});
    add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2}); // no points before it
    add<SoPoints>()->points.setValues({{-1, -1, 0}, {1, -1, 0}, {0, 1, 0}, {std::nanf(""), 0, 0}});
    add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2, 0, 1, 99, -1, 1, 2, 0, 1, 3, 0, 1});
    EXPECT_PIXEL(center(draw()), (Pixel{255, 0, 0}));
}

TEST_F(Renderer, AnApplicationDrawsByItself)
{
    int width = 0;
    auto* callback = add<SoDrawingCallback>();
    addMaterial({1, 0, 0});
    addSquare();
    callback->setCallback([&](const SoDrawingContext& context) {
        width = context.width;
        glDisable(GL_DEPTH_TEST);
        glEnable(GL_SCISSOR_TEST);
        glScissor(0, 0, 8, 8);
        glClearColor(0, 1, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT);
    });
    const SoPixels pixels = draw();
    EXPECT_EQ(width, 64);
    EXPECT_PIXEL(at(pixels, 4, 60), (Pixel{0, 255, 0}));
    EXPECT_PIXEL(center(pixels), (Pixel{255, 0, 0}));
}

TEST_F(Renderer, SizesThatCannotBeAreRefusedWithASentence)
{
    SoPixels pixels;
    EXPECT_FALSE(renderer().render(root.get(), nullptr, 0, 10, pixels));
    EXPECT_NE(renderer().getErrorText().find("0 x 10"), std::string::npos);
    EXPECT_FALSE(renderer().render(root.get(), nullptr, 1'000'000, 10, pixels));
    EXPECT_TRUE(renderer().render(root.get(), nullptr, 10, 10, pixels));
    EXPECT_EQ(renderer().getErrorText(), "");
}

TEST_F(Renderer, SeveralRenderersShowTheSameScene)
{
    addMaterial({1, 0, 0});
    add<SoSphere>();
    const SoPixels first = draw();
    SoOffscreenRenderer other;
    other.getRenderer().setBackground({0, 0, 1});
    SoPixels second;
    ASSERT_TRUE(other.render(root.get(), camera.get(), 64, 64, second));
    EXPECT_EQ(first.rgba, second.rgba);
    other.getRenderer().setWireframe(true);
    EXPECT_EQ(draw().rgba, first.rgba);
}
