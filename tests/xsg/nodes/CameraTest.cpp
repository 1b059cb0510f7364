// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>

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

SbBox3f projectCorners(const SoCamera& camera, const SbBox3f& box, float aspect)
{
    SbBox3f seen;
    for (unsigned corner = 0; corner < 8; ++corner) {
        SbVec3f point;
        for (int i = 0; i < 3; ++i)
            point[i] = (corner >> i) & 1U ? box.getMax()[i] : box.getMin()[i];
        seen.extendBy(project(camera, point, aspect));
    }
    return seen;
}

} // namespace

// All eight corners in the picture, as large as they can be but for the margin, with equal margins at both
// sides.
template <class Camera>
class ViewAll : public testing::Test
{
};
using Cameras = testing::Types<SoPerspectiveCamera, SoOrthographicCamera>;
TYPED_TEST_SUITE(ViewAll, Cameras);

TYPED_TEST(ViewAll, FillsThePictureFromWhereverItLooks)
{
    const SbBox3f boxes[] = {
        {-3, 1, 5, 9, 2, 30}, {1000, 1000, 1000, 1001, 1001, 1001}, {-1, 0, -1, 1, 0, 1}};
    const SbRotation views[] = {SbRotation(), SbRotation({1, 2, 3}, 1), SbRotation({-1, 0.3F, 0}, 2.5F)};
    for (const SbBox3f& box : boxes) {
        for (const SbRotation& view : views) {
            for (const float aspect : {0.3F, 1.0F, 4.0F}) {
                const SoRef<TypeParam> camera(new TypeParam);
                camera->orientation.setValue(view);
                camera->viewAll(box, aspect);
                const SbBox3f seen = projectCorners(*camera, box, aspect);
                // What is flat is framed as if it were a hundredth as thick as wide.
                EXPECT_NEAR(std::max(seen.getMax()[0], seen.getMax()[1]), 0.88F, 0.02F) << aspect;
                for (int i = 0; i < 2; ++i) {
                    EXPECT_LE(seen.getMax()[i], 0.881F);
                    EXPECT_NEAR(seen.getMin()[i], -seen.getMax()[i], 0.02F) << aspect;
                }
                EXPECT_GE(seen.getMin()[2], -1.0F);
                EXPECT_LE(seen.getMax()[2], 1.0F);
            }
        }
    }
}

TYPED_TEST(ViewAll, APointAndALineSeenFromItsEndAreInThePicture)
{
    for (const SbBox3f& box : {SbBox3f(5, 6, 7, 5, 6, 7), SbBox3f(0, 0, -10, 0, 0, 10)}) {
        const SoRef<TypeParam> camera(new TypeParam);
        camera->viewAll(box, 1);
        const SbBox3f seen = projectCorners(*camera, box, 1);
        for (int i = 0; i < 3; ++i) {
            EXPECT_GE(seen.getMin()[i], -1.0F);
            EXPECT_LE(seen.getMax()[i], 1.0F);
        }
    }
}

TEST(Camera, WithoutPerspectiveItSeesWhatIsBehindItToo)
{
    const SoRef<SoOrthographicCamera> camera(new SoOrthographicCamera);
    const SbBox3f box(-3, -3, -3, 3, 3, 3);
    for (const float z : {-20.0F, 0.0F, 1.0F, 20.0F}) {
        camera->position.setValue(0, 0, z);
        camera->fitDepthRange(box);
        const SbBox3f seen = projectCorners(*camera, box, 1);
        EXPECT_GE(seen.getMin()[2], -1.0F) << z;
        EXPECT_LE(seen.getMax()[2], 1.0F) << z;
    }
}

TEST(Camera, ListsAllLivingCameras)
{
    const auto isListed = [](const SoCamera* camera) {
        const auto& all = SoCamera::getAll();
        return std::count(all.begin(), all.end(), camera) == 1;
    };
    SoRef<SoPerspectiveCamera> one(new SoPerspectiveCamera);
    const SoRef<SoOrthographicCamera> other(new SoOrthographicCamera);
    const SoCamera* gone = one.get();
    EXPECT_TRUE(isListed(one.get()) && isListed(other.get()));
    one = {};
    EXPECT_FALSE(isListed(gone));
    EXPECT_TRUE(isListed(other.get()));
}

TEST(Rotation, LooksThereWithTheRightSideUp)
{
    const SbRotation turned = SbRotation::looking({5, 0, 0}, {1, 0, 2});
    expectNear(turned.multVec({0, 0, -1}), {1, 0, 0});
    expectNear(turned.multVec({0, 1, 0}), {0, 0, 1});
    expectNear(SbRotation::looking({0, 3, 0}, {0, 2, 0}).multVec({0, 0, -1}), {0, 1, 0});
    for (const float number : {0.0F, std::nanf("")}) {
        const SbVec3f direction = SbRotation::looking({number, 0, 0}, {0, number, 0}).multVec({0, 0, -1});
        EXPECT_TRUE(std::isfinite(direction[0] + direction[1] + direction[2]));
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
