// SPDX-License-Identifier: MIT
// Moving, turning and scaling by handles in the 3D view, by mouse and by keys.
#include "HandleWalk.h"
#include "HandlesFixture.h"

#include "structure/SceneStates.h"

#include <xsg/actions/SoSearchAction.h>

#include <random>

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
