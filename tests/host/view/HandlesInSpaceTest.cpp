// SPDX-License-Identifier: MIT
// Handles under whatever stands above, of whatever has a place.
#include "HandlesFixture.h"

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>

// Whatever stands above: what is taken hold of stays under the mouse.
TEST_F(Handles, FollowTheMouseUnderStretchedAndMirroredParents)
{
    for (const SbVec3f& stretch :
         {SbVec3f(1, 1, 1), SbVec3f(3, 0.5F, 1), SbVec3f(-1, 1, 1), SbVec3f(-2, -1, -0.5F)}) {
        scene->removeAllChildren();
        auto* above = add<SoTransform>();
        above->rotation.setValue(SbRotation({1, 2, 3}, 0.7F));
        above->scaleFactor.setValue(stretch);
        SoTransform* transform = addPart({0.5F, 0, 0});
        transform->rotation.setValue(SbRotation({3, 1, 0}, 0.4F));
        show();
        select(transform);
        for (const bool ofWorld : {true, false}) {
            handles.setOfWorld(ofWorld);
            for (const HandlePart part :
                 {HandlePart::X, HandlePart::Y, HandlePart::AcrossZ, HandlePart::Free}) {
                handles.setMode(HandleMode::Move);
                if (!handles.getShape().has(part))
                    continue;
                const QPointF center = handles.getShape().getCenter();
                const QPointF at = placeOf(part);
                const bool isFree = part == HandlePart::Free || part == HandlePart::AcrossZ;
                const QPointF by = isFree ? QPointF(13, 9) : (at - center) * 0.4;
                const SbVec3f place = handles.getTarget()->getPlace();
                const HandleAxes axes = handles.getTarget()->getAxes(ofWorld);
                const SbVec3f normal = part == HandlePart::Free
                                           ? view.getSight().toEye(place)
                                           : cross(axes[0].world, axes[1].world).normalized();
                drag(at, at + by);
                // Where the first line of sight met the plane that is dragged along.
                const SbRay ray = view.getSight().getRay(at);
                const SbVec3f held = ray.at(normal.dot(place - ray.origin) / normal.dot(ray.direction));
                const SbVec3f moved = handles.getTarget()->getPlace() - place;
                const QPointF now =
                    isFree ? onScreen(held + moved) : handles.getShape().getCenter() + at - center;
                EXPECT_LT(QLineF(now, at + by).length(), isFree ? 1 : 5)
                    << int(part) << ofWorld << stretch[0];
            }
            for (const HandlePart part : {HandlePart::X, HandlePart::Y, HandlePart::Z}) {
                handles.setMode(HandleMode::Turn);
                const auto hold = handles.getShape().placeOf(part);
                if (!hold)
                    continue;
                // What is drawn there turns to where the mouse goes: the other end of the ring.
                const SbMatrix before = transform->getMatrix();
                drag(*hold, *hold + QPointF(6, 4));
                EXPECT_NE(transform->getMatrix(), before) << int(part);
            }
        }
    }
}

// A turn by hand carries what lies on the ring along with the mouse.
TEST_F(Handles, ATurnCarriesWhatIsUnderTheMouseAlong)
{
    for (const float mirror : {1.0F, -1.0F}) {
        scene->removeAllChildren();
        auto* above = add<SoTransform>();
        above->scaleFactor.setValue(mirror, 2, 1);
        SoTransform* transform = addPart({0, 0, 0});
        show();
        view.getCamera().orientation.setValue(SbRotation());
        view.viewAll();
        select(transform);
        handles.setMode(HandleMode::Turn);
        // The ring around z, seen from the front.
        const QPointF center = handles.getShape().getCenter();
        const SbVec3f right(0.8F, 0.6F, 0); // where no other ring is
        const SbVec3f onIt = handles.getTarget()->toWorld().multDirection(right);
        const QPointF side = onScreen(onIt) - center;
        QPointF at;
        for (double part = 0; part < 200; part += 0.5) {
            const QPointF place = center + side / std::hypot(side.x(), side.y()) * part;
            if (handles.getShape().partAt(place) == HandlePart::Z)
                at = place;
        }
        ASSERT_FALSE(at.isNull());
        const double reach = std::hypot((at - center).x(), (at - center).y());
        const double scale = reach / std::hypot(side.x(), side.y());
        drag(at, at + QPointF(side.x() > 0 ? -10 : 10, -40));
        const SbVec3f carried =
            handles.getTarget()->toWorld().multDirection(transform->rotation.getValue().multVec(right));
        const QPointF now = (onScreen(carried) - center) * scale;
        const QPointF wanted = at + QPointF(side.x() > 0 ? -10 : 10, -40) - center;
        EXPECT_NEAR(std::atan2(now.y(), now.x()), std::atan2(wanted.y(), wanted.x()), 0.05) << mirror;
    }
}

TEST_F(Handles, ATypedTurnAroundAnAxisOfTheWorldIsOneInTheWorld)
{
    auto* above = add<SoTransform>();
    above->scaleFactor.setValue(-1, 1, 1);
    SoTransform* transform = addPart({0, 0, 0});
    show();
    select(transform);
    key(Qt::Key_E);
    key(Qt::Key_Z);
    type("90");
    key(Qt::Key_Return);
    const SbMatrix toWorld = transform->getMatrix() * above->getMatrix();
    // The world's y axis, before and after: it turns against the clock, to the left.
    EXPECT_LT((toWorld.multDirection({0, 1, 0}) - SbVec3f(-1, 0, 0)).length(), 1e-5F);
}

TEST_F(Handles, SpaceThatIsSqueezedFlatHasNoHandlesThatDoNothing)
{
    auto* above = add<SoTransform>();
    above->scaleFactor.setValue(1, 0, 1);
    SoTransform* transform = addPart({0, 0, 0});
    addPart({3, 0, 2});
    show();
    select(transform);
    key(Qt::Key_W);
    EXPECT_FALSE(handles.getShape().has(HandlePart::Y));
    const QPointF center = handles.getShape().getCenter();
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + (at - center) * 0.5);
    EXPECT_GT(transform->translation.getValue()[0], 0);
    EXPECT_LT(QLineF(handles.getShape().getCenter() - center, (at - center) * 0.5).length(), 5);
    // And what has no size of its own gets one.
    transform->scaleFactor.setValue(0, 0, 0);
    settle();
    key(Qt::Key_R);
    const QPointF middle = placeOf(HandlePart::Free);
    drag(middle, middle + QPointF(42, 0));
    EXPECT_NEAR(transform->scaleFactor.getValue()[0], 0.5F, 0.1F);
}

TEST_F(Handles, LightsCamerasPlanesAndTexturesHaveTheirOwn)
{
    auto* lamp = add<SoSpotLight>();
    auto* sun = add<SoDirectionalLight>();
    auto* camera = new SoPerspectiveCamera;
    auto* other = new SoSeparator;
    scene->addChild(other);
    other->addChild(camera);
    auto* matrix = add<SoMatrixTransform>();
    auto* plane = add<SoClipPlane>();
    plane->plane.setValue(SbPlane({0, 2, 0}, -1));
    auto* texture = add<SoTextureTransform>();
    add<SoCube>();
    show();
    view.getCamera().position.setValue(0, 0, 12);
    view.getCamera().orientation.setValue(SbRotation());
    const auto byKeys = [&](SoNode* node, int mode, const char* number) {
        const std::string before = text();
        const int known = steps();
        select(node);
        key(mode);
        key(Qt::Key_Z);
        type(number);
        key(Qt::Key_Return);
        key(Qt::Key_Q);
        EXPECT_EQ(steps(), known + 1) << node->getTypeId().getName().getString() << char(mode);
        const std::string after = text();
        EXPECT_NE(after, before);
        undo();
        EXPECT_EQ(text(), before);
        services.undoStack().redo();
        EXPECT_EQ(text(), after);
    };
    byKeys(lamp, Qt::Key_W, "2");
    EXPECT_EQ(lamp->location.getValue(), SbVec3f(0, 0, 3));
    byKeys(lamp, Qt::Key_R, "0.5");
    EXPECT_NEAR(lamp->cutOffAngle.getValue(), 0.785398F / 2, 1e-5F);
    sun->direction.setValue(1, 0, 0);
    byKeys(sun, Qt::Key_E, "90");
    EXPECT_LT((sun->direction.getValue() - SbVec3f(0, 1, 0)).length(), 1e-5F);
    byKeys(camera, Qt::Key_W, "4");
    EXPECT_EQ(camera->position.getValue(), SbVec3f(0, 0, 5));
    byKeys(camera, Qt::Key_E, "180");
    byKeys(camera, Qt::Key_R, "2");
    byKeys(matrix, Qt::Key_W, "1");
    EXPECT_EQ(matrix->matrix.getValue(), SbMatrix::translation({0, 0, 1}));
    byKeys(matrix, Qt::Key_E, "30");
    byKeys(matrix, Qt::Key_R, "-2");
    byKeys(texture, Qt::Key_E, "45");
    EXPECT_NEAR(texture->rotation.getValue(), -45 * 3.14159265F / 180, 1e-5F);
    byKeys(plane, Qt::Key_W, "0.5"); // along its normal, which is 2 long
    EXPECT_EQ(plane->plane.getValue(), SbPlane({0, 2, 0}, 0));
    handles.setOfWorld(true);
    byKeys(plane, Qt::Key_E, "90");
    EXPECT_LT((plane->plane.getValue().getNormal() - SbVec3f(-2, 0, 0)).length(), 1e-5F);
    // By the mouse: the picture of the texture follows.
    select(texture);
    key(Qt::Key_W);
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + QPointF(HandleShape::AxisLength / 2, 0));
    EXPECT_NEAR(texture->translation.getValue()[0], -0.5F, 1e-3F);
}

TEST_F(Handles, ASunHasNoPlaceToMove)
{
    auto* sun = add<SoDirectionalLight>();
    add<SoCube>();
    show();
    select(sun);
    key(Qt::Key_W);
    EXPECT_TRUE(handles.getShape().isEmpty());
    EXPECT_EQ(told.last(), "“DirectionalLight” cannot be moved: it has no place.");
}
