// SPDX-License-Identifier: MIT
// What each node does to a picture.
#include "Picture.h"

#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoLevelOfDetail.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoIndexedLineSet.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleStripSet.h>
#include <xsg/nodes/shapes/SoLineSet.h>
#include <xsg/nodes/shapes/SoPointSet.h>
#include <xsg/nodes/shapes/SoScreenText.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/shapes/SoTriangleSet.h>
#include <xsg/nodes/shapes/SoTriangleStripSet.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoSpin.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

class NodePicture : public Picture
{
protected:
    // Shines by itself, so that lights do not matter.
    SoMaterial* addGlow(const SbColor& color)
    {
        auto* material = add<SoMaterial>();
        material->diffuseColor.setValue(SbColor(0, 0, 0));
        material->ambientColor.setValue(SbColor(0, 0, 0));
        material->emissiveColor.setValue(color);
        return material;
    }
    SoMaterial* addDull(const SbColor& color)
    {
        auto* material = add<SoMaterial>();
        material->ambientColor.setValue(SbColor(0, 0, 0));
        material->diffuseColor.setValue(color);
        return material;
    }
    void addCorners(std::vector<SbVec3f> corners) { add<SoPoints>()->points.setValues(std::move(corners)); }
    void addSquareCorners() { addCorners({{-1, -1, 0}, {1, -1, 0}, {-1, 1, 0}, {1, 1, 0}}); }

    int count(const SoPixels& pixels, const Pixel& wanted)
    {
        int found = 0;
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x)
                found += isNear(at(pixels, x, y), wanted) ? 1 : 0;
        }
        return found;
    }

    static constexpr Pixel Red{255, 0, 0};
};

TEST_F(NodePicture, OrthographicCameraKeepsSizes)
{
    addGlow({1, 0, 0});
    add<SoCube>();
    add<SoTransform>()->translation.setValue(0, 0, -50);
    add<SoCube>();
    const SoRef<SoOrthographicCamera> parallel(new SoOrthographicCamera);
    parallel->position.setValue(0, 0, 5);
    parallel->height.setValue(4);
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(root.get(), parallel.get(), 64, 64, pixels));
    EXPECT_PIXEL(at(pixels, 17, 32), Red);
    EXPECT_PIXEL(at(pixels, 14, 32), Background);
    EXPECT_NEAR(count(pixels, Red), 32 * 32, 40);
    parallel->viewAll(renderer().getRenderer().getSceneBox(), 1);
    ASSERT_TRUE(renderer().render(root.get(), parallel.get(), 64, 64, pixels));
    EXPECT_GT(count(pixels, Red), 1);
}

TEST_F(NodePicture, PointLightFadesWithDistance)
{
    auto* light = add<SoPointLight>();
    light->location.setValue(0, 0, 2);
    light->attenuation.setValue(0, 0.5F, 0.25F);
    addDull({1, 1, 1});
    addSquareCorners();
    add<SoTriangleStripSet>();
    const SoPixels pixels = draw();
    EXPECT_PIXEL(center(pixels), (Pixel{128, 128, 128}));
    EXPECT_LT(at(pixels, 20, 20)[0], 110);
}

TEST_F(NodePicture, SpotLightLightsOnlyItsCone)
{
    auto* light = add<SoSpotLight>();
    light->location.setValue(0, 0, 2);
    light->cutOffAngle.setValue(0.2F);
    addDull({1, 1, 1});
    addSquareCorners();
    add<SoTriangleStripSet>();
    SoPixels pixels = draw();
    EXPECT_PIXEL(center(pixels), (Pixel{255, 255, 255}));
    EXPECT_PIXEL(at(pixels, 22, 22), (Pixel{0, 0, 0}));
    const Pixel edge = at(pixels, 36, 32);
    light->dropOff.setValue(50);
    EXPECT_LT(at(draw(), 36, 32)[0], edge[0]);
}

TEST_F(NodePicture, AmbientLightReachesEverySide)
{
    auto* ambient = add<SoAmbientLight>();
    ambient->intensity.setValue(0.5F);
    auto* material = addDull({0, 0, 0});
    material->ambientColor.setValue(SbColor(1, 0.5F, 0));
    add<SoSphere>();
    EXPECT_PIXEL(center(draw()), (Pixel{128, 64, 0}));
}

TEST_F(NodePicture, SpecularLightMakesASpot)
{
    auto* material = addDull({0.5F, 0, 0});
    add<SoSphere>();
    const Pixel before = center(draw());
    material->specularColor.setValue(SbColor(1, 1, 1));
    const SoPixels pixels = draw();
    EXPECT_GT(center(pixels)[1], before[1] + 100);
    EXPECT_LT(at(pixels, 22, 32)[1], 10);
}

// As a smoothed normal does near a silhouette.
TEST_F(NodePicture, ANormalThatLooksAwayLeavesNoDarkPatchOnAFaceThatIsSeen)
{
    auto* light = add<SoDirectionalLight>();
    light->direction.setValue(-1, 0, 0);
    addDull({1, 1, 1});
    addCorners({{-0.3F, -1, 1}, {0.3F, -1, -1}, {-0.3F, 1, 1}, {0.3F, 1, -1}});
    add<SoNormals>()->vectors.setValues(std::vector<SbVec3f>(4, SbVec3f(0.99F, 0, -0.1F)));
    add<SoTriangleStripSet>();
    EXPECT_GT(center(draw())[0], 200);
    light->direction.setValue(1, 0, 0);
    EXPECT_LT(center(draw())[0], 20);
}

TEST_F(NodePicture, EveryKindOfTriangleListFillsTheSameSquare)
{
    addGlow({1, 0, 0});
    addSquareCorners();
    add<SoTriangleStripSet>();
    const SoPixels strip = draw();
    EXPECT_PIXEL(center(strip), Red);
    root->removeChild(2);
    add<SoIndexedTriangleStripSet>()->index.setValues({0, 1, 2, 3, -1});
    EXPECT_EQ(draw().rgba, strip.rgba);
    root->removeChild(2);
    root->removeChild(1);
    addCorners({{-1, -1, 0}, {1, -1, 0}, {-1, 1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}, {9, 9, 9}});
    add<SoTriangleSet>();
    EXPECT_EQ(draw().rgba, strip.rgba);
}

TEST_F(NodePicture, StripsOfDifferentLengths)
{
    addGlow({1, 0, 0});
    addCorners({{-1, -1, 0}, {-0.5F, -1, 0}, {-1, 1, 0}, {0, -1, 0}, {1, -1, 0}, {0, 1, 0}, {1, 1, 0}});
    add<SoTriangleStripSet>()->counts.setValues({3, 4});
    const SoPixels pixels = draw();
    EXPECT_PIXEL(at(pixels, 38, 32), Red);
    EXPECT_PIXEL(at(pixels, 30, 30), Background);
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 3);
}

TEST_F(NodePicture, LinesJoinTheirPoints)
{
    add<SoDrawStyle>()->lineWidth.setValue(3);
    addDull({1, 0, 0});
    addSquareCorners();
    auto* lines = add<SoLineSet>();
    renderer().setSamples(1);
    const SoPixels all = draw();
    EXPECT_PIXEL(center(all), Red); // the diagonal, in the material's colour without light
    lines->counts.setValues({2, 2});
    const SoPixels two = draw();
    EXPECT_PIXEL(center(two), Background);
    root->removeChild(3);
    add<SoIndexedLineSet>()->index.setValues({0, 1, -1, 2, 3});
    EXPECT_EQ(draw().rgba, two.rgba);
}

TEST_F(NodePicture, PointsAreDots)
{
    auto* style = add<SoDrawStyle>();
    style->pointSize.setValue(6);
    addDull({1, 0, 0});
    addCorners({{0, 0, 0}, {1, 1, 0}});
    add<SoPointSet>();
    renderer().setSamples(1);
    EXPECT_NEAR(count(draw(), Red), 72, 10);
    root->removeChild(3);
    add<SoIndexedPointSet>()->index.setValues({0, 7});
    EXPECT_NEAR(count(draw(), Red), 36, 8);
    EXPECT_PIXEL(center(draw()), Red);
}

TEST_F(NodePicture, PartsOfSolidsCanBeLeftOut)
{
    addGlow({1, 0, 0});
    add<SoTransform>()->rotation.setValue(SbRotation({1, 0, 0}, 1.5707964F));
    auto* cylinder = add<SoCylinder>();
    EXPECT_PIXEL(center(draw()), Red);
    cylinder->parts.setValue(SoCylinder::Sides);
    EXPECT_PIXEL(center(draw()), Background);
    cylinder->parts.setValue(SoCylinder::Bottom);
    EXPECT_PIXEL(center(draw()), Red);
    root->removeChild(2);
    auto* cone = add<SoCone>();
    cone->parts.setValue(0);
    EXPECT_PIXEL(center(draw()), Background);
    cone->parts.setValue(SoCone::Sides);
    EXPECT_PIXEL(center(draw()), Red);
}

TEST_F(NodePicture, ScreenTextKeepsItsSizeAndStandsAtItsPlace)
{
    addDull({1, 0, 0});
    auto* text = add<SoScreenText>();
    text->lines.setValue("HH");
    text->size.setValue(20);
    text->justification.setValue(SoScreenText::Center);
    renderer().setSamples(1);
    const int near = count(draw(), Red);
    EXPECT_EQ(near, 2 * 17 * 4); // an H has 17 dots, each of 2 by 2 pixels
    camera->position.setValue(0, 0, 50);
    EXPECT_EQ(count(draw(), Red), near);
    text->lines.setValues({"H", "H"});
    const SoPixels below = draw();
    EXPECT_EQ(count(below, Red), near);
    EXPECT_GT(at(below, 27, 50)[0], 200);
    text->lines.setValue("\xC3\xA9"); // a letter that the font does not have
    EXPECT_EQ(count(draw(), Red), 20 * 4);
}

TEST_F(NodePicture, ClipPlaneCutsWhatFollows)
{
    auto* clip = add<SoClipPlane>();
    clip->plane.setValue(SbPlane({2, 0, 0}, 0));
    addGlow({1, 0, 0});
    add<SoCube>();
    SoPixels pixels = draw();
    EXPECT_PIXEL(at(pixels, 38, 32), Red);
    EXPECT_PIXEL(at(pixels, 26, 32), Background);
    clip->on.setValue(false);
    EXPECT_PIXEL(at(draw(), 26, 32), Red);
    clip->on.setValue(true);
    clip->plane.setValue(SbPlane({0, 0, 0}, 0));
    EXPECT_PIXEL(at(draw(), 26, 32), Red);
}

TEST_F(NodePicture, ClipPlaneMovesWithItsTransform)
{
    add<SoTransform>()->translation.setValue(0.5F, 0, 0);
    add<SoClipPlane>()->plane.setValue(SbPlane({-1, 0, 0}, 0));
    addGlow({1, 0, 0});
    add<SoCube>();
    const SoPixels pixels = draw();
    EXPECT_PIXEL(at(pixels, 34, 32), Red);
    EXPECT_PIXEL(at(pixels, 46, 32), Background);
}

// What is cut off of a body stays cut off however the two are stretched together.
TEST_F(NodePicture, ClipPlaneIsStretchedWithItsTransform)
{
    add<SoTransform>()->scaleFactor.setValue(4, 1, 1);
    add<SoClipPlane>()->plane.setValue(SbPlane({-1, 1, 0}, 0));
    addGlow({1, 0, 0});
    add<SoCube>()->depth.setValue(0);
    const SoPixels pixels = draw();
    EXPECT_PIXEL(at(pixels, 40, 26), Red); // 0.53 to the right, 0.39 above the middle
    EXPECT_PIXEL(at(pixels, 40, 36), Background);
    EXPECT_PIXEL(at(pixels, 24, 30), Red);
    EXPECT_PIXEL(at(pixels, 24, 38), Background);
}

TEST_F(NodePicture, SwitchShowsWhatIsChosen)
{
    addGlow({1, 0, 0});
    auto* choice = add<SoSwitch>();
    choice->addChild(new SoCube);
    auto* far = new SoSeparator;
    auto* move = new SoTransform;
    move->translation.setValue(1.5F, 1.5F, 0);
    far->addChild(move);
    far->addChild(new SoCube);
    choice->addChild(far);
    EXPECT_EQ(count(draw(), Red), 0);
    choice->whichChild.setValue(0);
    EXPECT_PIXEL(center(draw()), Red);
    choice->whichChild.setValue(1);
    EXPECT_PIXEL(center(draw()), Background);
    const int one = count(draw(), Red);
    EXPECT_GT(one, 0);
    choice->whichChild.setValue(SoSwitch::All);
    EXPECT_GT(count(draw(), Red), one);
    choice->whichChild.setValue(99);
    EXPECT_EQ(count(draw(), Red), 0);
}

TEST_F(NodePicture, LevelOfDetailChoosesByDistance)
{
    auto* levels = new SoLevelOfDetail;
    levels->distances.setValues({10.0F, 20.0F});
    for (const SbColor& color : {SbColor(1, 0, 0), SbColor(0, 1, 0), SbColor(1, 1, 0)}) {
        auto* level = new SoSeparator;
        auto* glow = new SoMaterial;
        glow->diffuseColor.setValue(SbColor(0, 0, 0));
        glow->ambientColor.setValue(SbColor(0, 0, 0));
        glow->emissiveColor.setValue(color);
        level->addChild(glow);
        level->addChild(new SoCube);
        levels->addChild(level);
    }
    root->addChild(levels);
    EXPECT_PIXEL(center(draw()), Red);
    camera->position.setValue(0, 0, 15);
    EXPECT_PIXEL(center(draw()), (Pixel{0, 255, 0}));
    camera->position.setValue(0, 0, 30);
    EXPECT_PIXEL(center(draw()), (Pixel{255, 255, 0}));
}

TEST_F(NodePicture, InstancesShowTheirChildrenOncePerMatrix)
{
    addGlow({1, 0, 0});
    auto* instances = new SoInstances;
    root->addChild(instances);
    auto* small = new SoTransform;
    small->scaleFactor.setValue(0.2F, 0.2F, 0.2F);
    instances->addChild(small);
    instances->addChild(new SoCube);
    EXPECT_EQ(count(draw(), Red), 0);
    instances->matrices.setValues(
        {SbMatrix(), SbMatrix::translation({1, 0, 0}), SbMatrix::translation({-1, 0, 0})});
    const SoPixels pixels = draw();
    for (const int x : {32 - 15, 32, 32 + 15})
        EXPECT_PIXEL(at(pixels, x, 32), Red);
    EXPECT_EQ(renderer().getRenderer().getStatistics().drawCalls, 1);
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 36);
    add<SoCube>(); // what follows is not repeated
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 48);
}

TEST_F(NodePicture, InstancesStandInWhatMovesThem)
{
    add<SoTransform>()->rotation.setValue(SbRotation({0, 0, 1}, 1.5707963F));
    addGlow({1, 0, 0});
    auto* instances = add<SoInstances>();
    instances->matrices.setValue(SbMatrix::translation({1.5F, 0, 0}));
    auto* small = new SoTransform;
    small->scaleFactor.setValue(0.2F, 0.2F, 0.2F);
    instances->addChild(small);
    instances->addChild(new SoCube);
    const SoPixels pixels = draw();
    EXPECT_PIXEL(at(pixels, 32, 32 - 23), Red);
    EXPECT_PIXEL(at(pixels, 32 + 23, 32), Background);
}

TEST_F(NodePicture, InstancesWithinInstancesMultiply)
{
    auto* outer = new SoInstances;
    outer->matrices.setValues({SbMatrix(), SbMatrix::translation({0, 1, 0})});
    auto* inner = new SoInstances;
    inner->matrices.setValues(
        {SbMatrix(), SbMatrix::translation({1, 0, 0}), SbMatrix::translation({-1, 0, 0})});
    inner->addChild(new SoCube);
    outer->addChild(inner);
    root->addChild(outer);
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 72);
    const SbBox3f box = renderer().getRenderer().getSceneBox();
    EXPECT_EQ(box, SbBox3f(-2, -1, -1, 2, 2, 1));
}

TEST_F(NodePicture, TextureTransformMovesThePicture)
{
    const unsigned char bytes[] = {255, 0, 0, 0, 255, 0};
    add<SoTexture2>()->image.setValue(2, 1, 3, bytes);
    add<SoComplexity>()->textureQuality.setValue(0.2F);
    auto* transform = add<SoTextureTransform>();
    addDull({1, 1, 1});
    addSquareCorners();
    add<SoTextureCoordinates>()->points.setValues({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
    add<SoTriangleStripSet>();
    EXPECT_PIXEL(at(draw(), 26, 32), Red);
    transform->translation.setValue(0.5F, 0);
    EXPECT_PIXEL(at(draw(), 26, 32), (Pixel{0, 255, 0}));
    transform->translation.setValue(0, 0);
    transform->center.setValue(0.5F, 0.5F);
    transform->rotation.setValue(3.14159265F);
    EXPECT_PIXEL(at(draw(), 26, 32), (Pixel{0, 255, 0}));
    transform->scaleFactor.setValue(0, 0);
    transform->rotation.setValue(0);
    EXPECT_PIXEL(at(draw(), 24, 32), at(draw(), 40, 32));
}

TEST_F(NodePicture, TextureTransformsWorkFromTheLastToTheFirst)
{
    const unsigned char bytes[] = {255, 0, 0, 0, 255, 0};
    add<SoTexture2>()->image.setValue(2, 1, 3, bytes);
    add<SoComplexity>()->textureQuality.setValue(0.2F);
    add<SoTextureTransform>()->translation.setValue(0.5F, 0);
    add<SoTextureTransform>()->scaleFactor.setValue(2, 1);
    addDull({1, 1, 1});
    addSquareCorners();
    add<SoTextureCoordinates>()->points.setValues({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
    add<SoTriangleStripSet>();
    const SoPixels pixels = draw(); // twice the picture, which begins in its middle
    for (const auto& [x, isRed] : {std::make_pair(20, false), {28, true}, {36, false}, {44, true}})
        EXPECT_PIXEL(at(pixels, x, 32), (isRed ? Red : Pixel{0, 255, 0}));
}

TEST_F(NodePicture, SpinTurnsAsTimePasses)
{
    auto* spin = add<SoSpin>();
    spin->turnsPerSecond.setValue(0.5F);
    add<SoTransform>()->translation.setValue(1.2F, 0, 0);
    addGlow({1, 0, 0});
    add<SoCube>()->width.setValue(0.5F);
    EXPECT_PIXEL(at(draw(), 50, 32), Red);
    EXPECT_TRUE(SoTimeSource::getInstance().advance(1.0));
    EXPECT_PIXEL(at(draw(), 50, 32), Background);
    EXPECT_PIXEL(at(draw(), 14, 32), Red);
    spin->on.setValue(false);
    EXPECT_FALSE(SoTimeSource::getInstance().advance(1.0));
    EXPECT_PIXEL(at(draw(), 14, 32), Red);
}

TEST_F(NodePicture, NormalsShapeTheLight)
{
    addDull({1, 1, 1});
    addSquareCorners();
    auto* normals = add<SoNormals>();
    add<SoTriangleStripSet>();
    EXPECT_PIXEL(center(draw()), (Pixel{255, 255, 255}));
    normals->vectors.setValues(std::vector<SbVec3f>(4, {0, 0.866F, 0.5F}));
    EXPECT_PIXEL(center(draw()), (Pixel{128, 128, 128}));
    normals->vectors.setNum(2); // too few: the shape makes its own
    EXPECT_PIXEL(center(draw()), (Pixel{255, 255, 255}));
}

TEST_F(NodePicture, MatrixTransformMoves)
{
    add<SoMatrixTransform>()->matrix.setValue(SbMatrix::translation({1.2F, 0, 0}));
    addGlow({1, 0, 0});
    add<SoCube>()->width.setValue(0.5F);
    EXPECT_PIXEL(at(draw(), 50, 32), Red);
    EXPECT_PIXEL(center(draw()), Background);
}

TEST_F(NodePicture, MirroredShapesAreLitFromTheSameSide)
{
    addDull({1, 1, 1});
    auto* transform = add<SoTransform>();
    add<SoSphere>();
    const Pixel plain = center(draw());
    transform->scaleFactor.setValue(1, 1, -1);
    EXPECT_PIXEL(center(draw()), plain);
}
