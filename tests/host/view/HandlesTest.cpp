// SPDX-License-Identifier: MIT
// Moving, turning and scaling by handles in the 3D view, by mouse and by keys.
#include "HandleWalk.h"
#include "ViewPictures.h"

#include "handles/HandleTool.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <random>

namespace
{

class Handles : public testing::Test
{
protected:
    Handles()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        services.setSceneSource(&window);
        window.resize(1100, 800);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window)); // else shortcuts do not act
    }
    ~Handles() override { services.setSceneSource(nullptr); }
    template <class Node>
    Node* add(SoGroup* to = nullptr)
    {
        auto* node = new Node;
        (to ? to : scene.get())->addChild(node);
        return node;
    }
    // A part of its own: separator, transform, shape.
    SoTransform* addPart(const SbVec3f& at)
    {
        auto* part = add<SoSeparator>();
        auto* transform = add<SoTransform>(part);
        transform->translation.setValue(at);
        add<SoCube>(part);
        return transform;
    }
    void show()
    {
        window.setScene(scene.get(), "Test");
        settle();
    }
    void settle() { picture(); }
    QImage picture() { return pictureOf(view); }
    void select(SoNode* node)
    {
        window.getTree().selectNode(node);
        settle();
    }
    void selectAll(const std::vector<SoNode*>& nodes)
    {
        QList<SoFieldContainer*> all;
        for (SoNode* node : nodes)
            all << node;
        services.selectNodes(all);
        settle();
    }
    void send(QEvent::Type type, const QPointF& at, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(type, at, view.mapToGlobal(at.toPoint()), button, held, keys);
        QCoreApplication::sendEvent(&view, &event);
    }
    void press(const QPointF& at, Qt::KeyboardModifiers keys = {})
    {
        send(QEvent::MouseMove, at, Qt::NoButton, {}, keys);
        send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, keys);
    }
    void moveTo(const QPointF& at, Qt::KeyboardModifiers keys = {})
    {
        send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, keys);
    }
    void release(const QPointF& at) { send(QEvent::MouseButtonRelease, at, Qt::LeftButton, {}); }
    void drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers keys = {})
    {
        press(from);
        moveTo((from + to) / 2, keys);
        moveTo(to, keys);
        release(to);
        settle();
    }
    QPointF placeOf(HandlePart part)
    {
        const auto place = handles.getShape().placeOf(part);
        EXPECT_TRUE(place);
        return place.value_or(QPointF());
    }
    QPointF onScreen(const SbVec3f& world) { return view.getSight().toScreen(world).value_or(QPointF()); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
    }
    void type(const char* text) { QTest::keyClicks(&view, QString::fromLatin1(text)); }
    std::string text() { return SoSceneFile::writeText(window.getScene()); }
    int steps() { return services.undoStack().index(); }
    void undo()
    {
        services.undoStack().undo();
        settle();
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneView& view = window.getView();
    HandleTool& handles = window.getHandles();
    SoRef<SoSeparator> scene{new SoSeparator};
    QStringList told;
};

TEST_F(Handles, AnArrowMovesAlongItsAxisAndEachDragIsOneStep)
{
    SoTransform* transform = addPart({0, 0, 0});
    addPart({4, 0, 0});
    show();
    select(transform);
    key(Qt::Key_W);
    ASSERT_EQ(handles.getMode(), HandleMode::Move);
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::X);
    const QPointF along = (at - onScreen({0, 0, 0})) * 1.5;
    drag(at, at + along);
    const SbVec3f moved = transform->translation.getValue();
    EXPECT_GT(moved[0], 0.1F);
    EXPECT_EQ(moved[1], 0);
    EXPECT_EQ(moved[2], 0);
    // What was under the mouse still is.
    EXPECT_LT(QLineF(placeOf(HandlePart::X), at + along).length(), 12);
    EXPECT_EQ(steps(), 1);
    EXPECT_TRUE(services.undoStack().text(0).startsWith("Transform.translation: 0 0 0 "));
    undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    EXPECT_EQ(transform->translation.getValue(), moved);
}

TEST_F(Handles, EscapeGivesBackWhatADragHasDone)
{
    SoTransform* transform = addPart({1, 2, 3});
    show();
    select(transform);
    key(Qt::Key_W);
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::Free);
    press(at);
    moveTo(at + QPointF(40, 25));
    EXPECT_NE(text(), before);
    key(Qt::Key_Escape);
    EXPECT_EQ(text(), before);
    moveTo(at + QPointF(90, 25));
    release(at + QPointF(90, 25));
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(steps(), 0);
    EXPECT_EQ(handles.getMode(), HandleMode::Move);
}

TEST_F(Handles, NumbersAreTypedWhileDragging)
{
    SoTransform* transform = addPart({0, 0, 0});
    show();
    select(transform);
    key(Qt::Key_W);
    const QPointF at = placeOf(HandlePart::Y);
    press(at);
    moveTo(at + QPointF(0, -10));
    type("2,55");
    key(Qt::Key_Backspace);
    moveTo(at + QPointF(0, -90)); // the number counts
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 2.5F, 0));
    key(Qt::Key_Return);
    release(at);
    settle();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 2.5F, 0));
    EXPECT_EQ(steps(), 1);
}

TEST_F(Handles, KeysAloneDoIt)
{
    SoTransform* transform = addPart({1, 0, 0});
    show();
    select(transform);
    window.getTree().setFocus();
    QWidget* const tree = &window.getTree();
    QTest::keyClick(tree, Qt::Key_E);
    ASSERT_EQ(handles.getMode(), HandleMode::Turn);
    QTest::keyClick(tree, Qt::Key_Z);
    QTest::keyClicks(tree, "90");
    QTest::keyClick(tree, Qt::Key_Return);
    const SbVec3f turned = transform->rotation.getValue().multVec({1, 0, 0});
    EXPECT_LT((turned - SbVec3f(0, 1, 0)).length(), 1e-5F);
    QTest::keyClick(tree, Qt::Key_R);
    QTest::keyClick(tree, Qt::Key_X, Qt::ShiftModifier);
    QTest::keyClicks(tree, "2 3");
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(1, 2, 3));
    EXPECT_EQ(steps(), 2);
    QTest::keyClick(tree, Qt::Key_W);
    QTest::keyClick(tree, Qt::Key_Y);
    QTest::keyClick(tree, Qt::Key_Right);
    EXPECT_GT(transform->translation.getValue()[1], 0);
    QTest::keyClick(tree, Qt::Key_Escape);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 0, 0));
    EXPECT_EQ(steps(), 2);
    EXPECT_EQ(services.selectedNode(), transform) << "the letters search nothing in the tree";
    QTest::keyClick(tree, Qt::Key_Q);
    EXPECT_TRUE(handles.getShape().isEmpty());
}

TEST_F(Handles, ADragByKeysEndsWhereTheFocusGoesElsewhere)
{
    SoTransform* transform = addPart({1, 0, 0});
    show();
    select(transform);
    window.getTree().setFocus();
    QTest::keyClick(&window.getTree(), Qt::Key_W);
    QTest::keyClick(&window.getTree(), Qt::Key_X);
    QTest::keyClicks(&window.getTree(), "3");
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(4, 0, 0));
    view.setFocus(); // where it goes on
    type("0");
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(31, 0, 0));
    window.getTree().setFocus();
    EXPECT_FALSE(handles.isDragging());
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 0, 0));
    EXPECT_EQ(steps(), 0);
}

TEST_F(Handles, ControlSnaps)
{
    SoTransform* transform = addPart({0, 0, 0});
    show();
    select(transform);
    key(Qt::Key_E);
    const QPointF center = handles.getShape().getCenter();
    const QPointF at = placeOf(HandlePart::View);
    const QPointF out = at - center;
    const QTransform third = QTransform().rotate(-32);
    drag(at, center + third.map(out), Qt::ControlModifier);
    SbVec3f axis;
    float angle = 0;
    transform->rotation.getValue().getValue(axis, angle);
    EXPECT_NEAR(angle, 30 * 3.14159265F / 180, 1e-4F);
    EXPECT_GT(axis.dot(view.getSight().toEye({0, 0, 0})), 0.99F) << "against the clock";
}

TEST_F(Handles, APartWithoutATransformGetsOneAboveIt)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    add<SoSphere>(look);
    show();
    select(left);
    key(Qt::Key_W);
    EXPECT_TRUE(told.last().contains("puts a Transform above")) << qPrintable(told.join('|'));
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + QPointF(60, 10));
    ASSERT_EQ(steps(), 1);
    EXPECT_TRUE(told.last().startsWith("Put a Transform above")) << qPrintable(told.last());
    ASSERT_EQ(look->getNumChildren(), 2);
    auto* wrapper = dynamic_cast<SoSeparator*>(look->getChild(0));
    ASSERT_TRUE(wrapper);
    auto* transform = dynamic_cast<SoTransform*>(wrapper->getChild(0));
    ASSERT_TRUE(transform);
    EXPECT_EQ(wrapper->getChild(1), left);
    EXPECT_EQ(services.selectedNode(), left) << "what is selected stays so";
    // The next drag has it already.
    const QPointF again = placeOf(HandlePart::Y);
    drag(again, again + QPointF(0, -30));
    EXPECT_EQ(steps(), 2);
    EXPECT_GT(transform->translation.getValue()[1], 0);
    undo();
    undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    settle();
    EXPECT_EQ(look->getChild(0), wrapper);
    undo();
    EXPECT_EQ(text(), before);
    // Given back, none stays.
    select(left);
    press(placeOf(HandlePart::X));
    moveTo(at + QPointF(60, 10));
    EXPECT_NE(text(), before);
    key(Qt::Key_Escape);
    release(at);
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.selectedNode(), left);
}

TEST_F(Handles, AWholePartIsMovedByItsOwnTransform)
{
    SoTransform* transform = addPart({0, 1, 0});
    addPart({4, 0, 0});
    show();
    auto* part = dynamic_cast<SoSeparator*>(scene->getChild(0));
    for (SoNode* selected : {static_cast<SoNode*>(part), part->getChild(1)}) {
        select(selected);
        key(Qt::Key_W);
        ASSERT_TRUE(handles.getTarget());
        EXPECT_EQ(handles.getTarget()->getNode(), transform);
        key(Qt::Key_Q);
    }
}

TEST_F(Handles, SeveralSelectedNodesAreMovedTogetherInOneStep)
{
    SoTransform* left = addPart({-3, 0, 0});
    SoTransform* right = addPart({3, 0, 0});
    SoTransform* third = addPart({0, 3, 0});
    right->rotation.setValue(SbRotation({0, 1, 0}, 0.5F));
    show();
    selectAll({scene->getChild(0), scene->getChild(1)});
    key(Qt::Key_W);
    EXPECT_EQ(handles.getTarget()->getNode(), right) << "the handles are where the last one is";
    EXPECT_EQ(handles.getTargetCount(), 2);
    EXPECT_EQ(told.last(), "The handles change 2 nodes together.");
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + (at - handles.getShape().getCenter()) * 0.6);
    const float by = right->translation.getValue()[0] - 3;
    EXPECT_GT(by, 0.1F);
    EXPECT_NEAR(left->translation.getValue()[0], -3 + by, 1e-5F);
    EXPECT_EQ(third->translation.getValue(), SbVec3f(0, 3, 0));
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(services.getSelectedNodes().size(), 2);
    const std::string after = text();
    undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    EXPECT_EQ(text(), after);
    undo();
    // By keys, each around its own place; given back, nothing stays.
    key(Qt::Key_E);
    key(Qt::Key_Z);
    type("90");
    EXPECT_NE(text(), before);
    key(Qt::Key_Escape);
    EXPECT_EQ(text(), before);
    key(Qt::Key_Z);
    type("90");
    key(Qt::Key_Return);
    EXPECT_EQ(left->translation.getValue(), SbVec3f(-3, 0, 0));
    EXPECT_LT((left->rotation.getValue().multVec({1, 0, 0}) - SbVec3f(0, 1, 0)).length(), 1e-5F);
    EXPECT_EQ(steps(), 1);
    undo();
    EXPECT_EQ(text(), before);
    // One that is taken away stays where it is, though the last one is the same.
    selectAll({scene->getChild(2), scene->getChild(0), scene->getChild(1)});
    EXPECT_EQ(handles.getTargetCount(), 3);
    selectAll({scene->getChild(0), scene->getChild(1)});
    EXPECT_EQ(handles.getTargetCount(), 2);
}

TEST_F(Handles, WhatIsBelowAnotherSelectedNodeIsNotMovedTwice)
{
    auto* house = add<SoSeparator>();
    auto* place = add<SoTransform>(house);
    auto* door = add<SoSeparator>(house);
    auto* hinge = add<SoTransform>(door);
    auto* wood = add<SoCube>(door);
    add<SoCube>(house);
    show();
    const auto expectOne = [&](const std::vector<SoNode*>& nodes, SoNode* moved) {
        selectAll(nodes);
        handles.setMode(HandleMode::Move);
        EXPECT_EQ(handles.getTargetCount(), 1);
        ASSERT_TRUE(handles.getTarget());
        EXPECT_EQ(handles.getTarget()->getNode(), moved);
        key(Qt::Key_X);
        type("2");
        key(Qt::Key_Return);
        EXPECT_EQ(place->translation.getValue(), moved == place ? SbVec3f(2, 0, 0) : SbVec3f());
        EXPECT_EQ(hinge->translation.getValue(), moved == hinge ? SbVec3f(2, 0, 0) : SbVec3f());
        undo();
    };
    expectOne({house, wood}, place);
    expectOne({wood, house}, place);
    expectOne({place, door}, place);
    expectOne({door, wood, hinge}, hinge);
}

TEST_F(Handles, SeveralPartsWithoutATransformGetOneEach)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    auto* right = add<SoSphere>(look);
    add<SoCube>(look);
    SoTransform* other = addPart({4, 0, 0});
    show();
    SoNode* const part = scene->getChild(1);
    const std::vector<SoNode*> all{part, right, left};
    selectAll(all);
    key(Qt::Key_W);
    EXPECT_EQ(told.last(), "The handles change 3 parts together; dragging puts a Transform above 2 of them.");
    const std::string before = text();
    key(Qt::Key_Y);
    type("3");
    key(Qt::Key_Return);
    settle();
    EXPECT_EQ(told.last(), "Put a Transform above each of 2 parts.");
    EXPECT_EQ(other->translation.getValue(), SbVec3f(4, 3, 0));
    for (int i : {0, 1}) {
        ASSERT_TRUE(look->getChild(i)->asGroup());
        auto* added = dynamic_cast<SoTransform*>(look->getChild(i)->asGroup()->getChild(0));
        ASSERT_TRUE(added);
        EXPECT_EQ(added->translation.getValue(), SbVec3f(0, 3, 0));
    }
    const QList<SoFieldContainer*> nodes{part, right, left};
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    EXPECT_EQ(steps(), 1);
    const std::string after = text();
    undo();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    services.undoStack().redo();
    settle();
    EXPECT_EQ(text(), after);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    undo();
    key(Qt::Key_Y);
    type("3");
    key(Qt::Key_Escape);
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    EXPECT_EQ(steps(), 0);
}

TEST_F(Handles, UndoingThatATransformWasPutInKeepsTheShapeSelected)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    add<SoSphere>(look);
    show();
    select(left);
    key(Qt::Key_W);
    key(Qt::Key_X);
    type("2");
    key(Qt::Key_Return);
    key(Qt::Key_Y);
    type("1");
    key(Qt::Key_Return);
    settle();
    ASSERT_EQ(steps(), 2);
    SoNode* const wrapper = look->getChild(0);
    services.undoStack().setIndex(0);
    settle();
    EXPECT_EQ(look->getChild(0), left);
    EXPECT_EQ(services.selectedNode(), left);
    EXPECT_EQ(services.getSelectedPath().getLength(), 3);
    services.undoStack().setIndex(2);
    settle();
    EXPECT_EQ(look->getChild(0), wrapper);
    EXPECT_EQ(services.selectedNode(), left);
    EXPECT_EQ(services.getSelectedPath().getLength(), 4);
    // What the step brought stands for it.
    select(wrapper);
    services.undoStack().setIndex(0);
    settle();
    EXPECT_EQ(services.selectedNode(), left);
    // Another selection stays as it is.
    select(look->getChild(1));
    services.undoStack().setIndex(2);
    settle();
    EXPECT_EQ(services.selectedNode(), look->getChild(1));
}

TEST_F(Handles, WhatIsLockedHasNone)
{
    SoTransform* free = addPart({0, 0, 0});
    SoTransform* locked = addPart({3, 0, 0});
    SoNode* const part = scene->getChild(1);
    show();
    select(locked);
    key(Qt::Key_W);
    EXPECT_FALSE(handles.getShape().isEmpty());
    const std::string before = text();
    key(Qt::Key_X);
    type("2");
    window.getStates().setLocked({part}, true); // in the middle of a drag
    EXPECT_FALSE(handles.isDragging());
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(handles.getShape().isEmpty());
    told.clear();
    key(Qt::Key_X);
    EXPECT_FALSE(handles.isDragging());
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.last(), "“Transform” stands in “Separator”, which is locked, and cannot be edited before "
                           "that is unlocked.");
    type("2");
    key(Qt::Key_Return);
    EXPECT_EQ(text(), before);
    select(part);
    EXPECT_EQ(told.last(), "“Separator” is locked, and cannot be edited before it is unlocked.");
    selectAll({part, free});
    EXPECT_TRUE(handles.getShape().isEmpty());
    select(free);
    EXPECT_FALSE(handles.getShape().isEmpty());
    select(locked);
    window.getStates().setLocked({part}, false);
    EXPECT_FALSE(handles.getShape().isEmpty());
    EXPECT_EQ(steps(), 0);
}

TEST_F(Handles, ShiftIsFiner)
{
    SoTransform* transform = addPart({0, 0, 0});
    show();
    select(transform);
    key(Qt::Key_W);
    const QPointF at = placeOf(HandlePart::Free);
    const QPointF by(100, 0);
    const auto moved = [&] { return transform->translation.getValue().length(); };
    press(at);
    moveTo(at + by);
    const float coarse = moved();
    key(Qt::Key_Escape);
    release(at + by);
    settle();
    press(at, Qt::ShiftModifier);
    moveTo(at + by, Qt::ShiftModifier);
    EXPECT_NEAR(moved(), coarse / 10, coarse / 200);
    moveTo(at + by);
    EXPECT_NEAR(moved(), coarse / 10, coarse / 200) << "letting Shift go moves nothing";
    moveTo(at + by + by);
    EXPECT_NEAR(moved(), coarse * 1.1F, coarse / 50);
    release(at + by + by);
    undo();
    // And by the arrow keys.
    key(Qt::Key_X);
    key(Qt::Key_Right);
    const float step = moved();
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(moved(), step * 1.1F, step / 1000);
    key(Qt::Key_Escape);
}

TEST_F(Handles, AAndFActInTheTreeToo)
{
    addPart({-20, 0, 0});
    SoTransform* transform = addPart({20, 0, 0});
    show();
    QWidget* const tree = &window.getTree();
    view.viewAll();
    const SbVec3f all = view.getCamera().position.getValue();
    select(transform);
    window.getTree().selectNode(scene->getChild(1));
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_F);
    const SbVec3f near = view.getCamera().position.getValue();
    EXPECT_GT((near - all).length(), 5);
    EXPECT_EQ(services.selectedNode(), scene->getChild(1)) << "the letters search nothing in the tree";
    QTest::keyClick(tree, Qt::Key_A);
    EXPECT_LT((view.getCamera().position.getValue() - all).length(), 1e-3F);
    EXPECT_EQ(services.selectedNode(), scene->getChild(1));
}

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

// Anything is taken hold of, dragged, typed, undone: in the end all is as at first.
TEST_F(Handles, AWalkOverAModelEndsWithTheFirstBytes)
{
    const int wanted = qEnvironmentVariableIntValue("SCOPIX_WALK_STEPS");
    std::mt19937 random(static_cast<unsigned>(qEnvironmentVariableIntValue("SCOPIX_WALK_SEED")) + 1);
    const auto below = [&random](int bound) {
        return static_cast<int>(random() % static_cast<unsigned>(bound));
    };
    int together = 0;
    for (const char* model : {"lighthouse.glb", "crate.gltf"}) {
        bool isOpen = false;
        const auto opened =
            QObject::connect(&window, &HostWindow::openFinished, [&](bool is) { isOpen = is; });
        window.openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + model);
        ASSERT_TRUE(waitFor([&] { return isOpen; }));
        QObject::disconnect(opened);
        settle();
        const std::string first = text();
        SoSearchAction all;
        all.setType(SoNode::getClassTypeId());
        all.setLimit(-1);
        int dragged = 0;
        for (int step = 0; step < std::max(wanted, 40); ++step) {
            all.apply(window.getScene());
            const auto& paths = all.getPaths();
            QList<SoPath> chosen;
            for (int more = below(3) == 0 ? 1 + below(5) : 1; more > 0; --more)
                chosen << paths[static_cast<std::size_t>(below(static_cast<int>(paths.size())))];
            services.selectPaths(chosen);
            SoSensorQueue::getInstance().process();
            const int known = steps();
            useSomeHandle(view, handles, below);
            EXPECT_LE(steps(), known + 1);
            dragged += steps() > known ? 1 : 0;
            together += steps() > known && handles.getTargetCount() > 1 ? 1 : 0;
            EXPECT_FALSE(handles.isDragging());
            if (below(12) == 0)
                services.undoStack().undo();
            if (below(12) == 0)
                services.undoStack().redo();
        }
        EXPECT_GT(dragged, 5);
        services.undoStack().setIndex(0);
        EXPECT_EQ(text(), first) << model;
    }
    EXPECT_GT(together, 2);
}

// A double press on a handle, a second button, another scene in the middle of a drag.
TEST_F(Handles, ADragEndsWithItsScene)
{
    SoTransform* transform = addPart({0, 0, 0});
    const SoRef<SoTransform> kept(transform);
    show();
    select(transform);
    key(Qt::Key_W);
    const QPointF at = placeOf(HandlePart::Free);
    press(at);
    moveTo(at + QPointF(50, 0));
    EXPECT_TRUE(handles.isDragging());
    SoRef<SoSeparator> other(new SoSeparator);
    window.setScene(other.get(), "Other");
    settle();
    EXPECT_FALSE(handles.isDragging());
    release(at);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f());
    EXPECT_EQ(steps(), 0);
}

TEST_F(Handles, AreOnTopAndAsLargeWhateverTheDistance)
{
    SoTransform* transform = addPart({0, 0, 0});
    show();
    select(transform);
    const QImage without = picture();
    key(Qt::Key_W);
    EXPECT_NE(picture(), without);
    const QPointF at = placeOf(HandlePart::X);
    const double length = QLineF(handles.getShape().getCenter(), at).length();
    QTest::keyClick(&view, Qt::Key_Minus);
    QTest::keyClick(&view, Qt::Key_Minus);
    settle();
    EXPECT_NEAR(QLineF(handles.getShape().getCenter(), placeOf(HandlePart::X)).length(), length, 8);
    // The pointer over it changes its look.
    const QImage idle = picture();
    const int drawn = view.getDrawCount();
    send(QEvent::MouseMove, placeOf(HandlePart::X), Qt::NoButton, {});
    EXPECT_EQ(view.cursor().shape(), Qt::OpenHandCursor);
    QCoreApplication::processEvents();
    EXPECT_EQ(view.getDrawCount(), drawn) << "without another picture of the scene";
    EXPECT_NE(picture(), idle);
}

} // namespace
