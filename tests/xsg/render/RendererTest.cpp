#include "Picture.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/SoClipPlane.h>
#include <xsg/nodes/SoComplexity.h>
#include <xsg/nodes/SoCone.h>
#include <xsg/nodes/SoCube.h>
#include <xsg/nodes/SoCylinder.h>
#include <xsg/nodes/SoDirectionalLight.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoDrawingCallback.h>
#include <xsg/nodes/SoFog.h>
#include <xsg/nodes/SoIndexedTriangleSet.h>
#include <xsg/nodes/SoInstances.h>
#include <xsg/nodes/SoMaterial.h>
#include <xsg/nodes/SoMatrixTransform.h>
#include <xsg/nodes/SoNormals.h>
#include <xsg/nodes/SoPoints.h>
#include <xsg/nodes/SoSphere.h>
#include <xsg/nodes/SoSwitch.h>
#include <xsg/nodes/SoTexture2.h>
#include <xsg/nodes/SoTextureCoordinates.h>
#include <xsg/nodes/SoTransform.h>

#include <epoxy/gl.h>

class Renderer : public Picture
{
protected:
    SoMaterial* addMaterial(const SbColor& color)
    {
        auto* material = add<SoMaterial>();
        material->ambientColor.setValue(SbColor(0, 0, 0));
        material->diffuseColor.setValue(color);
        return material;
    }

    // By a renderer that has not seen the scene before.
    SoPixels drawAfresh()
    {
        SoOffscreenRenderer fresh;
        fresh.getRenderer().setBackground({0, 0, 1});
        SoPixels pixels;
        EXPECT_TRUE(fresh.render(root.get(), camera.get(), 64, 64, pixels)) << fresh.getErrorText();
        return pixels;
    }

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

TEST_F(Renderer, WhatIsOpaqueHidesWhatIsTransparentBehindIt)
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
    fog->kind.setValue(SoFog::Thickening);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 220, 220}));
    fog->kind.setValue(SoFog::Sudden);
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
TEST_F(Renderer, ACameraThatIsGoneIsForgotten)
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

TEST_F(Renderer, WhatIsOutOfSightIsNotDrawn)
{
    add<SoCube>();
    add<SoTransform>()->translation.setValue(1000, 0, 0);
    add<SoCube>();
    draw();
    const auto& statistics = renderer().getRenderer().getStatistics();
    EXPECT_EQ(statistics.shapes, 2);
    EXPECT_EQ(statistics.culled, 1);
    EXPECT_EQ(statistics.triangles, 12);
}

// So many that there are runs of runs of shapes.
TEST_F(Renderer, OfThousandsOnlyWhatIsInSightIsDrawn)
{
    std::vector<SoTransform*> moves;
    for (int i = 0; i < 5000; ++i) {
        auto* group = new SoSeparator;
        moves.push_back(new SoTransform);
        moves.back()->translation.setValue(static_cast<float>(20 * i), 0, 0);
        group->addChild(moves.back());
        group->addChild(new SoCube);
        root->addChild(group);
    }
    const auto& statistics = renderer().getRenderer().getStatistics();
    const auto lookAt = [&](float x) {
        camera->position.setValue(x, 0, 5);
        return draw();
    };
    for (const int place : {0, 63, 64, 4095, 4096, 4999}) {
        EXPECT_GT(center(lookAt(static_cast<float>(20 * place)))[0], 100) << place;
        EXPECT_EQ(statistics.culled, 4999) << place;
    }
    moves[4500]->translation.setValue(-5000, 0, 0);
    EXPECT_EQ(center(lookAt(20 * 4500))[0], 0);
    EXPECT_EQ(statistics.culled, 5000);
    EXPECT_GT(center(lookAt(-5000))[0], 100);
    EXPECT_EQ(statistics.culled, 4999);
    camera->position.setValue(50000, 0, 5000);
    camera->farDistance.setValue(10000);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(Renderer, AClippedPartLeavesTheOthersAsTheyWere)
{
    add<SoDirectionalLight>()->direction.setValue(1, -2, -3);
    auto* fog = add<SoFog>();
    fog->visibility.setValue(20);
    fog->color.setValue(SbColor(1, 1, 0));
    SoClipPlane* clips[2];
    for (int i = 0; i < 2; ++i) {
        auto* group = new SoSeparator;
        auto* move = new SoTransform;
        move->translation.setValue(i == 0 ? -1.0F : 1.0F, 0, 0);
        move->scaleFactor.setValue(0.8F, 0.8F, 0.8F);
        clips[i] = new SoClipPlane;
        clips[i]->plane.setValue(SbPlane({0, 1, 0}, 0));
        clips[i]->on.setValue(false);
        for (SoNode* node : std::initializer_list<SoNode*>{move, clips[i], new SoSphere})
            group->addChild(node);
        root->addChild(group);
    }
    renderer().setSamples(1);
    const SoPixels whole = draw();
    for (const bool isLeft : {true, false}) {
        SoClipPlane* clip = clips[isLeft ? 0 : 1];
        clip->on.setValue(true);
        const SoPixels cut = draw();
        int differing = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const bool isCutAway = isLeft == (x < 32) && y >= 31;
                if (!isCutAway)
                    EXPECT_EQ(at(cut, x, y), at(whole, x, y)) << x << ' ' << y;
                else
                    differing += at(cut, x, y) != at(whole, x, y) ? 1 : 0;
            }
        }
        EXPECT_GT(differing, 50);
        clip->on.setValue(false);
        EXPECT_EQ(draw().rgba, whole.rgba);
    }
}

TEST_F(Renderer, AChoiceAmongManyShowsAtOnce)
{
    auto* choice = add<SoSwitch>();
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        auto* move = new SoTransform;
        move->translation.setValue(i == 70 ? 0.0F : 100.0F, 0, 0);
        group->addChild(move);
        group->addChild(new SoCube);
        choice->addChild(group);
    }
    for (const int which : {3, 70, 4, int{SoSwitch::All}, int{SoSwitch::None}}) {
        choice->whichChild.setValue(which);
        const bool isShown = which == 70 || which == SoSwitch::All;
        EXPECT_EQ(center(draw())[0] > 100, isShown) << which;
    }
}

TEST_F(Renderer, CopiesStandWhereTheirListPutsThem)
{
    auto* copies = add<SoInstances>();
    copies->addChild(new SoCube);
    for (const float x : {50.0F, 0.0F, 60.0F}) {
        copies->matrices.set1Value(0, SbMatrix::translation({x, 0, 0}));
        EXPECT_EQ(center(draw())[0] > 100, x == 0) << x;
    }
}

TEST_F(Renderer, AnotherChildInTheSamePlaceIsSeen)
{
    add<SoCube>()->width.setValue(0.1F);
    const SoRef<SoCube> wide(new SoCube);
    wide->width.setValue(4);
    draw();
    root->replaceChild(0, wide.get());
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(Renderer, GeometryIsUploadedOnlyWhenItsFieldsChange)
{
    auto* material = addMaterial({1, 0, 0});
    auto* points = add<SoPoints>();
    points->points.setValues({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}});
    add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2});
    draw();
    const auto& statistics = renderer().getRenderer().getStatistics();
    EXPECT_EQ(statistics.bufferUploads, 2); // the triangle and its place
    material->diffuseColor.setValue(SbColor(0, 1, 0));
    draw();
    EXPECT_EQ(statistics.bufferUploads, 1);
    points->points.set1Value(0, {-1, 1, 0});
    draw();
    EXPECT_EQ(statistics.bufferUploads, 2);
    draw();
    EXPECT_EQ(statistics.nodes, 0);
}

TEST_F(Renderer, AFieldChangeCostsTheNodesAboveItAndWhatItReaches)
{
    SoMaterial* material = nullptr;
    SoTransform* transform = nullptr;
    add<SoDirectionalLight>();
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        transform = new SoTransform;
        material = new SoMaterial;
        transform->translation.setValue(static_cast<float>(i % 10) * 0.2F - 1, 0, 0);
        transform->scaleFactor.setValue(0.1F, 0.1F, 0.1F);
        for (SoNode* node : std::initializer_list<SoNode*>{transform, material, new SoCube, new SoSphere})
            group->addChild(node);
        root->addChild(group);
    }
    const auto& statistics = renderer().getRenderer().getStatistics();
    draw();
    EXPECT_EQ(statistics.nodes, 502);
    const auto expectAsAfresh = [&](int nodes) {
        const SoPixels patched = draw();
        EXPECT_EQ(statistics.nodes, nodes);
        EXPECT_EQ(renderer().getRenderer().getSceneBox(), SoBoundingBoxAction().getBox(root.get()));
        draw(16, 16);
        EXPECT_EQ(statistics.nodes, 0);
        EXPECT_EQ(drawAfresh().rgba, patched.rgba);
    };
    // The root, its light, the one separator that changed, and what is below that.
    material->diffuseColor.setValue(SbColor(1, 0, 0));
    expectAsAfresh(7);
    transform->translation.setValue(0, 1, 0);
    expectAsAfresh(7);
    material->transparency.setValue(0.5F);
    expectAsAfresh(7);
    material->transparency.setValue(0);
    static_cast<SoSphere*>(static_cast<SoSeparator*>(root->getChild(50))->getChild(3))->radius.setValue(7);
    material->diffuseColor.setValue(SbColor(0, 1, 0));
    expectAsAfresh(12);
}

TEST_F(Renderer, WhatAPatchCannotDoIsBuiltAnew)
{
    auto* light = add<SoDirectionalLight>();
    auto* group = new SoSeparator;
    root->addChild(group);
    auto* style = new SoDrawStyle;
    group->addChild(style);
    group->addChild(new SoCube);
    addMaterial({1, 0, 0});
    auto* sphere = add<SoSphere>();
    sphere->radius.setValue(1.4F); // looks out of the cube
    const SoPixels first = draw();
    const auto triangles = renderer().getRenderer().getStatistics().triangles;
    style->style.setValue(SoDrawStyle::Invisible);
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, triangles - 12);
    style->style.setValue(SoDrawStyle::Filled);
    EXPECT_EQ(draw().rgba, first.rgba);
    light->on.setValue(false);
    light->on.setValue(true);
    EXPECT_EQ(draw().rgba, first.rgba);
    group->addChild(new SoSphere);
    sphere->radius.setValue(0.5F);
    EXPECT_NE(draw().rgba, first.rgba);
    group->removeChild(2);
    sphere->radius.setValue(1.4F);
    EXPECT_EQ(draw().rgba, first.rgba);
    SoRef<SoNode> last(root->getChild(3));
    root->removeChild(3);
    EXPECT_NE(draw().rgba, first.rgba);
    root->addChild(last.get());
    EXPECT_EQ(draw().rgba, first.rgba);
}

TEST_F(Renderer, ACameraInTheSceneMovesWithoutAWalkOverTheScene)
{
    auto* holder = add<SoTransform>();
    auto* inside = add<SoPerspectiveCamera>();
    inside->position.setValue(0, 0, 5);
    for (int i = 0; i < 50; ++i) {
        auto* group = new SoSeparator;
        group->addChild(new SoCube);
        root->addChild(group);
    }
    SoPixels pixels;
    const auto show = [&] { ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels)); };
    show();
    EXPECT_GT(center(pixels)[0], 100);
    inside->position.setValue(0, 9, 5);
    show();
    EXPECT_PIXEL(center(pixels), Background);
    EXPECT_EQ(renderer().getRenderer().getStatistics().nodes, 53);
    inside->position.setValue(0, 0, 5);
    holder->translation.setValue(0, 1, 0);
    show();
    EXPECT_GT(center(pixels)[0], 100); // camera and cubes moved alike
    inside->position.setValue(0, -0.9F, 5);
    show();
    EXPECT_GT(center(pixels)[0], 100);
}

TEST_F(Renderer, EqualShapesAreDrawnByOneCall)
{
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(static_cast<float>(i % 10) * 0.1F, 0, 0);
        group->addChild(transform);
        group->addChild(new SoCube);
        root->addChild(group);
    }
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().drawCalls, 1);
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 1200);
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

TEST_F(Renderer, BrokenShapesAreDrawnAsFarAsTheyGo)
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
