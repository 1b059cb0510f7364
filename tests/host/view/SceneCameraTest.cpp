// SPDX-License-Identifier: MIT
// How the 3D view and the camera that a scene brings along go together.
#include "ViewPictures.h"

#include "viewport/ViewCamera.h"

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/groups/SoLevelOfDetail.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/SoOffscreenRenderer.h>
#include <xsg/values/SbRotation.h>

using namespace scopix;

namespace
{

constexpr float Near = 1e-5F;

bool isNear(const SbVec3f& a, const SbVec3f& b, float tolerance = Near)
{
    return (a - b).length() <= tolerance * std::max(1.0F, a.length());
}

// A cube, seen by a camera of the scene's own from the right, above, and at an odd angle.
class SceneWithCamera : public testing::Test
{
protected:
    SceneWithCamera()
    {
        camera->position.setValue(6, 4, 5);
        camera->pointAt({0.5F, 0.25F, 0});
        camera->heightAngle.setValue(0.6F);
        scene->addChild(camera.get());
        scene->addChild(cube.get());
        view.resize(300, 200);
        view.show();
    }
    const SoCamera& seen() { return view.getCamera(); }
    bool seesThrough(const SoCamera& other)
    {
        const SbMatrix own = seen().getViewMatrix() * seen().getProjectionMatrix(1.5F);
        const SbMatrix wanted = other.getViewMatrix() * other.getProjectionMatrix(1.5F);
        return std::equal(own.getValue(), own.getValue() + 16, wanted.getValue(), [](float a, float b) {
            return std::abs(a - b) <= Near * std::max(1.0F, std::abs(b));
        });
    }
    QImage picture() { return pictureOf(view); }

    SoRef<SoSeparator> scene{new SoSeparator};
    SoRef<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
    SoRef<SoCube> cube{new SoCube};
    SceneView view;
};

} // namespace

TEST_F(SceneWithCamera, OpensSeenThroughIt)
{
    view.setScene(scene.get());
    EXPECT_TRUE(seesThrough(*camera));
    SoOffscreenRenderer renderer;
    renderer.setSamples(4);
    const QColor ground = picture().pixelColor(1, 1);
    const auto part = [](int step) { return static_cast<float>(step) / 255; };
    renderer.getRenderer().setBackground({part(ground.red()), part(ground.green()), part(ground.blue())});
    SoPixels pixels;
    ASSERT_TRUE(renderer.render(scene.get(), camera.get(), 300, 200, pixels));
    const QImage wanted(pixels.rgba.data(), 300, 200, QImage::Format_RGBX8888);
    EXPECT_EQ(picture().convertToFormat(QImage::Format_RGB32), wanted.convertToFormat(QImage::Format_RGB32));
}

TEST_F(SceneWithCamera, OpensSeenThroughOneWithoutPerspective)
{
    SoRef<SoOrthographicCamera> plan(new SoOrthographicCamera);
    plan->position.setValue(0, 7, 0);
    plan->orientation.setValue(SbRotation({1, 0, 0}, -1.5707963F));
    plan->height.setValue(4);
    scene->insertChild(plan.get(), 0);
    view.setScene(scene.get());
    EXPECT_TRUE(dynamic_cast<const SoOrthographicCamera*>(&seen()));
    EXPECT_TRUE(seesThrough(*plan));
    const QImage image = picture();
    const QRgb ground = image.pixel(1, 1);
    int wide = 0;
    for (int x = 0; x < image.width(); ++x)
        wide += image.pixel(x, 100) == ground ? 0 : 1;
    EXPECT_NEAR(wide, 100, 2) << "the cube is half as large as what is seen";
    view.viewAll();
    EXPECT_TRUE(dynamic_cast<const SoOrthographicCamera*>(&seen()));
}

TEST_F(SceneWithCamera, ANarrowViewSeesAsMuchAtItsSides)
{
    view.setScene(scene.get());
    const auto wide = [this] {
        return float((placeOf(view, {1, 0, 1}) - placeOf(view, {-1, 0, -1})).x()) / float(view.width());
    };
    const float part = wide();
    view.resize(900, 600);
    EXPECT_NEAR(wide(), part, 0.01F);
    view.resize(150, 400);
    EXPECT_NEAR(wide(), part, 0.02F);
    view.resize(600, 200);
    EXPECT_NEAR(wide(), part / 2, 0.01F);
    SoRef<SoOrthographicCamera> parallel(new SoOrthographicCamera);
    parallel->height.setValue(4);
    scene->insertChild(parallel.get(), 0);
    picture();
    const auto height = [this] { return static_cast<const SoOrthographicCamera&>(seen()).height.getValue(); };
    EXPECT_FLOAT_EQ(height(), 4);
    view.resize(150, 200);
    EXPECT_FLOAT_EQ(height(), 8);
}

TEST_F(SceneWithCamera, StandsWhereItsTransformsPutIt)
{
    auto* moved = new SoTransform;
    moved->translation.setValue(1, 2, 3);
    moved->rotation.setValue(SbRotation({0, 1, 0}, 1.5707963F));
    moved->scaleFactor.setValue(2, 2, 2);
    auto* place = new SoSeparator;
    SoRef<SoOrthographicCamera> mounted(new SoOrthographicCamera);
    mounted->position.setValue(0, 0, 10);
    mounted->height.setValue(3);
    auto* outer = new SoGroup; // does not isolate, so what it sets reaches the camera
    outer->addChild(moved);
    place->addChild(outer);
    place->addChild(mounted.get());
    scene->insertChild(place, 0);
    view.setScene(scene.get());
    EXPECT_TRUE(isNear(seen().position.getValue(), {21, 2, 3}));
    EXPECT_TRUE(isNear(seen().getDirection(), {-1, 0, 0}));
    EXPECT_TRUE(isNear(seen().orientation.getValue().multVec({0, 1, 0}), {0, 1, 0}));
    EXPECT_FLOAT_EQ(static_cast<const SoOrthographicCamera&>(seen()).height.getValue(), 6);
    EXPECT_FLOAT_EQ(seen().farDistance.getValue(), 2000);
    moved->translation.setValue(1, 5, 3);
    picture();
    EXPECT_TRUE(isNear(seen().position.getValue(), {21, 5, 3})) << "it follows what carries its camera";
}

TEST_F(SceneWithCamera, UsesTheFirstActiveCamera)
{
    auto* choice = new SoSwitch;
    SoRef<SoPerspectiveCamera> first(new SoPerspectiveCamera);
    first->position.setValue(0, 0, 12);
    SoRef<SoPerspectiveCamera> second(new SoPerspectiveCamera);
    second->position.setValue(0, 0, 9);
    choice->addChild(first.get());
    choice->addChild(second.get());
    auto* inside = new SoSeparator;
    inside->addChild(choice);
    scene->insertChild(inside, 0);
    view.setScene(scene.get());
    EXPECT_TRUE(seesThrough(*camera)) << "a switch that chooses nothing";
    choice->whichChild.setValue(1);
    picture();
    EXPECT_TRUE(seesThrough(*second)) << "the view follows the choice";
    choice->whichChild.setValue(SoSwitch::All);
    picture();
    EXPECT_TRUE(seesThrough(*first));
}

// The choice depends on the distance to the camera, which is not known while the camera is being searched.
TEST_F(SceneWithCamera, FindsACameraInALevelOfDetail)
{
    auto* choice = new SoLevelOfDetail;
    choice->distances.setValue(100);
    choice->addChild(new SoCube);
    choice->addChild(camera.get());
    scene->removeChild(0);
    scene->addChild(choice);
    view.setScene(scene.get());
    EXPECT_TRUE(seesThrough(*camera));
}

TEST_F(SceneWithCamera, HomeReturnsToIt)
{
    view.setScene(scene.get());
    const QImage before = picture();
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_NE(picture(), before);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(picture(), before);
    EXPECT_TRUE(seesThrough(*camera));
}

TEST_F(SceneWithCamera, ViewAllFramesTheSceneAsItIsLookedAt)
{
    view.setScene(scene.get());
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_FALSE(seesThrough(*camera));
    EXPECT_TRUE(isNear(seen().getDirection(), camera->getDirection()));
    const QRect shown = partOf(picture());
    EXPECT_GT(shown.height(), 200 * 8 / 10);
    EXPECT_LT(shown.height(), 200 * 9 / 10);
}

TEST_F(SceneWithCamera, LookingAroundLeavesTheSceneAlone)
{
    view.setScene(scene.get());
    const auto changes = scene->getChangeCount();
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Plus, Qt::Key_A, Qt::Key_Home})
        QTest::keyClick(&view, static_cast<Qt::Key>(key));
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    view.viewNode(cube.get());
    picture();
    EXPECT_EQ(scene->getChangeCount(), changes);
    EXPECT_NE(&seen(), camera.get());
}

TEST_F(SceneWithCamera, IsFollowedUntilTheUserLooksAround)
{
    view.setScene(scene.get());
    const QImage before = picture();
    camera->heightAngle.setValue(0.9F);
    EXPECT_NE(picture(), before);
    EXPECT_TRUE(seesThrough(*camera));
    camera->heightAngle.setValue(0.6F);
    EXPECT_EQ(picture(), before);
    camera->farDistance.setValue(5);
    EXPECT_NE(picture(), before) << "what is farther is not seen";
    camera->farDistance.setValue(1000);
    EXPECT_EQ(picture(), before);
    const SoCamera* same = &seen();
    cube->width.setValue(1);
    EXPECT_NE(picture(), before);
    EXPECT_EQ(&seen(), same) << "for another camera the renderer would traverse the whole scene again";

    QTest::keyClick(&view, Qt::Key_Left);
    const QImage moved = picture();
    camera->position.setValue(6, 4, 6);
    EXPECT_EQ(picture(), moved);
    QTest::keyClick(&view, Qt::Key_Home);
    picture();
    EXPECT_TRUE(seesThrough(*camera));
}

TEST_F(SceneWithCamera, IsFollowedAgainOncePutBack)
{
    view.setScene(scene.get());
    const QImage before = picture();
    scene->removeChild(0);
    EXPECT_EQ(picture(), before) << "without it the view stays where it is";
    camera->position.setValue(6, 5, 5);
    scene->insertChild(camera.get(), 0);
    EXPECT_NE(picture(), before);
    EXPECT_TRUE(seesThrough(*camera));
}

TEST_F(SceneWithCamera, ACameraAddedLaterKeepsTheView)
{
    scene->removeChild(0);
    view.setScene(scene.get());
    const QImage before = picture();
    scene->insertChild(camera.get(), 0);
    EXPECT_EQ(picture(), before);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_NE(picture(), before);
    EXPECT_TRUE(seesThrough(*camera));
}

// Many files have a camera whose focal distance says nothing.
TEST_F(SceneWithCamera, TheViewTurnsAroundTheScene)
{
    camera->position.setValue(0, 0, 300);
    camera->orientation.setValue(SbRotation());
    camera->focalDistance.setValue(5);
    view.setScene(scene.get());
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_TRUE(isNear(seen().getFocalPoint(), {0, 0, 0}, 1e-3F));
    camera->focalDistance.setValue(299.5F);
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_TRUE(isNear(seen().getFocalPoint(), {0, 0, 0.5F}, 1e-3F))
        << "the focal point must lie within the scene";
}

TEST_F(SceneWithCamera, IgnoresACameraThatSeesNothingOfTheScene)
{
    camera->position.setValue(0, 0, 9);
    camera->orientation.setValue(SbRotation({0, 1, 0}, 3.1415927F));
    view.setScene(scene.get());
    EXPECT_FALSE(seesThrough(*camera));
    EXPECT_GT(partOf(picture()).height(), 200 * 7 / 10);
}

TEST_F(SceneWithCamera, UnusableNumbersStillGiveAPicture)
{
    const float nan = std::nanf("");
    camera->position.setValue(nan, 0, 0);
    camera->heightAngle.setValue(-1);
    auto* flat = new SoTransform;
    flat->scaleFactor.setValue(0, 0, 0);
    scene->insertChild(flat, 0);
    view.setScene(scene.get());
    picture();
    QTest::keyClick(&view, Qt::Key_Left);
    QTest::keyClick(&view, Qt::Key_Plus);
    picture();
    scene->removeChild(0);
    camera->position.setValue(6, 4, 5);
    camera->heightAngle.setValue(0.6F);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_TRUE(seesThrough(*camera));
}
