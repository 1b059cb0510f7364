#include <gtest/gtest.h>

#include <xsg/base/SbRotation.h>
#include <xsg/nodes/SoPerspectiveCamera.h>

namespace
{

void expectNear(const SbVec3f& a, const SbVec3f& b)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(a[i], b[i], 1e-4F) << "component " << i;
}

SbVec3f project(const SoCamera& camera, const SbVec3f& point, float aspect)
{
    return (camera.getViewMatrix() * camera.getProjectionMatrix(aspect)).multPoint(point);
}

} // namespace

TEST(Camera, ViewAllBringsEveryCornerIntoThePicture)
{
    const SbBox3f box(-3, 1, 5, 9, 2, 30);
    for (const float aspect : {0.4F, 1.0F, 2.5F}) {
        const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
        camera->orientation.setValue(SbRotation({1, 2, 3}, 1));
        camera->viewAll(box, aspect);
        for (unsigned corner = 0; corner < 8; ++corner) {
            const SbVec3f p((corner & 1U) ? -3.0F : 9.0F, (corner & 2U) ? 1.0F : 2.0F,
                            (corner & 4U) ? 5.0F : 30.0F);
            const SbVec3f seen = project(*camera, p, aspect);
            for (int i = 0; i < 3; ++i)
                EXPECT_LE(std::abs(seen[i]), 1.0F);
        }
    }
}

TEST(Camera, OrbitKeepsTheFocalPoint)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->position.setValue(1, 2, 9);
    const SbVec3f focus = camera->getFocalPoint();
    camera->orbit(0.7F, -0.3F);
    expectNear(camera->getFocalPoint(), focus);
    EXPECT_GT((camera->position.getValue() - SbVec3f(1, 2, 9)).length(), 0.5F);
}

TEST(Camera, ZoomKeepsThePlaceUnderThePointer)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    const float aspect = 1.5F;
    const SbRay ray = camera->getRay(0.8F, 0.3F, aspect);
    const float along = camera->focalDistance.getValue() / ray.direction.dot(camera->getDirection());
    const SbVec3f target = camera->position.getValue() + ray.direction * along;
    camera->zoom(0.5F, 0.8F, 0.3F, aspect);
    const SbVec3f seen = project(*camera, target, aspect);
    EXPECT_NEAR(seen[0], 0.6F, 2e-3F);
    EXPECT_NEAR(seen[1], -0.4F, 2e-3F);
    EXPECT_NEAR(camera->focalDistance.getValue(), 2.5F, 1e-5F);
}

TEST(Camera, PanMovesByPartsOfThePicture)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    const SbVec3f focus = camera->getFocalPoint();
    camera->pan(0.25F, -0.5F);
    const SbVec3f seen = project(*camera, focus, 1);
    EXPECT_NEAR(seen[0], -0.5F, 1e-4F);
    EXPECT_NEAR(seen[1], 1.0F, 1e-4F);
}

TEST(Camera, PointAtLooksThereWithALevelHorizon)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->position.setValue(1, 2, 3);
    camera->pointAt({-4, 7, 11});
    expectNear(camera->getFocalPoint(), {-4, 7, 11});
    EXPECT_NEAR(camera->orientation.getValue().multVec({1, 0, 0})[1], 0, 1e-6F);
}

TEST(Camera, UnusableFieldsStillGiveAPicture)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->heightAngle.setValue(std::nanf(""));
    camera->nearDistance.setValue(-5);
    camera->farDistance.setValue(-7);
    const SbMatrix m = camera->getProjectionMatrix(1);
    for (int i = 0; i < 16; ++i)
        EXPECT_TRUE(std::isfinite(m.getValue()[i]));
}
