// SPDX-License-Identifier: MIT
// Finding one's way in the 3D view: sides, cube, grid, cameras, walking, framing.
#include "ViewPictures.h"

#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"
#include "window/ViewActions.h"

#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QMenu>
#include <QPainter>

namespace
{

class Navigation : public testing::Test
{
protected:
    Navigation()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        services.setSceneSource(&window);
        window.resize(1100, 800);
        scene->addChild(new SoCube);
        window.setScene(scene.get(), "Test");
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window)); // else shortcuts do not act
        settle();
    }
    ~Navigation() override { services.setSceneSource(nullptr); }
    void settle() { pictureOf(view); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        view.setFocus();
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    QAction* action(const QString& text)
    {
        for (QAction* each : window.findChildren<QAction*>()) {
            if (each->text().remove('&') == text)
                return each;
        }
        return nullptr;
    }
    SbVec3f direction() { return view.getCamera().getDirection(); }
    SbVec3f up() { return view.getCamera().orientation.getValue().multVec({0, 1, 0}); }
    static bool isNear(const SbVec3f& a, const SbVec3f& b) { return (a - b).length() < 1e-4F; }
    std::string text() { return SoSceneFile::writeText(window.getScene()); }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneView& view = window.getView();
    SoRef<SoSeparator> scene{new SoSeparator};
    QStringList told;
};

TEST_F(Navigation, DigitsLookFromTheSidesWhileViewOrTreeHasTheFocus)
{
    const SbVec3f focus = view.getCamera().getFocalPoint();
    key(Qt::Key_1);
    EXPECT_TRUE(isNear(direction(), {0, 0, -1}) && isNear(up(), {0, 1, 0}));
    key(Qt::Key_3);
    EXPECT_TRUE(isNear(direction(), {-1, 0, 0}) && isNear(up(), {0, 1, 0}));
    key(Qt::Key_7);
    EXPECT_TRUE(isNear(direction(), {0, -1, 0}) && isNear(up(), {0, 0, -1}));
    key(Qt::Key_7, Qt::ControlModifier);
    EXPECT_TRUE(isNear(direction(), {0, 1, 0}) && isNear(up(), {0, 0, 1}));
    EXPECT_TRUE(isNear(view.getCamera().getFocalPoint(), focus)) << "it turns around what it looked at";
    window.getTree().setFocus();
    QTest::keyClick(&window.getTree(), Qt::Key_1);
    EXPECT_TRUE(isNear(direction(), {0, 0, -1}));
}

TEST_F(Navigation, FiveChangesToAParallelViewAndBack)
{
    const SbVec3f focus = view.getCamera().getFocalPoint();
    const SbVec3f aside = focus + view.getSight().getRight();
    const auto before = view.getSight().toScreen(aside);
    const SbVec3f place = view.getCamera().position.getValue();
    key(Qt::Key_5);
    EXPECT_TRUE(view.isParallel());
    EXPECT_TRUE(action("Orthographic")->isChecked());
    // What is as far as what it turns around stays as large.
    const auto after = view.getSight().toScreen(aside);
    ASSERT_TRUE(before && after);
    EXPECT_LT(QLineF(*before, *after).length(), 1);
    view.turn(0.1F, 0);
    key(Qt::Key_5);
    EXPECT_FALSE(view.isParallel());
    EXPECT_FALSE(action("Orthographic")->isChecked());
    EXPECT_NEAR((view.getCamera().position.getValue() - focus).length(), (place - focus).length(), 1e-3F);
    key(Qt::Key_5);
    key(Qt::Key_Home);
    EXPECT_FALSE(view.isParallel());
    EXPECT_FALSE(action("Orthographic")->isChecked()) << "the menu follows what else changes it";
}

TEST_F(Navigation, TheCubesFacesEdgesAndCornersAreClicked)
{
    OrientationCube& cube = window.getViewActions().getCube();
    for (const SbVec3f& side : {SbVec3f(0, 1, 0), SbVec3f(1, 1, 0), SbVec3f(1, 1, 1), SbVec3f(0, 0, 1)}) {
        view.goHome();
        settle();
        const auto place = cube.placeOf(side);
        ASSERT_TRUE(place) << side[0] << side[1] << side[2];
        QTest::mouseMove(&view, place->toPoint());
        QTest::mouseClick(&view, Qt::LeftButton, {}, place->toPoint());
        settle();
        EXPECT_TRUE(isNear(direction(), side.normalized() * -1.0F)) << side[0] << side[1] << side[2];
    }
    // A drag turns; a click beside it is the scene's.
    const SbVec3f before = direction();
    const QPoint at = cube.placeOf({0, 0, 1}).value_or(QPointF()).toPoint();
    QTest::mousePress(&view, Qt::LeftButton, {}, at);
    for (int i = 1; i <= 4; ++i) {
        QMouseEvent move(QEvent::MouseMove, at + QPoint(8 * i, 0), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &move);
    }
    QTest::mouseRelease(&view, Qt::LeftButton, {}, at + QPoint(32, 0));
    EXPECT_FALSE(isNear(direction(), before));
    EXPECT_EQ(direction()[1], before[1]);
    action("Orientation Cube")->setChecked(false);
    view.goHome();
    const SbVec3f home = direction();
    QTest::mouseClick(&view, Qt::LeftButton, {}, at);
    EXPECT_EQ(direction(), home);
}

TEST_F(Navigation, GridAndAxesAreShownAndBelongToNoScene)
{
    const std::string before = text();
    const QImage without = pictureOf(view);
    action("Grid")->setChecked(true);
    const QImage withGrid = pictureOf(view);
    EXPECT_NE(withGrid, without);
    action("Axes")->setChecked(true);
    const QImage withAxes = pictureOf(view);
    EXPECT_NE(withAxes, withGrid);
    // The end of the z axis comes out of the cube towards the eye.
    int bluest = -255;
    for (int i = 0; i < 25; ++i) {
        const QColor color = withAxes.pixelColor(placeOf(view, {0, 0, 1.6F}) + QPoint(i % 5 - 2, i / 5 - 2));
        bluest = std::max(bluest, color.blue() - color.red());
    }
    EXPECT_GT(bluest, 60);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(ViewGrid::spacingFor(SbBox3f({0, 0, 0}, {30, 1, 2})), 5);
    action("Grid")->setChecked(false);
    action("Axes")->setChecked(false);
    EXPECT_EQ(pictureOf(view), without);
}

TEST_F(Navigation, AViewIsKeptAsACameraAndLookedThrough)
{
    const std::string before = text();
    view.turn(0.2F, 0.1F);
    const SbVec3f place = view.getCamera().position.getValue();
    const SbVec3f ahead = direction();
    action("Keep This View as a Camera")->trigger();
    settle();
    EXPECT_EQ(told.last(), "This view is kept as the camera “View1”.");
    EXPECT_EQ(services.undoStack().text(0), "Keep a View as a Camera");
    EXPECT_EQ(view.getCamera().position.getValue(), place) << "it is not looked through by that";
    view.goHome();
    action("Keep This View as a Camera")->trigger();
    EXPECT_EQ(told.last(), "This view is kept as the camera “View2”.");
    EXPECT_NE(view.getCamera().position.getValue(), place);
    QMenu* cameras = nullptr;
    for (QMenu* menu : window.findChildren<QMenu*>()) {
        if (menu->title().remove('&') == "Look Through")
            cameras = menu;
    }
    ASSERT_TRUE(cameras);
    emit cameras->aboutToShow();
    ASSERT_EQ(cameras->actions().size(), 2);
    EXPECT_EQ(cameras->actions().first()->text(), "View1");
    cameras->actions().first()->trigger();
    EXPECT_TRUE(isNear(view.getCamera().position.getValue(), place));
    EXPECT_TRUE(isNear(direction(), ahead));
    services.undoStack().undo();
    services.undoStack().undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    EXPECT_NE(text(), before);
}

TEST_F(Navigation, ACameraIsLookedThroughFromWhereItStands)
{
    auto* part = new SoSeparator;
    auto* moved = new SoTransform;
    moved->translation.setValue(0, 0, 20);
    auto* camera = new SoPerspectiveCamera;
    camera->position.setValue(0, 0, 1);
    part->addChild(moved);
    auto* choice = new SoSwitch;
    choice->addChild(camera);
    part->addChild(choice);
    scene->addChild(part);
    settle();
    QMenu* cameras = nullptr;
    for (QMenu* menu : window.findChildren<QMenu*>()) {
        if (menu->title().remove('&') == "Look Through")
            cameras = menu;
    }
    ASSERT_TRUE(cameras);
    emit cameras->aboutToShow();
    cameras->actions().first()->trigger();
    EXPECT_EQ(view.getCamera().position.getValue(), SbVec3f(0, 0, 21));
    EXPECT_TRUE(isNear(direction(), {0, 0, -1}));
}

TEST_F(Navigation, WalkingIsAToggleAndItsKeysWalk)
{
    key(Qt::Key_1);
    key(Qt::Key_W, Qt::ShiftModifier);
    ASSERT_TRUE(window.getViewActions().getWalk().isOn());
    EXPECT_TRUE(action("Walk")->isChecked());
    const SbVec3f start = view.getCamera().position.getValue();
    key(Qt::Key_W);
    EXPECT_LT(view.getCamera().position.getValue()[2], start[2]);
    EXPECT_TRUE(isNear(direction(), {0, 0, -1}));
    const SbVec3f next = view.getCamera().position.getValue();
    key(Qt::Key_D);
    EXPECT_GT(view.getCamera().position.getValue()[0], next[0]);
    // While a key is held, it goes on.
    QTest::keyPress(&view, Qt::Key_Down);
    const float back = view.getCamera().position.getValue()[2];
    EXPECT_TRUE(waitFor([&] { return view.getCamera().position.getValue()[2] > back; }));
    QTest::keyRelease(&view, Qt::Key_Down);
    // The mouse looks around on the spot, and selects nothing.
    const SbVec3f spot = view.getCamera().position.getValue();
    QTest::mousePress(&view, Qt::LeftButton, {}, {300, 300});
    QMouseEvent move(QEvent::MouseMove, QPoint(400, 300), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {400, 300});
    EXPECT_GT(direction()[0], 0.1F);
    EXPECT_TRUE(isNear(view.getCamera().position.getValue(), spot));
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.getViewActions().getWalk().isOn());
    EXPECT_FALSE(action("Walk")->isChecked());
}

// The corners of a sphere's box are not seen; the sphere is.
TEST_F(Navigation, FramesWhatIsSeenAndNotItsBox)
{
    scene->removeAllChildren();
    scene->addChild(new SoSphere);
    action("Orientation Cube")->setChecked(false);
    for (const bool isParallel : {false, true}) {
        view.setParallel(isParallel);
        view.turn(0.13F, 0.1F);
        key(Qt::Key_A);
        const QImage picture = pictureOf(view);
        const QRect part = partOf(picture);
        const double filled = double(part.height()) / picture.height();
        EXPECT_GT(filled, 0.84) << isParallel;
        EXPECT_LT(filled, 0.92) << isParallel;
        EXPECT_LE(std::abs(part.center().y() - picture.height() / 2), 3);
        EXPECT_LE(std::abs(part.center().x() - picture.width() / 2), 3);
    }
    action("Orientation Cube")->setChecked(true);
}

// Many shapes of which most are within the others: as if all were looked at.
TEST_F(Navigation, FramesManyPartsAsWell)
{
    scene->removeAllChildren();
    action("Orientation Cube")->setChecked(false);
    for (int i = 0; i < 300; ++i) {
        auto* part = new SoSeparator;
        auto* place = new SoTransform;
        place->translation.setValue(static_cast<float>(i % 20), static_cast<float>(i / 20),
                                    static_cast<float>(i % 7));
        place->rotation.setValue(SbRotation({1, 1, 0}, static_cast<float>(i)));
        part->addChild(place);
        part->addChild(i % 2 == 0 ? static_cast<SoNode*>(new SoCube) : new SoSphere);
        scene->addChild(part);
    }
    key(Qt::Key_A);
    const QImage picture = pictureOf(view);
    const QRect part = partOf(picture);
    const double filled =
        std::max(double(part.height()) / picture.height(), double(part.width()) / picture.width());
    EXPECT_GT(filled, 0.86);
    EXPECT_LT(filled, 0.90);
    EXPECT_LE(std::abs(part.center().y() - picture.height() / 2), 2);
    EXPECT_LE(std::abs(part.center().x() - picture.width() / 2), 2);
    action("Orientation Cube")->setChecked(true);
}

} // namespace
